#include "EditorWindow.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"

#include <QGraphicsPixmapItem>

namespace
{
const QString allegro = QStringLiteral("tonquill_text 5 6 70 20 Allegro Arial 12 ffff0000 90\n");
const QString glyph = QStringLiteral("tonquill_bitmap 2 120 300 0\n");
} // namespace

/** Items built from records, and the document that the scene writes. */
class ConstructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_editor = std::make_unique<EditorWindow>(); }
    void cleanup() { m_editor.reset(); }
    void emptySceneWritesOnlyThePageCount();
    void onlyItemsWithARecordAreWritten();
    void recordComesBack_data();
    void recordComesBack();
    void positionsAreTruncated();
    void offsetMovesTheItem_data();
    void offsetMovesTheItem();
    void atTheCursorTheRecordedPositionIsIgnored_data();
    void atTheCursorTheRecordedPositionIsIgnored();
    void withoutAViewTheCursorIsAtTheOrigin();
    void addingItemsFollowThePointer_data();
    void addingItemsFollowThePointer();
    void textComesBackBlackAndTurned();
    void textIsSelectedOnlyWhileAdding();
    void secondWordShiftsTheOtherFields();
    void textBlockGrowsByWhatItsRecordAdds();
    void glyphOfAnUnknownIdKeepsItsRecord();
    void damagedRecordsLeaveTheirNeighboursAlone_data();
    void damagedRecordsLeaveTheirNeighboursAlone();

private:
    QGraphicsItem *built(const QString &record, bool adding = false, int offset = 0);

    std::unique_ptr<EditorWindow> m_editor;
};

QGraphicsItem *ConstructionTest::built(const QString &record, bool adding, int offset)
{
    m_editor->scene().constructItem(record, adding, offset);
    return ItemProbe::onlyItem(m_editor->scene());
}

void ConstructionTest::emptySceneWritesOnlyThePageCount()
{
    QCOMPARE(m_editor->scene().notifyTW(), QString("tonquill_pagecount 1\n"));
    m_editor->scene().setPageNum(7);
    QCOMPARE(m_editor->scene().notifyTW(), QString("tonquill_pagecount 7\n"));
}

void ConstructionTest::onlyItemsWithARecordAreWritten()
{
    m_editor->scene().addPixmap(QPixmap(3, 3));
    m_editor->scene().addText("an object without a record");
    built(glyph);
    QCOMPARE(m_editor->scene().notifyTW(), "tonquill_pagecount 1\n" + glyph);
}

void ConstructionTest::recordComesBack_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("glyph") << glyph;
    QTest::newRow("inverted glyph") << "tonquill_bitmap 13 120 300 1\n";
    QTest::newRow("time signature") << "tonquill_timesig 10 -3 12 8\n";
    for (const char *keyword : {"grandstaff", "interactiveline", "linetab", "notetie", "triplet"}) {
        QTest::addRow("%s", keyword) << QString("tonquill_%1 200 410 0 0 60 -12\n").arg(keyword);
        QTest::addRow("%s, far away", keyword)
            << QString("tonquill_%1 -2147483648 2147483647 7 -7 0 0\n").arg(keyword);
    }
}

void ConstructionTest::recordComesBack()
{
    QFETCH(const QString, record);
    QGraphicsItem *item = built(record);
    QVERIFY(item);
    QCOMPARE(m_editor->scene().notifyTW(), "tonquill_pagecount 1\n" + record);
    QCOMPARE(ItemProbe::statusOf(item), 0);
    QVERIFY(!item->isSelected());
    QCOMPARE(item->data(257).toString(), record.section(' ', 0, 0));
}

void ConstructionTest::positionsAreTruncated()
{
    QGraphicsItem *item = built(glyph);
    item->setPos(10.7, -3.2);
    const QString record = ItemProbe::recordOf(item);
    QCOMPARE(record, QString("tonquill_bitmap 2 10 -3 0\n"));
    m_editor->scene().clearScene();
    QCOMPARE(built(record)->pos(), QPointF(10, -3));
}

void ConstructionTest::offsetMovesTheItem_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("glyph") << glyph << 20 << QPointF(140, 320);
    QTest::newRow("glyph, backwards") << glyph << -20 << QPointF(100, 280);
    QTest::newRow("time signature") << "tonquill_timesig 10 -3 4 4\n" << 20 << QPointF(30, 17);
    QTest::newRow("figure") << "tonquill_notetie 1 2 3 4 5 6\n" << 20 << QPointF(21, 22);
    QTest::newRow("block") << "tonquill_textblock_begin 80 900 240 60\na\ntonquill_textblock_end\n"
                           << 20 << QPointF(100, 920);
    // Twice the offset: 5 + 2 * 20 and 6 + 2 * 20.
    QTest::newRow("text") << allegro << 20 << QPointF(45, 46);
    QTest::newRow("largest position") << "tonquill_timesig 2147483647 0 4 4\n"
                                      << 30 << QPointF(2147483677.0, 30);
}

void ConstructionTest::offsetMovesTheItem()
{
    QFETCH(const QString, record);
    QFETCH(const int, offset);
    QGraphicsItem *item = built(record, false, offset);
    QVERIFY(item);
    QTEST(item->pos(), "expected");
}

void ConstructionTest::atTheCursorTheRecordedPositionIsIgnored_data()
{
    addingItemsFollowThePointer_data();
}

void ConstructionTest::atTheCursorTheRecordedPositionIsIgnored()
{
    QFETCH(const QString, record);
    const QPointF cursor = m_editor->putCursorOnPage();
    QGraphicsItem *item = built(record, false, -65535);
    QVERIFY(item);
    QCOMPARE(item->pos(), cursor);
}

void ConstructionTest::withoutAViewTheCursorIsAtTheOrigin()
{
    TonquillScene scene;
    scene.constructItem("tonquill_timesig 10 -3 12 8\n", false, -65535);
    QCOMPARE(ItemProbe::onlyItem(scene)->scenePos(), QPointF(0, 0));
}

void ConstructionTest::addingItemsFollowThePointer_data()
{
    QTest::addColumn<QString>("record");
    QTest::newRow("glyph") << glyph;
    QTest::newRow("time signature") << "tonquill_timesig 10 -3 12 8\n";
    QTest::newRow("figure") << "tonquill_notetie 1 2 3 4 5 6\n";
    QTest::newRow("text") << allegro;
    QTest::newRow("block") << "tonquill_textblock_begin 8 9 240 60\na\ntonquill_textblock_end\n";
}

void ConstructionTest::addingItemsFollowThePointer()
{
    QFETCH(const QString, record);
    QGraphicsItem *item = built(record, true);
    QVERIFY(item);
    QCOMPARE(ItemProbe::statusOf(item), 1);
    QVERIFY(item->isSelected());
    m_editor->pointer.moveTo(QPointF(333, 222));
    QCOMPARE(item->pos(), QPointF(333, 222));
}

void ConstructionTest::textComesBackBlackAndTurned()
{
    auto *item = m_editor->build<TonquillText>(allegro);
    QCOMPARE(item->toPlainText(), QString("Allegro"));
    QCOMPARE(item->font().family(), QString("Arial"));
    QCOMPARE(item->font().pointSize(), 12);
    QCOMPARE(item->defaultTextColor(), QColor(Qt::black));
    QCOMPARE(item->rotation(), 90.0);
    QPointF anchor;
    const QPointF corner = item->boundingRect().bottomLeft();
    QCOMPARE(ItemProbe::frameOf(*item)->getAnchor(corner, anchor), 0);
    QCOMPARE(anchor, corner);
    // Written again, only its size and its colour differ: they are the item's own.
    const QString again = ItemProbe::recordOf(item);
    QCOMPARE(again, QString("tonquill_text 5 6 %1 %2 Allegro Arial 12 ff000000 90\n")
                        .arg(int(item->boundingRect().width()))
                        .arg(int(item->boundingRect().height())));
    m_editor->scene().clearScene();
    QCOMPARE(ItemProbe::recordOf(built(again)), again);
}

void ConstructionTest::textIsSelectedOnlyWhileAdding()
{
    QVERIFY(!built(allegro)->isSelected());
    m_editor->scene().clearScene();
    QVERIFY(built(allegro, true)->isSelected());
}

void ConstructionTest::secondWordShiftsTheOtherFields()
{
    auto *item = m_editor->build<TonquillText>(
        "tonquill_text 5 6 70 20 Allegro moderato Arial 12 ff000000 90\n");
    QVERIFY(item);
    QCOMPARE(item->toPlainText(), QString("Allegro"));
    QCOMPARE(item->font().family(), QString("moderato"));
    // "Arial" is no size: the default one stays. "12" in base 16 is the colour, and ff000000,
    // which no int holds, the angle.
    QCOMPARE(item->font().pointSize(), QFont().pointSize());
    QCOMPARE(item->defaultTextColor(), QColor(0, 0, 0x12));
    QCOMPARE(item->rotation(), 0.0);
}

void ConstructionTest::textBlockGrowsByWhatItsRecordAdds()
{
    // A block is one wider than what it is given, and its text has gained a line break.
    QGraphicsItem *item =
        built("tonquill_textblock_begin 80 900 240 60\none\ntwo\ntonquill_textblock_end\n");
    QCOMPARE(ItemProbe::recordOf(item),
             QString("tonquill_textblock_begin 80 900 241 60\none\ntwo\n\n"
                     "tonquill_textblock_end\n"));
}

void ConstructionTest::glyphOfAnUnknownIdKeepsItsRecord()
{
    const QString record = "tonquill_bitmap 2147483647 -1 5 1\n";
    QCOMPARE(ItemProbe::recordOf(built(record)), record);
}

void ConstructionTest::damagedRecordsLeaveTheirNeighboursAlone_data()
{
    QTest::addColumn<QString>("damaged");
    QTest::addColumn<int>("itemsOfItsOwn");
    QTest::newRow("cut glyph") << "tonquill_bitmap 2 1" << 0;
    QTest::newRow("text with a separator") << "tonquill_text 0 0 9 9 a|b Arial 12 ff000000 0\n"
                                           << 0;
    QTest::newRow("text with a line break") << "tonquill_text 0 0 9 9 a\nb Arial 12 ff000000 0\n"
                                            << 1;
    QTest::newRow("block with a separator")
        << "tonquill_textblock_begin 1 2 3 4\na|b\ntonquill_textblock_end\n"
        << 0;
    QTest::newRow("block without its end") << "tonquill_textblock_begin 1 2 3 4\na\n" << 0;
    QTest::newRow("empty records") << "||\n|" << 0;
}

void ConstructionTest::damagedRecordsLeaveTheirNeighboursAlone()
{
    QFETCH(const QString, damaged);
    QFETCH(const int, itemsOfItsOwn);
    const QString after = "tonquill_timesig 10 -3 12 8\n";
    m_editor->window.twMsg(glyph + '|' + damaged + '|' + after);
    const QStringList records = m_editor->records();
    QVERIFY(records.contains(glyph));
    QVERIFY(records.contains(after));
    QCOMPARE(records.size(), 2 + itemsOfItsOwn);
}

TONQUILL_TEST_MAIN(ConstructionTest)
#include "tst_construction.moc"
