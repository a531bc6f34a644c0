#include "InsertCommands.h"
#include "ItemProbe.h"
#include "ModalAnswer.h"
#include "Records.h"
#include "ScenePointer.h"
#include "TestMain.h"
#include "TextState.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillText.h"

#include <QSignalSpy>

/** The one-line text, without its dialog. */
class TextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window.scene->clearScene(); }
    void startsSelectedEitherWay_data();
    void startsSelectedEitherWay();
    void frameHasOneAnchorAtTheBottomLeft();
    void frameGetsOneMoreAnchorEachTime();
    void rightPressAsksForTheMenu_data();
    void rightPressAsksForTheMenu();
    void textsOfTheProgramHaveOneMenu_data();
    void textsOfTheProgramHaveOneMenu();
    void grabsTheMouseWhileItIsMoved();
    void isNeverEditedInPlace();
    void recordHasNoStyle();
    void oddTextsAreRecordedAndReadBack_data();
    void oddTextsAreRecordedAndReadBack();

private:
    TonquillText *place(const QString &text);

    TonquillMainWin m_window;
};

/** A placed text at (100, 200) in 12 point Arial, not selected. */
TonquillText *TextTest::place(const QString &text)
{
    auto *item = new TonquillText(false);
    item->setFont(QFont("Arial", 12));
    item->setPlainText(text);
    m_window.scene->addNewItem(item);
    item->updateFrame();
    item->setPos(100, 200);
    return item;
}

void TextTest::startsSelectedEitherWay_data()
{
    QTest::addColumn<bool>("adding");
    QTest::newRow("new") << true;
    QTest::newRow("from a record") << false;
}

void TextTest::startsSelectedEitherWay()
{
    QFETCH(bool, adding);
    const TonquillText text(adding);
    QVERIFY(text.isSelected());
    QCOMPARE(text.itemStatus(), adding ? 1 : 0);
    QCOMPARE(text.type(), 65536 + 1);
    QCOMPARE(int(text.flags()), 3);
    QCOMPARE(text.zValue(), 10.0);
    QCOMPARE(ItemProbe::frameOf(text)->zValue(), 0.0);
    QCOMPARE(text.data(257).toString(), QString("tonquill_text"));
    QVERIFY(text.toPlainText().isEmpty());
}

void TextTest::frameHasOneAnchorAtTheBottomLeft()
{
    const TonquillText *text = place("Allegro");
    const QRectF bounds = text->boundingRect();
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*text)->getAnchor(QPointF(0, bounds.height()), anchor), 0);
    QCOMPARE(anchor, QPointF(bounds.x(), bounds.y() + bounds.height()));
    QVERIFY(!ItemProbe::frameOf(*text)->isAnchor(bounds.topRight()));
}

void TextTest::frameGetsOneMoreAnchorEachTime()
{
    TonquillText *text = place("Allegro");
    const QPointF first = text->boundingRect().bottomLeft();
    text->setFont(QFont("Arial", 40));
    const QPointF second = text->boundingRect().bottomLeft();
    QVERIFY(second.y() > first.y() + 10); // further than an anchor reaches
    text->updateFrame();
    QPointF anchor;
    QCOMPARE(ItemProbe::frameOf(*text)->getAnchor(first, anchor), 0);
    QCOMPARE(ItemProbe::frameOf(*text)->getAnchor(second, anchor), 1);
}

void TextTest::rightPressAsksForTheMenu_data()
{
    startsSelectedEitherWay_data();
}

void TextTest::rightPressAsksForTheMenu()
{
    QFETCH(bool, adding);
    auto *text = new TonquillText(adding);
    text->setPlainText("Allegro");
    m_window.scene->addNewItem(text);
    const QSignalSpy asked(text, &TonquillText::showTextItemMenu);
    ScenePointer pointer(*m_window.scene);

    pointer.press(QPointF(20, 10), Qt::RightButton);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().value<TonquillText *>(), text);
    pointer.press(QPointF(20, 10), Qt::LeftButton);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(text->itemStatus(), adding ? 1 : 0);
}

void TextTest::textsOfTheProgramHaveOneMenu_data()
{
    QTest::addColumn<QString>("maker");
    for (const char *maker : {"record", "state", "command"})
        QTest::newRow(maker) << maker;
}

void TextTest::textsOfTheProgramHaveOneMenu()
{
    QFETCH(QString, maker);
    TonquillScene &scene = *m_window.scene;
    scene.clearScene();
    if (maker == "record")
        scene.constructItem("tonquill_text 0 0 9 9 dolce Arial 12 ff000000 0", false, 0);
    else if (maker == "state")
        scene.buildItem(TextState{{0, 0}, "dolce", {"Arial", 12}, Qt::black, 0});
    else
        InsertCommands(m_window, scene).tempo("dolce");
    ScenePointer pointer(scene);
    const int opened =
        ModalAnswer::menusDuring([&pointer] { pointer.press(QPointF(20, 10), Qt::RightButton); });
    QCOMPARE(opened, 1);
}

void TextTest::grabsTheMouseWhileItIsMoved()
{
    TonquillText *text = place("Allegro");
    text->setSelected(true);
    ScenePointer pointer(*m_window.scene);
    pointer.press(QPointF(120, 210));
    QCOMPARE(m_window.scene->mouseGrabberItem(), text);
    pointer.moveTo(QPointF(125, 217));
    pointer.release(QPointF(125, 217));
    QVERIFY(!m_window.scene->mouseGrabberItem());
    QCOMPARE(text->pos(), QPointF(105, 207));
}

void TextTest::isNeverEditedInPlace()
{
    TonquillText *text = place("Allegro");
    text->setSelected(true);
    ScenePointer pointer(*m_window.scene);
    pointer.doubleClick(QPointF(120, 210));
    QCOMPARE(text->textInteractionFlags(), Qt::NoTextInteraction);
}

void TextTest::recordHasNoStyle()
{
    TonquillText *text = place("Vivace");
    QFont font("Arial", 14, QFont::Bold, true);
    font.setUnderline(true);
    text->setFont(font);
    text->setDefaultTextColor(Qt::red);
    text->setRotation(90);
    const QRectF bounds = text->boundingRect();
    QCOMPARE(text->getParamStr(),
             QString("tonquill_text 100 200 %1 %2 Vivace Arial 14 ffff0000 90\n")
                 .arg(int(bounds.width()))
                 .arg(int(bounds.height())));
}

void TextTest::oddTextsAreRecordedAndReadBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("family");
    QTest::addColumn<QColor>("color");

    QTest::newRow("empty") << QString() << "Arial" << QColor(Qt::black);
    QTest::newRow("colour never chosen") << "Largo"
                                         << "Arial" << QColor();
    QTest::newRow("font that no system has") << "Largo"
                                             << "NoSuchFontFamily" << QColor(Qt::blue);
    QTest::newRow("percent signs") << "%1%L4%99"
                                   << "Arial" << QColor(Qt::black);
}

/** Whatever the colour was, it comes back black. */
void TextTest::oddTextsAreRecordedAndReadBack()
{
    QFETCH(QString, text);
    QFETCH(QString, family);
    QFETCH(QColor, color);
    TonquillText *item = place(text);
    item->setFont(QFont(family, 12));
    item->setDefaultTextColor(color);
    // Without the marks of its selection, only letters are to be seen.
    item->setSelected(false);
    const QImage picture = ItemProbe::pictureOf(*m_window.scene, QRectF(90, 190, 100, 50));
    QCOMPARE(ItemProbe::pixelsOf(picture, Qt::white) < 100 * 50, !text.isEmpty());

    const QString record = item->getParamStr();
    QVERIFY(record.contains(QRegularExpression(" ff[0-9a-f]{6} 0\n$")));
    m_window.scene->clearScene();
    m_window.scene->constructItem(record, false, 0);
    auto *copy = qgraphicsitem_cast<TonquillText *>(ItemProbe::onlyItem(*m_window.scene));
    QVERIFY(copy);
    QCOMPARE(copy->toPlainText(), text);
    QCOMPARE(copy->font().family(), family);
    QCOMPARE(copy->font().pointSize(), 12);
    QCOMPARE(copy->defaultTextColor(), QColor(Qt::black));
    QCOMPARE(copy->pos(), QPointF(100, 200));
}

TONQUILL_TEST_MAIN(TextTest)
#include "tst_text.moc"
