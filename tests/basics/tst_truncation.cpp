#include "Truncation.h"

#include <QtTest>

#include <limits>

/** Coordinates as the whole numbers of records and drawn lines. */
class TruncationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTowardsZeroAndClamped_data();
    void isTowardsZeroAndClamped();
};

void TruncationTest::isTowardsZeroAndClamped_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("whole");
    QTest::newRow("positive") << 12.9 << 12;
    QTest::newRow("negative") << -3.7 << -3;
    QTest::newRow("below zero by less than one") << -0.5 << 0;
    QTest::newRow("largest") << 2147483647.0 << 2147483647;
    QTest::newRow("smallest") << -2147483648.0 << int(-2147483647 - 1);
    QTest::newRow("too large") << 2147483648.0 << 2147483647;
    QTest::newRow("too small") << -1e300 << int(-2147483647 - 1);
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 2147483647;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TruncationTest::isTowardsZeroAndClamped()
{
    QFETCH(double, value);
    QFETCH(int, whole);
    QCOMPARE(truncatedToInt(value), whole);
}

QTEST_APPLESS_MAIN(TruncationTest)
#include "tst_truncation.moc"
