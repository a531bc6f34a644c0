#include "DocumentItem.h"
#include "ScenePointer.h"
#include "TestContext.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorNoteTie.h"

#include <QKeyEvent>
#include <QTextCursor>

#include <functional>

namespace
{
using Heard = QList<std::pair<QGraphicsItem *, ItemEvent>>;

/** Writes down what it is told. */
class Listener : public ItemObserver
{
public:
    void itemChanged(QGraphicsItem &item, ItemEvent event) override
    {
        heard.append({&item, event});
    }
    void itemStackedBelow(QGraphicsItem &item, const QGraphicsItem &above) override
    {
        stacked.append({&item, &above});
    }

    /** What was told of this item since the last call. */
    QList<ItemEvent> takeOf(const QGraphicsItem *item)
    {
        QList<ItemEvent> events;
        for (const auto &[told, event] : std::as_const(heard)) {
            if (told == item)
                events.append(event);
        }
        heard.clear();
        return events;
    }

    Heard heard;
    QList<std::pair<const QGraphicsItem *, const QGraphicsItem *>> stacked;
};

const QList<ItemEvent> nothing;
} // namespace

/** A scene without a window tells what becomes of its items. */
class AnnouncementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ofAnItemThatIsAdded();
    void ofAnItemThatIsPlaced();
    void ofAFigureOnlyAfterItsSecondClick();
    void ofADrag();
    void ofANudge();
    void ofAPressAndReleaseNothing();
    void ofItemsThatMoveWithTheirPage();
    void ofAnItemThatIsTakenOffOrDeleted();
    void ofHeightAndRotation();
    void ofAnItemThatIsPutBelowAnother();
    void ofAnItemThatWaits();
    void ofWhatAGlyphShows();
    void ofThePointsOfAFigure();
    void ofATextsLook_data();
    void ofATextsLook();
    void ofABlocksTextAndShape_data();
    void ofABlocksTextAndShape();
    void ofItemsFromBefore();
    void toNobody();
    void editsAreFinishedWithoutAWindow();

private:
    TonquillTimeSig *placed(QPointF position)
    {
        auto *item = new TonquillTimeSig(3, 4, false);
        m_scene->addNewItem(item);
        item->setPos(position);
        m_listener.heard.clear();
        return item;
    }

    std::unique_ptr<TestContext> m_context;
    std::unique_ptr<TonquillScene> m_scene;
    Listener m_listener;
};

void AnnouncementsTest::init()
{
    m_listener.heard.clear();
    m_context = std::make_unique<TestContext>();
    m_scene = std::make_unique<TonquillScene>(*m_context);
    m_scene->setItemObserver(&m_listener);
}

void AnnouncementsTest::cleanup()
{
    m_scene->setItemObserver(nullptr);
    m_scene.reset();
}

void AnnouncementsTest::ofAnItemThatIsAdded()
{
    auto *item = new TonquillTimeSig(3, 4, false);
    item->setPos(20, 30); // nobody's item yet
    m_scene->addNewItem(item);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Added});
    item->setPos(40, 50);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Moved});
    item->setPos(40, 50);
    QCOMPARE(m_listener.takeOf(item), nothing);
}

void AnnouncementsTest::ofAnItemThatIsPlaced()
{
    TonquillBitmap *item = m_scene->insertSymbol(2, true, false);
    QVERIFY(!m_listener.takeOf(item).contains(ItemEvent::Added));
    ScenePointer(*m_scene).click(QPointF(100, 100));
    QCOMPARE(m_listener.takeOf(item), (QList{ItemEvent::Moved, ItemEvent::Added}));
}

void AnnouncementsTest::ofAFigureOnlyAfterItsSecondClick()
{
    auto *item = new TonquillVectorNoteTie(true, QPointF(), QPointF());
    m_scene->addNewItem(item);
    ScenePointer pointer(*m_scene);
    pointer.click(QPointF(100, 100));
    QVERIFY(!m_listener.takeOf(item).contains(ItemEvent::Added));
    pointer.click(QPointF(200, 120));
    QCOMPARE(m_listener.takeOf(item).count(ItemEvent::Added), 1);
}

void AnnouncementsTest::ofADrag()
{
    TonquillTimeSig *item = placed(QPointF(100, 100));
    ScenePointer(*m_scene).drag(QPointF(105, 110), QPointF(125, 130));
    QCOMPARE(m_listener.takeOf(item), (QList{ItemEvent::Moved, ItemEvent::Moved}));
    QCOMPARE(item->pos(), QPointF(120, 120));
}

void AnnouncementsTest::ofANudge()
{
    TonquillTimeSig *item = placed(QPointF(100, 100));
    TonquillTimeSig *other = placed(QPointF(300, 100));
    item->setSelected(true);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QCoreApplication::sendEvent(m_scene.get(), &press);
    QCOMPARE(m_listener.heard, (Heard{{item, ItemEvent::Moved}}));
    QCOMPARE(other->pos(), QPointF(300, 100));
}

void AnnouncementsTest::ofAPressAndReleaseNothing()
{
    placed(QPointF(100, 100));
    ScenePointer pointer(*m_scene);
    pointer.press(QPointF(105, 110));
    pointer.release(QPointF(105, 110));
    QCOMPARE(m_listener.heard, Heard());
}

void AnnouncementsTest::ofItemsThatMoveWithTheirPage()
{
    TonquillTimeSig *item = placed(QPointF(100, 100));
    m_scene->addPageAtBegining();
    QCOMPARE(m_listener.heard, (Heard{{item, ItemEvent::Moved}}));
}

void AnnouncementsTest::ofAnItemThatIsTakenOffOrDeleted()
{
    TonquillTimeSig *taken = placed(QPointF(100, 100));
    m_scene->removeItem(taken);
    QCOMPARE(m_listener.takeOf(taken), QList{ItemEvent::Removed});
    delete taken;
    QCOMPARE(m_listener.heard, Heard());

    TonquillTimeSig *deleted = placed(QPointF(100, 100));
    delete deleted;
    QCOMPARE(m_listener.takeOf(deleted), QList{ItemEvent::Removed});

    TonquillTimeSig *cleared = placed(QPointF(100, 100));
    m_scene->clearScene();
    QCOMPARE(m_listener.takeOf(cleared), QList{ItemEvent::Removed});
}

void AnnouncementsTest::ofHeightAndRotation()
{
    TonquillTimeSig *item = placed(QPointF(100, 100));
    item->setZValue(3);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Restacked});
    item->setRotation(30);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Altered});
}

void AnnouncementsTest::ofAnItemThatIsPutBelowAnother()
{
    TonquillTimeSig *lower = placed(QPointF(100, 100));
    TonquillTimeSig *upper = placed(QPointF(100, 100));
    m_scene->stackBelow(*upper, *lower);
    QCOMPARE(m_listener.stacked.size(), 1);
    QCOMPARE(m_listener.stacked.constFirst().first, upper);
    QCOMPARE(m_listener.stacked.constFirst().second, lower);
    QCOMPARE(m_scene->itemsFromTop().constFirst()->topLevelItem(), lower);
}

/** Where it lies is decided when it comes, not when it is placed. */
void AnnouncementsTest::ofAnItemThatWaits()
{
    auto *item = new TonquillVectorNoteTie(true, QPointF(), QPointF());
    m_scene->addNewItem(item);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Awaited});
}

void AnnouncementsTest::ofWhatAGlyphShows()
{
    TonquillBitmap *item = m_scene->insertSymbol(2, false, true);
    m_listener.heard.clear();
    item->setInverted(true);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Altered});
    item->setInverted(true);
    QCOMPARE(m_listener.takeOf(item), nothing);
}

void AnnouncementsTest::ofThePointsOfAFigure()
{
    auto *item = new TonquillVectorNoteTie(false, QPointF(0, 0), QPointF(80, 40));
    m_scene->addNewItem(item);
    item->setPos(100, 100);
    m_listener.heard.clear();
    ScenePointer(*m_scene).drag(QPointF(180, 140), QPointF(200, 150));
    QVERIFY(m_listener.takeOf(item).contains(ItemEvent::Altered));
    QCOMPARE(item->endPoint(), QPointF(100, 50));
}

void AnnouncementsTest::ofATextsLook_data()
{
    using Change = std::function<void(TonquillText &)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("words") << Change([](auto &text) { text.setPlainText("Coda"); });
    QTest::newRow("font") << Change([](auto &text) { text.setFont(QFont("Arial", 30)); });
    QTest::newRow("style of the same width") << Change([](auto &text) {
        QFont font = text.font();
        font.setUnderline(!font.underline());
        text.setFont(font);
    });
    QTest::newRow("colour") << Change([](auto &text) { text.setDefaultTextColor(Qt::red); });
}

void AnnouncementsTest::ofATextsLook()
{
    QFETCH(std::function<void(TonquillText &)>, change);
    auto *item = new TonquillText(false);
    item->setPlainText("Fine");
    m_scene->addNewItem(item);
    m_listener.heard.clear();
    change(*item);
    QVERIFY(m_listener.takeOf(item).contains(ItemEvent::Altered));
}

void AnnouncementsTest::ofABlocksTextAndShape_data()
{
    using Change = std::function<void(TonquillTextBlock &)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("words") << Change([](auto &block) { block.setPlainText("other words"); });
    QTest::newRow("formatted words") << Change([](auto &block) { block.setHtml("<b>bold</b>"); });
    QTest::newRow("format alone") << Change([](auto &block) {
        QTextCursor cursor(block.document());
        cursor.select(QTextCursor::Document);
        QTextCharFormat red;
        red.setForeground(Qt::red);
        cursor.mergeCharFormat(red);
    });
    QTest::newRow("typed") << Change(
        [](auto &block) { QTextCursor(block.document()).insertText("x"); });
    QTest::newRow("font") << Change([](auto &block) { block.setFont(QFont("Arial", 30)); });
    QTest::newRow("width of its text") << Change([](auto &block) { block.setTextWidth(50); });
    QTest::newRow("shape") << Change(
        [](auto &block) { block.setCorners(QPointF(1, 2), QPointF(30, 40)); });
    QTest::newRow("frame") << Change([](auto &block) { block.updateFrame(); });
}

void AnnouncementsTest::ofABlocksTextAndShape()
{
    QFETCH(std::function<void(TonquillTextBlock &)>, change);
    auto *item = new TonquillTextBlock(false, "some words", QRectF(0, 0, 200, 60));
    m_scene->addNewItem(item);
    m_listener.heard.clear();
    change(*item);
    QVERIFY(m_listener.takeOf(item).contains(ItemEvent::Altered));
}

/** Those that stood on the scene when somebody began to listen. */
void AnnouncementsTest::ofItemsFromBefore()
{
    m_scene->setItemObserver(nullptr);
    TonquillTimeSig *item = placed(QPointF(100, 100));
    m_scene->setItemObserver(&m_listener);
    item->setPos(1, 2);
    QCOMPARE(m_listener.takeOf(item), QList{ItemEvent::Moved});
}

void AnnouncementsTest::toNobody()
{
    TonquillTimeSig *item = placed(QPointF(100, 100));
    m_scene->setItemObserver(nullptr);
    item->setPos(1, 2);
    delete item;
    QCOMPARE(m_listener.heard, Heard());
}

void AnnouncementsTest::editsAreFinishedWithoutAWindow()
{
    placed(QPointF(100, 100));
    ScenePointer(*m_scene).drag(QPointF(105, 110), QPointF(125, 130));
    QCOMPARE(m_context->finishedEdits, 1);
    QCOMPARE(m_scene->notifyTW(), "tonquill_pagecount 1\ntonquill_timesig 120 120 3 4\n");
}

TONQUILL_TEST_MAIN(AnnouncementsTest)
#include "tst_announcements.moc"
