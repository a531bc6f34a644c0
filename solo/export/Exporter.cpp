#include "Exporter.h"

#include "AtomicFile.h"
#include "DocumentSnapshot.h"
#include "DrawingText.h"
#include "FileStamp.h"
#include "PagePicture.h"
#include "PagePrinter.h"
#include "PrinterPaper.h"
#include "TonquillMainWin.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QTemporaryDir>

namespace
{
/** The resolution of pictures in an SVG file. */
constexpr int svgDotsPerInch = 600;

/** The resolution that texts are laid out for. */
constexpr int screenDotsPerInch = 96;

constexpr int fewestDots = 10;
constexpr int mostDots = 2400;

/** The largest side in dots that QPainter supports. */
constexpr int longestPicture = 32767;

// Enough for A4 at the finest resolution, which the user chooses. The size of the sheet comes from
// the document, so sheets beyond A0 get a lower limit: an untrusted document must not cost that
// much.
constexpr qint64 mostPixels = 600'000'000;
constexpr qint64 mostPixelsBeyondA0 = 16'000'000;
constexpr qint64 squareInchesOfA0 = 1550;

/** True if a picture of this size in dots stays within the limits. */
bool isPossible(const QSize &size, int dotsPerInch)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    const qint64 squareInch = qint64(dotsPerInch) * dotsPerInch;
    const bool isBeyondA0 = pixels > squareInchesOfA0 * squareInch;
    return qMax(size.width(), size.height()) <= longestPicture &&
           pixels <= (isBeyondA0 ? mostPixelsBeyondA0 : mostPixels);
}

/** The finished drawing with the sheet's size, which Qt writes for another resolution. */
QByteArray finishedWithSheetSize(const QByteArray &svg, const QSize &dots)
{
    static const QRegularExpression written(
        QStringLiteral("<svg width=\"[^\"]*\" height=\"[^\"]*\""));
    const auto inches = [](int length) { return QString::number(double(length) / svgDotsPerInch); };
    const QString right = QStringLiteral("<svg width=\"%1in\" height=\"%2in\"")
                              .arg(inches(dots.width()), inches(dots.height()));
    return DrawingText::finished(QString::fromUtf8(svg)).replace(written, right).toUtf8();
}

/** Embeds the notation font, which is not installed elsewhere. */
QByteArray withNotationFont(QByteArray svg)
{
    const QByteArray place("<defs>");
    QFile font(QCoreApplication::applicationDirPath() + QStringLiteral("/Musica.ttf"));
    if (!svg.contains("Musica") || !font.open(QIODevice::ReadOnly))
        return svg;
    const QByteArray style = "<style>@font-face{font-family:Musica;src:url(data:font/ttf;base64," +
                             font.readAll().toBase64() + ")}</style>";
    return svg.insert(svg.indexOf(place) + place.size(), style);
}
} // namespace

QString Exporter::write(const QString &path, const ExportOptions &options)
{
    const QString kind = QFileInfo(path).suffix().toLower();
    if (kind != QLatin1String("pdf") && kind != QLatin1String("png") &&
        kind != QLatin1String("svg"))
        return tr("%1: the name must end in .pdf, .png or .svg").arg(path);
    if (options.page < 1 || options.page > m_window.pageCount)
        return tr("there is no page %1; the document has pages 1 to %2")
            .arg(options.page)
            .arg(m_window.pageCount);
    if (options.dotsPerInch < fewestDots || options.dotsPerInch > mostDots)
        return tr("the resolution must be between %1 and %2").arg(fewestDots).arg(mostDots);
    if (FileStamp::at(path).isSameFileAs(FileStamp::at(options.document)))
        return tr("%1: the document itself cannot be overwritten").arg(path);
    const Contents made = contents(kind, options);
    const QString error = made.bytes.isEmpty() ? made.error : AtomicFile::write(path, made.bytes);
    return error.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(path, error);
}

Exporter::Contents Exporter::contents(const QString &kind, const ExportOptions &options)
{
    if (kind == QLatin1String("pdf"))
        return pdf();
    const QByteArray bytes = kind == QLatin1String("png") ? png(options) : svg(options);
    return Contents{bytes, tr("The picture would be too large. A lower resolution may help.")};
}

/** QPrinter writes a file, so it writes a temporary one, whose bytes are written atomically. */
Exporter::Contents Exporter::pdf()
{
    const QTemporaryDir folder;
    const Contents failed{
        {},
        tr("The pages cannot be written to the temporary folder %1. Is the disk full?")
            .arg(QDir::toNativeSeparators(QDir::tempPath()))};
    // Without a file name QPrinter would print on the default printer.
    if (!folder.isValid())
        return failed;
    const QString path = folder.filePath(QStringLiteral("export.pdf"));
    PagePrinter::Outcome outcome = PagePrinter::Outcome::NotStarted;
    const Paper paper = DocumentSnapshot::paperOf(m_window).inInches();
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageLayout(PrinterPaper::layoutOf(paper.size, paper.frame));
        printer.setOutputFileName(path);
        outcome = m_window.pagePrinter().printUnreported(printer);
    }
    if (outcome == PagePrinter::Outcome::Cancelled)
        return Contents();
    QFile file(path);
    if (outcome != PagePrinter::Outcome::Printed || !file.open(QIODevice::ReadOnly))
        return failed;
    return Contents{file.readAll(), failed.error};
}

QByteArray Exporter::png(const ExportOptions &options)
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    const PagePicture page(m_window, options.page, options.dotsPerInch);
    if (!isPossible(page.size(), options.dotsPerInch))
        return QByteArray();
    QImage image(page.size(), QImage::Format_RGB32);
    if (image.isNull())
        return QByteArray();
    image.setDotsPerMeterX(qRound(options.dotsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(qRound(options.dotsPerInch * inchesPerMetre));
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    page.paint(painter);
    painter.end();
    QBuffer buffer;
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

QByteArray Exporter::svg(const ExportOptions &options)
{
    const PagePicture page(m_window, options.page, svgDotsPerInch);
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    // This determines the size of text; the resolution of pictures follows from setSize().
    generator.setResolution(screenDotsPerInch);
    generator.setSize(page.size());
    generator.setViewBox(QRect(QPoint(0, 0), page.size()));
    QPainter painter(&generator);
    page.paint(painter);
    painter.end();
    return withNotationFont(finishedWithSheetSize(buffer.data(), page.size()));
}
