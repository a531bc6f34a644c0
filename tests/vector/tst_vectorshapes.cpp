#include "VectorShapes.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <numbers>

namespace
{
using Lines = QList<QLine>;

/** Half a tie's chord of 100, by the sine and tangent of half of 45 degrees. */
const double tieRadius = 50 / std::sin(std::numbers::pi / 8);
const double tieRise = 50 / std::tan(std::numbers::pi / 8);
/** How far such a tie bulges from its chord. */
const double tieHeight = tieRadius - tieRise;

/** A painter path's arc is a spline, whose ends lie a little beside the circle's. */
constexpr double arcNoise = 0.1;

/** An upright line, from the top or to it. */
QLine upright(int x, int y1, int y2)
{
    return QLine(x, y1, x, y2);
}

QLine level(int y, int x1, int x2)
{
    return QLine(x1, y, x2, y);
}

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height());
}
} // namespace

/** The figures of the vector items, worked out by hand. */
class VectorShapesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grandstaff_data();
    void grandstaff();
    void grandstaffDrawnOnce();
    void line_data();
    void line();
    void tablature_data();
    void tablature();
    void tablatureThatIsSeenInPart_data();
    void tablatureThatIsSeenInPart();
    void triplet_data();
    void triplet();
    void slantedTriplet_data();
    void slantedTriplet();
    void straightTripletsAreExact();
    void tie_data();
    void tie();
    void tieReachesToTheOrigin();
    void isFiniteWhateverThePoints_data();
    void isFiniteWhateverThePoints();
};

void VectorShapesTest::grandstaff_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<Lines>("lines");

    const auto upperStaff = [](int left, int right, int top) {
        return Lines{upright(left, top, top + 32), level(top, left, right),
                     level(top + 8, left, right),  level(top + 16, left, right),
                     level(top + 24, left, right), level(top + 32, left, right),
                     upright(right, top, top + 32)};
    };
    const auto lowerStaff = [](int left, int right, int top, int bottom) {
        return Lines{upright(left, top, bottom),      level(bottom - 32, left, right),
                     level(bottom - 24, left, right), level(bottom - 16, left, right),
                     level(bottom - 8, left, right),  level(bottom, left, right),
                     upright(right, top, bottom)};
    };
    QTest::newRow("new") << QPointF(0, 0) << QPointF(70, 70) << upperStaff(0, 70, 0);
    QTest::newRow("exactly 80 high") << QPointF(0, 0) << QPointF(70, 80) << upperStaff(0, 70, 0);
    // 80.5 is cut to 80, 80.5 - 8 to 72 and so on.
    QTest::newRow("80.5 high") << QPointF(0, 0) << QPointF(70, 80.5)
                               << upperStaff(0, 70, 0) + lowerStaff(0, 70, 0, 80);
    QTest::newRow("200 high, off the origin")
        << QPointF(10, 20) << QPointF(110, 220)
        << upperStaff(10, 110, 20) + lowerStaff(10, 110, 20, 220);
    QTest::newRow("end above the start")
        << QPointF(0, 100) << QPointF(70, 0) << upperStaff(0, 70, 100);
    QTest::newRow("to the left") << QPointF(70, 0) << QPointF(0, 10) << upperStaff(70, 0, 0);
    QTest::newRow("coinciding") << QPointF(5, 5) << QPointF(5, 5) << upperStaff(5, 5, 5);
}

void VectorShapesTest::grandstaff()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(Lines, lines);
    QCOMPARE(VectorShapes::grandstaff(start, end), lines);
}

/** Two staves have only the edges that join them, a single one has its own. */
void VectorShapesTest::grandstaffDrawnOnce()
{
    const Lines upperLines{level(0, 0, 70), level(8, 0, 70), level(16, 0, 70), level(24, 0, 70),
                           level(32, 0, 70)};
    const Lines lowerLines{level(68, 0, 70), level(76, 0, 70), level(84, 0, 70), level(92, 0, 70),
                           level(100, 0, 70)};
    QCOMPARE(VectorShapes::grandstaffDrawnOnce(QPointF(0, 0), QPointF(70, 80)),
             Lines{upright(0, 0, 32)} + upperLines + Lines{upright(70, 0, 32)});
    QCOMPARE(VectorShapes::grandstaffDrawnOnce(QPointF(0, 0), QPointF(70, 100)),
             upperLines + Lines{upright(0, 0, 100)} + lowerLines + Lines{upright(70, 0, 100)});
}

void VectorShapesTest::line_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QLine>("line");

    QTest::newRow("new") << QPointF(0, 0) << QPointF(100, 0) << QLine(0, 0, 100, 0);
    QTest::newRow("cut towards zero")
        << QPointF(-0.9, 0.9) << QPointF(-10.7, 12.9) << QLine(0, 0, -10, 12);
    QTest::newRow("coinciding") << QPointF(3, 4) << QPointF(3, 4) << QLine(3, 4, 3, 4);
}

void VectorShapesTest::line()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QLine, line);
    QCOMPARE(VectorShapes::line(start, end), Lines{line});
}

void VectorShapesTest::tablature_data()
{
    QTest::addColumn<double>("height");
    QTest::addColumn<int>("strings");

    QTest::newRow("new: 70 / 14") << 70.0 << 5;
    QTest::newRow("just under 84") << 83.9 << 5;
    QTest::newRow("84 / 14") << 84.0 << 6;
    QTest::newRow("27.9 / 14 is 1, so 2") << 27.9 << 2;
    QTest::newRow("42 / 14") << 42.0 << 3;
    QTest::newRow("no height") << 0.0 << 2;
    QTest::newRow("end above the start") << -200.0 << 2;
}

void VectorShapesTest::tablature()
{
    QFETCH(double, height);
    QFETCH(int, strings);

    Lines lines{upright(10, 20, 20 + (strings - 1) * 14)};
    for (int i = 0; i < strings; ++i)
        lines.append(level(20 + 14 * i, 10, 80));
    QCOMPARE(VectorShapes::tablature(QPointF(10, 20), QPointF(80, 20 + height)), lines);
}

void VectorShapesTest::tablatureThatIsSeenInPart_data()
{
    QTest::addColumn<double>("top");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");

    // Lines are at 20 + 14 * i, the last is 71,428,570 of them below the first; what is seen is 100
    // high. A line more on either side.
    QTest::newRow("the upper end: up to 120, 7.1 spacings") << 20.0 << 0 << 8;
    QTest::newRow("above it all") << -5000.0 << 0 << 0;
    QTest::newRow("966 / 14 is 69, 1094 / 14 is 78.1") << 1000.0 << 69 << 78;
    QTest::newRow("below it all") << 1e9 + 100 << 71428570 << 71428570;
}

void VectorShapesTest::tablatureThatIsSeenInPart()
{
    QFETCH(double, top);
    QFETCH(int, first);
    QFETCH(int, last);

    Lines lines{upright(10, 20 + 14 * first, 20 + 14 * last)};
    for (int i = first; i <= last; ++i)
        lines.append(level(20 + 14 * i, 10, 80));
    QCOMPARE(
        VectorShapes::tablature(QPointF(10, 20), QPointF(80, 1e9 + 20), QRectF(0, top, 700, 100)),
        lines);
}

void VectorShapesTest::triplet_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPoint>("numeral");
    QTest::addColumn<Lines>("lines");

    // Half is 50 and each arm 40 long; the numeral's baseline is 7 below the middle.
    QTest::newRow("new") << QPointF(0, 0) << QPointF(100, 0) << QPoint(50, 7)
                         << Lines{{0, 10, 0, 0}, {0, 0, 40, 0}, {60, 0, 100, 0}, {100, 0, 100, 10}};
    QTest::newRow("to the left: hooks up")
        << QPointF(100, 5) << QPointF(0, 5) << QPoint(50, 12)
        << Lines{{100, -5, 100, 5}, {100, 5, 60, 5}, {40, 5, 0, 5}, {0, 5, 0, -5}};
    QTest::newRow("straight down")
        << QPointF(0, 0) << QPointF(0, 100) << QPoint(0, 57)
        << Lines{{0, 10, 0, 0}, {0, 0, 0, 40}, {0, 60, 0, 100}, {0, 100, 0, 110}};
    QTest::newRow("straight up: hooks still down")
        << QPointF(0, 100) << QPointF(0, 0) << QPoint(0, 57)
        << Lines{{0, 110, 0, 100}, {0, 100, 0, 60}, {0, 40, 0, 0}, {0, 0, 0, 10}};
    // Half is 5, so an arm is -5 long and goes the other way.
    QTest::newRow("shorter than its gap")
        << QPointF(0, 0) << QPointF(10, 0) << QPoint(5, 7)
        << Lines{{0, 10, 0, 0}, {0, 0, -5, 0}, {15, 0, 10, 0}, {10, 0, 10, 10}};
    // No direction, which counts as to the right: both arms are -10 long.
    QTest::newRow("coinciding") << QPointF(20, 30) << QPointF(20, 30) << QPoint(20, 37)
                                << Lines{{20, 40, 20, 30},
                                         {20, 30, 10, 30},
                                         {30, 30, 20, 30},
                                         {20, 30, 20, 40}};
}

void VectorShapesTest::triplet()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QPoint, numeral);
    QFETCH(Lines, lines);
    const VectorShapes::Triplet shape = VectorShapes::triplet(start, end);
    QCOMPARE(shape.numeral, numeral);
    QCOMPARE(shape.lines, lines);
}

void VectorShapesTest::slantedTriplet_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPoint>("numeral");
    QTest::addColumn<QPoint>("firstArm");
    QTest::addColumn<QPoint>("secondArm");

    const auto row = [](const char *name, QPointF start, QPointF end, QPoint numeral,
                        QPoint firstArm, QPoint secondArm) {
        QTest::newRow(name) << start << end << numeral << firstArm << secondArm;
    };
    // The way (60, 80) is 100 long: half of it is 50, an arm 40. Its direction is 53.1301024
    // degrees, and 53.1301041 as the nearest multiple of 2^-18, the steps of single precision from
    // 32 to 64. That is a little too steep: the cosine is 0.59999996 instead of 0.6 and 50 times
    // that 29.999998, so the middle is cut to 29; the sine is 0.8, half is 40 down and 7 more make
    // 47. 40 times the cosine is 23.999998, and 60 less that is 36.000002.
    row("to the right and down", {0, 0}, {60, 80}, {29, 47}, {23, 32}, {36, 48});
    // -53.1301041 + 360 is 306.869896, and 306.8699036 in steps of 2^-15: not steep enough. The
    // cosine is 0.60000008, half is 30.000004 and an arm 24.000004 across; the sine -0.79999995,
    // which is -39.999996 and -31.999998: 40.000004 and 48.000002 are left of 80.
    row("to the right and up", {0, 80}, {60, 0}, {30, 47}, {24, 48}, {35, 31});
    row("to the left and up", {60, 80}, {0, 0}, {29, 47}, {35, 48}, {24, 31});
    row("to the left and down", {60, 0}, {0, 80}, {30, 47}, {36, 32}, {23, 48});
    // These are worked out in the same way, each intermediate rounded to the nearest number of
    // single precision, but the coordinates of the two points and what is added to them.
    row("120 right, 36 down, off the origin", {10, 20}, {130, 56}, {70, 45}, {60, 35}, {79, 40});
    row("120 left, 36 up, off the origin", {130, 56}, {10, 20}, {70, 44}, {79, 40}, {60, 35});
    row("120 right, 18 up, off the origin", {40, 200}, {160, 182}, {100, 198}, {90, 192},
        {109, 189});
    row("120 left, 18 down, off the origin", {160, 182}, {40, 200}, {100, 197}, {109, 189},
        {90, 192});
    row("100 right, 30 down", {0, 0}, {100, 30}, {50, 22}, {40, 12}, {59, 17});
    row("100 right, 30 up", {0, 0}, {100, -30}, {50, -8}, {40, -12}, {59, -17});
    row("100 left, 30 down", {0, 0}, {-100, 30}, {-50, 22}, {-40, 12}, {-59, 17});
    row("100 left, 30 up", {0, 0}, {-100, -30}, {-50, -8}, {-40, -12}, {-59, -17});
    row("41 right, 17 down", {0, 0}, {41, 17}, {20, 15}, {11, 4}, {29, 12});
    row("41 right, 17 up", {0, 0}, {41, -17}, {20, -1}, {11, -4}, {29, -12});
    row("41 left, 17 down", {0, 0}, {-41, 17}, {-20, 15}, {-11, 4}, {-29, 12});
    row("41 left, 17 up", {0, 0}, {-41, -17}, {-20, -1}, {-11, -4}, {-29, -12});
    row("120 right, 91 down, off the origin", {-50, -30}, {70, 61}, {10, 22}, {2, 9}, {17, 21});
    row("120 left, 91 up, off the origin", {70, 61}, {-50, -30}, {10, 22}, {17, 21}, {2, 9});
    row("120 right, 91 up, off the origin", {-50, 61}, {70, -30}, {10, 22}, {2, 21}, {17, 9});
    row("120 left, 91 down, off the origin", {70, -30}, {-50, 61}, {10, 22}, {17, 9}, {2, 21});
    row("2 right, 300 down", {0, 0}, {2, 300}, {0, 156}, {0, 140}, {1, 159});
    row("2 left, 300 down", {0, 0}, {-2, 300}, {0, 156}, {0, 140}, {-1, 159});
    row("2 left, 300 up", {0, 0}, {-2, -300}, {0, -142}, {0, -140}, {-1, -159});
    row("2 right, 300 up", {0, 0}, {2, -300}, {0, -142}, {0, -140}, {1, -159});
    row("300 right, 1 down", {0, 0}, {300, 1}, {150, 7}, {140, 0}, {159, 0});
    row("300 left, 1 up", {0, 0}, {-300, -1}, {-150, 7}, {-140, 0}, {-159, 0});
    row("300 right, 1 up", {0, 0}, {300, -1}, {150, 7}, {140, 0}, {159, 0});
    row("300 left, 1 down", {0, 0}, {-300, 1}, {-150, 7}, {-140, 0}, {-159, 0});
    row("124 right, 32 up, off the origin", {300, 400}, {424, 368}, {361, 390}, {352, 386},
        {371, 381});
    row("124 left, 32 down, off the origin", {424, 368}, {300, 400}, {362, 390}, {371, 381},
        {352, 386});
    row("124 right, 32 down, off the origin", {300, 368}, {424, 400}, {362, 391}, {352, 381},
        {371, 386});
    row("124 left, 32 up, off the origin", {424, 400}, {300, 368}, {362, 391}, {371, 386},
        {352, 381});
    row("12 right, 5 down", {0, 0}, {12, 5}, {6, 9}, {-3, -1}, {15, 6});
    row("12 left, 5 up", {0, 0}, {-12, -5}, {-5, 5}, {3, 1}, {-15, -6});
    row("between whole coordinates, right down", {0.5, 0.25}, {100.5, 40.75}, {50, 27}, {41, 16},
        {59, 24});
    row("between whole coordinates, left up", {33.25, 7.5}, {-66.75, -22.5}, {-16, 0}, {-7, -4},
        {-26, -10});
}

void VectorShapesTest::slantedTriplet()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QPoint, numeral);
    QFETCH(QPoint, firstArm);
    QFETCH(QPoint, secondArm);
    const int hook = start.x() > end.x() ? -10 : 10;
    const QPoint from(int(start.x()), int(start.y()));
    const QPoint to(int(end.x()), int(end.y()));
    const VectorShapes::Triplet shape = VectorShapes::triplet(start, end);
    QCOMPARE(shape.numeral, numeral);
    QCOMPARE(shape.lines, (Lines{{from.x(), int(start.y() + hook), from.x(), from.y()},
                                 {from, firstArm},
                                 {secondArm, to},
                                 {to.x(), to.y(), to.x(), int(end.y() + hook)}}));
}

/** Level and upright brackets of every length up to 600, in all four directions. */
void VectorShapesTest::straightTripletsAreExact()
{
    for (int length = 1; length <= 600; ++length) {
        const double half = length / 2.0;
        for (const QPoint direction : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
            const QPoint start(301, 703);
            const QPoint end = start + direction * length;
            // What is cut off are halves only; everything here lies beyond zero.
            const auto at = [](QPoint from, QPoint way, double far) {
                return QPoint(int(from.x() + way.x() * far), int(from.y() + way.y() * far));
            };
            const int hook = direction.x() < 0 ? -10 : 10;
            const VectorShapes::Triplet shape = VectorShapes::triplet(start, end);
            QCOMPARE(shape.numeral, at(start, direction, half) + QPoint(0, 7));
            QCOMPARE(shape.lines, (Lines{{start + QPoint(0, hook), start},
                                         {start, at(start, direction, half - 10)},
                                         {at(end, -direction, half - 10), end},
                                         {end, end + QPoint(0, hook)}}));
        }
    }
}

void VectorShapesTest::tie_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<int>("startAngle");
    QTest::addColumn<QRectF>("bounds");

    // The painter draws from the arc's end, 22.5 degrees clockwise of its top, in sixteenths.
    QTest::newRow("new") << QPointF(0, 0) << QPointF(100, 0) << QPointF(50, tieRise)
                         << int(67.5 * 16) << QRectF(0, -tieHeight, 100, tieHeight);
    QTest::newRow("to the left") << QPointF(100, 0) << QPointF(0, 0) << QPointF(50, -tieRise)
                                 << int(247.5 * 16) << QRectF(0, 0, 100, tieHeight);
    QTest::newRow("down: -22.5 degrees")
        << QPointF(0, 0) << QPointF(0, 100) << QPointF(-tieRise, 50) << int(-22.5 * 16)
        << QRectF(0, 0, tieHeight, 100);
    QTest::newRow("up") << QPointF(0, 100) << QPointF(0, 0) << QPointF(tieRise, 50)
                        << int(157.5 * 16) << QRectF(-tieHeight, 0, tieHeight, 100);
}

void VectorShapesTest::tie()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QFETCH(QPointF, centre);
    QFETCH(int, startAngle);
    QFETCH(QRectF, bounds);

    const VectorShapes::Tie shape = VectorShapes::tie(start, end);
    // Left, top and size are cut towards zero each by itself.
    QCOMPARE(shape.rect, QRect(int(centre.x() - tieRadius), int(centre.y() - tieRadius),
                               int(2 * tieRadius), int(2 * tieRadius)));
    QVERIFY(std::abs(shape.startAngle - startAngle) <= 1);
    QCOMPARE(shape.spanAngle, 45 * 16);
    QVERIFY2(std::abs(shape.bounds.left() - bounds.left()) < arcNoise, "left");
    QVERIFY2(std::abs(shape.bounds.top() - bounds.top()) < arcNoise, "top");
    QVERIFY2(std::abs(shape.bounds.right() - bounds.right()) < arcNoise, "right");
    QVERIFY2(std::abs(shape.bounds.bottom() - bounds.bottom()) < arcNoise, "bottom");
}

void VectorShapesTest::tieReachesToTheOrigin()
{
    // From (200, 50) to (300, 50), bulging up to 50 - 9.9: the origin is the top-left corner.
    const QRectF bounds = VectorShapes::tie(QPointF(200, 50), QPointF(300, 50)).bounds;
    QCOMPARE(bounds.topLeft(), QPointF(0, 0));
    QVERIFY(std::abs(bounds.right() - 300) < arcNoise);
    QVERIFY(std::abs(bounds.bottom() - 50) < arcNoise);
}

void VectorShapesTest::isFiniteWhateverThePoints_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("end");

    const double most = std::numeric_limits<int>::max();
    const double least = std::numeric_limits<int>::min();
    QTest::newRow("coinciding at the origin") << QPointF(0, 0) << QPointF(0, 0);
    QTest::newRow("coinciding elsewhere") << QPointF(7, 9) << QPointF(7, 9);
    QTest::newRow("same x") << QPointF(7, 0) << QPointF(7, 50);
    QTest::newRow("same x, upwards") << QPointF(7, 50) << QPointF(7, 0);
    QTest::newRow("same y") << QPointF(0, 7) << QPointF(50, 7);
    QTest::newRow("hardly apart") << QPointF(0, 0) << QPointF(1e-12, 1e-12);
    QTest::newRow("as far as numbers go") << QPointF(least, least) << QPointF(most, most);
    QTest::newRow("as far up as numbers go") << QPointF(0, most) << QPointF(0, least);
}

/** Lines are of whole numbers; what is left are the bounds, and how many lines there are. */
void VectorShapesTest::isFiniteWhateverThePoints()
{
    QFETCH(QPointF, start);
    QFETCH(QPointF, end);
    QVERIFY(isFinite(VectorShapes::tie(start, end).bounds));
    QVERIFY(VectorShapes::tablature(start, end).size() <= 100001);
    QVERIFY(VectorShapes::grandstaff(start, end).size() <= 14);
    QCOMPARE(VectorShapes::triplet(start, end).lines.size(), 4);
}

QTEST_APPLESS_MAIN(VectorShapesTest)
#include "tst_vectorshapes.moc"
