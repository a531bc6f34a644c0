#pragma once

#include "BuiltInHost.h"
#include "DocumentSession.h"
#include "ErrandQueue.h"
#include "FileCommands.h"
#include "PageControls.h"
#include "TonquillMainWin.h"
#include "UndoCommands.h"
#include "ZoomControl.h"

#include <QObject>

#include <utility>

/** What a start of the program wants to have open. */
struct Beginning
{
    QString file;
    QString example;                             ///< to open a copy of, if there is no file
    QList<std::pair<QString, QString>> problems; ///< to be said first, each with its reason
};

/**
 * The editor's window with everything round it that makes it a program of its own: a host, files,
 * undo, recovery and menus. Closing the window ends the program.
 */
class SoloWindow : public QObject
{
    Q_OBJECT

public:
    /** Keeps its journal in `folder`. The window is not shown yet. */
    explicit SoloWindow(const QString &folder);

    TonquillMainWin &window() { return m_window; }
    DocumentSession &session() { return m_session; }
    FileCommands &files() { return m_files; }

    /** For what comes from outside the window. */
    ErrandQueue &errands() { return m_errands; }

    /** Starts the host and connects the editor to it. The answer is empty, or an error. */
    QString startHost();

    /** Shows the window in front of the others, with the dialog that it may be waiting for. */
    void show();

    /** Shows the window and opens a file, if one is given, as soon as nothing else goes on. */
    void openLater(const QString &path);

    /** Offers what a former run left behind, then opens what is wanted. */
    void begin(const Beginning &wanted);

Q_SIGNALS:
    /** The window is on the screen for the first time, where the desktop has put it. */
    void appeared();

    /** The window was closed for good. */
    void finished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void quit();
    void refreshTitle();
    void onJournalFailed(const QString &reason);

    ErrandQueue m_errands;
    TonquillMainWin m_window;
    DocumentSession m_session;
    FileCommands m_files;
    UndoCommands m_undo;
    ZoomControl m_zoom;
    PageControls m_pages;
    BuiltInHost m_host;
    bool m_hasAppeared = false;
    bool m_leaving = false;
};
