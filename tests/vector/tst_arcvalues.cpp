#include "ArcValuesFromPoints.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <numbers>

namespace
{
struct Arc
{
    float radius = -1;
    float startAngle = -1;
    float endAngle = -1;
    float centreX = -1;
    float centreY = -1;

    /** The circle's point at an angle, counter-clockwise with y down. */
    QPointF at(float degrees) const
    {
        const double radians = degrees * std::numbers::pi / 180;
        return QPointF(centreX + radius * std::cos(radians), centreY - radius * std::sin(radians));
    }
};

Arc arcBetween(QPointF from, QPointF to, double angle)
{
    Arc arc;
    ArcValuesFromPoints(float(from.x()), float(from.y()), float(to.x()), float(to.y()),
                        float(angle), &arc.radius, &arc.startAngle, &arc.endAngle, &arc.centreX,
                        &arc.centreY);
    return arc;
}

double distance(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/** What single precision is good for with numbers of this size. */
double tolerance(double size)
{
    return 1e-4 * (1 + size);
}
} // namespace

/** The circle through two points on which their arc subtends a given angle. */
class ArcValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheCircleOfTheIsoscelesTriangle_data();
    void findsTheCircleOfTheIsoscelesTriangle();
    void knowsExactAngles_data();
    void knowsExactAngles();
    void coincidingPointsHaveACircleOfNoSize();
    void isFiniteHoweverFarThePointsAre_data();
    void isFiniteHoweverFarThePointsAre();
};

void ArcValuesTest::findsTheCircleOfTheIsoscelesTriangle_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<double>("angle");

    const QList<std::pair<const char *, QPointF>> ways{
        {"right", {100, 0}},
        {"left", {-100, 0}},
        {"down", {0, 100}},
        {"up", {0, -100}},
        {"right and down", {70, 30}},
        {"right and up", {70, -30}},
        {"left and down", {-30, 70}},
        {"left and up", {-30, -70}},
        // A chord of 22.5 degrees has an upright radius at its start.
        {"start radius upright", {1000, 1000 * (std::numbers::sqrt2 - 1)}},
        {"end radius upright", {1000, -1000 * (std::numbers::sqrt2 - 1)}},
    };
    for (const auto &[name, way] : ways) {
        for (const double angle : {30.0, 45.0, 90.0}) {
            for (const QPointF &from : {QPointF(0, 0), QPointF(240, -60)})
                QTest::addRow("%s, %g degrees, from %g", name, angle, from.x())
                    << from << from + way << angle;
        }
    }
}

/**
 * Half the chord, the radius and the centre's distance from the chord are the sides of a right
 * triangle whose angle at the centre is half the arc's. The centre lies to the right hand of the
 * way from the first point to the second.
 */
void ArcValuesTest::findsTheCircleOfTheIsoscelesTriangle()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(double, angle);

    const double chord = distance(from, to);
    const double halfAngle = angle / 2 * std::numbers::pi / 180;
    const double radius = chord / 2 / std::sin(halfAngle);
    const double fromChord = chord / 2 / std::tan(halfAngle);
    const QPointF along = (to - from) / chord;
    const QPointF rightHand(-along.y(), along.x());
    const QPointF centre = (from + to) / 2 + rightHand * fromChord;

    const Arc arc = arcBetween(from, to, angle);
    const double allowed = tolerance(radius);
    QVERIFY(std::abs(arc.radius - radius) < allowed);
    QVERIFY(distance(QPointF(arc.centreX, arc.centreY), centre) < allowed);
    QVERIFY(distance(arc.at(arc.startAngle), from) < allowed);
    QVERIFY(distance(arc.at(arc.endAngle), to) < allowed);
    QVERIFY(std::abs(arc.startAngle - arc.endAngle - angle) < 1e-3);
}

void ArcValuesTest::knowsExactAngles_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<double>("radius");

    // 45 / 2 on either side of the direction away from the centre, which is up (90 degrees) for a
    // chord to the right and down (270) for one to the left.
    const double rise = 50 / std::tan(std::numbers::pi / 8);
    const double radius = 50 / std::sin(std::numbers::pi / 8);
    QTest::newRow("to the right") << QPointF(0, 0) << QPointF(100, 0) << 45.0 << 90 + 22.5
                                  << 90 - 22.5 << QPointF(50, rise) << radius;
    QTest::newRow("to the left") << QPointF(100, 0) << QPointF(0, 0) << 45.0 << 270 + 22.5
                                 << 270 - 22.5 << QPointF(50, -rise) << radius;
    QTest::newRow("down") << QPointF(0, 0) << QPointF(0, 100) << 45.0 << 22.5 << -22.5
                          << QPointF(-rise, 50) << radius;
    QTest::newRow("up") << QPointF(0, 100) << QPointF(0, 0) << 45.0 << 180 + 22.5 << 180 - 22.5
                        << QPointF(rise, 50) << radius;
    // A quarter of the circle round (0, 10): its start is exactly above the centre, where the
    // slope of the radius, 1.6e16, is more than an int holds.
    QTest::newRow("first radius of exactly 90 degrees")
        << QPointF(0, 0) << QPointF(10, 10) << 90.0 << 90.0 << 0.0 << QPointF(0, 10) << 10.0;
    // A quarter of the circle round (10, 10).
    QTest::newRow("second radius of exactly 90 degrees")
        << QPointF(0, 10) << QPointF(10, 0) << 90.0 << 180.0 << 90.0 << QPointF(10, 10) << 10.0;
    QTest::newRow("first radius of exactly 270 degrees")
        << QPointF(0, 20) << QPointF(-10, 10) << 90.0 << 270.0 << 180.0 << QPointF(0, 10) << 10.0;
}

void ArcValuesTest::knowsExactAngles()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(double, angle);
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(QPointF, centre);
    QFETCH(double, radius);

    const Arc arc = arcBetween(from, to, angle);
    QVERIFY(std::abs(arc.startAngle - start) < 1e-4);
    QVERIFY(std::abs(arc.endAngle - end) < 1e-4);
    QVERIFY(distance(QPointF(arc.centreX, arc.centreY), centre) < 1e-3);
    QVERIFY(std::abs(arc.radius - radius) < 1e-3);
}

void ArcValuesTest::coincidingPointsHaveACircleOfNoSize()
{
    for (const QPointF &point : {QPointF(0, 0), QPointF(30, -40)}) {
        const Arc arc = arcBetween(point, point, 45);
        QVERIFY(std::abs(arc.radius) < 1e-4);
        QVERIFY(distance(QPointF(arc.centreX, arc.centreY), point) < 1e-4);
        QVERIFY(std::isfinite(arc.startAngle));
        QVERIFY(std::isfinite(arc.endAngle));
    }
}

void ArcValuesTest::isFiniteHoweverFarThePointsAre_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");

    const double most = std::numeric_limits<int>::max();
    const double least = std::numeric_limits<int>::min();
    QTest::newRow("from corner to corner") << QPointF(least, least) << QPointF(most, most);
    QTest::newRow("far to the left") << QPointF(most, 0) << QPointF(least, 0);
    QTest::newRow("far up") << QPointF(7, most) << QPointF(7, least);
    QTest::newRow("far off together") << QPointF(most, most) << QPointF(most, most - 1);
}

void ArcValuesTest::isFiniteHoweverFarThePointsAre()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    const Arc arc = arcBetween(from, to, 45);
    for (const float value : {arc.radius, arc.startAngle, arc.endAngle, arc.centreX, arc.centreY})
        QVERIFY(std::isfinite(value));
}

QTEST_APPLESS_MAIN(ArcValuesTest)
#include "tst_arcvalues.moc"
