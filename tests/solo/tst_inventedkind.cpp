#include "Comparison.h"
#include "DocumentFile.h"
#include "DocumentItem.h"
#include "EditWatcher.h"
#include "Exporter.h"
#include "ItemKinds.h"
#include "LineFields.h"
#include "ModalAnswer.h"
#include "Records.h"
#include "RecoveryJournal.h"
#include "Rows.h"
#include "ScenePointer.h"
#include "SoloTestMain.h"
#include "SoloWindow.h"
#include "TableReporter.h"
#include "TonquillScene.h"

#include <QMessageBox>
#include <QPainter>

/**
 * A kind that the program does not know: its class, its state and one row in the catalogue are all
 * that there is of it.
 */
class Diamond : public DocumentItemOf<QGraphicsObject>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 100 };

    Diamond(bool adding, int size)
        : DocumentItemOf(adding)
        , m_size(size)
    {
        setSelected(adding);
        frame().setAnchors({boundingRect().topLeft()});
        setData(ItemData::keyword, QStringLiteral("tonquill_diamond"));
    }

    int size() const { return m_size; }
    int type() const override { return Type; }
    QRectF boundingRect() const override { return QRectF(0, 0, m_size, m_size); }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        painter->fillRect(boundingRect(), Qt::black);
    }

public Q_SLOTS:
    QString getParamStr()
    {
        return QStringLiteral("tonquill_diamond %1 %2 %3\n").arg(x()).arg(y()).arg(m_size);
    }

protected:
    const PointerManners &manners() const override
    {
        static const PointerManners manners;
        return manners;
    }

private:
    int m_size;
};

struct DiamondState
{
    QPointF position;
    int size = 0;
    bool operator==(const DiamondState &) const = default;

    static DiamondState of(const Diamond &item) { return {item.pos(), item.size()}; }
    static DiamondState read(LineReader &line) { return {line.position(), line.integer(3)}; }
    static QStringList fieldNames() { return {}; }
    static constexpr qsizetype plainFields = 4;

    QList<QPointF> points() const { return {}; }
    std::optional<TextContent> content() const { return std::nullopt; }
    QByteArray line() const
    {
        return (LineWriter(QStringLiteral("tonquill_diamond"), position) << size).line();
    }
    QGraphicsItem *build(const SymbolSource &) const { return new Diamond(false, size); }
};

/** Says that it is the document's, but no row tells what it is. */
class Stranger : public Diamond
{
    Q_OBJECT

public:
    enum { Type = UserType + 101 };

    Stranger()
        : Diamond(false, 10)
    {}
    int type() const override { return Type; }
};

namespace
{
RecordedItem readDiamond(QStringView fields, bool adding, const SymbolSource &)
{
    const QList<QStringView> parts = fields.split(u' ');
    if (parts.size() < 3)
        return {};
    return {new Diamond(adding, parts[2].toInt()), QPointF(parts[0].toInt(), parts[1].toInt())};
}

QGraphicsItem *makeDiamond()
{
    return new Diamond(true, 24);
}

ItemKind diamond()
{
    return itemKind<Diamond, DiamondState>(
        {.keyword = QStringLiteral("tonquill_diamond"),
         .readRecord = readDiamond,
         .makeNew = makeDiamond,
         .isHostKind = false,
         .example = QStringLiteral("tonquill_diamond 45 45 24")});
}

/** The only item on the pages, if it is a diamond. */
Diamond *onlyDiamond(const TonquillMainWin &window)
{
    const QList<QGraphicsItem *> items = DocumentSnapshot::itemsOf(window);
    return items.size() == 1 ? qgraphicsitem_cast<Diamond *>(items.constFirst()) : nullptr;
}
} // namespace

/** A kind of item is its class and one row: everything that items can do, a new kind can. */
class InventedKindTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ItemKinds::catalogue().add(diamond()); }
    void init();
    void cleanup();
    void isPlacedByThePointer();
    void isCopiedAndPasted();
    void isSavedAndRead();
    void isUndoneAndRedone();
    void isRecovered();
    void isExported();
    void movesWithItsPage();
    void isNoPartOfAHostsDocument();
    void isMeasuredByTheBenchmark();
    void everyRowHasAnExample();
    void whatNoRowTellsOfIsNotLostUnsaid();

private:
    TonquillMainWin &window() { return m_solo->window(); }
    TonquillScene &scene() { return *window().scene; }
    void show(const char *line);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoloWindow> m_solo;
};

void InventedKindTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_solo = std::make_unique<SoloWindow>(m_folder->path());
}

void InventedKindTest::cleanup()
{
    m_solo.reset();
    m_folder.reset();
}

void InventedKindTest::show(const char *line)
{
    scene().buildItem(*ItemKinds::catalogue().readLine(QString::fromLatin1(line)));
}

void InventedKindTest::isPlacedByThePointer()
{
    scene().addNewItem(
        ItemKinds::catalogue().ofRecord(QStringLiteral("tonquill_diamond"))->makeNew());
    QVERIFY(DocumentSnapshot::capture(window()).items.isEmpty());
    ScenePointer(scene()).click({120, 140});
    QCOMPARE(onlyDiamond(window())->status(), ItemStatus::Placed);
    const DocumentSnapshot placed = DocumentSnapshot::capture(window());
    QCOMPARE(placed.items.size(), 1);
    QCOMPARE(placed.items[0], QByteArray("tonquill_diamond 120 140 24"));
}

void InventedKindTest::isCopiedAndPasted()
{
    show("tonquill_diamond 100 200 16");
    onlyDiamond(window())->setSelected(true);
    QVERIFY(scene().copySelection());
    scene().onPaste();
    const DocumentSnapshot pasted = DocumentSnapshot::capture(window());
    QCOMPARE(pasted.items.size(), 2);
    QCOMPARE(pasted.items[0], QByteArray("tonquill_diamond 100 200 16"));
    QCOMPARE(pasted.items[1], QByteArray("tonquill_diamond 130 230 16"));
}

void InventedKindTest::isSavedAndRead()
{
    const QString path = m_folder->filePath(QStringLiteral("a.tonquill"));
    show("tonquill_diamond 10.5 -20 16");
    m_solo->session().edits().check();
    QCOMPARE(m_solo->session().saveAs(path), QString());
    m_solo->session().makeNew();
    QVERIFY(!onlyDiamond(window()));
    m_solo->files().openFile(path);
    QVERIFY(onlyDiamond(window()));
    QCOMPARE(onlyDiamond(window())->pos(), QPointF(10.5, -20));
    QCOMPARE(onlyDiamond(window())->size(), 16);
    QVERIFY(!m_solo->session().isModified());
}

void InventedKindTest::isUndoneAndRedone()
{
    EditWatcher &edits = m_solo->session().edits();
    show("tonquill_diamond 100 200 16");
    edits.check();
    onlyDiamond(window())->setPos(150, 250);
    edits.check();
    QVERIFY(edits.undo());
    QCOMPARE(onlyDiamond(window())->pos(), QPointF(100, 200));
    QVERIFY(edits.undo());
    QVERIFY(!onlyDiamond(window()));
    QVERIFY(edits.redo());
    QVERIFY(edits.redo());
    QCOMPARE(onlyDiamond(window())->pos(), QPointF(150, 250));
    QCOMPARE(onlyDiamond(window())->size(), 16);
}

void InventedKindTest::isRecovered()
{
    const QString folder = m_folder->filePath(QStringLiteral("left"));
    show("tonquill_diamond 100 200 16");
    RecoveryJournal before(folder);
    QVERIFY(before.write(DocumentSnapshot::capture(window()), QString()));
    scene().clearScene();
    const auto found = RecoveryJournal(folder).find(DocumentSnapshot::paperOf(window()));
    QVERIFY(found.has_value());
    QCOMPARE(found->problems, QString());
    found->document.restore(window());
    QCOMPARE(onlyDiamond(window())->pos(), QPointF(100, 200));
}

void InventedKindTest::isExported()
{
    const QString path = m_folder->filePath(QStringLiteral("a.png"));
    // From 88 to 176 across and from 90 to 178 down: a unit is 1/88 and 1/90 inch.
    show("tonquill_diamond 88 90 88");
    QCOMPARE(Exporter(window()).write(path, {1, 100}), QString());
    const QImage picture(path);
    QCOMPARE(picture.pixelColor(150, 150), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(250, 150), QColor(Qt::white));
}

void InventedKindTest::movesWithItsPage()
{
    show("tonquill_diamond 100 200 16");
    scene().addPageBeforeCurPage(1);
    QCOMPARE(onlyDiamond(window())->pos(), QPointF(100, 200 + scene().pagePitch()));
}

void InventedKindTest::isNoPartOfAHostsDocument()
{
    QVERIFY(!scene().constructDocument(u"tonquill_diamond 1 2 24").object());
    QVERIFY(DocumentSnapshot::itemsOf(window()).isEmpty());
    for (const Records::Kind &kind : Records::kinds())
        QVERIFY(kind.keyword != "tonquill_diamond");
    const DocumentFile::Reading stored = DocumentFile::parse(
        "tonquill_pagecount 1\ntonquill_diamond 1 2 24\n", m_solo->session().defaultPaper());
    QVERIFY(stored.document.items.isEmpty());
    QCOMPARE(stored.problems.size(), 1);
}

void InventedKindTest::isMeasuredByTheBenchmark()
{
    QByteArrayList options{"bench", "--benchmark_filter=^build and write tonquill_diamond"};
    char *arguments[] = {options[0].data(), options[1].data()};
    int count = 2;
    benchmark::Initialize(&count, arguments);
    compareOnlyWith(5);
    Rows::addKinds();
    const QString path = m_folder->filePath(QStringLiteral("rows.json"));
    TableReporter reporter(path.toStdString());
    QCOMPARE(benchmark::RunSpecifiedBenchmarks(&reporter), size_t(2)); // ours and the floor
    QFile rows(path);
    QVERIFY(rows.open(QIODevice::ReadOnly));
    QVERIFY(rows.readAll().contains("build and write tonquill_diamond"));
}

void InventedKindTest::everyRowHasAnExample()
{
    const std::list<ItemKind> &kinds = ItemKinds::catalogue().kinds();
    QCOMPARE(kinds.size(), size_t(10));
    for (const ItemKind &kind : kinds) {
        const auto state = ItemKinds::catalogue().readLine(kind.example);
        QVERIFY2(state.has_value(), qPrintable(kind.example));
        QCOMPARE(QString::fromUtf8(state->line()), kind.example);
        const QGraphicsItem *item = scene().buildItem(*state);
        QCOMPARE(ItemKinds::catalogue().ofItem(*item), &kind);
        QCOMPARE(item->data(ItemData::keyword).toString(), kind.keyword);
    }
}

void InventedKindTest::whatNoRowTellsOfIsNotLostUnsaid()
{
    const QString path = m_folder->filePath(QStringLiteral("a.tonquill"));
    show("tonquill_diamond 100 200 16");
    m_solo->session().edits().check();
    QCOMPARE(m_solo->session().saveAs(path), QString());
    QCOMPARE(m_solo->session().unknownClasses(), QStringList());

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\"Stranger\" are neither saved"));
    scene().addNewItem(new Stranger);
    scene().addNewItem(new Stranger);
    scene().addItem(new QGraphicsRectItem); // no item of the document
    m_solo->session().edits().check();
    QCOMPARE(m_solo->session().unknownClasses(), QStringList("Stranger"));
    QString said;
    ModalAnswer::whenOpen<QMessageBox>([&said](QMessageBox &box) { said = box.informativeText(); });
    QVERIFY(m_solo->files().save());
    QVERIFY2(said.contains("Stranger"), qPrintable(said));
    QCOMPARE(DocumentFile::load(path, {}).document.items.size(), 1);
}

TONQUILL_SOLO_TEST_MAIN(InventedKindTest)
#include "tst_inventedkind.moc"
