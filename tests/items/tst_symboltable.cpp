#include "ItemProbe.h"
#include "PaletteBuilder.h"
#include "ScenePointer.h"
#include "SymbolTable.h"
#include "TestMain.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QAction>
#include <QMenu>
#include <QTemporaryDir>

namespace
{
constexpr int builtInSymbols = 37;
constexpr int lastBuiltIn = 36;
// Added by this file.
constexpr int fermata = 37;
constexpr int fermataBelow = 38;
constexpr QSize fermataSize(21, 17);
constexpr QPoint fermataReference(10, 15);
constexpr QPoint fermataBelowReference(10, 1);
} // namespace

/** The table of symbols, and the way of one that is added to it by a row. */
class SymbolTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void theFirstSymbolsGoWithTheNext_data();
    void theFirstSymbolsGoWithTheNext();
    void idsWithoutARowGoWithTheNext();
    void sizesAreToldByHeight_data();
    void sizesAreToldByHeight();
    void everyPictureHasTheSizeOfItsRow_data();
    void everyPictureHasTheSizeOfItsRow();
    void whatIsOfferedHasASense();
    void takenAndNegativeIdsAreRefused_data();
    void takenAndNegativeIdsAreRefused();
    void anAddedSymbolHasItsPicture();
    void anAddedSymbolIsTurnedByTheRightButton();
    void onlyItsOwnFormTurnsASymbol_data();
    void onlyItsOwnFormTurnsASymbol();
    void anAddedSymbolLiesAtItsReferencePoint();
    void whereNoRowSaysMoreTheMiddleOfTheFirstFormCounts();
    void anAddedSymbolIsWrittenAndReadBack();
    void aPaletteRowInsertsItWithoutASlot();
    void aPictureOfAnotherSizeIsLogged();

private:
    QString pictureFile(const QString &name, const QSize &size) const;
    TonquillBitmap *onlyGlyph() const;

    QTemporaryDir m_folder;
    std::unique_ptr<TonquillMainWin> m_window;
};

/** A picture that is black all over. */
QString SymbolTableTest::pictureFile(const QString &name, const QSize &size) const
{
    const QString path = m_folder.filePath(name);
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    return picture.save(path) ? path : QString();
}

TonquillBitmap *SymbolTableTest::onlyGlyph() const
{
    return qgraphicsitem_cast<TonquillBitmap *>(ItemProbe::onlyItem(*m_window->scene));
}

void SymbolTableTest::initTestCase()
{
    QVERIFY(SymbolTable::add({.id = fermata,
                              .name = "Fermata",
                              .picture = pictureFile("Fermata.bmp", fermataSize),
                              .upsideDown = fermataBelow,
                              .sense = "Fermata",
                              .size = SymbolSize::Small,
                              .reference = fermataReference}));
    QVERIFY(SymbolTable::add({.id = fermataBelow,
                              .name = "FermataBelow",
                              .picture = pictureFile("FermataBelow.bmp", fermataSize),
                              .size = SymbolSize::Small,
                              .reference = fermataBelowReference}));
}

void SymbolTableTest::init()
{
    m_window = std::make_unique<TonquillMainWin>();
}

void SymbolTableTest::theFirstSymbolsGoWithTheNext_data()
{
    QTest::addColumn<int>("id");
    for (int id = 0; id < builtInSymbols; ++id)
        QTest::addRow("%d", id) << id;
}

void SymbolTableTest::theFirstSymbolsGoWithTheNext()
{
    QFETCH(int, id);
    const Symbol *symbol = SymbolTable::find(id);
    QVERIFY(symbol);
    QCOMPARE(symbol->id, id);
    QCOMPARE(symbol->upsideDown, id == lastBuiltIn ? std::nullopt : std::optional(id + 1));
    QCOMPARE(SymbolTable::upsideDownOf(id), symbol->upsideDown);
    QVERIFY(!symbol->reference);
}

/** Their pictures come from an embedding program. */
void SymbolTableTest::idsWithoutARowGoWithTheNext()
{
    QVERIFY(!SymbolTable::find(100));
    QCOMPARE(SymbolTable::upsideDownOf(100), std::optional(101));
    QCOMPARE(SymbolTable::upsideDownOf(std::numeric_limits<int>::max()), std::optional<int>());
}

void SymbolTableTest::sizesAreToldByHeight_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<SymbolSize>("size");
    // Spaces of 8 pixels, the line that closes them, and a white row above and below.
    QTest::newRow("half a staff") << 2 * 8 + 1 + 2 << SymbolSize::Small;
    QTest::newRow("more than half") << 2 * 8 + 1 + 3 << SymbolSize::WithinStaff;
    QTest::newRow("the staff") << 4 * 8 + 1 + 2 << SymbolSize::WithinStaff;
    QTest::newRow("more than the staff") << 4 * 8 + 1 + 3 << SymbolSize::Tall;
}

void SymbolTableTest::sizesAreToldByHeight()
{
    QFETCH(int, height);
    QFETCH(SymbolSize, size);
    QVERIFY(SymbolTable::sizeOf(QSize(1, height)) == size);
}

void SymbolTableTest::everyPictureHasTheSizeOfItsRow_data()
{
    QTest::addColumn<int>("id");
    for (const auto &[id, symbol] : SymbolTable::rows())
        QTest::newRow(symbol.name) << id;
}

void SymbolTableTest::everyPictureHasTheSizeOfItsRow()
{
    QFETCH(int, id);
    const Symbol &symbol = *SymbolTable::find(id);
    const QImage picture(symbol.picture);
    QVERIFY(!picture.isNull());
    QVERIFY(SymbolTable::sizeOf(picture.size()) == symbol.size);
    if (!symbol.finePicture.isEmpty())
        QCOMPARE(QImage(symbol.finePicture).size(), 8 * picture.size());
}

/** The second forms of notes are offered by their first ones, pedal marks by the host only. */
void SymbolTableTest::whatIsOfferedHasASense()
{
    QSet<QString> senses;
    for (int id = 0; id < builtInSymbols; ++id) {
        const bool isSecondForm = id >= 13 && (id - 13) % 3 == 1;
        const bool isPedal = id == 11 || id == 12;
        const QString sense = SymbolTable::find(id)->translatedSense();
        QCOMPARE(sense.isEmpty(), isSecondForm || isPedal);
        senses.insert(sense);
    }
    // All but 8 second forms and 2 pedals, and the empty one of these.
    QCOMPARE(senses.size(), 37 - 8 - 2 + 1);
}

void SymbolTableTest::takenAndNegativeIdsAreRefused_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("taken") << 13;
    QTest::newRow("added before") << fermata;
    QTest::newRow("negative") << -1;
}

void SymbolTableTest::takenAndNegativeIdsAreRefused()
{
    QFETCH(int, id);
    const std::size_t before = SymbolTable::rows().size();
    QVERIFY(!SymbolTable::add({.id = id, .name = "Other"}));
    QCOMPARE(SymbolTable::rows().size(), before);
}

void SymbolTableTest::anAddedSymbolHasItsPicture()
{
    QCOMPARE(m_window->symbols.size(), builtInSymbols + 2);
    QCOMPARE(m_window->symbols.value(fermata).size(), fermataSize);
    m_window->symbols.clear();
    m_window->constructBitmapSymbols();
    QCOMPARE(m_window->symbols.value(fermata).size(), fermataSize);
}

void SymbolTableTest::anAddedSymbolIsTurnedByTheRightButton()
{
    m_window->InsertBitmapSymbol(fermata, true, true);
    QCOMPARE(onlyGlyph()->pixmap().cacheKey(), m_window->symbols.value(fermata).cacheKey());
    ScenePointer pointer(*m_window->scene);
    pointer.moveTo(QPointF(200, 200));
    pointer.press(QPointF(200, 200), Qt::RightButton);
    QVERIFY(onlyGlyph()->isInverted());
    QCOMPARE(onlyGlyph()->pixmap().cacheKey(), m_window->symbols.value(fermataBelow).cacheKey());
}

void SymbolTableTest::onlyItsOwnFormTurnsASymbol_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("the last one before it") << lastBuiltIn;
    QTest::newRow("its upside-down form") << fermataBelow;
}

void SymbolTableTest::onlyItsOwnFormTurnsASymbol()
{
    QFETCH(int, id);
    m_window->InsertBitmapSymbol(id, true, true);
    ScenePointer pointer(*m_window->scene);
    pointer.moveTo(QPointF(200, 200));
    pointer.press(QPointF(200, 200), Qt::RightButton);
    QVERIFY(!onlyGlyph()->isInverted());
    QCOMPARE(onlyGlyph()->pixmap().cacheKey(), m_window->symbols.value(id).cacheKey());
}

void SymbolTableTest::anAddedSymbolLiesAtItsReferencePoint()
{
    TonquillBitmap *glyph = m_window->InsertBitmapSymbol(fermata, false, true);
    QCOMPARE(glyph->offset(), QPointF(-10, -15));
    glyph->setInverted(true);
    QCOMPARE(glyph->offset(), QPointF(-10, -1));
    glyph->setInverted(false);
    QCOMPARE(glyph->offset(), QPointF(-10, -15));
}

/** A rest and the note that it is inverted to have pictures of two sizes. */
void SymbolTableTest::whereNoRowSaysMoreTheMiddleOfTheFirstFormCounts()
{
    TonquillBitmap *glyph = m_window->InsertBitmapSymbol(SymbolTable::rest(2), false, true);
    QCOMPARE(glyph->pixmap().size(), QSize(12, 27));
    QCOMPARE(glyph->offset(), QPointF(-6, -13));
    glyph->setInverted(true);
    QCOMPARE(glyph->pixmap().size(), QSize(20, 35));
    QCOMPARE(glyph->offset(), QPointF(-6, -13));
}

void SymbolTableTest::anAddedSymbolIsWrittenAndReadBack()
{
    const QString record = "tonquill_bitmap 37 100 200 1\n";
    m_window->twMsg(record);
    QCOMPARE(ItemProbe::recordOf(onlyGlyph()), record);
    QVERIFY(onlyGlyph()->isInverted());
    QCOMPARE(onlyGlyph()->pixmap().cacheKey(), m_window->symbols.value(fermataBelow).cacheKey());
    QCOMPARE(m_window->scene->notifyTW(), "tonquill_pagecount 1\n" + record);
}

void SymbolTableTest::aPaletteRowInsertsItWithoutASlot()
{
    PaletteBuilder builder(*m_window, *m_window->scene,
                           {m_window->symbols, m_window->actions, m_window->menus, m_window->strip2,
                            m_window->strip2B, m_window->tb2Count, m_window->tb2IconWidth,
                            m_window->tb2IconHeight},
                           [] { return nullptr; });
    constexpr int entry = 0x1500;
    const QMenu *menu =
        builder.constructMenu({0x114, {PaletteEntry{.id = entry, .symbol = fermata}}});
    QAction *action = m_window->actions.value(entry);
    QCOMPARE(menu->actions(), QList<QAction *>{action});
    QCOMPARE(action->text(), QString("Fermata"));
    QCOMPARE(action->statusTip(), QString("Fermata"));
    action->trigger();
    QCOMPARE(ItemProbe::recordOf(onlyGlyph()), QString("tonquill_bitmap 37 0 0 0\n"));
    QCOMPARE(ItemProbe::statusOf(onlyGlyph()), 1);
}

/** The last one, for its row stays. */
void SymbolTableTest::aPictureOfAnotherSizeIsLogged()
{
    QVERIFY(SymbolTable::add({.id = 39,
                              .name = "Huge",
                              .picture = pictureFile("Huge.bmp", QSize(9, 36)),
                              .size = SymbolSize::WithinStaff}));
    QTest::ignoreMessage(QtWarningMsg, "the picture of Huge has another size");
    m_window->constructBitmapSymbols();
    QCOMPARE(m_window->symbols.value(39).size(), QSize(9, 36));
}

TONQUILL_TEST_MAIN(SymbolTableTest)
#include "tst_symboltable.moc"
