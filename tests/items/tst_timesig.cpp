#include "ItemProbe.h"
#include "PaintRecorder.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTimeSig.h"

#include <QGraphicsSceneMouseEvent>
#include <QLoggingCategory>

#include <limits>

namespace
{
/** Has `item` painted by itself, without its frame. */
template <typename Device>
void paintOn(Device &device, QGraphicsItem &item)
{
    QPainter painter(&device);
    const QStyleOptionGraphicsItem option;
    item.paint(&painter, &option, nullptr);
}
} // namespace

/** Two numbers, one above the other. */
class TimeSigTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window.scene->clearScene(); }
    void startsByItsFlag_data();
    void startsByItsFlag();
    void boundsAreFixed_data();
    void boundsAreFixed();
    void numbersAreStackedAndPadded_data();
    void numbersAreStackedAndPadded();
    void numbersAreBlackWhateverThePainterHad();
    void paintingIsWrittenDownForThoseWhoAsk();
    void selectionIsDashedRoundTheNumbers();
    void selectionIsNotPrinted();
    void isPlacedByOneClick();
    void twoButtonsNeitherMoveNorSelect();
    void oddNumbersAreRecordedAndReadBack_data();
    void oddNumbersAreRecordedAndReadBack();

private:
    TonquillMainWin m_window;
};

void TimeSigTest::startsByItsFlag_data()
{
    QTest::addColumn<bool>("adding");
    QTest::newRow("new") << true;
    QTest::newRow("from a record") << false;
}

void TimeSigTest::startsByItsFlag()
{
    QFETCH(bool, adding);
    const TonquillTimeSig item(3, 4, adding);
    QCOMPARE(item.isSelected(), adding);
    QCOMPARE(item.itemStatus(), adding ? 1 : 0);
    QCOMPARE(item.type(), 65536 + 3);
    QCOMPARE(int(item.flags()), 3);
    QCOMPARE(item.zValue(), 10.0);
    QCOMPARE(item.data(257).toString(), QString("tonquill_timesig"));
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(item)->getAnchor(QPointF(-10, 0), anchor), 0);
    QCOMPARE(anchor, QPointF(-10, 0));
    QVERIFY(!ItemProbe::frameOf(item)->isAnchor(QPointF(20, 45)));
}

void TimeSigTest::boundsAreFixed_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::newRow("one digit each") << 3 << 4;
    QTest::newRow("two digits") << 12 << 16;
    QTest::newRow("more than fits") << std::numeric_limits<int>::max() << -1000;
}

void TimeSigTest::boundsAreFixed()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QCOMPARE(TonquillTimeSig(upper, lower, false).boundingRect(), QRectF(-10, 0, 30, 45));
}

void TimeSigTest::numbersAreStackedAndPadded_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<QString>("above");
    QTest::addColumn<QString>("below");
    QTest::newRow("3/4") << 3 << 4 << " 3"
                         << " 4";
    QTest::newRow("12/8") << 12 << 8 << "12"
                          << " 8";
    QTest::newRow("5/16") << 5 << 16 << " 5"
                          << "16";
    QTest::newRow("negative") << -3 << 128 << "-3"
                              << "128";
}

void TimeSigTest::numbersAreStackedAndPadded()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(QString, above);
    QFETCH(QString, below);
    TonquillTimeSig item(upper, lower, false);
    RecordingScreen device(100, 100, QImage::Format_RGB32);
    paintOn(device, item);

    const QList<PaintRecorder::Text> &texts = device.recorder().texts;
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts[0].text, above);
    QCOMPARE(texts[1].text, below);
    // Bold Arial of 18 points, which are 24 units of the page at 96 to the inch.
    for (const PaintRecorder::Text &text : texts) {
        QCOMPARE(text.font.family(), QString("Arial"));
        QCOMPARE(text.font.weight(), QFont::Bold);
        QCOMPARE(text.font.pixelSize(), 24);
    }
    // Both begin at the left edge of a rectangle that is centred on x = 0 and starts at y = 0.
    QCOMPARE(texts[0].position.x(), texts[1].position.x());
    QVERIFY(texts[0].position.x() < 0);
    QVERIFY(texts[0].position.y() > 0 && texts[0].position.y() < 24);
    QVERIFY(texts[1].position.y() - texts[0].position.y() >= 24);
}

void TimeSigTest::numbersAreBlackWhateverThePainterHad()
{
    TonquillTimeSig item(3, 4, false);
    RecordingScreen device(100, 100, QImage::Format_RGB32);
    {
        QPainter painter(&device);
        painter.setPen(QPen(Qt::gray, 5));
        const QStyleOptionGraphicsItem option;
        item.paint(&painter, &option, nullptr);
    }
    for (const QPen &pen : device.recorder().pens)
        QCOMPARE(pen.color(), QColor(Qt::black));
}

/** A line at every painting would drown all others, so they are off unless asked for. */
void TimeSigTest::paintingIsWrittenDownForThoseWhoAsk()
{
    static QStringList lines;
    lines.clear();
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &line) { lines.append(line); });
    TonquillTimeSig item(3, 4, false);
    RecordingScreen screen(100, 100, QImage::Format_RGB32);
    RecordingPrinter paper(QPrinter::HighResolution);
    paintOn(screen, item);
    const QStringList unasked = std::exchange(lines, {});
    QLoggingCategory::setFilterRules("tonquill.paint=true");
    paintOn(screen, item);
    paintOn(paper, item);
    QLoggingCategory::setFilterRules(QString());
    qInstallMessageHandler(before);

    QCOMPARE(unasked, QStringList());
    QCOMPARE(lines.size(), 2);
    for (const QString &line : std::as_const(lines))
        QVERIFY2(line.startsWith("timesig "), qPrintable(line));
}

void TimeSigTest::selectionIsDashedRoundTheNumbers()
{
    TonquillTimeSig item(12, 8, false);
    item.setSelected(true);
    RecordingScreen device(100, 100, QImage::Format_RGB32);
    paintOn(device, item);
    const PaintRecorder &recorder = device.recorder();
    QCOMPARE(recorder.rects.size(), 1);
    const QRectF rect = recorder.rects.constFirst();
    QCOMPARE(rect.top(), 0.0);
    // Centred on x = 0, up to the rounding of the text's width.
    QVERIFY(std::abs(rect.center().x()) <= 1.0);
    QVERIFY(rect.width() > 20 && rect.height() > 48);
    const QPen pen = recorder.pens.constLast();
    QCOMPARE(pen.style(), Qt::DashLine);
    QCOMPARE(pen.color(), QColor(Qt::black));
    QCOMPARE(pen.widthF(), 0.0);

    item.setSelected(false);
    RecordingScreen other(100, 100, QImage::Format_RGB32);
    paintOn(other, item);
    QVERIFY(other.recorder().rects.isEmpty());
}

void TimeSigTest::selectionIsNotPrinted()
{
    auto *item = new TonquillTimeSig(3, 4, false);
    m_window.scene->addNewItem(item);
    item->setSelected(true);
    RecordingPrinter paper(QPrinter::HighResolution);
    paintOn(paper, *item);
    paintOn(paper, *ItemProbe::frameOf(*item));
    QCOMPARE(paper.recorder().texts.size(), 2);
    QVERIFY(paper.recorder().rects.isEmpty());
    QVERIFY(item->isSelected());
}

void TimeSigTest::isPlacedByOneClick()
{
    auto *item = new TonquillTimeSig(3, 4, true);
    m_window.scene->addNewItem(item);
    ScenePointer pointer(*m_window.scene);
    pointer.moveTo(QPointF(150, 250));
    pointer.press(QPointF(150, 250));
    QCOMPARE(item->itemStatus(), 1);
    pointer.release(QPointF(150, 250));
    QCOMPARE(item->itemStatus(), 0);
    pointer.moveTo(QPointF(300, 300));
    QCOMPARE(item->pos(), QPointF(150, 250));
}

void TimeSigTest::twoButtonsNeitherMoveNorSelect()
{
    auto *item = new TonquillTimeSig(3, 4, false);
    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setButton(Qt::LeftButton);
    press.setButtons(Qt::LeftButton | Qt::RightButton);
    press.setScenePos(QPointF(5, 20));
    m_window.scene->addNewItem(item);
    m_window.scene->sendEvent(item, &press);
    QCOMPARE(item->itemStatus(), 0);
    QVERIFY(!item->isSelected());
}

void TimeSigTest::oddNumbersAreRecordedAndReadBack_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::newRow("zero") << 0 << 0;
    QTest::newRow("negative") << -5 << -8;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << std::numeric_limits<int>::min();
}

void TimeSigTest::oddNumbersAreRecordedAndReadBack()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    TonquillTimeSig item(upper, lower, false);
    item.setPos(12.9, -0.5);
    const QString record = item.getParamStr();
    QCOMPARE(record, QString("tonquill_timesig 12 0 %1 %2\n").arg(upper).arg(lower));
    m_window.scene->constructItem(record, false, 0);
    QCOMPARE(ItemProbe::recordOf(ItemProbe::onlyItem(*m_window.scene)), record);
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, QRectF(0, 0, 100, 100));
    QVERIFY(ItemProbe::pixelsOf(picture, Qt::black) > 0);
}

TONQUILL_TEST_MAIN(TimeSigTest)
#include "tst_timesig.moc"
