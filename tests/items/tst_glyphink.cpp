#include "GlyphDrawings.h"
#include "PaperPainting.h"
#include "TestMain.h"
#include "TonquillBitmap.h"

#include <QDir>
#include <QFileInfo>
#include <QGraphicsView>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <cmath>

namespace
{
/** The finer drawings have this many pixels to a unit. */
constexpr int fineness = 8;

/** A glyph made of the two pictures that the program has of it. */
struct Drawn
{
    explicit Drawn(const QString &name)
        : pixmap(QPixmap::fromImage(GlyphDrawings::loadInk(":/images/" + name + ".bmp")))
        , fine(QImage(":/images/fine/" + name + ".png").convertToFormat(QImage::Format_Grayscale8))
    {
        GlyphDrawings::setFineDrawing(pixmap, ":/images/fine/" + name + ".png");
    }

    QPixmap pixmap;
    QImage fine;
};

/** How much ink there is in an area of a picture: a pixel that is all black counts as 1. */
double inkOf(const QImage &picture, const QRect &area)
{
    double ink = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ink += (255 - qGray(picture.pixel(x, y))) / 255.0;
    }
    return ink;
}

double inkOf(const QImage &picture)
{
    return inkOf(picture, picture.rect());
}

QImage whitePaper(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

/** What the item paints when its origin lies at `at` and a unit is `scale` pixels large. */
QImage painted(TonquillBitmap &item, const QTransform &scale, QPointF at)
{
    const QRectF room = scale.mapRect(item.boundingRect());
    QImage image = whitePaper((2 * room.size() + QSizeF(8, 8)).toSize());
    QPainter painter(&image);
    painter.translate(QPointF(image.rect().center()) + at);
    painter.setTransform(scale, true);
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    item.paint(&painter, &option, nullptr);
    return image;
}

/** The difference of two amounts as told in a failure; empty if it is small enough. */
QString differs(double actual, double expected, double allowed)
{
    if (std::abs(actual - expected) <= allowed)
        return QString();
    return QString("%1 instead of %2").arg(actual).arg(expected);
}

constexpr double scales[] = {0.1, 0.2,  0.3, 0.4, 0.5, 0.6, 0.64, 0.7, 0.8, 0.9,
                             1.1, 1.25, 1.5, 2,   2.5, 3.3, 4,    6.4, 8};
constexpr QPointF places[] = {{0, 0}, {0.5, 0.5}, {0.3, 0.9}, {0.75, 0.13}};
} // namespace

/** How much of a glyph's ink is to be seen at each size. */
class GlyphInkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noInkIsLostAtAnyScale_data() { addGlyphs(); }
    void noInkIsLostAtAnyScale();
    void noInkIsLostWhereWidthAndHeightScaleApart();
    void noInkIsLostWhenTurned();
    void stemsAreWholeAtAnyScale_data();
    void stemsAreWholeAtAnyScale();
    void linesAreWholeAtAnyScale();
    void inkLiesWhereItIsInTheDrawing();
    void isThePixmapAtFullSize_data() { addGlyphs(); }
    void isThePixmapAtFullSize();
    void isThePixmapInAView();
    void denseScreensShowTheFineDrawing();
    void aSelectedGlyphIsOutlinedAtAnyScale();
    void manyScalesTakeNoMoreThanTheirRoom();

private:
    static void addGlyphs();
};

void GlyphInkTest::addGlyphs()
{
    QTest::addColumn<QString>("name");
    const QStringList pictures = QDir(":/images/fine").entryList();
    QCOMPARE(pictures.size(), 37);
    for (const QString &picture : pictures) {
        const QString name = QFileInfo(picture).completeBaseName();
        QTest::newRow(qPrintable(name)) << name;
    }
}

void GlyphInkTest::noInkIsLostAtAnyScale()
{
    QFETCH(QString, name);
    const Drawn glyph(name);
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    const double units = inkOf(glyph.fine) / (fineness * fineness);
    QVERIFY(units > 4);
    for (const double scale : scales) {
        for (const QPointF place : places) {
            const QImage image = painted(item, QTransform::fromScale(scale, scale), place);
            const double expected = units * scale * scale;
            // Half of one of 255 shades may be lost by rounding.
            const QString wrong = differs(inkOf(image), expected, 0.01 * expected + 0.5 / 255);
            QVERIFY2(wrong.isEmpty(), qPrintable(QString("%1 at %2").arg(wrong).arg(scale)));
        }
    }
}

/** As in a PNG picture, whose inches have other units across than down. */
void GlyphInkTest::noInkIsLostWhereWidthAndHeightScaleApart()
{
    const Drawn glyph("QuarterNote1");
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    const double units = inkOf(glyph.fine) / (fineness * fineness);
    for (const double dots : {36, 72, 150, 300, 600}) {
        const QTransform scale = QTransform::fromScale(dots / 88, dots / 90);
        const double expected = units * dots / 88 * dots / 90;
        const QString wrong =
            differs(inkOf(painted(item, scale, QPointF(0.3, 0.6))), expected, 0.01 * expected);
        QVERIFY2(wrong.isEmpty(), qPrintable(QString("%1 at %2 dpi").arg(wrong).arg(dots)));
    }
}

void GlyphInkTest::noInkIsLostWhenTurned()
{
    const Drawn glyph("QuarterNote1");
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    const double units = inkOf(glyph.fine) / (fineness * fineness);
    for (const double scale : {0.3, 0.8, 1.0, 2.0}) {
        const QTransform turned = QTransform().rotate(90).scale(scale, scale);
        const double expected = units * scale * scale;
        const QString wrong =
            differs(inkOf(painted(item, turned, QPointF(0.3, 0.6))), expected, 0.03 * expected);
        QVERIFY2(wrong.isEmpty(), qPrintable(QString("%1 at %2").arg(wrong).arg(scale)));
    }
}

void GlyphInkTest::stemsAreWholeAtAnyScale_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    // The part of the stem that is alone in its rows, in units from the pixmap's top.
    QTest::newRow("up") << "QuarterNote1" << 2.0 << 22.0;
    QTest::newRow("down") << "QuarterNote2" << 13.0 << 33.0;
    QTest::newRow("half up") << "HalfNote1" << 2.0 << 22.0;
    QTest::newRow("half down") << "HalfNote2" << 13.0 << 33.0;
}

/** Each row across a stem has all of the stem's ink, which is a unit wide. */
void GlyphInkTest::stemsAreWholeAtAnyScale()
{
    QFETCH(QString, name);
    QFETCH(double, from);
    QFETCH(double, to);
    const Drawn glyph(name);
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    for (const double scale : scales) {
        for (const QPointF place : places) {
            const QImage image = painted(item, QTransform::fromScale(scale, scale), place);
            const double top = image.rect().center().y() + place.y() + item.offset().y() * scale;
            // Rows that lie within the part even if the glyph is a pixel aside.
            const int first = int(std::ceil(top + from * scale)) + 1;
            const int last = int(std::floor(top + to * scale)) - 2;
            for (int row = first; row <= last; ++row) {
                const double ink = inkOf(image, QRect(0, row, image.width(), 1));
                const QString wrong = differs(ink, scale, 0.03 * scale + 1.0 / 255);
                QVERIFY2(wrong.isEmpty(),
                         qPrintable(QString("%1 at %2, row %3").arg(wrong).arg(scale).arg(row)));
            }
        }
    }
}

/** A ledger line, 18 units long and one high: each column within has all of its height. */
void GlyphInkTest::linesAreWholeAtAnyScale()
{
    const Drawn glyph("StaffLine");
    TonquillBitmap item(glyph.pixmap, 9, false, QPixmap());
    for (const double scale : scales) {
        for (const QPointF place : places) {
            const QImage image = painted(item, QTransform::fromScale(scale, scale), place);
            const double middle = image.rect().center().x() + place.x();
            const int first = int(std::ceil(middle - 9 * scale)) + 1;
            const int last = int(std::floor(middle + 9 * scale)) - 2;
            for (int column = first; column <= last; ++column) {
                const double ink = inkOf(image, QRect(column, 0, 1, image.height()));
                const QString wrong = differs(ink, scale, 0.03 * scale + 1.0 / 255);
                QVERIFY2(wrong.isEmpty(), qPrintable(QString("%1 at %2").arg(wrong).arg(scale)));
            }
        }
    }
}

/** The middle of the ink is where it is in the fine drawing, to an eighth of a pixel. */
void GlyphInkTest::inkLiesWhereItIsInTheDrawing()
{
    const Drawn glyph("GClef");
    TonquillBitmap item(glyph.pixmap, 2, false, QPixmap());
    const auto middleOf = [](const QImage &image) {
        QPointF sum;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                sum += QPointF(x + 0.5, y + 0.5) * inkOf(image, QRect(x, y, 1, 1));
        }
        return sum / inkOf(image);
    };
    const QPointF inDrawing = middleOf(glyph.fine) / fineness + item.offset();
    for (const double scale : {0.4, 0.8, 1.25, 1.9}) {
        for (const QPointF place : places) {
            const QImage image = painted(item, QTransform::fromScale(scale, scale), place);
            const QPointF expected =
                QPointF(image.rect().center()) + place + inDrawing * scale - middleOf(image);
            QVERIFY2(
                std::abs(expected.x()) < 0.13 && std::abs(expected.y()) < 0.13,
                qPrintable(
                    QString("%1, %2 aside at %3").arg(expected.x()).arg(expected.y()).arg(scale)));
        }
    }
}

/** Where a unit is a pixel, the glyph is its own pixmap, pixel for pixel. */
void GlyphInkTest::isThePixmapAtFullSize()
{
    QFETCH(QString, name);
    const Drawn glyph(name);
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    for (const QPointF place : places) {
        const QImage image = painted(item, QTransform(), place);
        QImage expected = whitePaper(image.size());
        QPainter painter(&expected);
        painter.drawPixmap(QPointF(image.rect().center()) + place + item.offset(), glyph.pixmap);
        painter.end();
        QCOMPARE(image, expected);
    }
}

void GlyphInkTest::isThePixmapInAView()
{
    const Drawn glyph("EighthNote1");
    QGraphicsScene scene(0, 0, 100, 100);
    auto *item = new TonquillBitmap(glyph.pixmap, 0, false, QPixmap());
    scene.addItem(item);
    item->setPos(40, 50);
    QGraphicsView view(&scene);
    view.setFrameShape(QFrame::NoFrame);
    view.resize(100, 100);
    const QImage shown = view.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QImage expected = whitePaper(QSize(100, 100));
    QPainter painter(&expected);
    painter.drawPixmap(QPointF(40, 50) + item->offset(), glyph.pixmap);
    painter.end();
    QCOMPARE(shown, expected);
}

/** A screen of twice the pixels shows the glyph at 100 % as another would at 200 %. */
void GlyphInkTest::denseScreensShowTheFineDrawing()
{
    const Drawn glyph("EighthNote1");
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    QImage dense = whitePaper(QSize(100, 100));
    dense.setDevicePixelRatio(2);
    QPainter onDense(&dense);
    onDense.translate(25, 25);
    item.paint(&onDense, &option, nullptr);
    // What comes after is not moved by it.
    QCOMPARE(onDense.worldTransform(), QTransform::fromTranslate(25, 25));
    onDense.end();
    QImage zoomed = whitePaper(QSize(100, 100));
    QPainter onZoomed(&zoomed);
    onZoomed.translate(50, 50);
    onZoomed.scale(2, 2);
    item.paint(&onZoomed, &option, nullptr);
    onZoomed.end();
    dense.setDevicePixelRatio(1);
    QCOMPARE(dense, zoomed);
}

void GlyphInkTest::aSelectedGlyphIsOutlinedAtAnyScale()
{
    const Drawn glyph("QuarterNote1");
    TonquillBitmap item(glyph.pixmap, 0, false, QPixmap());
    for (const double scale : {0.5, 1.0, 2.0}) {
        QStyleOptionGraphicsItem option;
        option.exposedRect = item.boundingRect();
        option.state = QStyle::State_Selected;
        const QTransform transform = QTransform::fromScale(scale, scale);
        QImage image = whitePaper(QSize(200, 200));
        QPainter painter(&image);
        painter.translate(100, 100);
        painter.setTransform(transform, true);
        item.paint(&painter, &option, nullptr);
        painter.end();
        // Dashes along the left edge, where the glyph itself has no ink.
        const QRectF bounds = transform.mapRect(item.boundingRect()).translated(100, 100);
        const QRect edge(qRound(bounds.left()) - 1, qRound(bounds.top()), 2,
                         qRound(bounds.height()));
        QVERIFY2(inkOf(image, edge) > 3, qPrintable(QString::number(scale)));
    }
}

/** However often the zoom changes, a glyph looks the same at the same zoom. */
void GlyphInkTest::manyScalesTakeNoMoreThanTheirRoom()
{
    const Drawn glyph("GClef");
    TonquillBitmap item(glyph.pixmap, 2, false, QPixmap());
    const QImage before = painted(item, QTransform::fromScale(0.8, 0.8), QPointF());
    // 300 drawings of 200 to 400 KB are several times what is kept.
    for (int i = 0; i < 300; ++i) {
        const double scale = 6 + i * 0.005;
        QVERIFY(inkOf(painted(item, QTransform::fromScale(scale, scale), QPointF())) > 1000);
    }
    QCOMPARE(painted(item, QTransform::fromScale(0.8, 0.8), QPointF()), before);
}

TONQUILL_TEST_MAIN(GlyphInkTest)
#include "tst_glyphink.moc"
