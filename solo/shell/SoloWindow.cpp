#include "SoloWindow.h"

#include "MenuBar.h"
#include "PlainMessageBox.h"

#include <QAction>
#include <QApplication>
#include <QEvent>

#include <utility>

namespace
{
/** The palette's button that raises the host's window; this program has none. */
constexpr int raiseHostId = 0;
} // namespace

SoloWindow::SoloWindow(const QString &folder)
    : m_window(TonquillMainWin::HostConnection::Later)
    , m_session(m_window, folder)
    , m_files(m_window, m_session)
    , m_undo(m_window, m_session)
    , m_zoom(m_window)
    , m_pages(m_window, m_zoom)
{
    m_window.setMenuBar(new MenuBar(m_window, m_files, m_undo, m_zoom));
    m_window.actions.value(raiseHostId)->setVisible(false);
    m_window.setWindowFlags(m_window.windowFlags() | Qt::WindowMinMaxButtonsHint);
    m_window.installEventFilter(this);
    connect(&m_host, &BuiltInHost::edited, &m_session.edits(), &EditWatcher::checkSoon);
    connect(&m_host, &BuiltInHost::undoRequested, this,
            [this] { m_tasks.add([this] { m_undo.undo(); }); });
    connect(&m_host, &BuiltInHost::redoRequested, this,
            [this] { m_tasks.add([this] { m_undo.redo(); }); });
    connect(&m_host, &BuiltInHost::raiseRequested, this, &SoloWindow::show);
    connect(&m_session, &DocumentSession::changed, this, &SoloWindow::refreshTitle);
    connect(&m_session.edits(), &EditWatcher::documentChanged, &m_pages, &PageControls::refresh);
    connect(&m_session, &DocumentSession::journalFailed, this, &SoloWindow::onJournalFailed);
    refreshTitle();
}

QString SoloWindow::startHost()
{
    const QString error = m_host.listen();
    if (error.isEmpty())
        m_window.connectToOwnHost();
    return error;
}

void SoloWindow::show()
{
    m_window.showNormal();
    m_window.raise();
    QWidget *dialog = QApplication::activeModalWidget();
    (dialog ? dialog : &m_window)->activateWindow();
}

void SoloWindow::openLater(const QString &path)
{
    show();
    m_tasks.add([this, path] {
        // Unsaved changes to a file that is already open are not discarded.
        if (!path.isEmpty() && !(m_session.isModified() && m_session.comesFrom(path)))
            m_files.openFile(path);
    });
}

void SoloWindow::begin(const StartRequest &request)
{
    for (const auto &[text, details] : request.problems)
        PlainMessageBox::warn(&m_window, text, details);
    m_session.tryJournal();
    const bool isRecovered = m_files.offerRecovery();
    // A recovered document is newer than its file and must not be replaced by it.
    if (!request.file.isEmpty() && !(isRecovered && m_session.comesFrom(request.file)))
        m_files.openFile(request.file);
    else if (request.file.isEmpty() && !request.example.isEmpty() && !isRecovered)
        m_files.openCopy(request.example);
}

void SoloWindow::onJournalFailed(const QString &reason)
{
    m_tasks.add([this, reason] {
        PlainMessageBox::warn(&m_window, tr("Unsaved changes cannot be recovered after a crash."),
                              reason);
    });
}

void SoloWindow::refreshTitle()
{
    // Qt takes "[*]" for the place of the modification mark unless it is doubled.
    const QString mark = QStringLiteral("[*]");
    const QString name = m_session.name().replace(mark, mark + mark);
    m_window.setWindowTitle(tr("%1[*] – Tonquill").arg(name));
    m_window.setWindowModified(m_session.isModified());
}

/** Asks about unsaved changes; finished() is emitted unless the user cancels. */
void SoloWindow::quit()
{
    // Closing again while the question is shown must not ask a second time.
    if (m_leaving)
        return;
    m_leaving = true;
    if (m_files.mayLeave()) {
        m_session.close();
        m_window.hide();
        Q_EMIT finished();
    }
    m_leaving = false;
}

bool SoloWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_window)
        return false;
    if (event->type() == QEvent::Paint && !std::exchange(m_hasAppeared, true))
        QMetaObject::invokeMethod(this, &SoloWindow::appeared, Qt::QueuedConnection);
    if (event->type() == QEvent::WindowActivate)
        m_tasks.add([this] { m_files.lookForOutsideChange(); });
    if (event->type() != QEvent::Close)
        return false;
    event->ignore();
    quit();
    return true;
}
