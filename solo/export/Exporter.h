#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class TonquillMainWin;

/** What of the document goes into a picture; a PDF file always has all pages. */
struct ExportOptions
{
    int page = 1; ///< counted from 1
    int dotsPerInch = 150;
    /** The file that is exported, which must not be written over; or empty. */
    QString document = QString();
};

/** Writes the window's document as PDF, PNG or SVG, told by the file's suffix. */
class Exporter
{
    Q_DECLARE_TR_FUNCTIONS(Exporter)

public:
    explicit Exporter(TonquillMainWin &window)
        : m_window(window)
    {}

    /**
     * Writes the file, at once or not at all. The answer says what went wrong; it is empty if
     * nothing did, and also if the user did not wait for the end, which writes nothing.
     */
    QString write(const QString &path, const ExportOptions &options);

private:
    /** The bytes of a file; where there are none, what went wrong, if anything did. */
    struct Contents
    {
        QByteArray bytes;
        QString error;
    };

    Contents contents(const QString &kind, const ExportOptions &options);
    Contents pdf();
    QByteArray png(const ExportOptions &options);
    QByteArray svg(const ExportOptions &options);

    TonquillMainWin &m_window;
};
