#include "HostLink.h"

#include "HostMessages.h"
#include "Logging.h"
#include "OpenBox.h"
#include "SocketPeer.h"
#include "TonquillScene.h"

#include <QLocalSocket>
#include <QWidget>

#include <utility>

namespace
{
// Milliseconds. The longer a message, the more likely are pauses within it, and the less a longer
// wait is noticed. After a wrong guess the rest is just built later.
constexpr int quietAfterMessage = 60;
constexpr int longestQuiet = 400;
constexpr qsizetype bytesForOneMore = 64 * 1024;
constexpr qint64 longestWait = 30000;

int quietTimeOf(const IncomingMessage &message)
{
    return static_cast<int>(
        qMin<qsizetype>(quietAfterMessage + message.size() / bytesForOneMore, longestQuiet));
}
} // namespace

HostLink::HostLink(QWidget &window, QLocalSocket &socket, TonquillScene &scene)
    : QObject(&window)
    , m_window(window)
    , m_socket(socket)
    , m_scene(scene)
    , m_quiet(this)
    , m_silence(this)
    , m_document(scene)
{
    m_quiet.setSingleShot(true);
    m_quiet.setObjectName(QStringLiteral("quiet"));
    m_silence.setSingleShot(true);
    m_silence.setObjectName(QStringLiteral("silence"));
    connect(&m_silence, SIGNAL(timeout()), this, SLOT(giveUpIfQuiet()));
    connect(&m_quiet, SIGNAL(timeout()), this, SLOT(judgeIfQuiet()));
    connect(&socket, SIGNAL(bytesWritten(qint64)), this, SLOT(sendNext()));
    connect(&socket, SIGNAL(disconnected()), this, SLOT(onDisconnected()));
}

bool HostLink::keepsConnection()
{
    if (SocketPeer::isTrusted(m_socket))
        return true;
    qCWarning(lcTonquill).noquote() << "the host at" << m_socket.fullServerName()
                                    << "belongs to another user; the document is not sent to it";
    m_socket.abort();
    return false;
}

void HostLink::readAvailable()
{
    // A closed socket must not be read.
    if (m_paused || m_socket.bytesAvailable() == 0)
        return;
    const QByteArray bytes = m_socket.readAll();
    if (m_incoming.isEmpty())
        m_sinceFirstPiece.start();
    m_incoming.append(bytes);
    startTimes();
    if (m_incoming.isOneSmallPiece() || m_sinceFirstPiece.hasExpired(longestWait))
        judge();
}

void HostLink::startTimes()
{
    m_quiet.start(quietTimeOf(m_incoming));
    m_silence.start(static_cast<int>(longestWait));
}

/** The window may have been busy for longer than the pause, with data of the host still unread. */
void HostLink::judgeIfQuiet()
{
    if (m_paused)
        return;
    m_socket.waitForReadyRead(0);
    readAvailable();
    if (!m_quiet.isActive())
        judge();
}

/** Reads first, so that nothing is dropped while more has arrived. */
void HostLink::giveUpIfQuiet()
{
    judgeIfQuiet();
    if (m_paused || m_silence.isActive() || m_incoming.isEmpty())
        return;
    qCWarning(lcTonquill) << "a message that broke off has not gone on and is dropped";
    m_incoming.drop();
    judge();
}

void HostLink::judge()
{
    m_quiet.stop();
    m_sinceFirstPiece.start();
    while (const std::optional<IncomingMessage::Message> message = m_incoming.take())
        handle(*message);
    if (!m_incoming.isEmpty())
        return;
    m_silence.stop();
    if (std::exchange(m_owesDocument, false))
        sendDocument();
}

void HostLink::handle(const IncomingMessage::Message &message)
{
    if (!message.cameBefore) {
        if (message.text.startsWith(HostMessages::fromHost))
            act(message.text.sliced(HostMessages::fromHost.size()));
    } else if (HostMessages::isState(message.text)) {
        act(message.text); // only its prefix had been received
    } else if (m_document.goOn(message.text, *message.cameBefore) && m_toldHost) {
        m_owesDocument = true; // the host's copy lacks the rest
    }
}

void HostLink::act(const QString &payload)
{
    if (payload == HostMessages::stateActivate) {
        showWindow();
    } else if (payload == HostMessages::stateNothingToUndo) {
        showBox(QStringLiteral("Undo"), QStringLiteral("Nothing to undo"));
    } else if (payload == HostMessages::stateNothingToRedo) {
        showBox(QStringLiteral("Redo"), QStringLiteral("Nothing to redo"));
    } else {
        receiveDocument(payload);
    }
}

/** Raising alone neither restores a minimised window nor gives it the focus. */
void HostLink::showWindow()
{
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.setVisible(true);
    m_window.raise();
    m_window.activateWindow();
}

/** The same message while the box is open does not open a second one. */
void HostLink::showBox(const QString &title, const QString &text)
{
    const auto *open = m_window.findChild<QMessageBox *>(title, Qt::FindDirectChildrenOnly);
    if (open && open->isVisible())
        return;
    openBox(m_window, QMessageBox::Warning, title, text)->setObjectName(title);
}

void HostLink::receiveDocument(const QString &payload)
{
    m_document.show(payload);
    m_toldHost = false;
    m_owesDocument = false; // the user's edits since then are lost
}

void HostLink::pause()
{
    m_paused = true;
}

/** Restarts the timeout of an incomplete message: its rest may still be unread. */
void HostLink::resume()
{
    m_paused = false;
    m_sinceFirstPiece.start();
    if (m_socket.state() == QLocalSocket::UnconnectedState) {
        onDisconnected();
        return;
    }
    readAvailable();
    if (!m_incoming.isEmpty() && !m_quiet.isActive())
        startTimes();
}

/** A document that is cut off within a record is dropped; the current one is more useful. */
void HostLink::onDisconnected()
{
    m_outbox.clear();
    if (m_paused)
        return;
    readAvailable();
    judge();
    m_silence.stop();
    m_incoming.drop();
    m_owesDocument = false;
}

void HostLink::sendDocument()
{
    if (m_socket.state() != QLocalSocket::ConnectedState)
        return;
    m_outbox.addDocument();
    sendNext();
}

void HostLink::sendCommand(const QString &command)
{
    if (m_socket.state() != QLocalSocket::ConnectedState)
        return;
    m_outbox.addCommand(command);
    sendNext();
}

void HostLink::sendNext()
{
    if (m_outbox.isEmpty() || m_socket.bytesToWrite() > 0)
        return;
    const Outbox::Message next = m_outbox.takeFirst();
    if (next.isDocument() && m_incoming.isFromHost()) {
        m_owesDocument = true;
        sendNext();
        return;
    }
    m_toldHost = m_toldHost || next.isDocument();
    const QString text = !next.isDocument() ? next.command
                         : m_leavesOutItems ? m_scene.pageCountLine()
                                            : m_scene.notifyTW();
    qCDebug(lcRecords).noquote() << "notifyTW " << HostMessages::toHost + text;
    // Latin-1 has accented letters; other characters become question marks.
    m_socket.write(HostMessages::toHost.toLatin1() + text.toLatin1());
}
