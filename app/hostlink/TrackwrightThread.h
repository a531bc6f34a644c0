#pragma once

#include <QLocalSocket>
#include <QThread>

class TonquillMainWin;

/**
 * Reads the host's messages from standard input, line by line. A second way for a host to speak to
 * the editor: the class is ready to use, and nothing starts it yet. Connect `twData` with a queued
 * connection, for it is emitted in this thread.
 */
class TrackwrightThread : public QThread
{
    Q_OBJECT

public:
    TrackwrightThread(TonquillMainWin *mainWin, QObject *parent);

Q_SIGNALS:
    /** The text of a line that began with "tw2tonquill ", without that prefix. */
    void twData(QString msg);

protected:
    /** Never returns of itself; at the end of input it waits for QThread::requestInterruption(). */
    void run() override;

private:
    TonquillMainWin *m_mainWin;
    QLocalSocket m_socket; ///< for the channel's other direction, which nothing uses
};
