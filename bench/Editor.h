#pragma once

#include "HostThread.h"
#include "SampleDocument.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QPointer>

#include <memory>

/**
 * The measured editor: the only main window of this process. Each object of this class starts with
 * an empty document and clears it on destruction.
 */
class Editor
{
public:
    Editor();
    ~Editor();

    TonquillMainWin &window() { return *g_pMainWin; }
    TonquillScene &scene() { return *g_pMainWin->scene; }

    /** Builds the document from its records, adds its pages and paints it once. */
    void load(const SampleDocument::Samples &samples);

    /** Runs the work that Qt defers to the event loop and the next paint. */
    void settle();

    /** Connects the window to a host. */
    void connectToHost();
    HostThread &host() { return *m_host; }

    /** Handles events until the host's document is on the scene, which deletes the item `old`. */
    void receiveDocumentInPlaceOf(const QPointer<QObject> &old);

    /** Handles events until everything the editor wrote has been handed to the system. */
    void writeOut();

private:
    std::unique_ptr<HostThread> m_host;
};
