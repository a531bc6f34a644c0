#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class TonquillMainWin;

/** Options for pictures; a PDF file always has all pages. */
struct ExportOptions
{
    int page = 1; ///< counted from 1
    int dotsPerInch = 150;
    /** The exported document's own file, which must not be overwritten; may be empty. */
    QString document = QString();
};

/** Writes the window's document as PDF, PNG or SVG, depending on the file's suffix. */
class Exporter
{
    Q_DECLARE_TR_FUNCTIONS(Exporter)

public:
    explicit Exporter(TonquillMainWin &window)
        : m_window(window)
    {}

    /**
     * Writes the file atomically. Returns an empty string on success, else the error. If the user
     * cancels, nothing is written and the string is empty, too.
     */
    QString write(const QString &path, const ExportOptions &options);

private:
    /** The bytes of a file; if there are none, the error, or empty if the user cancelled. */
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
