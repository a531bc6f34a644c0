#pragma once

#include "DialogMonkey.h"
#include "Randomness.h"
#include "ScenePointer.h"
#include "TestHost.h"

#include <QTemporaryDir>

#include <memory>

class DocumentMirror;
class TonquillMainWin;

/**
 * Uses the editor without any sense: pointer, keys, palette, menus, dialogs, pages, printing, and
 * a host that sends documents, rubbish and nothing. Each step is one such act, after which all that
 * it changed must have been announced.
 */
class Monkey : public QObject
{
    Q_OBJECT

public:
    explicit Monkey(quint32 seed);
    ~Monkey() override;

    /** Does one thing. */
    void step();

    /** Opens a new window: the copy buffer never empties, and a paste would grow without end. */
    void startAfresh();

    TonquillMainWin &window() { return *m_window; }

private Q_SLOTS:
    void hostSendsDocument();

private:
    void usePointer();
    void dragPointer();
    void useKey();
    void usePalette();
    void usePages();
    void useHost();
    void print();
    void zoomAndScroll();
    QPointF anyPoint();
    QPointF anyAnchorOrPoint();
    QString anyRecord();

    Randomness m_random;
    QTemporaryDir m_files;
    DialogMonkey m_dialogs;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<TonquillMainWin> m_window;
    std::unique_ptr<DocumentMirror> m_mirror;
    std::unique_ptr<ScenePointer> m_pointer;
};
