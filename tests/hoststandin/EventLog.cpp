#include "EventLog.h"

#include <QJsonDocument>

#include <cstdio>

bool EventLog::open(const QString &fileName)
{
    m_clock.start();
    if (fileName.isEmpty())
        return m_file.open(stdout, QIODevice::WriteOnly);
    m_file.setFileName(fileName);
    return m_file.open(QIODevice::WriteOnly | QIODevice::Append);
}

void EventLog::write(const QString &event, QJsonObject fields)
{
    fields.insert(QStringLiteral("event"), event);
    fields.insert(QStringLiteral("ms"), m_clock.elapsed());
    m_file.write(QJsonDocument(fields).toJson(QJsonDocument::Compact) + '\n');
    m_file.flush();
}

void EventLog::writeBytes(const QString &event, int connection, const QByteArray &bytes)
{
    write(event, {{QStringLiteral("connection"), connection},
                  {QStringLiteral("length"), bytes.size()},
                  {QStringLiteral("text"), QString::fromLatin1(bytes)}});
}
