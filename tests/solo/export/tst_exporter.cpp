#include "Exporter.h"
#include "FullDisk.h"
#include "LongPrint.h"
#include "ModalAnswer.h"
#include "QuotedFields.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TextBlockState.h"
#include "TextState.h"
#include "TonquillScene.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QXmlStreamReader>

#include <cmath>

/** Exports that come to no end: what the user is told, and what is left behind. */
class ExporterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aPdfThatFailsIsToldOnce_data();
    void aPdfThatFailsIsToldOnce();
    void withoutATemporaryFolderNothingIsPrinted();
    void aCancelledPdfIsNotSpokenOf();
    void aPngHasAllInkAtAnyResolution_data();
    void aPngHasAllInkAtAnyResolution();
    void nothingInADrawingIsMoreThanText_data();
    void nothingInADrawingIsMoreThanText();

private:
    void choosePath();
    QList<QMessageBox *> boxes() { return m_solo->window().findChildren<QMessageBox *>(); }
    QString path() const { return m_folder->filePath("song.pdf"); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoloWindow> m_solo;
};

void ExporterTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
    m_solo->show();
}

void ExporterTest::cleanup()
{
    m_solo->session().close();
    m_solo.reset();
    m_folder.reset();
}

/** Answers the question for the file's name. */
void ExporterTest::choosePath()
{
    ModalAnswer::whenOpen<QFileDialog>([this](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(path());
        QMetaObject::invokeMethod(&dialog, "accept");
    });
}

void ExporterTest::aPdfThatFailsIsToldOnce_data()
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("nothing can be written") << 0;
    QTest::newRow("the file breaks off") << 512;
}

void ExporterTest::aPdfThatFailsIsToldOnce()
{
    QFETCH(int, bytes);
    QList<QMessageBox *> open;
    QString said;
    choosePath();
    {
        const FullDisk full(static_cast<rlim_t>(bytes));
        ModalAnswer::whenOpen<QMessageBox>([&](QMessageBox &box) {
            open = boxes();
            said = box.text() + u'\n' + box.informativeText();
        });
        m_solo->files().exportPdf();
    }
    QCOMPARE(open.size(), 1);
    QVERIFY2(said.startsWith("The PDF cannot be written."), qPrintable(said));
    QVERIFY2(said.contains("song.pdf: "), qPrintable(said));
    QVERIFY(boxes().isEmpty());
    QVERIFY(!QFileInfo::exists(path()));
    // With room on the disk it goes as ever.
    QCOMPARE(Exporter(m_solo->window()).write(path(), ExportOptions()), QString());
    QVERIFY(QFileInfo(path()).size() > 512);
}

void ExporterTest::withoutATemporaryFolderNothingIsPrinted()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nobody can make a folder there.
    qputenv("TMPDIR", "/proc");
    const QString error = Exporter(m_solo->window()).write(path(), ExportOptions());
    qputenv("TMPDIR", before);
    QVERIFY2(error.contains("/proc"), qPrintable(error));
    QVERIFY(!QFileInfo::exists(path()));
    QVERIFY(boxes().isEmpty());
}

void ExporterTest::aCancelledPdfIsNotSpokenOf()
{
    constexpr int pages = 100;
    int paints = 0;
    m_solo->window().scene->setPageNum(pages);
    auto *slow = new SlowItem(paints);
    m_solo->window().scene->addItem(slow);
    slow->setPos(200, 200);
    const ProgressWatch watch([](QProgressDialog &dialog) { dialog.cancel(); });
    choosePath();
    m_solo->files().exportPdf();
    QCOMPARE(watch.shown, 1);
    QVERIFY(boxes().isEmpty());
    QVERIFY(!QFileInfo::exists(path()));
}

void ExporterTest::aPngHasAllInkAtAnyResolution_data()
{
    QTest::addColumn<int>("dots");
    for (const int dots : {20, 50, 72, 96, 150, 300})
        QTest::addRow("%d dpi", dots) << dots;
}

/** Eight quarter notes keep their stems however coarse the picture is, and wherever they lie. */
void ExporterTest::aPngHasAllInkAtAnyResolution()
{
    QFETCH(int, dots);
    constexpr int notes = 8;
    const auto inkOf = [](const QImage &image) {
        double ink = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ink += (255 - qGray(image.pixel(x, y))) / 255.0;
        }
        return ink;
    };
    const ExportOptions options{1, dots};
    const QString png = m_folder->filePath("page.png");
    QCOMPARE(Exporter(m_solo->window()).write(png, options), QString());
    // The outlines of the page, without which no page is.
    const double empty = inkOf(QImage(png));
    for (int i = 0; i < notes; ++i)
        m_solo->window().scene->constructItem(
            QString("tonquill_bitmap 19 %1 %2 0").arg(200 + 37 * i).arg(300 + 11 * i), false, 0);
    QCOMPARE(Exporter(m_solo->window()).write(png, options), QString());
    // The drawing has 8 pixels to a unit; an inch has 88 units across and 90 down. What is drawn
    // from the frame's corner fills the sheet's frame, with 2 units more on each side.
    const QRectF frame = m_solo->window().scene->pageRect;
    const double across = dots / 88.0 * frame.width() / (frame.width() + 4);
    const double down = dots / 90.0 * frame.height() / (frame.height() + 4);
    const double units = inkOf(QImage(":/images/fine/QuarterNote1.png")) / 64;
    const double expected = notes * units * across * down;
    const double ink = inkOf(QImage(png)) - empty;
    QVERIFY2(std::abs(ink - expected) <= 0.02 * expected,
             qPrintable(QString("%1 instead of %2").arg(ink).arg(expected)));
}

namespace
{
/** The elements of a drawing with their attributes, and the values of some. */
struct Drawing
{
    QString error;
    QSet<QString> names; ///< of elements and, behind an @, of attributes
    QSet<QString> families;
    QSet<QString> links;
    QString text;
};

Drawing readDrawing(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {"cannot be opened", {}, {}, {}, {}};
    Drawing result;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            result.names.insert(xml.name().toString());
            for (const QXmlStreamAttribute &one : xml.attributes()) {
                result.names.insert('@' + one.qualifiedName().toString());
                if (one.name() == QLatin1String("font-family"))
                    result.families.insert(one.value().toString());
                if (one.name() == QLatin1String("href"))
                    result.links.insert(one.value().left(5).toString());
            }
        }
        if (xml.isCharacters())
            result.text += xml.text();
    }
    result.error = xml.errorString();
    return result;
}
} // namespace

void ExporterTest::nothingInADrawingIsMoreThanText_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("written");
    QTest::newRow("an attribute") << "x\" onload=\"alert(1)"
                                  << "x\" onload=\"alert(1)";
    QTest::newRow("an element") << "x\"><script>alert(1)</script><g x=\""
                                << "x\"><script>alert(1)</script><g x=\"";
    QTest::newRow("an entity") << "R&B &quot;&#34; 'n'"
                               << "R&B &quot;&#34; 'n'";
    QTest::newRow("characters that no XML holds")
        << QString("a\x01") + QChar(0xffff) + 'b' << QString("a\ufffd\ufffd") + 'b';
    QTest::newRow("what Qt writes behind a family")
        << "Arial\" font-size=\"9\" font-weight=\"400\" font-style=\"normal\" \n>la</text>"
        << "Arial\" font-size=\"9\" font-weight=\"400\" font-style=\"normal\"  >la</text>";
}

void ExporterTest::nothingInADrawingIsMoreThanText()
{
    QFETCH(QString, family);
    QFETCH(QString, written);
    const QString words = "la</text>\"<b>&\x02" + QString(QChar(0xfffe)) + "\" onload=\"x";
    const FontState font{family, 12, false, 400, QFont::StyleNormal, false};
    QImage red(3, 3, QImage::Format_RGB32);
    red.fill(Qt::red);
    QBuffer png;
    QVERIFY(red.save(&png, "PNG"));
    const QString html =
        QString("<p>plain <span style=\"font-family:'%1'; color:'\"><b'\">la</span> "
                "<img src=\"data:image/png;base64,%2\"></p>")
            .arg(family.toHtmlEscaped(), png.data().toBase64());
    TonquillMainWin &window = m_solo->window();
    window.scene->buildItem(TextState{QPointF(90, 90), words, font, Qt::red, 0});
    window.scene->buildItem(
        TextBlockState{QPointF(90, 200), QPointF(), QPointF(300, 90), 299, font, words, false});
    window.scene->buildItem(
        TextBlockState{QPointF(90, 400), QPointF(), QPointF(300, 90), 299, font, html, true});
    const QString svg = m_folder->filePath("a.svg");
    QCOMPARE(Exporter(window).write(svg, ExportOptions()), QString());

    const Drawing drawing = readDrawing(svg);
    QCOMPARE(drawing.error, QString());
    const QSet<QString> elements{"svg",  "title", "desc",     "defs", "style", "g",
                                 "text", "path",  "polyline", "rect", "image"};
    const QSet<QString> attributes{"@width",
                                   "@height",
                                   "@viewBox",
                                   "@version",
                                   "@baseProfile",
                                   "@fill",
                                   "@fill-opacity",
                                   "@fill-rule",
                                   "@stroke",
                                   "@stroke-opacity",
                                   "@stroke-width",
                                   "@stroke-linecap",
                                   "@stroke-linejoin",
                                   "@transform",
                                   "@font-family",
                                   "@font-size",
                                   "@font-weight",
                                   "@font-style",
                                   "@xml:space",
                                   "@x",
                                   "@y",
                                   "@d",
                                   "@points",
                                   "@vector-effect",
                                   "@xlink:href",
                                   "@preserveAspectRatio",
                                   "@image-rendering",
                                   "@opacity"};
    QCOMPARE(drawing.names - elements - attributes, QSet<QString>());
    QCOMPARE(drawing.links, QSet<QString>{"data:"});
    QVERIFY(drawing.families.contains(written));
    // All that was typed is there, twice; the two characters that no XML holds are marked.
    QCOMPARE(drawing.text.count("la</text>\"<b>&\ufffd\ufffd\" onload=\"x"), 2);
    // Only in the drawing; the document has the family still.
    for (const QByteArray &line : DocumentSnapshot::capture(window).items)
        QVERIFY(line.contains(QuotedFields::quoted(family).toUtf8()));
}

TONQUILL_SOLO_TEST_MAIN(ExporterTest)
#include "tst_exporter.moc"
