#pragma once

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <iterator>

/** The smallest rectangle around everything at least as dark as this; empty for none. */
inline QRectF inkOf(const QImage &picture, int lightest = 128)
{
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    const auto isInk = [lightest](uchar pixel) { return pixel <= lightest; };
    QRect ink;
    for (int y = 0; y < grey.height(); ++y) {
        const uchar *begin = grey.constScanLine(y);
        const uchar *end = begin + grey.width();
        const uchar *left = std::find_if(begin, end, isInk);
        if (left == end)
            continue;
        const auto right =
            std::find_if(std::reverse_iterator(end), std::reverse_iterator(left), isInk);
        ink |= QRect(QPoint(int(left - begin), y), QPoint(int(right.base() - begin) - 1, y));
    }
    return ink;
}

/** What a PDF file holds, as the tools of the package poppler-utils read it. Pages begin at 1. */
class PdfFile
{
public:
    explicit PdfFile(const QString &path)
        : m_path(path)
    {}

    /** One picture in the file, a line of `pdfimages -list`. */
    struct Image
    {
        QString encoding; ///< "image" for lossless ones
        int xDotsPerInch;
        int yDotsPerInch;
    };

    /** The file without its date, which alone differs from one print to the next. */
    QByteArray undatedBytes() const
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(m_path));
        return QString::fromLatin1(file.readAll())
            .remove(QRegularExpression("/CreationDate \\([^)]*\\)"))
            .toLatin1();
    }

    qint64 size() const { return QFileInfo(m_path).size(); }

    int pageCount() const
    {
        static const QRegularExpression line("Pages: +(\\d+)");
        return line.match(run("pdfinfo", {m_path})).captured(1).toInt();
    }

    /** The size of every page, in points. */
    QList<QSizeF> pageSizes() const
    {
        static const QRegularExpression line("Page +\\d+ size: +([\\d.]+) x ([\\d.]+) pts");
        QList<QSizeF> sizes;
        auto found = line.globalMatch(run("pdfinfo", {"-f", "1", "-l", "9999", m_path}));
        while (found.hasNext()) {
            const QRegularExpressionMatch page = found.next();
            sizes.append(QSizeF(page.captured(1).toDouble(), page.captured(2).toDouble()));
        }
        return sizes;
    }

    QString text(int page) const
    {
        const QString number = QString::number(page);
        return run("pdftotext", {"-layout", "-f", number, "-l", number, m_path, "-"});
    }

    /** For each font, whether it is embedded. */
    QList<bool> embeddedFonts() const
    {
        // The columns: name, type, encoding, emb, sub, uni, object ID.
        static const QRegularExpression line(" (yes|no) +(yes|no) +(yes|no) +\\d+ +\\d+\n");
        QList<bool> embedded;
        auto found = line.globalMatch(run("pdffonts", {m_path}));
        while (found.hasNext())
            embedded.append(found.next().captured(1) == "yes");
        return embedded;
    }

    QList<Image> images() const
    {
        QList<Image> images;
        // Two lines of headings; then page, num, type, width, height, color, comp, bpc, enc, ...
        for (const QString &line : run("pdfimages", {"-list", m_path}).split('\n').mid(2)) {
            const QStringList fields = line.split(' ', Qt::SkipEmptyParts);
            if (fields.size() > 13)
                images.append({fields[8], fields[12].toInt(), fields[13].toInt()});
        }
        return images;
    }

    /** The smallest rectangle around the black ink of a page, in inches on its paper. */
    QRectF ink(int page) const { return inkIn(picture(page, measuredDpi)); }

    /** The same around everything that is not white, the grey outlines included. */
    QRectF inkOfAnyShade(int page) const { return inkIn(picture(page, measuredDpi), 224); }

    /** A page as it looks on paper, in grey. */
    QImage picture(int page, int dotsPerInch) const
    {
        const QTemporaryDir folder;
        const QString number = QString::number(page);
        run("pdftoppm", {"-r", QString::number(dotsPerInch), "-gray", "-singlefile", "-f", number,
                         "-l", number, m_path, folder.filePath("page")});
        return QImage(folder.filePath("page.pgm"));
    }

    /** How finely ink is measured. */
    static constexpr int measuredDpi = 288;

private:
    static QRectF inkIn(const QImage &picture, int lightest = 128)
    {
        const QRectF ink = inkOf(picture, lightest);
        return QRectF(ink.topLeft() / measuredDpi, ink.size() / measuredDpi);
    }

    static QString run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("%s, of the package poppler-utils, failed", qPrintable(program));
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    QString m_path;
};
