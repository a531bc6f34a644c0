#include "HostLink.h"

#include "HostMessages.h"
#include "Logging.h"
#include "SocketPeer.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QMessageBox>

namespace
{
// Milliseconds. A message that breaks off within a record is given longer, for its writer may
// only have been held up; and one that never ends is judged by what came. The longer a message,
// the likelier is a pause within it, and the less is a longer wait noticed.
constexpr int quietAfterRecord = 60;
constexpr int quietWithinRecord = 400;
constexpr qsizetype bytesForOneMore = 64 * 1024;
constexpr qint64 longestMessage = 30000;

int quietTimeOf(const IncomingMessage &message)
{
    if (!message.endsWithRecord())
        return quietWithinRecord;
    return static_cast<int>(
        qMin<qsizetype>(quietAfterRecord + message.size() / bytesForOneMore, quietWithinRecord));
}
} // namespace

HostLink::HostLink(TonquillMainWin &window)
    : m_window(window)
{
    m_quiet.setSingleShot(true);
    connect(&m_quiet, SIGNAL(timeout()), this, SLOT(judgeIfQuiet()));
    connect(&window.socket, SIGNAL(bytesWritten(qint64)), this, SLOT(sendNext()));
    connect(&window.socket, SIGNAL(disconnected()), this, SLOT(onDisconnected()));
}

bool HostLink::keepsConnection()
{
    if (SocketPeer::isTrusted(m_window.socket))
        return true;
    qCWarning(lcTonquill).noquote() << "the host at" << m_window.socket.fullServerName()
                                    << "belongs to another user; the document is not sent to it";
    m_window.socket.abort();
    return false;
}

void HostLink::readAvailable()
{
    // A socket that is closed must not be read from.
    if (m_paused || m_window.socket.bytesAvailable() == 0)
        return;
    const QByteArray bytes = m_window.socket.readAll();
    if (m_incoming.isEmpty())
        m_sinceFirstPiece.start();
    m_incoming.append(bytes);
    if (m_incoming.isOneSmallPiece() || m_sinceFirstPiece.hasExpired(longestMessage))
        judge();
    else
        m_quiet.start(quietTimeOf(m_incoming));
}

/**
 * The window may have been busy for longer than the pause lasts, and what the host has written
 * meanwhile still waits to be read.
 */
void HostLink::judgeIfQuiet()
{
    if (m_paused)
        return;
    m_window.socket.waitForReadyRead(0);
    readAvailable();
    if (!m_quiet.isActive())
        judge();
}

void HostLink::judge()
{
    m_quiet.stop();
    const QString text = m_incoming.take();
    if (text.startsWith(HostMessages::fromHost))
        act(text.sliced(HostMessages::fromHost.size()));
}

void HostLink::act(const QString &payload)
{
    if (payload == HostMessages::stateActivate) {
        m_window.setVisible(true);
        m_window.raise();
    } else if (payload == HostMessages::stateNothingToUndo) {
        showBox(QStringLiteral("Undo"), QStringLiteral("Nothing to undo"));
    } else if (payload == HostMessages::stateNothingToRedo) {
        showBox(QStringLiteral("Redo"), QStringLiteral("Nothing to redo"));
    } else {
        m_window.twMsg(payload);
    }
}

/**
 * The box does not run a loop of its own: the socket must be heard while it is open. Told the same
 * again while it is, the user has not to close it twice.
 */
void HostLink::showBox(const QString &title, const QString &text)
{
    const auto *open = m_window.findChild<QMessageBox *>(title, Qt::FindDirectChildrenOnly);
    if (open && open->isVisible())
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, &m_window);
    box->setObjectName(title);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void HostLink::receiveDocument(const QString &payload)
{
    m_window.scene->clearScene();
    // A page-count line builds nothing: pages come and go with the user's page controls only.
    m_window.scene->constructDocument(payload);
}

void HostLink::pause()
{
    m_paused = true;
}

/** A message that had begun to arrive is given its time anew: its rest may still be unread. */
void HostLink::resume()
{
    m_paused = false;
    m_sinceFirstPiece.start();
    if (m_window.socket.state() == QLocalSocket::UnconnectedState) {
        onDisconnected();
        return;
    }
    readAvailable();
    if (!m_incoming.isEmpty() && !m_quiet.isActive())
        m_quiet.start(quietTimeOf(m_incoming));
}

void HostLink::onDisconnected()
{
    m_outbox.clear();
    if (m_paused)
        return;
    readAvailable();
    // What is cut off within a record is no document: better the one that the user sees.
    if (m_incoming.endsWithRecord())
        judge();
    m_quiet.stop();
    m_incoming.take();
}

void HostLink::sendDocument()
{
    if (m_window.socket.state() != QLocalSocket::ConnectedState)
        return;
    m_outbox.addDocument();
    sendNext();
}

void HostLink::sendCommand(const QString &command)
{
    if (m_window.socket.state() != QLocalSocket::ConnectedState)
        return;
    m_outbox.addCommand(command);
    sendNext();
}

void HostLink::sendNext()
{
    if (m_outbox.isEmpty() || m_window.socket.bytesToWrite() > 0)
        return;
    const Outbox::Message next = m_outbox.takeFirst();
    const QString text = next.isDocument() ? m_window.scene->notifyTW() : next.command;
    qCDebug(lcRecords).noquote() << "notifyTW " << HostMessages::toHost + text;
    // Latin-1 keeps an accented letter; what it lacks becomes a question mark.
    m_window.socket.write(HostMessages::toHost.toLatin1() + text.toLatin1());
}
