#include "PaletteTable.h"
#include "TestMain.h"
#include "TonquillMainWin.h"

#include <QAction>
#include <QImage>
#include <QMenu>
#include <QMetaMethod>
#include <QToolBar>
#include <QToolButton>

namespace
{
/** What a palette of this design holds, told apart from the table that the program is built of. */
struct Button
{
    int id;
    const char *slot; ///< empty for a button that opens a menu
};

const QList<Button> toolBar1{
    {0, "OnToolBar1ButtonTrackwright"}, {1, "OnToolBar1ButtonSheetMusic"},
    {2, "OnToolBar1ButtonGuitarTabs"},  {3, "OnToolBar1ButtonPrintPreview"},
    {4, "OnToolBar1ButtonPageSetup"},   {5, "OnToolBar1ButtonPrint"},
    {6, "OnToolBar1ButtonUndo"},        {7, "OnToolBar1ButtonRedo"},
};

const QList<Button> toolBar3{
    {0x200, "OnToolBar3ButtonTextBlock"},
    {0x201, "OnToolBar3ButtonLineTab"},
    {0x202, ""},
    {0x203, "OnToolBar3ButtonInteractiveLine"},
};

const QList<Button> toolBar2{
    {0x100, "OnToolBar2ButtonText"},
    {0x101, "OnToolBar2ButtonGrandstaff"},
    {0x102, ""},
    {0x103, ""},
    {0x104, ""},
    {0x105, ""},
    {0x106, "OnToolBar2ButtonRepeatB"},
    {0x107, "OnToolBar2ButtonRepeatE"},
    {0x108, "OnToolBar2ButtonStaffLine"},
    {0x109, "OnToolBar2ButtonNote1"},
    {0x10a, "OnToolBar2ButtonNote2"},
    {0x10b, "OnToolBar2ButtonNote4"},
    {0x10c, "OnToolBar2ButtonNote8"},
    {0x10d, "OnToolBar2ButtonNote16"},
    {0x10e, "OnToolBar2ButtonNote32"},
    {0x10f, "OnToolBar2ButtonNote64"},
    {0x110, "OnToolBar2ButtonNote128"},
    {0x111, "OnToolBar2ButtonNoteDot"},
    {0x112, "OnToolBar2ButtonNoteTrip"},
    {0x113, "OnToolBar2ButtonNoteTie"},
};

/** The texts of each menu in order, with "-" for a separator. */
const QHash<int, QStringList> menuTexts{
    {0x102, {"G Clef", "F Clef"}},
    {0x103,
     {"Larghissimo", "Grave", "Lento", "Largo", "Larghetto", "Adagio", "Adagietto",
      "Andante Moderato", "Andante", "Andantino", "Moderato", "Allegretto", "Allegro Moderato",
      "Allegro", "Vivace", "Vivacissimo", "Allegrissimo", "Presto", "Prestissimo"}},
    {0x104, {"C",   "C(cut)", "-",   "2/2", "2/4", "3/4", "3/8",  "4/2", "4/4",  "6/8",  "9/8", "-",
             "3/2", "3/16",   "4/8", "5/2", "5/4", "5/8", "5/16", "6/4", "7/16", "9/16", "12/8"}},
    {0x105, {"Flat", "Sharp", "Natural"}},
};

/** The id of each menu's first entry; separators have none. */
const QHash<int, int> firstIds{{0x102, 0x1100}, {0x103, 0x1200}, {0x104, 0x1300}, {0x105, 0x1400}};

const QHash<int, QString> menuSlots{
    {0x1100, "OnMenuButtonGClef"},   {0x1101, "OnMenuButtonFClef"}, {0x1300, "OnMenuButtonCReg"},
    {0x1301, "OnMenuButtonCCut"},    {0x1400, "OnMenuButtonFlat"},  {0x1401, "OnMenuButtonSharp"},
    {0x1402, "OnMenuButtonNatural"},
};

/** The slot of a menu entry: one of its own, or the one that its whole menu shares. */
QString slotOfEntry(int id)
{
    const QString shared = id < 0x1300 ? "OnToolBar2ActionTempo" : "OnToolBar2ActionTimesig";
    return menuSlots.value(id, shared);
}

/** "1Name()", as SLOT() gives it, without what stands round the name. */
QString nameOf(const char *slot)
{
    return QString::fromLatin1(slot).mid(1).chopped(2);
}

/** True if the action's trigger reaches this slot once, and nothing else of the window. */
bool triggersOnly(QAction *action, TonquillMainWin &window, const QString &slot)
{
    const QByteArray signature = "1" + slot.toLatin1() + "()";
    const bool connected =
        QObject::disconnect(action, SIGNAL(triggered()), &window, signature.constData());
    const bool more = QObject::disconnect(action, nullptr, &window, nullptr);
    QObject::connect(action, SIGNAL(triggered()), &window, signature.constData());
    return connected && !more;
}

QImage pictureOf(const QIcon &icon, int width, int height)
{
    return icon.pixmap(width, height).toImage();
}
} // namespace

/** The palette's table, the window's slots, its toolbars, menus and hashes: they must agree. */
class PaletteTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolBarsHoldTheirButtons_data();
    void toolBarsHoldTheirButtons();
    void everyRowIsASlotAnActionAndAButton_data();
    void everyRowIsASlotAnActionAndAButton();
    void menusHoldTheirEntries_data();
    void menusHoldTheirEntries();
    void menuEntriesHaveTheirIdsAndSlots_data();
    void menuEntriesHaveTheirIdsAndSlots();
    void everyInsertingSlotHasItsPlace();
    void slotsAreDeclaredInTheOrderOfTheToolBars();
    void idsAreUnique();
    void signsHaveIconsInMenus();
    void iconsAreTheSlicesOfTheStrip();

private:
    static const QList<Button> &buttonsOf(const QString &toolBar);
    QToolBar *toolBarOf(const char *name) const { return m_window.findChild<QToolBar *>(name); }

    TonquillMainWin m_window;
};

const QList<Button> &PaletteTableTest::buttonsOf(const QString &toolBar)
{
    static const QHash<QString, QList<Button>> all{
        {"toolBar1", toolBar1}, {"toolBar2", toolBar2}, {"toolBar3", toolBar3}};
    return *all.constFind(toolBar);
}

void PaletteTableTest::toolBarsHoldTheirButtons_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"toolBar1", "toolBar2", "toolBar3"})
        QTest::newRow(name) << name;
}

void PaletteTableTest::toolBarsHoldTheirButtons()
{
    QFETCH(QString, name);
    const auto *toolBar = m_window.findChild<QToolBar *>(name);
    const QList<QAction *> actions = toolBar->actions();
    const QList<Button> &expected = buttonsOf(name);
    QCOMPARE(actions.size(), expected.size());
    for (int i = 0; i < actions.size(); ++i) {
        QAction *action = m_window.actions.value(expected[i].id);
        QCOMPARE(action, actions[i]);
        const bool isMenuButton = expected[i].slot[0] == '\0';
        QCOMPARE(m_window.menus.contains(expected[i].id), isMenuButton);
        const auto *button = qobject_cast<QToolButton *>(toolBar->widgetForAction(action));
        if (isMenuButton) {
            QCOMPARE(button->menu(), m_window.menus.value(expected[i].id));
            QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
        } else {
            QVERIFY(!button->menu());
            QVERIFY(triggersOnly(action, m_window, expected[i].slot));
        }
    }
}

void PaletteTableTest::everyRowIsASlotAnActionAndAButton_data()
{
    QTest::addColumn<int>("bar");
    QTest::addColumn<int>("index");
    const QList<PaletteToolBar> &rows = PaletteTable::toolBars();
    for (int bar = 0; bar < rows.size(); ++bar) {
        for (int i = 0; i < rows[bar].entries.size(); ++i)
            QTest::addRow("%s, %d", rows[bar].objectName, i) << bar << i;
    }
}

void PaletteTableTest::everyRowIsASlotAnActionAndAButton()
{
    QFETCH(int, bar);
    QFETCH(int, index);
    const PaletteToolBar &row = PaletteTable::toolBars()[bar];
    const PaletteEntry &entry = row.entries[index];
    const Button &expected = buttonsOf(row.objectName)[index];
    QCOMPARE(entry.id, expected.id);
    QCOMPARE(entry.slot ? nameOf(entry.slot) : QString(), QString(expected.slot));
    if (entry.slot)
        QVERIFY(m_window.metaObject()->indexOfSlot(entry.slot + 1) >= 0);

    const QAction *action = m_window.actions.value(entry.id);
    QVERIFY(action->text().isEmpty());
    QVERIFY(!action->icon().isNull());
    const auto *button = qobject_cast<QToolButton *>(
        toolBarOf(row.objectName)->widgetForAction(const_cast<QAction *>(action)));
    QVERIFY(!button->icon().isNull());
    const QString name = entry.translatedTip();
    QVERIFY(!name.isEmpty());
    QCOMPARE(button->toolTip(), name);
    QCOMPARE(button->statusTip(), name);
    QCOMPARE(button->accessibleName(), name);
}

void PaletteTableTest::menusHoldTheirEntries_data()
{
    QTest::addColumn<int>("button");
    for (const int id : {0x102, 0x103, 0x104, 0x105})
        QTest::addRow("%x", id) << id;
}

void PaletteTableTest::menusHoldTheirEntries()
{
    QFETCH(int, button);
    QStringList texts;
    for (const QAction *action : m_window.menus.value(button)->actions())
        texts.append(action->isSeparator() ? "-" : action->text());
    QCOMPARE(texts, menuTexts.value(button));
}

void PaletteTableTest::menuEntriesHaveTheirIdsAndSlots_data()
{
    menusHoldTheirEntries_data();
}

void PaletteTableTest::menuEntriesHaveTheirIdsAndSlots()
{
    QFETCH(int, button);
    int id = firstIds.value(button);
    for (QAction *action : m_window.menus.value(button)->actions()) {
        if (action->isSeparator())
            continue;
        QCOMPARE(m_window.actions.value(id), action);
        QVERIFY(triggersOnly(action, m_window, slotOfEntry(id)));
        QVERIFY(!action->statusTip().isEmpty());
        ++id;
    }
    QVERIFY(!m_window.actions.contains(id));
}

/** Whatever slot looks as if a button had it, has one, but for two that never had any. */
void PaletteTableTest::everyInsertingSlotHasItsPlace()
{
    QStringList expected{"OnToolBar2ButtonCommonTimeW", "OnToolBar2ButtonCommonTimeH"};
    for (const PaletteToolBar &bar : PaletteTable::toolBars()) {
        for (const PaletteEntry &entry : bar.entries) {
            if (entry.slot)
                expected.append(nameOf(entry.slot));
        }
    }
    for (const PaletteMenu &menu : PaletteTable::menus()) {
        for (const PaletteEntry &entry : menu.entries) {
            if (entry.slot)
                expected.append(nameOf(entry.slot));
        }
    }
    expected.removeDuplicates();

    QStringList found;
    const QMetaObject *meta = m_window.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QString name = meta->method(i).name();
        if (name.startsWith("OnToolBar") || name.startsWith("OnMenuButton"))
            found.append(name);
    }
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void PaletteTableTest::slotsAreDeclaredInTheOrderOfTheToolBars()
{
    int last = -1;
    for (const PaletteToolBar &bar : PaletteTable::toolBars()) {
        for (const PaletteEntry &entry : bar.entries) {
            if (!entry.slot)
                continue;
            const int index = m_window.metaObject()->indexOfSlot(entry.slot + 1);
            QVERIFY2(index > last, entry.slot + 1);
            last = index;
        }
    }
}

void PaletteTableTest::idsAreUnique()
{
    const QList<QAction *> actions = m_window.actions.values();
    QCOMPARE(QSet<QAction *>(actions.cbegin(), actions.cend()).size(), actions.size());
}

/** Clefs, accidentals and the two signs of common time are known by their looks. */
void PaletteTableTest::signsHaveIconsInMenus()
{
    for (const int id : {0x1100, 0x1101, 0x1300, 0x1301, 0x1400, 0x1401, 0x1402})
        QVERIFY(!m_window.actions.value(id)->icon().isNull());
    for (const int id : {0x1200, 0x1302})
        QVERIFY(m_window.actions.value(id)->icon().isNull());
}

void PaletteTableTest::iconsAreTheSlicesOfTheStrip()
{
    const QImage strip(":/images/ToolBar2-HighColor.bmp");
    const QImage held(":/images/ToolBar2-HighColor-B.bmp");
    QCOMPARE(held.size(), strip.size());
    QCOMPARE(m_window.tb2Count, 20);
    QCOMPARE(m_window.tb2IconWidth, strip.width() / 20);
    QCOMPARE(m_window.tb2IconHeight, strip.height());
    QCOMPARE(m_window.strip2.size(), 20);
    QCOMPARE(m_window.strip2B.size(), 20);
    const int width = m_window.tb2IconWidth;
    const QRgb ink = m_window.palette().color(QPalette::ButtonText).rgb();
    for (int i = 0; i < 20; ++i) {
        const QImage slice = m_window.strip2.value(0x100 + i).toImage();
        QCOMPARE(slice.size(), QSize(width, strip.height()));
        QCOMPARE(m_window.strip2B.value(0x100 + i).size(), slice.size());
        QCOMPARE(pictureOf(m_window.actions.value(0x100 + i)->icon(), width, strip.height()),
                 slice);
        // Where the strip is black, the slice is inked; where it is white, nothing is.
        for (int x = 0; x < width; ++x) {
            for (int y = 0; y < strip.height(); ++y) {
                const QRgb pixel = strip.pixel(i * width + x, y) | 0xff000000;
                if (pixel == 0xff000000)
                    QCOMPARE(slice.pixel(x, y), ink);
                else if (pixel == 0xffffffff)
                    QCOMPARE(qAlpha(slice.pixel(x, y)), 0);
            }
        }
    }
}

TONQUILL_TEST_MAIN(PaletteTableTest)
#include "tst_palettetable.moc"
