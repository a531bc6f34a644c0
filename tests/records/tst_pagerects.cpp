#include "PageGeometry.h"

#include <QtTest>

/** The rectangles of a sheet, as plain values. */
class PageRectsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paperGivesItsRectangle_data();
    void paperGivesItsRectangle();
    void paperOriginStaysInInches();
    void marginsAreTakenOff();
    void gapIsATwentiethOfThePage();
};

void PageRectsTest::paperGivesItsRectangle_data()
{
    QTest::addColumn<QSizeF>("inches");
    QTest::addColumn<QSizeF>("units");
    QTest::newRow("Letter") << QSizeF(8.5, 11) << QSizeF(8.5 * 88, 11 * 90);
    QTest::newRow("A4") << QSizeF(8.27, 11.69) << QSizeF(727.76, 1052.1);
    QTest::newRow("landscape") << QSizeF(11, 8.5) << QSizeF(11 * 88, 8.5 * 90);
}

void PageRectsTest::paperGivesItsRectangle()
{
    QFETCH(const QSizeF, inches);
    QFETCH(const QSizeF, units);
    QCOMPARE(PageGeometry::paperRect(QRectF(QPointF(0, 0), inches)), QRectF(QPointF(0, 0), units));
}

void PageRectsTest::paperOriginStaysInInches()
{
    const QRectF inches(0.25, 0.5, 8, 10);
    QCOMPARE(PageGeometry::paperRect(inches), QRectF(0.25, 0.5, 8 * 88, 10 * 90));
    // x = (0.25 + 1) x 88, right = (0.25 + 8 - 2) x 88 = 550;
    // y = (0.5 + 0.5) x 90, bottom = (0.5 + 10 - 1.5) x 90 = 810.
    QCOMPARE(PageGeometry::pageRect(inches, QMarginsF(1, 0.5, 2, 1.5)),
             QRectF(110, 90, 550 - 110, 810 - 90));
}

void PageRectsTest::marginsAreTakenOff()
{
    // Letter: from (0.5 x 88, 0.75 x 90) to ((8.5 - 0.25) x 88, (11 - 1) x 90).
    QCOMPARE(PageGeometry::pageRect(QRectF(0, 0, 8.5, 11), QMarginsF(0.5, 0.75, 0.25, 1)),
             QRectF(44, 67.5, 726 - 44, 900 - 67.5));
}

void PageRectsTest::gapIsATwentiethOfThePage()
{
    QCOMPARE(PageGeometry::spacing(990), 49.5);
}

QTEST_APPLESS_MAIN(PageRectsTest)
#include "tst_pagerects.moc"
