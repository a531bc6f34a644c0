#include "ItemProbe.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"

#include <array>

namespace
{
enum class Kind {
    Bitmap,
    Text,
    TextBlock,
    TimeSig,
    Grandstaff,
    InteractiveLine,
    LineTab,
    NoteTie,
    Triplet
};

constexpr std::array vectorKinds{Kind::Grandstaff, Kind::InteractiveLine, Kind::LineTab,
                                 Kind::NoteTie, Kind::Triplet};

constexpr std::array kindNames{"bitmap", "text", "block", "time signature", "grand staff",
                               "line",   "tab",  "tie",   "triplet"};

enum class Act { Press, Move, Release };

/** Where on the item the pointer acts. */
enum class Where { Body, FirstAnchor, SecondAnchor };

/** Where the item stands before each row. */
constexpr QPointF home(200, 300);

/** How far each move goes. */
constexpr QPointF step(57, 35);

/** The end of a vector item that is not being added; its start is (0, 0). */
constexpr QPointF vectorEnd(160, 40);

/** A block made 100 wide is one unit wider. */
constexpr QPointF blockCorner(101, 80);

constexpr auto none = Qt::NoButton;
constexpr auto left = Qt::LeftButton;
constexpr auto right = Qt::RightButton;
constexpr auto middle = Qt::MiddleButton;

bool isVector(Kind kind)
{
    return kind >= Kind::Grandstaff;
}

template <typename Item>
QGraphicsItem *makeVector(bool adding)
{
    return new Item(adding, QPointF(0, 0), vectorEnd);
}

QGraphicsItem *makeText(bool adding)
{
    auto *text = new TonquillText(adding);
    text->setPlainText(QStringLiteral("Allegro"));
    text->updateFrame();
    return text;
}

QGraphicsItem *make(Kind kind, bool adding)
{
    switch (kind) {
    case Kind::Bitmap:
        return new TonquillBitmap(g_pMainWin->symbols.value(2), 2, adding, QPixmap());
    case Kind::Text:
        return makeText(adding);
    case Kind::TextBlock:
        return new TonquillTextBlock(adding, QStringLiteral("verse"), QRectF(0, 0, 100, 80));
    case Kind::TimeSig:
        return new TonquillTimeSig(3, 4, adding);
    case Kind::Grandstaff:
        return makeVector<TonquillVectorGrandstaff>(adding);
    case Kind::InteractiveLine:
        return makeVector<TonquillVectorInteractiveLine>(adding);
    case Kind::LineTab:
        return makeVector<TonquillVectorLineTab>(adding);
    case Kind::NoteTie:
        return makeVector<TonquillVectorNoteTie>(adding);
    case Kind::Triplet:
        return makeVector<TonquillVectorTriplet>(adding);
    }
    return nullptr;
}

/** The anchors before each row, in item coordinates. */
QList<QPointF> anchorsOf(Kind kind, bool adding, const QGraphicsItem &item)
{
    switch (kind) {
    case Kind::Bitmap:
        return {item.boundingRect().topLeft()};
    case Kind::Text:
        return {item.boundingRect().bottomLeft()};
    case Kind::TextBlock:
        return {QPointF(0, 0), blockCorner};
    case Kind::TimeSig:
        return {QPointF(-10, 0)};
    case Kind::Grandstaff:
    case Kind::LineTab:
        return {QPointF(0, 0), adding ? QPointF(70, 70) : vectorEnd};
    case Kind::InteractiveLine:
    case Kind::NoteTie:
    case Kind::Triplet:
        return {QPointF(0, 0), adding ? QPointF(100, 0) : vectorEnd};
    }
    return {};
}

/** A point of the item that is on none of its anchors, in item coordinates. */
QPointF bodyOf(Kind kind, const QGraphicsItem &item, const QList<QPointF> &anchors)
{
    return isVector(kind) ? anchors.constLast() / 2 : item.boundingRect().center();
}
} // namespace

/** What each item does in each state of its own with each event of the pointer. */
class PointerStatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_window.scene->clearScene(); }
    void followsTheTable_data();
    void followsTheTable();

private:
    void addRow(Kind kind, int state, Act act, Qt::MouseButton button, Qt::MouseButtons buttons,
                Where where, int after, QPointF moved = QPointF(), QList<QPointF> anchors = {});
    void addRowsAtRest(Kind kind);
    void addRowsWhileAdding(Kind kind);
    void addRowsWhileMoving(Kind kind);
    void addRowsOfVector(Kind kind);
    void addRowsOfBlock();

    TonquillMainWin m_window;
};

/** `moved` is how far the item goes; empty `anchors` stay as they are. */
void PointerStatesTest::addRow(Kind kind, int state, Act act, Qt::MouseButton button,
                               Qt::MouseButtons buttons, Where where, int after, QPointF moved,
                               QList<QPointF> anchors)
{
    constexpr std::array acts{"press", "move", "release"};
    constexpr std::array places{"body", "first anchor", "second anchor"};
    QTest::addRow("%s in state %d: %s %d with %d held, %s", kindNames[static_cast<int>(kind)],
                  state, acts[static_cast<int>(act)], int(button), int(buttons),
                  places[static_cast<int>(where)])
        << static_cast<int>(kind) << state << static_cast<int>(act) << button << buttons
        << static_cast<int>(where) << after << moved << anchors;
}

/** State 0. The press on an anchor is each kind's own. */
void PointerStatesTest::addRowsAtRest(Kind kind)
{
    addRow(kind, 0, Act::Press, left, left, Where::Body, 2);
    addRow(kind, 0, Act::Press, left, left | right, Where::Body, 0);
    addRow(kind, 0, Act::Press, left, left | right, Where::FirstAnchor, 0);
    addRow(kind, 0, Act::Press, right, right, Where::Body, 0);
    addRow(kind, 0, Act::Press, right, right, Where::FirstAnchor, 0);
    addRow(kind, 0, Act::Press, middle, middle, Where::Body, 0);
    addRow(kind, 0, Act::Move, none, none, Where::Body, 0);
    addRow(kind, 0, Act::Move, none, left, Where::Body, 0);
    addRow(kind, 0, Act::Move, none, left, Where::FirstAnchor, 0);
    addRow(kind, 0, Act::Release, left, none, Where::Body, 0);
    addRow(kind, 0, Act::Release, middle, none, Where::Body, 0);
}

/** State 1: the item follows the pointer, most kinds whatever is held, others with nothing held. */
void PointerStatesTest::addRowsWhileAdding(Kind kind)
{
    const bool onlyWithNothingHeld = isVector(kind) || kind == Kind::TimeSig;
    const QPointF withButton = onlyWithNothingHeld ? QPointF() : step;
    addRow(kind, 1, Act::Press, left, left, Where::FirstAnchor, 1);
    addRow(kind, 1, Act::Press, left, left, Where::Body, 1);
    addRow(kind, 1, Act::Press, right, right, Where::FirstAnchor, 1);
    addRow(kind, 1, Act::Move, none, none, Where::Body, 1, step);
    addRow(kind, 1, Act::Move, none, left, Where::Body, 1, withButton);
    addRow(kind, 1, Act::Move, none, right, Where::Body, 1, withButton);
    addRow(kind, 1, Act::Release, right, none, Where::FirstAnchor, 1);
    addRow(kind, 1, Act::Release, left, none, Where::Body, isVector(kind) ? 4 : 0);
    addRow(kind, 1, Act::Release, left, right, Where::Body, isVector(kind) ? 4 : 0);
}

/** State 2: the item is dragged while the left button alone is held; a glyph does not look. */
void PointerStatesTest::addRowsWhileMoving(Kind kind)
{
    const QPointF otherwise = kind == Kind::Bitmap ? step : QPointF();
    addRow(kind, 2, Act::Move, none, left, Where::Body, 2, step);
    addRow(kind, 2, Act::Move, none, left | right, Where::Body, 2, otherwise);
    addRow(kind, 2, Act::Move, none, none, Where::Body, 2, otherwise);
    addRow(kind, 2, Act::Press, right, left | right, Where::Body, 2);
    addRow(kind, 2, Act::Press, left, left, Where::Body, 2);
    addRow(kind, 2, Act::Release, right, left, Where::Body, 2);
    addRow(kind, 2, Act::Release, left, none, Where::Body, 0);
    addRow(kind, 2, Act::Release, left, right, Where::Body, 0);
}

void PointerStatesTest::addRowsOfVector(Kind kind)
{
    const QPointF start(0, 0);
    const QList<QPointF> startDragged{step, vectorEnd};
    const QList<QPointF> endDragged{start, vectorEnd + step};
    addRow(kind, 0, Act::Press, left, left, Where::FirstAnchor, 3);
    addRow(kind, 0, Act::Press, left, left, Where::SecondAnchor, 3);
    addRow(kind, 0, Act::Press, left, left | right, Where::SecondAnchor, 0);
    addRow(kind, 0, Act::Release, right, none, Where::Body, 0);

    addRow(kind, 3, Act::Move, none, left, Where::SecondAnchor, 3, QPointF(), endDragged);
    addRow(kind, 3, Act::Move, none, left | right, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Move, none, none, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Press, right, left | right, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Release, right, left, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Release, left, none, Where::SecondAnchor, 0);
    addRow(kind, 3, Act::Move, none, left, Where::FirstAnchor, 3, QPointF(), startDragged);

    // The end point goes where the pointer is, which stood at the start.
    const QList<QPointF> stretched{start, step};
    addRow(kind, 4, Act::Move, none, none, Where::FirstAnchor, 4, QPointF(), stretched);
    addRow(kind, 4, Act::Move, none, left, Where::FirstAnchor, 4, QPointF(), stretched);
    addRow(kind, 4, Act::Move, none, right, Where::FirstAnchor, 4, QPointF(), stretched);
    addRow(kind, 4, Act::Press, left, left, Where::FirstAnchor, 4);
    addRow(kind, 4, Act::Press, right, right, Where::FirstAnchor, 4);
    addRow(kind, 4, Act::Release, right, none, Where::FirstAnchor, 4);
    addRow(kind, 4, Act::Release, left, none, Where::FirstAnchor, 0);
}

void PointerStatesTest::addRowsOfBlock()
{
    const auto kind = Kind::TextBlock;
    const QList<QPointF> dragged{QPointF(0, 0), blockCorner + step};
    addRow(kind, 0, Act::Press, left, left, Where::FirstAnchor, 2);
    addRow(kind, 0, Act::Press, left, left, Where::SecondAnchor, 3);
    addRow(kind, 0, Act::Press, left, left | right, Where::SecondAnchor, 0);
    addRow(kind, 3, Act::Move, none, left, Where::SecondAnchor, 3, QPointF(), dragged);
    addRow(kind, 3, Act::Move, none, left | right, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Move, none, none, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Release, right, left, Where::SecondAnchor, 3);
    addRow(kind, 3, Act::Release, left, none, Where::SecondAnchor, 0);
}

void PointerStatesTest::followsTheTable_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("act");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    QTest::addColumn<int>("where");
    QTest::addColumn<int>("after");
    QTest::addColumn<QPointF>("moved");
    QTest::addColumn<QList<QPointF>>("anchors");

    for (std::size_t i = 0; i < kindNames.size(); ++i) {
        addRowsAtRest(static_cast<Kind>(i));
        addRowsWhileAdding(static_cast<Kind>(i));
        addRowsWhileMoving(static_cast<Kind>(i));
    }
    // These have an anchor, but none that resizes.
    for (const Kind kind : {Kind::Bitmap, Kind::Text, Kind::TimeSig}) {
        addRow(kind, 0, Act::Press, left, left, Where::FirstAnchor, 2);
        addRow(kind, 0, Act::Release, right, none, Where::Body, 0);
    }
    addRowsOfBlock();
    for (const Kind kind : vectorKinds)
        addRowsOfVector(kind);
}

void PointerStatesTest::followsTheTable()
{
    QFETCH(int, kind);
    QFETCH(int, state);
    QFETCH(int, act);
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::MouseButtons, buttons);
    QFETCH(int, where);
    QFETCH(int, after);
    QFETCH(QPointF, moved);
    QFETCH(QList<QPointF>, anchors);

    const bool adding = state == 1 || state == 4;
    QGraphicsItem *item = make(static_cast<Kind>(kind), adding);
    m_window.scene->addNewItem(item);
    item->setPos(home);
    item->setSelected(true);
    const QList<QPointF> before = anchorsOf(static_cast<Kind>(kind), adding, *item);
    const std::array<QPointF, 3> places{bodyOf(static_cast<Kind>(kind), *item, before),
                                        before.constFirst(), before.constLast()};
    ScenePointer pointer(*m_window.scene);
    QPointF at = home + places[where];
    if (state == 2 || state == 3)
        pointer.press(at);
    else if (state == 4)
        pointer.click(home);
    QCOMPARE(ItemProbe::statusOf(item), state);

    if (static_cast<Act>(act) == Act::Press) {
        pointer.setHeld(buttons & ~Qt::MouseButtons(button));
        pointer.press(at, button);
    } else if (static_cast<Act>(act) == Act::Release) {
        pointer.setHeld(buttons | button);
        pointer.release(at, button);
    } else {
        pointer.setHeld(buttons);
        pointer.moveTo((adding ? home : at) + step);
    }

    QCOMPARE(ItemProbe::statusOf(item), after);
    QCOMPARE(item->pos(), home + moved);
    const QList<QPointF> expected = anchors.isEmpty() ? before : anchors;
    const SelectionFrame *frame = ItemProbe::frameOf(*item);
    for (int i = 0; i < expected.size(); ++i) {
        QPointF hit;
        QCOMPARE(frame->getAnchor(expected[i], hit), i);
        QCOMPARE(hit, expected[i]);
    }
}

TONQUILL_TEST_MAIN(PointerStatesTest)
#include "tst_pointerstates.moc"
