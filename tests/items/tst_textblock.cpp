#include "ItemProbe.h"
#include "ModalAnswer.h"
#include "PlacedBlock.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TonquillMainWin.h"

#include <QBuffer>
#include <QGraphicsSceneContextMenuEvent>
#include <QPointer>
#include <QTextDocument>

using namespace ModalAnswer;

namespace
{
QString placeholder()
{
    return "Text Block:\r\n\r\nSet the size with the Mouse.\r\nDouble-click to Edit.";
}

/** The text as the document holds it: each of its line ends is one character. */
QString asShown(QString text)
{
    return text.replace("\r\n", "\n");
}
} // namespace

/** The block of text of several lines. */
class TextBlockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window.scene->clearScene(); }
    void startsByItsFlag_data();
    void startsByItsFlag();
    void withoutTextAndSizeTellsHowToUseIt();
    void withSizeOnlyStaysEmpty();
    void withTextOnlyHasNoHeight();
    void onlyTheSizeOfTheRectangleCounts();
    void topLeftAnchorMoves();
    void cornersAreNeverNormalised_data();
    void cornersAreNeverNormalised();
    void resizingWrapsTheText();
    void resizingLetsOthersPaint();
    void blockMayGoWhileItIsResized();
    void keepsItsGrabAfterADragAndOthersTakeIt();
    void sizeMenuEntries();
    void sizeMenuSetsThePointSize_data();
    void sizeMenuSetsThePointSize();
    void sizeMenuOpensOnlyAtRest_data();
    void sizeMenuOpensOnlyAtRest();
    void otherSendersDoNotSetTheSize();
    void qtsOwnMenuStaysAway_data();
    void qtsOwnMenuStaysAway();
    void blockMayGoWhileItsMenuIsOpen();
    void fontIsLostWithTheRecord();
    void longTextIsRecordedAndReadBack();
    void recordOfACrossedBlockIsReadBack();
    void formattedTextOpensNoFile_data();
    void formattedTextOpensNoFile();

private:
    TonquillTextBlock *place(const QString &text = QStringLiteral("verse"))
    {
        return placeBlock(*m_window.scene, text);
    }

    TonquillMainWin m_window;
};

void TextBlockTest::startsByItsFlag_data()
{
    QTest::addColumn<bool>("adding");
    QTest::newRow("new") << true;
    QTest::newRow("from a record") << false;
}

void TextBlockTest::startsByItsFlag()
{
    QFETCH(bool, adding);
    const TonquillTextBlock block(adding, "verse", QRectF(0, 0, 50, 20));
    QCOMPARE(block.isSelected(), adding);
    QCOMPARE(block.itemStatus(), adding ? 1 : 0);
    QCOMPARE(block.type(), 65536 + 2);
    QCOMPARE(int(block.flags()), 3);
    QCOMPARE(block.zValue(), 10.0);
    QCOMPARE(ItemProbe::frameOf(block)->zValue(), 0.0);
    QCOMPARE(block.textInteractionFlags(), Qt::NoTextInteraction);
    QCOMPARE(block.data(257).toString(), QString("tonquill_textblock_begin"));
}

void TextBlockTest::withoutTextAndSizeTellsHowToUseIt()
{
    const TonquillTextBlock block(true, QString(), QRectF());
    QCOMPARE(block.toPlainText(), asShown(placeholder()));
    QTextDocument document;
    document.setDefaultFont(block.font());
    document.setPlainText(placeholder());
    QCOMPARE(block.boundingRect(),
             QRectF(0, 0, document.size().width() + 1, document.size().height()));
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(block)->getAnchor(block.boundingRect().bottomRight(), anchor), 1);
    QCOMPARE(anchor, block.boundingRect().bottomRight());
}

void TextBlockTest::withSizeOnlyStaysEmpty()
{
    const TonquillTextBlock block(false, QString(), QRectF(0, 0, 90, 40));
    QVERIFY(block.toPlainText().isEmpty());
    QCOMPARE(block.boundingRect(), QRectF(0, 0, 90 + 1, 40));
    const TonquillTextBlock flat(false, QString(), QRectF(0, 0, 90, 0));
    QVERIFY(flat.toPlainText().isEmpty());
    QCOMPARE(flat.boundingRect(), QRectF(0, 0, 90 + 1, 0));
}

void TextBlockTest::withTextOnlyHasNoHeight()
{
    const TonquillTextBlock block(false, "verse", QRectF(0, 0, 0, 0));
    QCOMPARE(block.toPlainText(), QString("verse"));
    QCOMPARE(block.boundingRect(), QRectF(0, 0, 0 + 1, 0));
}

void TextBlockTest::onlyTheSizeOfTheRectangleCounts()
{
    const TonquillTextBlock block(false, "verse", QRectF(500, 600, 90, 40));
    QCOMPARE(block.pos(), QPointF(0, 0));
    QCOMPARE(block.boundingRect(), QRectF(0, 0, 90 + 1, 40));
    QCOMPARE(block.textWidth(), 90.0);
}

void TextBlockTest::topLeftAnchorMoves()
{
    const TonquillTextBlock *block = place();
    ScenePointer(*m_window.scene).drag(QPointF(100, 200), QPointF(130, 250));
    QCOMPARE(block->pos(), QPointF(130, 250));
    QCOMPARE(block->boundingRect(), QRectF(0, 0, 121, 80));
}

void TextBlockTest::cornersAreNeverNormalised_data()
{
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRectF>("bounds");
    QTest::addColumn<QString>("size");
    // The block stands at (100, 200).
    QTest::newRow("smaller") << QPointF(150, 230) << QRectF(0, 0, 50, 30) << "50 30";
    QTest::newRow("left of itself") << QPointF(40, 260) << QRectF(0, 0, -60, 60) << "-60 60";
    QTest::newRow("above itself") << QPointF(180, 150) << QRectF(0, 0, 80, -50) << "80 -50";
    QTest::newRow("left and above") << QPointF(70, 190) << QRectF(0, 0, -30, -10) << "-30 -10";
    QTest::newRow("onto its corner") << QPointF(100, 200) << QRectF(0, 0, 0, 0) << "0 0";
}

void TextBlockTest::cornersAreNeverNormalised()
{
    QFETCH(QPointF, to);
    QFETCH(QRectF, bounds);
    QFETCH(QString, size);
    TonquillTextBlock *block = place("a verse of several words");
    ScenePointer(*m_window.scene).drag(QPointF(221, 280), to);
    QCOMPARE(block->itemStatus(), 0);
    QCOMPARE(block->boundingRect(), bounds);
    QVERIFY(ItemProbe::frameOf(*block)->isAnchor(bounds.bottomRight()));
    QCOMPARE(block->getParamStr(),
             QString("tonquill_textblock_begin 100 200 %1\na verse of several words\n"
                     "tonquill_textblock_end\n")
                 .arg(size));
    // Selected, it shows its two anchors, of which the second went along.
    const QRectF area(0, 100, 300, 300);
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, area);
    for (const QPointF anchor : {QPointF(100, 200), to})
        QCOMPARE(picture.pixelColor((anchor - area.topLeft()).toPoint()), QColor(Qt::green));
    // It can still be moved, deleted and found.
    m_window.scene->itemAt(to, QTransform());
    block->moveBy(10, 10);
}

void TextBlockTest::resizingWrapsTheText()
{
    const TonquillTextBlock *block = place("one two three four five six seven");
    const qreal heightBefore = block->document()->size().height();
    ScenePointer(*m_window.scene).drag(QPointF(221, 280), QPointF(151, 280));
    QCOMPARE(block->boundingRect(), QRectF(0, 0, 51, 80));
    QCOMPARE(block->textWidth(), 51.0 - 1.0);
    QVERIFY(block->document()->size().height() > heightBefore);
}

/** Each step of a resize handles what is pending, so that the page keeps up with the pointer. */
void TextBlockTest::resizingLetsOthersPaint()
{
    place();
    ScenePointer pointer(*m_window.scene);
    int handled = 0;
    QObject others;
    const auto post = [&others, &handled] {
        QMetaObject::invokeMethod(
            &others, [&handled] { ++handled; }, Qt::QueuedConnection);
    };
    pointer.press(QPointF(221, 280));
    post();
    pointer.moveTo(QPointF(200, 270));
    QCOMPARE(handled, 1);
    post();
    pointer.release(QPointF(200, 270));
    QCOMPARE(handled, 2);
}

/** What is handled meanwhile may be a document that arrives. */
void TextBlockTest::blockMayGoWhileItIsResized()
{
    const QPointer<TonquillTextBlock> block = place();
    ScenePointer pointer(*m_window.scene);
    pointer.press(QPointF(221, 280));
    QObject host;
    QMetaObject::invokeMethod(
        &host, [this] { m_window.scene->clearScene(); }, Qt::QueuedConnection);
    pointer.moveTo(QPointF(200, 270));
    QVERIFY(!block);
    QVERIFY(m_window.scene->items().isEmpty());
}

void TextBlockTest::keepsItsGrabAfterADragAndOthersTakeIt()
{
    TonquillTextBlock *first = place();
    ScenePointer pointer(*m_window.scene);
    pointer.drag(QPointF(150, 240), QPointF(160, 250));
    QCOMPARE(m_window.scene->mouseGrabberItem(), first);

    first->setSelected(false);
    TonquillTextBlock *second = place();
    second->setPos(400, 200);
    pointer.drag(QPointF(450, 240), QPointF(455, 260));
    QCOMPARE(m_window.scene->mouseGrabberItem(), second);
    QCOMPARE(second->pos(), QPointF(405, 220));
    QCOMPARE(first->pos(), QPointF(110, 210));

    second->setSelected(false);
    pointer.drag(QPointF(160, 250), QPointF(150, 240));
    QCOMPARE(m_window.scene->mouseGrabberItem(), first);
    QCOMPARE(first->pos(), QPointF(100, 200));
}

void TextBlockTest::sizeMenuEntries()
{
    place();
    QStringList entries;
    whenOpen<QMenu>([&entries](QMenu &menu) {
        for (const QAction *action : menu.actions())
            entries.append(action->isSeparator() ? "-" : action->text());
    });
    ScenePointer(*m_window.scene).click(QPointF(150, 240), Qt::RightButton);
    QCOMPARE(entries, (QStringList{"Font point size", "-", "8", "9", "10", "11", "12", "14", "16",
                                   "18", "20", "22", "24", "26", "28", "30", "32", "34", "36"}));
}

void TextBlockTest::sizeMenuSetsThePointSize_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("size");
    QTest::newRow("smallest") << 2 << 8;
    QTest::newRow("12") << 6 << 12;
    QTest::newRow("largest") << 18 << 36;
    QTest::newRow("the heading does nothing") << 0 << 20;
}

void TextBlockTest::sizeMenuSetsThePointSize()
{
    QFETCH(int, entry);
    QFETCH(int, size);
    TonquillTextBlock *block = place();
    QFont font = block->font();
    font.setPointSize(20);
    block->setFont(font);
    whenOpen<QMenu>([entry](QMenu &menu) { choose(menu, entry); });
    ScenePointer(*m_window.scene).click(QPointF(150, 240), Qt::RightButton);
    QCOMPARE(block->font().pointSize(), size);
    QCOMPARE(block->boundingRect(), QRectF(0, 0, 121, 80));
    if (size != 20)
        QCOMPARE(block->textWidth(), 121.0 - 1.0);
}

void TextBlockTest::sizeMenuOpensOnlyAtRest_data()
{
    QTest::addColumn<bool>("adding");
    QTest::addColumn<QPointF>("held");
    QTest::newRow("being added") << true << QPointF();
    QTest::newRow("being moved") << false << QPointF(150, 240);
    QTest::newRow("being resized") << false << QPointF(221, 280);
}

void TextBlockTest::sizeMenuOpensOnlyAtRest()
{
    QFETCH(bool, adding);
    QFETCH(QPointF, held);
    ScenePointer pointer(*m_window.scene);
    if (adding) {
        auto *block = new TonquillTextBlock(true, "verse", QRectF(0, 0, 120, 80));
        m_window.scene->addNewItem(block);
        pointer.moveTo(QPointF(100, 200));
    } else {
        place();
        pointer.press(held);
    }
    const int opened = menusDuring([&pointer] {
        pointer.press(QPointF(150, 240), Qt::RightButton);
        pointer.release(QPointF(150, 240), Qt::RightButton);
    });
    QCOMPARE(opened, 0);
}

void TextBlockTest::otherSendersDoNotSetTheSize()
{
    TonquillTextBlock *block = place();
    const int size = block->font().pointSize();
    block->onFontSizeChange();
    QAction stranger("36");
    connect(&stranger, SIGNAL(triggered()), block, SLOT(onFontSizeChange()));
    stranger.trigger();
    QCOMPARE(block->font().pointSize(), size);
}

void TextBlockTest::qtsOwnMenuStaysAway_data()
{
    QTest::addColumn<bool>("edited");
    QTest::newRow("at rest") << false;
    QTest::newRow("edited") << true;
}

/** The menu of the size opens when the right button is let go, and there is no other. */
void TextBlockTest::qtsOwnMenuStaysAway()
{
    QFETCH(const bool, edited);
    m_window.scene->constructItem(
        "tonquill_textblock_begin 80 400 240 60\nabc\ntonquill_textblock_end\n", false, 0);
    const QPointF inside(90, 410);
    if (edited)
        ScenePointer(*m_window.scene).doubleClick(inside);
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    event.setScenePos(inside);
    QCoreApplication::sendEvent(m_window.scene, &event);
    QVERIFY(event.isAccepted());
    QVERIFY(!QApplication::activePopupWidget());
}

/** A document that arrives while the menu is open takes the block away, its menu with it. */
void TextBlockTest::blockMayGoWhileItsMenuIsOpen()
{
    place();
    whenOpen<QMenu>([this](QMenu &) { m_window.scene->clearScene(); });
    ScenePointer(*m_window.scene).click(QPointF(150, 240), Qt::RightButton);
    QVERIFY(ItemProbe::documentItems(*m_window.scene).isEmpty());
}

void TextBlockTest::fontIsLostWithTheRecord()
{
    TonquillTextBlock *block = place();
    const int usual = block->font().pointSize();
    whenOpen<QMenu>([](QMenu &menu) { choose(menu, 18); });
    ScenePointer(*m_window.scene).click(QPointF(150, 240), Qt::RightButton);
    QCOMPARE(block->font().pointSize(), 36);
    const QString record = block->getParamStr();
    m_window.scene->clearScene();
    m_window.scene->constructItem(record, false, 0);
    auto *copy = qgraphicsitem_cast<TonquillTextBlock *>(ItemProbe::onlyItem(*m_window.scene));
    QCOMPARE(copy->font().pointSize(), usual);
}

void TextBlockTest::longTextIsRecordedAndReadBack()
{
    // 2,000 words of five characters with a blank or a line break after each 4.
    QString text;
    for (int i = 0; i < 2000; ++i)
        text += QString("%1%2").arg(i % 10000, 4, 10, QChar('0')).arg(i % 10 == 9 ? '\n' : ' ');
    QCOMPARE(text.size(), 10000);
    TonquillTextBlock *block = place(text);
    block->setSelected(false);
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, QRectF(100, 200, 120, 80));
    QVERIFY(ItemProbe::pixelsOf(picture, Qt::black) > 0);

    m_window.scene->constructItem(block->getParamStr(), false, 0);
    QList<QGraphicsItem *> items = ItemProbe::documentItems(*m_window.scene);
    QCOMPARE(items.size(), 2);
    items.removeOne(block);
    // Read back it has gained the line break in front of its end.
    QCOMPARE(qgraphicsitem_cast<TonquillTextBlock *>(items.constFirst())->toPlainText(),
             text + "\n");
}

void TextBlockTest::recordOfACrossedBlockIsReadBack()
{
    m_window.scene->constructItem(
        "tonquill_textblock_begin 100 200 -60 -10\nverse\ntonquill_textblock_end\n", false, 0);
    QGraphicsItem *block = ItemProbe::onlyItem(*m_window.scene);
    QVERIFY(block);
    // One unit wider, and so nearer to nothing.
    QCOMPARE(block->boundingRect(), QRectF(0, 0, -59, -10));
    // Its letters are shown, however little room its corners leave.
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, QRectF(0, 100, 300, 300));
    QVERIFY(ItemProbe::pixelsOf(picture, Qt::white) < 300 * 300);
}

void TextBlockTest::formattedTextOpensNoFile_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<bool>("isRed");
    const QString folder = QDir::tempPath();
    const QString pictureFile = folder + "/red.png";
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(pictureFile));
    QFile sheet(folder + "/red.css");
    QVERIFY(sheet.open(QIODevice::WriteOnly));
    sheet.write("p { background-color: #ff0000 }");
    QBuffer bytes;
    QVERIFY(picture.save(&bytes, "PNG"));
    const QString withPicture("<p>la <img src=\"%1\"></p>");
    QTest::newRow("a picture within the text")
        << withPicture.arg("data:image/png;base64," + bytes.data().toBase64()) << true;
    QTest::newRow("a picture by its address") << withPicture.arg("file://" + pictureFile) << false;
    QTest::newRow("a picture by its path") << withPicture.arg(pictureFile) << false;
    QTest::newRow("colours within the text")
        << "<p style=\"background-color: #ff0000\">la</p>" << true;
    QTest::newRow("colours of a style sheet")
        << QString("<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"file://%1\">"
                   "</head><body><p>la</p></body></html>")
               .arg(sheet.fileName())
        << false;
    const QString drawing("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"20\" "
                          "xmlns:xlink=\"http://www.w3.org/1999/xlink\">%1</svg>");
    const QString naming =
        drawing.arg("<image width=\"20\" height=\"20\" xlink:href=\"" + pictureFile + "\"/>");
    const QString plain = drawing.arg("<rect width=\"20\" height=\"20\" style=\"fill:#ff0000\"/>");
    const auto inData = [](const QString &type, const QString &content) {
        return "data:" + type + ";base64," + QString(content.toUtf8().toBase64());
    };
    QTest::newRow("a drawing within the text that names a picture")
        << withPicture.arg(inData("image/svg+xml", naming)) << false;
    QTest::newRow("a drawing that says it is a picture")
        << withPicture.arg(inData("image/png", plain)) << false;
    QTest::newRow("a drawing that is a style sheet first")
        << "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"" +
               inData("image/svg+xml", plain) + "\"></head><body>" +
               withPicture.arg(inData("image/svg+xml", plain)) + "</body></html>"
        << false;
    QTest::newRow("colours of a style sheet within the text")
        << "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"" +
               inData("text/css", "p { background-color: #ff0000 }") +
               "\"></head><body><p>la</p></body></html>"
        << true;
    QBuffer otherFormat;
    QVERIFY(picture.save(&otherFormat, "BMP"));
    QTest::newRow("a picture in another format, whatever it is called")
        << withPicture.arg("data:image/x;base64," + otherFormat.data().toBase64()) << true;
    // Few bytes, but 5,000 by 4,000 pixels, of which the first is as red as all others.
    QImage huge(5000, 4000, QImage::Format_Mono);
    huge.setColorTable({qRgb(255, 0, 0), qRgb(255, 0, 0)});
    huge.fill(0);
    QBuffer packed;
    QVERIFY(huge.save(&packed, "PNG"));
    QTest::newRow("a picture of too many pixels")
        << withPicture.arg("data:image/png;base64," + packed.data().toBase64()) << false;
}

void TextBlockTest::formattedTextOpensNoFile()
{
    QFETCH(QString, html);
    QFETCH(bool, isRed);
    TonquillTextBlock *block = place();
    block->setHtml(html);
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, block->sceneBoundingRect());
    QCOMPARE(ItemProbe::pixelsOf(picture, Qt::red) > 0, isRed);
}

TONQUILL_TEST_MAIN(TextBlockTest)
#include "tst_textblock.moc"
