#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/** The host stand-in as a process of its own, in the test's private temporary folder. */
class HostProcess
{
public:
    HostProcess()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationDirPath() + "/tonquill-hoststandin", {});
        waitFor("listening");
    }

    ~HostProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /** Gives it one of its commands. */
    void tell(const QByteArray &command) { m_process.write(command + '\n'); }

    /** Writes a file for commands that send one, and returns its name. */
    QByteArray file(const QByteArray &contents)
    {
        QFile file(m_folder.filePath(QString::number(++m_files)));
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName().toLocal8Bit();
    }

    /** Waits until an event of this kind is in the log; earlier ones are taken out of it. */
    void waitFor(const QString &event)
    {
        const auto found = [this, &event] {
            readLog();
            while (!m_log.isEmpty()) {
                if (m_log.takeFirst()["event"].toString() == event)
                    return true;
            }
            return false;
        };
        if (!QTest::qWaitFor(found, 20000))
            qFatal("the host has not said \"%s\"", qPrintable(event));
    }

    /** All that came in so far since the last call, joined. */
    QString takeReceived()
    {
        readLog();
        QString text;
        for (const QJsonObject &entry : std::exchange(m_log, {})) {
            if (entry["event"].toString() == "received")
                text += entry["text"].toString();
        }
        return text;
    }

    /** Ends it at once, without a word. */
    void die()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    void readLog()
    {
        m_unread += m_process.readAllStandardOutput();
        for (qsizetype end = m_unread.indexOf('\n'); end >= 0; end = m_unread.indexOf('\n')) {
            m_log.append(QJsonDocument::fromJson(m_unread.first(end)).object());
            m_unread.remove(0, end + 1);
        }
    }

    QTemporaryDir m_folder;
    QProcess m_process;
    QByteArray m_unread;
    QList<QJsonObject> m_log;
    int m_files = 0;
};
