#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

/** Reads standard input by lines, without ever waiting for it; its end is quiet. */
class CommandReader : public QObject
{
    Q_OBJECT

public:
    explicit CommandReader(QObject *parent = nullptr);

Q_SIGNALS:
    void lineRead(const QByteArray &line);

private:
    void readInput();

    QSocketNotifier m_notifier;
    QByteArray m_pending;
};
