#include "ItemProbe.h"
#include "ModalAnswer.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"

#include <QAction>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSignalSpy>

using namespace ModalAnswer;

namespace
{
constexpr int firstNoteButton = 0x109;
constexpr int lastNoteButton = 0x110;
constexpr int tablatureButton = 0x201;

void sendKey(QGraphicsScene *scene, QEvent::Type type, int key)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(scene, &event);
}
} // namespace

/** What each button and menu entry of the palette inserts. */
class InsertCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void makesItsItem_data();
    void makesItsItem();
    void menuTextsAreInserted_data();
    void menuTextsAreInserted();
    void notesAndRests_data();
    void notesAndRests();
    void ctrlShowsRests();
    void nothingIsSwappedWithoutIcons();
    void boundToNoButton();
    void onlyNotesCanBeInverted_data();
    void onlyNotesCanBeInverted();
    void secondPressLeavesOneWaiting_data();
    void secondPressLeavesOneWaiting();
    void someDoNotAskWhoWaits_data();
    void someDoNotAskWhoWaits();
    void waitingItemGoesEvenIfTheDialogIsCancelled();
    void tempoTextAsksTheSceneForItsMenu();
    void idsWithoutAGlyph_data();
    void idsWithoutAGlyph();
    void quickTextSaysHowItStands_data();
    void quickTextSaysHowItStands();

private:
    void trigger(int id) { m_window.actions.value(id)->trigger(); }
    QString onlyRecord() const;

    TonquillMainWin m_window;
};

void InsertCommandsTest::init()
{
    m_window.scene->clearScene();
    m_window.restMode = false;
}

/** The record of the only item; it waits to be placed. */
QString InsertCommandsTest::onlyRecord() const
{
    QGraphicsItem *item = ItemProbe::onlyItem(*m_window.scene);
    return item && ItemProbe::statusOf(item) == 1 ? ItemProbe::recordOf(item) : QString();
}

void InsertCommandsTest::makesItsItem_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("record");
    QTest::newRow("grand staff") << 0x101 << "tonquill_grandstaff 0 0 0 0 70 70\n";
    QTest::newRow("G clef") << 0x1100 << "tonquill_bitmap 2 0 0 0\n";
    QTest::newRow("F clef") << 0x1101 << "tonquill_bitmap 3 0 0 0\n";
    QTest::newRow("C") << 0x1300 << "tonquill_bitmap 0 0 0 0\n";
    QTest::newRow("C(cut)") << 0x1301 << "tonquill_bitmap 1 0 0 0\n";
    QTest::newRow("flat") << 0x1400 << "tonquill_bitmap 5 0 0 0\n";
    QTest::newRow("sharp") << 0x1401 << "tonquill_bitmap 4 0 0 0\n";
    QTest::newRow("natural") << 0x1402 << "tonquill_bitmap 6 0 0 0\n";
    QTest::newRow("repeat begin") << 0x106 << "tonquill_bitmap 7 0 0 0\n";
    QTest::newRow("repeat end") << 0x107 << "tonquill_bitmap 8 0 0 0\n";
    QTest::newRow("staff line") << 0x108 << "tonquill_bitmap 9 0 0 0\n";
    QTest::newRow("note dot") << 0x111 << "tonquill_bitmap 10 0 0 0\n";
    QTest::newRow("triplet") << 0x112 << "tonquill_triplet 0 0 0 0 100 0\n";
    QTest::newRow("tie") << 0x113 << "tonquill_notetie 0 0 0 0 100 0\n";
    QTest::newRow("tablature") << 0x201 << "tonquill_linetab 0 0 0 0 70 70\n";
    QTest::newRow("line") << 0x203 << "tonquill_interactiveline 0 0 0 0 100 0\n";
    QTest::newRow("2/2") << 0x1302 << "tonquill_timesig 0 0 2 2\n";
    QTest::newRow("9/8") << 0x1309 << "tonquill_timesig 0 0 9 8\n";
    QTest::newRow("3/2") << 0x130a << "tonquill_timesig 0 0 3 2\n";
    QTest::newRow("12/8") << 0x1314 << "tonquill_timesig 0 0 12 8\n";
}

void InsertCommandsTest::makesItsItem()
{
    QFETCH(int, id);
    QFETCH(QString, record);
    trigger(id);
    QCOMPARE(onlyRecord(), record);
    QVERIFY(ItemProbe::onlyItem(*m_window.scene)->isSelected());
}

void InsertCommandsTest::menuTextsAreInserted_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("first tempo") << 0x1200 << "Larghissimo";
    QTest::newRow("tempo of two words") << 0x1207 << "Andante Moderato";
    QTest::newRow("last tempo") << 0x1212 << "Prestissimo";
    QTest::newRow("block") << 0x200
                           << "Text Block:\n\nSet the size with the Mouse.\nDouble-click to Edit.";
}

void InsertCommandsTest::menuTextsAreInserted()
{
    QFETCH(int, id);
    QFETCH(QString, text);
    trigger(id);
    const auto *item = dynamic_cast<QGraphicsTextItem *>(ItemProbe::onlyItem(*m_window.scene));
    QVERIFY(item);
    QCOMPARE(item->toPlainText(), text);
    QCOMPARE(item->property("itemStatus"), QVariant(1));
    if (item->type() != TonquillText::Type)
        return;
    QCOMPARE(item->font().family(), QString("Arial"));
    QCOMPARE(item->font().pointSize(), 12);
    QVERIFY(ItemProbe::frameOf(*item)->isAnchor(item->boundingRect().bottomLeft()));
}

void InsertCommandsTest::notesAndRests_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("note");
    QTest::addColumn<int>("rest");
    QTest::newRow("whole") << 0x109 << 13 << 15;
    QTest::newRow("half") << 0x10a << 16 << 18;
    QTest::newRow("quarter") << 0x10b << 19 << 21;
    QTest::newRow("eighth") << 0x10c << 22 << 24;
    QTest::newRow("16th") << 0x10d << 25 << 27;
    QTest::newRow("32nd") << 0x10e << 28 << 30;
    QTest::newRow("64th") << 0x10f << 31 << 33;
    QTest::newRow("128th") << 0x110 << 34 << 36;
}

void InsertCommandsTest::notesAndRests()
{
    QFETCH(int, button);
    QFETCH(int, note);
    QFETCH(int, rest);
    trigger(button);
    QCOMPARE(onlyRecord(), QString("tonquill_bitmap %1 0 0 0\n").arg(note));
    sendKey(m_window.scene, QEvent::KeyPress, Qt::Key_Control);
    trigger(button);
    QCOMPARE(onlyRecord(), QString("tonquill_bitmap %1 0 0 0\n").arg(rest));
    sendKey(m_window.scene, QEvent::KeyRelease, Qt::Key_Control);
    trigger(button);
    QCOMPARE(onlyRecord(), QString("tonquill_bitmap %1 0 0 0\n").arg(note));
}

void InsertCommandsTest::ctrlShowsRests()
{
    const QSize size(m_window.tb2IconWidth, m_window.tb2IconHeight);
    const auto shown = [this, size](int id) {
        return m_window.actions.value(id)->icon().pixmap(size).toImage();
    };
    const auto isMenuButton = [](int id) { return id >= 0x102 && id <= 0x105; };
    sendKey(m_window.scene, QEvent::KeyPress, Qt::Key_Control);
    for (int id = 0x100; id < 0x114; ++id) {
        const QHash<int, QPixmap> &strip = isMenuButton(id) ? m_window.strip2 : m_window.strip2B;
        QCOMPARE(shown(id), strip.value(id).toImage());
    }
    for (int id = firstNoteButton; id <= lastNoteButton; ++id)
        QVERIFY(m_window.strip2.value(id).toImage() != m_window.strip2B.value(id).toImage());
    sendKey(m_window.scene, QEvent::KeyRelease, Qt::Key_Control);
    for (int id = 0x100; id < 0x114; ++id)
        QCOMPARE(shown(id), m_window.strip2.value(id).toImage());
}

void InsertCommandsTest::nothingIsSwappedWithoutIcons()
{
    const int count = std::exchange(m_window.tb2Count, 0);
    const qint64 before = m_window.actions.value(firstNoteButton)->icon().cacheKey();
    m_window.restMode = true;
    m_window.swapTb2();
    QCOMPARE(m_window.actions.value(firstNoteButton)->icon().cacheKey(), before);
    m_window.tb2Count = count;
}

void InsertCommandsTest::boundToNoButton()
{
    m_window.OnToolBar2ButtonCommonTimeW();
    QCOMPARE(onlyRecord(), QString("tonquill_bitmap 0 0 0 0\n"));
    m_window.OnToolBar2ButtonCommonTimeH();
    QCOMPARE(onlyRecord(), QString("tonquill_bitmap 1 0 0 0\n"));
}

void InsertCommandsTest::onlyNotesCanBeInverted_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("rest");
    QTest::addColumn<int>("shown");
    QTest::newRow("quarter note: its inverted drawing") << 0x10b << false << 20;
    // The rest's next id is the note of the next shorter value, and is taken on purpose.
    QTest::newRow("quarter rest: the eighth note") << 0x10b << true << 22;
    QTest::newRow("128th rest: none follows") << 0x110 << true << 36;
    QTest::newRow("repeat: none") << 0x106 << false << 7;
}

void InsertCommandsTest::onlyNotesCanBeInverted()
{
    QFETCH(int, button);
    QFETCH(bool, rest);
    QFETCH(int, shown);
    m_window.restMode = rest;
    trigger(button);
    ScenePointer pointer(*m_window.scene);
    pointer.moveTo(QPointF(200, 200));
    pointer.press(QPointF(200, 200), Qt::RightButton);
    const auto *item = qgraphicsitem_cast<TonquillBitmap *>(ItemProbe::onlyItem(*m_window.scene));
    QCOMPARE(item->pixmap().cacheKey(), m_window.symbols.value(shown).cacheKey());
}

void InsertCommandsTest::secondPressLeavesOneWaiting_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("the same note") << 0x10c << 0x10c;
    QTest::newRow("another note") << 0x10c << 0x10b;
    QTest::newRow("a block after a note") << 0x10c << 0x200;
    QTest::newRow("a tie after a block") << 0x200 << 0x113;
    QTest::newRow("a triplet after a tempo") << 0x1200 << 0x112;
    QTest::newRow("a line after a time signature") << 0x1302 << 0x203;
    QTest::newRow("a grand staff after tablature") << 0x201 << 0x101;
}

void InsertCommandsTest::secondPressLeavesOneWaiting()
{
    QFETCH(int, first);
    QFETCH(int, second);
    trigger(first);
    const QGraphicsItem *dropped = ItemProbe::onlyItem(*m_window.scene);
    trigger(second);
    QCOMPARE(ItemProbe::waitingItems(*m_window.scene), 1);
    QVERIFY(ItemProbe::onlyItem(*m_window.scene) != dropped);
}

void InsertCommandsTest::someDoNotAskWhoWaits_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("two tablatures") << tablatureButton << tablatureButton;
    QTest::newRow("tablature after a note") << 0x10c << tablatureButton;
    QTest::newRow("tempo after a note") << 0x10c << 0x1203;
    QTest::newRow("time signature after a tie") << 0x113 << 0x1304;
}

void InsertCommandsTest::someDoNotAskWhoWaits()
{
    QFETCH(int, first);
    QFETCH(int, second);
    trigger(first);
    trigger(second);
    QCOMPARE(ItemProbe::waitingItems(*m_window.scene), 2);
}

void InsertCommandsTest::waitingItemGoesEvenIfTheDialogIsCancelled()
{
    trigger(0x10c);
    whenOpen<TonquillSimpleTextDlg>(
        [](TonquillSimpleTextDlg &dialog) { clickButton(dialog, "pb_cancel"); });
    trigger(0x100);
    QVERIFY(ItemProbe::documentItems(*m_window.scene).isEmpty());
}

void InsertCommandsTest::tempoTextAsksTheSceneForItsMenu()
{
    trigger(0x120d);
    ScenePointer pointer(*m_window.scene);
    pointer.click(QPointF(200, 200));
    QStringList entries;
    whenOpen<QMenu>([&entries](QMenu &menu) {
        for (const QAction *action : menu.actions())
            entries.append(action->text());
    });
    pointer.press(QPointF(215, 210), Qt::RightButton);
    QCOMPARE(entries, QStringList{"Edit..."});
}

void InsertCommandsTest::idsWithoutAGlyph_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("beyond the last") << 37;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void InsertCommandsTest::idsWithoutAGlyph()
{
    QFETCH(int, id);
    TonquillBitmap *item = m_window.InsertBitmapSymbol(id, false, true);
    QVERIFY(item);
    QCOMPARE(item->getParamStr(), QString("tonquill_bitmap %1 0 0 0\n").arg(id));
}

void InsertCommandsTest::quickTextSaysHowItStands_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("text");
    QTest::newRow("on") << true << "Quick text is on";
    QTest::newRow("off") << false << "Quick text is off";
}

void InsertCommandsTest::quickTextSaysHowItStands()
{
    QFETCH(bool, on);
    QFETCH(QString, text);
    m_window.onQuickTextAction(on);
    QCOMPARE(m_window.quickText, on);
    auto *box = m_window.findChild<QMessageBox *>();
    QVERIFY(box);
    QCOMPARE(box->windowTitle(), QString("Quick Text"));
    QCOMPARE(box->text(), text);
    QCOMPARE(box->icon(), QMessageBox::Information);
    QCOMPARE(box->standardButtons(), QMessageBox::Ok);
    delete box;
}

TONQUILL_TEST_MAIN(InsertCommandsTest)
#include "tst_insertcommands.moc"
