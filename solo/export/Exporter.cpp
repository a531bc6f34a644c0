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
/** Pictures in an SVG file are as fine as this many dots per inch make them. */
constexpr int svgDotsPerInch = 600;

/** The resolution that texts are laid out for. */
constexpr int screenDotsPerInch = 96;

constexpr int fewestDots = 10;
constexpr int mostDots = 2400;

/** Qt can paint on nothing that is longer. */
constexpr int longestPicture = 32767;

// A4 at the finest resolution, which is the user's wish. The size of the sheet is the document's:
// beyond A0 a stranger's document must not cost that much.
constexpr qint64 mostPixels = 600'000'000;
constexpr qint64 mostPixelsBeyondA0 = 16'000'000;
constexpr qint64 squareInchesOfA0 = 1550;

/** True for a picture of dots that does not cost more memory than it may. */
bool isPossible(const QSize &size, int dotsPerInch)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    const qint64 squareInch = qint64(dotsPerInch) * dotsPerInch;
    const bool isBeyondA0 = pixels > squareInchesOfA0 * squareInch;
    return qMax(size.width(), size.height()) <= longestPicture &&
           pixels <= (isBeyondA0 ? mostPixelsBeyondA0 : mostPixels);
}

/** The finished drawing, which says how large its sheet is, for Qt goes by another resolution. */
QByteArray finishedWithSheetSize(const QByteArray &svg, const QSize &dots)
{
    static const QRegularExpression written(
        QStringLiteral("<svg width=\"[^\"]*\" height=\"[^\"]*\""));
    const auto inches = [](int length) { return QString::number(double(length) / svgDotsPerInch); };
    const QString right = QStringLiteral("<svg width=\"%1in\" height=\"%2in\"")
                              .arg(inches(dots.width()), inches(dots.height()));
    return DrawingText::finished(QString::fromUtf8(svg)).replace(written, right).toUtf8();
}

/** A drawing that brings along the notation font, which others do not have. */
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
        return tr("there is no page %1, only 1 to %2").arg(options.page).arg(m_window.pageCount);
    if (options.dotsPerInch < fewestDots || options.dotsPerInch > mostDots)
        return tr("the resolution must be between %1 and %2").arg(fewestDots).arg(mostDots);
    if (FileStamp::at(path).isSameFileAs(FileStamp::at(options.document)))
        return tr("%1: this is the document itself").arg(path);
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

/** A printer writes a file of its own, so that is made aside and put in place when it is whole. */
Exporter::Contents Exporter::pdf()
{
    const QTemporaryDir folder;
    const Contents failed{{},
                          tr("The temporary folder %1 does not take the pages. Is the disk full?")
                              .arg(QDir::toNativeSeparators(QDir::tempPath()))};
    // Without a file's name the pages would go to the user's own printer.
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
    // Letters are sized by this; pictures get as fine as the drawing is large.
    generator.setResolution(screenDotsPerInch);
    generator.setSize(page.size());
    generator.setViewBox(QRect(QPoint(0, 0), page.size()));
    QPainter painter(&generator);
    page.paint(painter);
    painter.end();
    return withNotationFont(finishedWithSheetSize(buffer.data(), page.size()));
}
