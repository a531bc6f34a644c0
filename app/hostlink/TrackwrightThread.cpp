#include "TrackwrightThread.h"

#include "HostMessages.h"

#include <iostream>
#include <string>

namespace
{
constexpr unsigned long endOfInputPause = 50; // milliseconds
} // namespace

TrackwrightThread::TrackwrightThread(TonquillMainWin *mainWin, QObject *parent)
    : QThread(parent)
    , m_mainWin(mainWin)
{
    Q_UNUSED(m_mainWin);
}

void TrackwrightThread::run()
{
    std::string line;
    while (!isInterruptionRequested()) {
        if (!std::getline(std::cin, line)) {
            // End of input: the thread must not spin.
            msleep(endOfInputPause);
            continue;
        }
        const QString text = QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
        if (text.startsWith(HostMessages::fromHost))
            Q_EMIT twData(text.sliced(HostMessages::fromHost.size()));
    }
}
