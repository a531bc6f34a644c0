#include "HostLink.h"
#include "HostMessages.h"
#include "Logging.h"
#include "TonquillMainWin.h"

void TonquillMainWin::connectToHost()
{
    socket.connectToServer(HostMessages::serverName, QIODevice::ReadWrite);
}

void TonquillMainWin::connectToOwnHost()
{
    m_hostLink->leaveOutItems();
    connectToHost();
}

void TonquillMainWin::onTWConnect()
{
    if (!m_hostLink->keepsConnection())
        return;
    qCDebug(lcTonquill) << "connected to TW";
    notifyTW();
}

void TonquillMainWin::onTWData()
{
    m_hostLink->readAvailable();
}

void TonquillMainWin::notifyTW()
{
    m_hostLink->sendDocument();
}

void TonquillMainWin::twMsg(const QString &msg)
{
    m_hostLink->receiveDocument(msg);
}

void TonquillMainWin::OnToolBar1ButtonTrackwright()
{
    m_hostLink->sendCommand(HostMessages::commandRaise);
}

void TonquillMainWin::OnToolBar1ButtonUndo()
{
    m_hostLink->sendCommand(HostMessages::commandUndo);
}

void TonquillMainWin::OnToolBar1ButtonRedo()
{
    m_hostLink->sendCommand(HostMessages::commandRedo);
}
