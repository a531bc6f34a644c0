#include "Editor.h"

#include <QCoreApplication>

namespace
{
void handleEvents()
{
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
} // namespace

Editor::Editor()
{
    scene().clearScene();
    scene().setPageNum(1);
}

Editor::~Editor()
{
    if (m_host) {
        window().socket.disconnectFromServer();
        m_host.reset();
    }
    // Run Qt's deferred work first: it would search all pending items for each deleted one.
    QCoreApplication::processEvents();
    scene().clearScene();
    QCoreApplication::processEvents();
}

void Editor::load(const SampleDocument::Samples &samples)
{
    for (const QString &record : SampleDocument::records(samples))
        scene().constructItem(record, false, 0);
    scene().setPageNum(SampleDocument::pagesFor(static_cast<int>(samples.size())));
    settle();
}

void Editor::settle()
{
    QCoreApplication::processEvents();
    scene().itemAt(QPointF(), QTransform());
}

void Editor::connectToHost()
{
    m_host = std::make_unique<HostThread>();
    window().socket.connectToServer(QStringLiteral("trackwrightqt"));
    if (!window().socket.waitForConnected())
        qFatal("no connection: %s", qPrintable(window().socket.errorString()));
    writeOut();
}

void Editor::receiveDocumentInPlaceOf(const QPointer<QObject> &old)
{
    while (old)
        handleEvents();
}

void Editor::writeOut()
{
    while (window().socket.bytesToWrite() > 0)
        handleEvents();
}
