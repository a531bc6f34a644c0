#pragma once

#include "HostThread.h"
#include "SampleDocument.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QPointer>

#include <memory>

/**
 * The editor that is measured: the one main window of this process. Every object of this class
 * starts with an empty document and leaves none behind.
 */
class Editor
{
public:
    Editor();
    ~Editor();

    TonquillMainWin &window() { return *g_pMainWin; }
    TonquillScene &scene() { return *g_pMainWin->scene; }

    /** Builds the document from its records, lays its pages and shows it for the first time. */
    void load(const SampleDocument::Samples &samples);

    /** Has Qt do what it puts off until the next event and the next painting. */
    void settle();

    /** Connects the window with a host. */
    void connectToHost();
    HostThread &host() { return *m_host; }

    /** Handles events until the host's document stands on the scene, whose `old` item then goes. */
    void receiveDocumentInPlaceOf(const QPointer<QObject> &old);

    /** Handles events until all that the editor wrote is with the system. */
    void writeOut();

private:
    std::unique_ptr<HostThread> m_host;
};
