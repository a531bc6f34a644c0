#include "CommandReader.h"

#include <unistd.h>

CommandReader::CommandReader(QObject *parent)
    : QObject(parent)
    , m_notifier(STDIN_FILENO, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &CommandReader::readInput);
}

void CommandReader::readInput()
{
    char buffer[4096];
    const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (count <= 0) {
        m_notifier.setEnabled(false);
        return;
    }
    m_pending.append(buffer, count);
    for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
        const QByteArray line = m_pending.first(end);
        m_pending.remove(0, end + 1);
        Q_EMIT lineRead(line);
    }
}
