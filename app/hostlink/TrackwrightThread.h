#pragma once

#include <QLocalSocket>
#include <QThread>

class TonquillMainWin;

/**
 * Reads the host's messages from standard input, line by line. A second channel from a host to the
 * editor, which nothing starts yet. Connect `twData` with a queued connection, since it is emitted
 * in this thread.
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
    /** Only returns after QThread::requestInterruption(), even at the end of input. */
    void run() override;

private:
    TonquillMainWin *m_mainWin;
    QLocalSocket m_socket; ///< for the opposite direction, unused
};
