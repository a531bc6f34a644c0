#include "ProbeItems.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPointer>

namespace
{
// Probes reach 20 to each side, their frames 25. The anchor is at (-20, -20), its square 10 wide.
constexpr QPointF placeOfA(100, 100);
constexpr QPointF placeOfB(300, 100);
constexpr QPointF placeOfPlain(500, 100);
constexpr QPointF onAnchor(-20, -20);
constexpr QPointF inMargin(23, 0);
constexpr QPointF emptySpace(300, 600);

/** Keeps where the last move was on this item, and where the button had been pressed. */
class PlaceProbe : public QGraphicsRectItem
{
public:
    PlaceProbe() { setFlag(ItemIsSelectable); }

    QPointF point;
    QPointF lastPos;
    QPointF pressed;

protected:
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override
    {
        point = event->pos();
        lastPos = event->lastPos();
        pressed = event->buttonDownPos(Qt::LeftButton);
    }
};
} // namespace

/** What the scene forwards to which item. */
class PointerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pressOnAPlainItemSelectsNothing();
    void pressOnAFrameSelectsAndFocusesItsItem_data();
    void pressOnAFrameSelectsAndFocusesItsItem();
    void pressOnABodyGoesToAllSelected();
    void pressOnAnAnchorGoesToItsItemOnly();
    void pressOnAPlainItemGoesToAllSelected();
    void pressKeepsWhatIsSelected();
    void moveGoesToAllSelected_data();
    void moveGoesToAllSelected();
    void moveOverAnAnchorGoesToItsItemOnly();
    void releaseGoesToAllSelected_data();
    void releaseGoesToAllSelected();
    void releaseOnAnAnchorGoesToItsItemOnly();
    void eventSaysWhereItIsOnEachItem();
    void rightButtonGoesToTheItemUnderItOnly();
    void rightButtonElsewhereDoesNothing();
    void middleButtonDoesNothing_data();
    void middleButtonDoesNothing();
    void doubleClickOnAFrameGoesToItsItem();
    void doubleClickOnAPlainItemDoesNothing();
    void doubleClickOfAnotherButtonDoesNothing();
    void anItemThatRemovesAnotherIsSafe_data();
    void anItemThatRemovesAnotherIsSafe();
    void selectedGlyphsAreDraggedTogether();
    void anchorHitHoldsAtAnyZoom();
    void newItemIsPlacedWhereverItIsReleased();
    void movingAsksNoItemThatIsNotSelected();

private:
    QStringList selectedNames(const QString &event) const;

    std::unique_ptr<TonquillMainWin> m_window;
    std::unique_ptr<ScenePointer> m_pointer;
    TonquillScene *m_scene = nullptr;
    EventLog m_log;
    QPointer<FramedProbe> m_a;
    QPointer<FramedProbe> m_b;
    PlainProbe *m_plain = nullptr;
};

void PointerTest::init()
{
    m_window = std::make_unique<TonquillMainWin>();
    m_scene = m_window->scene;
    m_pointer = std::make_unique<ScenePointer>(*m_scene);
    m_a = new FramedProbe(m_log, "a");
    m_b = new FramedProbe(m_log, "b");
    m_plain = new PlainProbe(m_log, "plain");
    m_scene->addItem(m_a);
    m_scene->addItem(m_b);
    m_scene->addItem(m_plain);
    m_a->setPos(placeOfA);
    m_b->setPos(placeOfB);
    m_plain->setPos(placeOfPlain);
    m_log.lines.clear();
}

/** The items go before the log that they write. */
void PointerTest::cleanup()
{
    m_scene->clearScene();
    m_window.reset();
}

/** "name event" for each selected item, in the scene's own order. */
QStringList PointerTest::selectedNames(const QString &event) const
{
    QStringList names;
    for (QGraphicsItem *item : m_scene->selectedItems()) {
        const QGraphicsObject *object = item->toGraphicsObject();
        names << (object ? object->objectName() : "plain") + " " + event;
    }
    return names;
}

void PointerTest::pressOnAPlainItemSelectsNothing()
{
    m_pointer->press(placeOfPlain);
    QVERIFY(m_scene->selectedItems().isEmpty());
    QCOMPARE(m_log.takeAll(), QStringList());
    m_pointer->moveTo(placeOfPlain + QPointF(50, 50));
    m_pointer->release(placeOfPlain + QPointF(50, 50));
    QCOMPARE(m_log.takeAll(), QStringList());
    QCOMPARE(m_plain->pos(), placeOfPlain);
    QVERIFY(m_scene->selectedItems().isEmpty());
}

void PointerTest::pressOnAFrameSelectsAndFocusesItsItem_data()
{
    QTest::addColumn<QPointF>("offset");
    QTest::newRow("body") << QPointF(0, 0);
    QTest::newRow("margin around it") << inMargin;
    QTest::newRow("anchor") << onAnchor;
}

void PointerTest::pressOnAFrameSelectsAndFocusesItsItem()
{
    QFETCH(QPointF, offset);
    m_pointer->press(placeOfA + offset);
    QVERIFY(m_a->isSelected());
    QVERIFY(!m_b->isSelected());
    QCOMPARE(m_scene->focusItem(), m_a.data());
    QCOMPARE(m_log.takeAll(), QStringList{"a press"});
}

void PointerTest::pressOnABodyGoesToAllSelected()
{
    m_b->setSelected(true);
    m_plain->setSelected(true);
    m_pointer->press(placeOfA);
    QCOMPARE(m_scene->selectedItems().size(), 3);
    QCOMPARE(m_log.takeAll(), selectedNames("press"));
}

void PointerTest::pressOnAnAnchorGoesToItsItemOnly()
{
    m_b->setSelected(true);
    m_pointer->press(placeOfA + onAnchor);
    QCOMPARE(m_log.takeAll(), QStringList{"a press"});
    QVERIFY(m_b->isSelected());
}

void PointerTest::pressOnAPlainItemGoesToAllSelected()
{
    m_a->setSelected(true);
    m_b->setSelected(true);
    m_pointer->press(placeOfPlain);
    QCOMPARE(m_log.takeAll(), selectedNames("press"));
    QVERIFY(!m_plain->isSelected());
}

void PointerTest::pressKeepsWhatIsSelected()
{
    m_b->setSelected(true);
    m_pointer->press(placeOfA);
    QVERIFY(m_a->isSelected());
    QVERIFY(m_b->isSelected());
}

void PointerTest::moveGoesToAllSelected_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::newRow("empty space") << emptySpace;
    QTest::newRow("a plain item") << placeOfPlain;
    QTest::newRow("a frame") << placeOfA + inMargin;
    QTest::newRow("a selected item") << placeOfB;
}

void PointerTest::moveGoesToAllSelected()
{
    QFETCH(QPointF, point);
    m_b->setSelected(true);
    m_plain->setSelected(true);
    m_pointer->moveTo(point);
    QCOMPARE(m_log.lines.size(), 2);
    QCOMPARE(m_log.takeAll(), selectedNames("move"));
}

void PointerTest::moveOverAnAnchorGoesToItsItemOnly()
{
    m_b->setSelected(true);
    m_pointer->moveTo(placeOfA + onAnchor);
    QCOMPARE(m_log.takeAll(), QStringList{"a move"});
    QVERIFY(!m_a->isSelected());
}

void PointerTest::releaseGoesToAllSelected_data()
{
    moveGoesToAllSelected_data();
}

void PointerTest::releaseGoesToAllSelected()
{
    QFETCH(QPointF, point);
    m_b->setSelected(true);
    m_plain->setSelected(true);
    m_pointer->release(point);
    QCOMPARE(m_log.lines.size(), 2);
    QCOMPARE(m_log.takeAll(), selectedNames("release"));
}

void PointerTest::releaseOnAnAnchorGoesToItsItemOnly()
{
    m_b->setSelected(true);
    m_pointer->release(placeOfA + onAnchor);
    QCOMPARE(m_log.takeAll(), QStringList{"a release"});
}

void PointerTest::eventSaysWhereItIsOnEachItem()
{
    PlaceProbe here;
    PlaceProbe there;
    here.setPos(100, 700);
    there.setPos(300, 710);
    there.setRotation(90);
    for (PlaceProbe *probe : {&here, &there}) {
        m_scene->addItem(probe);
        probe->setSelected(true);
    }
    QGraphicsSceneMouseEvent move(QEvent::GraphicsSceneMouseMove);
    move.setScenePos(QPointF(310, 730));
    move.setLastScenePos(QPointF(305, 725));
    move.setButtons(Qt::LeftButton);
    move.setButtonDownScenePos(Qt::LeftButton, QPointF(290, 720));
    QCoreApplication::sendEvent(m_scene, &move);
    QCOMPARE(here.point, QPointF(310 - 100, 730 - 700));
    QCOMPARE(here.lastPos, QPointF(305 - 100, 725 - 700));
    QCOMPARE(here.pressed, QPointF(290 - 100, 720 - 700));
    // Turned by a quarter, what is below is to the right and what is to the left is below.
    QCOMPARE(there.point, QPointF(730 - 710, 300 - 310));
    QCOMPARE(there.lastPos, QPointF(725 - 710, 300 - 305));
    QCOMPARE(there.pressed, QPointF(720 - 710, 300 - 290));
    // The rest is as it was.
    QCOMPARE(move.scenePos(), QPointF(310, 730));
    QCOMPARE(move.buttons(), Qt::LeftButton);
}

void PointerTest::rightButtonGoesToTheItemUnderItOnly()
{
    m_b->setSelected(true);
    for (const QPointF offset : {QPointF(0, 0), inMargin, onAnchor}) {
        m_pointer->press(placeOfA + offset, Qt::RightButton);
        QCOMPARE(m_log.takeAll(), QStringList{"a press"});
        m_pointer->release(placeOfA + offset, Qt::RightButton);
        QCOMPARE(m_log.takeAll(), QStringList{"a release"});
    }
    QVERIFY(!m_a->isSelected());
}

void PointerTest::rightButtonElsewhereDoesNothing()
{
    m_b->setSelected(true);
    for (const QPointF point : {placeOfPlain, emptySpace}) {
        m_pointer->press(point, Qt::RightButton);
        m_pointer->release(point, Qt::RightButton);
    }
    QCOMPARE(m_log.takeAll(), QStringList());
    QVERIFY(m_b->isSelected());
}

void PointerTest::middleButtonDoesNothing_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::newRow("a frame") << placeOfA;
    QTest::newRow("an anchor") << placeOfA + onAnchor;
    QTest::newRow("a plain item") << placeOfPlain;
    QTest::newRow("empty space") << emptySpace;
}

void PointerTest::middleButtonDoesNothing()
{
    QFETCH(QPointF, point);
    m_b->setSelected(true);
    m_pointer->press(point, Qt::MiddleButton);
    m_pointer->release(point, Qt::MiddleButton);
    QCOMPARE(m_log.takeAll(), QStringList());
    QCOMPARE(m_scene->selectedItems(), QList<QGraphicsItem *>{m_b});
}

void PointerTest::doubleClickOnAFrameGoesToItsItem()
{
    m_b->setSelected(true);
    m_pointer->doubleClick(placeOfA);
    QCOMPARE(m_log.lines.value(0), QString("a double click"));
    QVERIFY(!m_log.lines.contains("b double click"));
    QCOMPARE(m_scene->focusItem(), m_a.data());
    QVERIFY(!m_a->isSelected());
}

void PointerTest::doubleClickOnAPlainItemDoesNothing()
{
    m_pointer->doubleClick(placeOfPlain);
    QCOMPARE(m_log.takeAll(), QStringList());
    QVERIFY(!m_scene->focusItem());
    QVERIFY(m_scene->selectedItems().isEmpty());
}

void PointerTest::doubleClickOfAnotherButtonDoesNothing()
{
    m_b->setSelected(true);
    for (const QPointF point : {placeOfA, placeOfPlain, emptySpace}) {
        m_pointer->doubleClick(point, Qt::MiddleButton);
        QCOMPARE(m_log.takeAll(), QStringList());
        QVERIFY(m_b->isSelected());
    }
}

void PointerTest::anItemThatRemovesAnotherIsSafe_data()
{
    QTest::addColumn<bool>("removesPlain");
    QTest::newRow("a framed one") << false;
    QTest::newRow("a plain one") << true;
}

/** What an event starts may take items away, as a document that arrives does. */
void PointerTest::anItemThatRemovesAnotherIsSafe()
{
    QFETCH(bool, removesPlain);
    m_a->setSelected(true);
    (removesPlain ? static_cast<QGraphicsItem *>(m_plain) : m_b.data())->setSelected(true);
    const auto clearUp = [this] { m_scene->clearScene(); };
    m_a->onPointer = clearUp;
    m_b->onPointer = clearUp;
    const QString other = removesPlain ? "plain move" : "b move";
    m_pointer->moveTo(emptySpace);
    QVERIFY(m_scene->items().isEmpty());
    QVERIFY(m_log.lines.contains("a move") || m_log.lines.contains(other));
}

void PointerTest::selectedGlyphsAreDraggedTogether()
{
    QList<TonquillBitmap *> glyphs;
    for (int i = 0; i < 3; ++i) {
        glyphs << m_window->InsertBitmapSymbol(2, false, false);
        glyphs.last()->setPos(100 + 100 * i, 400);
        glyphs.last()->setSelected(true);
    }
    TonquillBitmap *bystander = m_window->InsertBitmapSymbol(2, false, false);
    bystander->setPos(500, 400);
    m_pointer->drag(QPointF(200, 400), QPointF(230, 360));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(glyphs[i]->pos(), QPointF(130 + 100 * i, 360));
        QCOMPARE(glyphs[i]->itemStatus(), 0);
    }
    QCOMPARE(bystander->pos(), QPointF(500, 400));
}

void PointerTest::anchorHitHoldsAtAnyZoom()
{
    QGraphicsView *view = m_scene->views().constFirst();
    for (const double zoom : {0.25, 1.0, 4.0}) {
        view->setTransform(QTransform::fromScale(zoom, zoom));
        m_scene->clearSelection();
        m_b->setSelected(true);
        m_pointer->press(placeOfA + QPointF(-24, -24));
        QCOMPARE(m_log.takeAll(), QStringList{"a press"});
    }
}

void PointerTest::newItemIsPlacedWhereverItIsReleased()
{
    TonquillBitmap *waiting = m_window->InsertBitmapSymbol(2, true, false);
    m_pointer->moveTo(placeOfPlain);
    QCOMPARE(waiting->pos(), placeOfPlain);
    m_pointer->release(placeOfPlain);
    QCOMPARE(waiting->itemStatus(), 0);
}

void PointerTest::movingAsksNoItemThatIsNotSelected()
{
    m_a->setSelected(true);
    const int before = m_b->statusReads;
    for (int x = 0; x < 50; ++x)
        m_pointer->moveTo(QPointF(x, 600));
    QCOMPARE(m_b->statusReads, before);
    QCOMPARE(m_log.lines.count("a move"), 50);
    QCOMPARE(m_log.lines.size(), 50);
}

TONQUILL_TEST_MAIN(PointerTest)
#include "tst_pointer.moc"
