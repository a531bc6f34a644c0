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
    void triplet_data();
    void triplet();
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
    // The way (60, 80) is 100 long: an arm of 40 goes (24, 32), half of it (30, 40).
    QTest::newRow("slanting") << QPointF(0, 0) << QPointF(60, 80) << QPoint(30, 47)
                              << Lines{{0, 10, 0, 0},
                                       {0, 0, 24, 32},
                                       {36, 48, 60, 80},
                                       {60, 80, 60, 90}};
    QTest::newRow("slanting up") << QPointF(0, 80) << QPointF(60, 0) << QPoint(30, 47)
                                 << Lines{{0, 90, 0, 80},
                                          {0, 80, 24, 48},
                                          {36, 32, 60, 0},
                                          {60, 0, 60, 10}};
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
