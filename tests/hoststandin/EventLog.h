#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QJsonObject>

/**
 * What happens on the link, written as it happens: one JSON object a line, each
 * with "event" and "ms" (milliseconds since the log was opened).
 */
class EventLog
{
public:
    /** Appends to the file of this name; with an empty name, to standard output. */
    bool open(const QString &fileName);

    void write(const QString &event, QJsonObject fields = {});

    /** An event about bytes: their "length", and as "text" one character a byte. */
    void writeBytes(const QString &event, int connection, const QByteArray &bytes);

private:
    QFile m_file;
    QElapsedTimer m_clock;
};
