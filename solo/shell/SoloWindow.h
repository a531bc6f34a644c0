#pragma once

#include "BuiltInHost.h"
#include "DocumentSession.h"
#include "FileCommands.h"
#include "PageControls.h"
#include "TaskQueue.h"
#include "TonquillMainWin.h"
#include "UndoCommands.h"
#include "ZoomControl.h"

#include <QObject>

#include <utility>

/** What the command line asks the window to open. */
struct StartRequest
{
    QString file;
    QString example;                             ///< opened as a copy if there is no file
    QList<std::pair<QString, QString>> problems; ///< reported first, each with its reason
};

/**
 * The editor's window with everything that makes it a program of its own: a host, files, undo,
 * recovery and menus. Closing the window ends the program.
 */
class SoloWindow : public QObject
{
    Q_OBJECT

public:
    /** Keeps its journal in `folder`. Does not show the window yet. */
    explicit SoloWindow(const QString &folder);

    TonquillMainWin &window() { return m_window; }
    DocumentSession &session() { return m_session; }
    FileCommands &files() { return m_files; }

    /** Queue for requests from outside the window. */
    TaskQueue &tasks() { return m_tasks; }

    /**
     * Starts the host and connects the editor to it. Returns an empty string on success, else the
     * error.
     */
    QString startHost();

    /** Shows and raises the window, and activates its modal dialog, if any. */
    void show();

    /** Shows the window and opens `path`, unless it is empty, as soon as the user is not busy. */
    void openLater(const QString &path);

    /** Offers to recover the previous run's unsaved changes, then opens what `request` names. */
    void begin(const StartRequest &request);

Q_SIGNALS:
    /** The window was painted for the first time, in its place on the screen. */
    void appeared();

    /** The window was closed and the program may end. */
    void finished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void quit();
    void refreshTitle();
    void onJournalFailed(const QString &reason);

    TaskQueue m_tasks;
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
