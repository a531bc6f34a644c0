#include "DocumentFile.h"
#include "ItemProbe.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TonquillText.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"

#include <QDir>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{
/** How a picture of the page is made. */
struct Look
{
    QString name;
    double across; ///< pixels to a scene unit
    double down;
    int dotsPerInch; ///< of a PNG picture; 0 for the screen
};

/** The zooms of the program's steps, some between them, and PNG pictures. */
QList<Look> looks()
{
    QList<Look> result;
    for (const double zoom :
         {0.1,  0.26, 0.41, 0.512, 0.64, 0.8, 1.0,  1.25, 1.5625, 1.61, 1.953, 2.0,
          2.44, 2.68, 3.05, 3.33,  3.8,  4.3, 4.77, 5.37, 5.96,   6.4,  7.45,  8.0})
        result.append({QString("zoom %1").arg(zoom), zoom, zoom, 0});
    for (const int dots : {72, 96, 150, 300, 600})
        result.append({QString("%1 dpi").arg(dots), dots / 88.0, dots / 90.0, dots});
    return result;
}

/** A part of the page as the window shows it, or as a PNG picture does. */
QImage pictureOf(QGraphicsScene &scene, const QRectF &area, const Look &look)
{
    const QSizeF size(area.width() * look.across, area.height() * look.down);
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    if (look.dotsPerInch > 0) {
        image.setDotsPerMeterX(qRound(look.dotsPerInch / 0.0254));
        image.setDotsPerMeterY(qRound(look.dotsPerInch / 0.0254));
    }
    QPainter painter(&image);
    if (look.dotsPerInch > 0)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    scene.render(&painter, QRectF(QPointF(0, 0), size), area, Qt::IgnoreAspectRatio);
    return image;
}

/** A line on the page, from its left or upper end. */
QLineF lineOf(const QGraphicsItem &item)
{
    const auto &line = static_cast<const TonquillVectorInteractiveLine &>(item);
    return QLineF(line.startPoint(), line.endPoint()).translated(line.pos());
}

/** A beam: sloping lines that lie side by side, given by its upper and its lower one. */
struct Beam
{
    QLineF upper;
    QLineF lower;

    double left() const { return upper.x1(); }
    double right() const { return upper.x2(); }
    double topAt(double x) const { return upper.y1() + (x - left()) * upper.dy() / upper.dx(); }
    double bottomAt(double x) const { return topAt(x) + lower.y1() - upper.y1(); }
    double middleAt(double x) const { return (topAt(x) + bottomAt(x)) / 2; }
    QRectF bounds() const
    {
        return QRectF(upper.p1(), lower.p2()).normalized() |
               QRectF(upper.p2(), lower.p1()).normalized();
    }
};

bool isDark(QRgb pixel)
{
    return qGray(pixel) < 64;
}

bool isWhite(QRgb pixel)
{
    return qGray(pixel) > 250;
}
} // namespace

/** What the example documents look like at every size at which they can be seen. */
class ExamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void beamsAreSolid_data() { addExamples(); }
    void beamsAreSolid();
    void stemsEndInTheirBeams_data() { addExamples(); }
    void stemsEndInTheirBeams();
    void figuresOfTimeSignaturesAreApart_data() { addExamples(); }
    void figuresOfTimeSignaturesAreApart();
    void noUprightLineIsDrawnTwice_data() { addExamples(); }
    void noUprightLineIsDrawnTwice();

private:
    static void addExamples();
    void open(const QString &path);
    QGraphicsScene &scene() { return *m_solo->window().scene; }
    QList<QLineF> lines();
    QList<Beam> beams();

    QTemporaryDir m_folder;
    std::unique_ptr<SoloWindow> m_solo;
};

void ExamplesTest::initTestCase()
{
    m_solo = std::make_unique<SoloWindow>(m_folder.path());
}

void ExamplesTest::addExamples()
{
    QTest::addColumn<QString>("path");
    const QDir folder(TONQUILL_EXAMPLES);
    const QStringList names = folder.entryList({"*.tonquill"});
    QCOMPARE(names.size(), 4);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void ExamplesTest::open(const QString &path)
{
    TonquillMainWin &window = m_solo->window();
    const DocumentFile::Reading reading =
        DocumentFile::load(path, DocumentSnapshot::paperOf(window));
    QVERIFY(reading.problems.isEmpty());
    reading.document.restore(window);
}

/** The free lines of the document, in its order. */
QList<QLineF> ExamplesTest::lines()
{
    QList<QLineF> result;
    QList<QGraphicsItem *> items = ItemProbe::documentItems(scene());
    std::reverse(items.begin(), items.end());
    for (QGraphicsItem *item : items) {
        if (item->type() == TonquillVectorInteractiveLine::Type)
            result.append(lineOf(*item));
    }
    return result;
}

/** Some of the beams: neighbours in the document that lie less than a unit apart and run the same
 * way. */
QList<Beam> ExamplesTest::beams()
{
    QList<Beam> result;
    for (const QLineF &line : lines()) {
        if (std::abs(line.dx()) <= std::abs(line.dy()))
            continue;
        Beam *last = result.isEmpty() ? nullptr : &result.last();
        const bool joins = last && line.x1() == last->left() && line.x2() == last->right() &&
                           qFuzzyCompare(line.dy() + 100, last->upper.dy() + 100) &&
                           std::abs(line.y1() - last->lower.y1()) < 1;
        if (joins)
            last->lower = line;
        else
            result.append({line, line});
    }
    // Enough of them: in a long piece they are all alike.
    constexpr qsizetype enough = 24;
    const qsizetype step = result.size() / enough + 1;
    QList<Beam> some;
    for (qsizetype i = 0; i < result.size(); i += step)
        some.append(result[i]);
    return some;
}

/** From its first line to its last a beam has no gap, wherever it is cut. */
void ExamplesTest::beamsAreSolid()
{
    QFETCH(QString, path);
    open(path);
    const QList<Beam> all = beams();
    for (const Beam &beam : all) {
        QVERIFY(beam.lower.y1() - beam.upper.y1() > 2.5);
        const QRectF area = beam.bounds().adjusted(-3, -3, 3, 3);
        for (const Look &look : looks()) {
            const QImage image = pictureOf(scene(), area, look);
            const int first = int(std::ceil((beam.left() - area.left()) * look.across));
            const int end = int((beam.right() - area.left()) * look.across);
            for (int x = first; x < end; ++x) {
                const double middle = area.left() + (x + 0.5) / look.across;
                const int top = int(std::ceil((beam.topAt(middle) - area.top()) * look.down));
                const int bottom = int((beam.bottomAt(middle) - area.top()) * look.down);
                for (int y = top; y < bottom; ++y)
                    QVERIFY2(isDark(image.pixel(x, y)),
                             qPrintable(QString("%1: %2, %3 in the beam from %4, %5")
                                            .arg(look.name)
                                            .arg(middle)
                                            .arg(y / look.down + area.top())
                                            .arg(beam.left())
                                            .arg(beam.upper.y1())));
            }
        }
    }
}

/** Beyond the outer edge of a beam nothing of its notes is to be seen. */
void ExamplesTest::stemsEndInTheirBeams()
{
    // Farther away there may be something else.
    constexpr double looked = 3;
    QFETCH(QString, path);
    open(path);
    const QList<Beam> all = beams();
    const QList<QLineF> allLines = lines();
    // Staves and texts may lie beside a beam; notes and lines may not.
    for (QGraphicsItem *item : ItemProbe::documentItems(scene()))
        item->setVisible(item->type() == TonquillVectorInteractiveLine::Type ||
                         item->type() == QGraphicsItem::UserType);
    for (const Beam &beam : all) {
        int above = 0;
        int below = 0;
        for (const QLineF &line : allLines) {
            if (line.dx() != 0 || line.x1() < beam.left() - 0.1 || line.x1() > beam.right() + 0.1)
                continue;
            const double end = line.y2() - beam.middleAt(line.x1());
            const double begin = line.y1() - beam.middleAt(line.x1());
            if (std::abs(end) > 4)
                continue;
            // The end of the pen reaches half a unit further.
            QVERIFY(std::abs(end) <= 2 - 0.5);
            begin < 0 ? ++above : ++below;
        }
        QVERIFY(above + below >= 2);
        QVERIFY(above == 0 || below == 0);
        for (const Look &look : looks()) {
            const QRectF area = beam.bounds().adjusted(-3, -4, 3, 4);
            const QImage image = pictureOf(scene(), area, look);
            for (int x = 0; x < image.width(); ++x) {
                const double middle =
                    qBound(beam.left(), area.left() + (x + 0.5) / look.across, beam.right());
                // The outer line is at most 1 unit or a pixel wide, and pixels are not halved.
                const double edge = qMax(0.5, 0.5 / look.down) + 1.2 / look.down + 0.1;
                const double from =
                    above ? beam.bottomAt(middle) + edge : beam.topAt(middle) - looked;
                const double to =
                    above ? beam.bottomAt(middle) + looked : beam.topAt(middle) - edge;
                for (int y = int(std::ceil((from - area.top()) * look.down));
                     y < int((to - area.top()) * look.down); ++y)
                    QVERIFY2(isWhite(image.pixel(x, y)),
                             qPrintable(QString("%1: %2, %3 beside the beam from %4, %5")
                                            .arg(look.name)
                                            .arg(middle)
                                            .arg(y / look.down + area.top())
                                            .arg(beam.left())
                                            .arg(beam.upper.y1())));
            }
        }
    }
}

/** Between the upper and the lower figure there is white, but for the staff's middle line. */
void ExamplesTest::figuresOfTimeSignaturesAreApart()
{
    QFETCH(QString, path);
    open(path);
    QList<QGraphicsItem *> figures;
    for (QGraphicsItem *item : ItemProbe::documentItems(scene())) {
        const auto *text = qgraphicsitem_cast<TonquillText *>(item);
        const bool isFigure =
            text && text->font().family() == "Musica" && text->toPlainText().at(0).isDigit();
        item->setVisible(isFigure);
        if (isFigure)
            figures.prepend(item);
    }
    // The canon has common time, for which there is a glyph.
    QVERIFY(!figures.isEmpty() || path.contains("canon"));
    for (qsizetype i = 0; i + 1 < figures.size(); i += 2) {
        const QRectF area = figures[i]->sceneBoundingRect() | figures[i + 1]->sceneBoundingRect();
        for (const Look &look : looks()) {
            // At fewer pixels the gap, a unit high, may fall between two rows.
            if (look.down < 2)
                continue;
            const QImage image = pictureOf(scene(), area, look);
            QList<bool> inked;
            for (int y = 0; y < image.height(); ++y) {
                bool ink = false;
                for (int x = 0; x < image.width() && !ink; ++x)
                    ink = !isWhite(image.pixel(x, y));
                if (inked.isEmpty() || inked.last() != ink)
                    inked.append(ink);
            }
            // White, a figure, white, a figure, white.
            QVERIFY2(inked == QList<bool>({false, true, false, true, false}),
                     qPrintable(look.name));
        }
    }
}

/** Where soft edges lie on each other they would be darker than elsewhere. */
void ExamplesTest::noUprightLineIsDrawnTwice()
{
    QFETCH(QString, path);
    open(path);
    QList<QLineF> uprights;
    for (QGraphicsItem *item : ItemProbe::documentItems(scene())) {
        auto *figure = dynamic_cast<TonquillVectorItem *>(item);
        if (!figure)
            continue;
        const QRectF span =
            QRectF(figure->startPoint(), figure->endPoint()).translated(figure->pos());
        const bool isLine = figure->type() == TonquillVectorInteractiveLine::Type;
        const bool isStaff = figure->type() == TonquillVectorGrandstaff::Type;
        if (isLine ? span.width() == 0 : span.height() > 30)
            uprights.append(QLineF(span.topLeft(), span.bottomLeft()));
        if (isStaff)
            uprights.append(QLineF(span.topRight(), span.bottomRight()));
    }
    // Within a thick bar every line lies on its neighbours.
    const QList<QLineF> all = uprights;
    uprights.removeIf([&all](const QLineF &line) {
        return std::any_of(all.begin(), all.end(), [&line](const QLineF &other) {
            const double aside = std::abs(other.x1() - line.x1());
            return aside > 0.1 && aside < 1 && other.y2() > line.y1() && other.y1() < line.y2();
        });
    });
    QVERIFY(uprights.size() > 8);
    for (qsizetype i = 0; i < uprights.size(); ++i) {
        for (qsizetype k = 0; k < i; ++k) {
            const QLineF &a = uprights[i];
            const QLineF &b = uprights[k];
            if (a.x1() != b.x1())
                continue;
            const double shared = qMin(a.y2(), b.y2()) - qMax(a.y1(), b.y1());
            QVERIFY2(shared <= 1,
                     qPrintable(QString("%1 units of %2, %3").arg(shared).arg(a.x1()).arg(a.y1())));
        }
    }
}

TONQUILL_SOLO_TEST_MAIN(ExamplesTest)
#include "tst_examples.moc"
