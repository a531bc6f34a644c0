#include "ItemProbe.h"
#include "ModalAnswer.h"
#include "ScenePointer.h"
#include "TestHost.h"
#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace ModalAnswer;

/** The dialog in which a simple text is made and edited, and both ways through it. */
class SimpleTextDlgTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_window.scene->clearScene(); }
    void labels_data();
    void labels();
    void formIsAsLaidOut();
    void spinBoxes();
    void fontOfTheForm_data();
    void fontOfTheForm();
    void unknownFamilyLeavesTheEntry_data();
    void unknownFamilyLeavesTheEntry();
    void pointSizeIsCutToWholePoints_data();
    void pointSizeIsCutToWholePoints();
    void angleIsWhole_data();
    void angleIsWhole();
    void colorButtonShowsTheColor();
    void colorDialogStartsOnBlack();
    void cancelledColorDialogLeavesNoColor();
    void newTextIsTurnedTheOtherWay();
    void cancelledDialogMakesNothing();
    void emptyTextIsMadeAndRecorded();
    void contextMenuEditsTheText();
    void boldIsShownUntilTheTextIsReadBack();
    void cancelledEditChangesNothing();
    void editingTakesTheAngleAsItIs_data();
    void editingTakesTheAngleAsItIs();
    void textThatGoesMeanwhileIsNotEdited();

private:
    TonquillText *place();
    void openMenu(const TonquillText &text);

    TestHost m_host;
    TonquillMainWin m_window;
};

/** A bold blue text at (100, 200), turned by 30 degrees and selected, as from a record. */
TonquillText *SimpleTextDlgTest::place()
{
    m_window.scene->constructItem("tonquill_text 100 200 60 22 Largo Verdana 14 ff000000 30", false,
                                  0);
    auto *text = qgraphicsitem_cast<TonquillText *>(ItemProbe::onlyItem(*m_window.scene));
    text->setFont(QFont("Verdana", 14, QFont::Bold));
    text->setDefaultTextColor(Qt::blue);
    text->setSelected(true);
    return text;
}

/** A right press on the text; its menu is answered by whoever waits for it. */
void SimpleTextDlgTest::openMenu(const TonquillText &text)
{
    ScenePointer(*m_window.scene).press(text.mapToScene(QPointF(20, 10)), Qt::RightButton);
}

/** The editor's greeting has come, so that what follows is what the tests make it say. */
void SimpleTextDlgTest::initTestCase()
{
    QTRY_COMPARE(m_host.messages.size(), 1);
}

void SimpleTextDlgTest::labels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("font") << "label"
                          << "Font:";
    QTest::newRow("size") << "label_2"
                          << "Point Size:";
    QTest::newRow("color") << "label_3"
                           << "Color:";
    QTest::newRow("angle") << "label_4"
                           << "Angle:";
    QTest::newRow("color button") << "pb_color"
                                  << "";
    QTest::newRow("bold") << "cb_bold"
                          << "Bold";
    QTest::newRow("italic") << "cb_italic"
                            << "Italic";
    QTest::newRow("underline") << "cb_underline"
                               << "Underline";
    QTest::newRow("ok") << "pb_ok"
                        << "OK";
    QTest::newRow("cancel") << "pb_cancel"
                            << "Cancel";
}

void SimpleTextDlgTest::labels()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    const TonquillSimpleTextDlg dialog;
    const auto *widget = dialog.findChild<QWidget *>(name);
    QVERIFY(widget);
    QCOMPARE(widget->property("text").toString(), text);
}

void SimpleTextDlgTest::formIsAsLaidOut()
{
    TonquillSimpleTextDlg dialog;
    QCOMPARE(dialog.windowTitle(), QString("Simple Text"));
    // Shown, a dialog grows to what its widgets need: they must fit.
    dialog.show();
    QCOMPARE(dialog.size(), QSize(542, 238));
    const auto *appearance = dialog.findChild<QGroupBox *>("groupBox");
    const auto *textBox = dialog.findChild<QGroupBox *>("groupBox_2");
    QCOMPARE(appearance->title(), QString("Text Appearance"));
    QCOMPARE(textBox->title(), QString("Text"));
    QVERIFY(appearance->findChild<QDoubleSpinBox *>("sb_angle"));
    QVERIFY(textBox->findChild<QLineEdit *>("le_text"));

    QStringList families;
    const auto *fonts = dialog.findChild<QComboBox *>("cb_font");
    for (int i = 0; i < fonts->count(); ++i)
        families.append(fonts->itemText(i));
    QCOMPARE(families,
             (QStringList{"Musica", "Courier New", "Verdana", "Times New Roman", "Arial"}));
    const auto *color = dialog.findChild<QPushButton *>("pb_color");
    QVERIFY(color->isFlat());
    QVERIFY(color->autoFillBackground());
    QVERIFY(color->styleSheet().isEmpty());
    QVERIFY(dialog.text().isEmpty());
    QCOMPARE(dialog.color(), QColor(Qt::black));
}

void SimpleTextDlgTest::spinBoxes()
{
    const TonquillSimpleTextDlg dialog;
    const auto *size = dialog.findChild<QDoubleSpinBox *>("sb_pointSize");
    QCOMPARE(size->decimals(), 1);
    QCOMPARE(size->minimum(), 1.0);
    QCOMPARE(size->value(), 12.0);
    // Qt's 99.99, rounded to the box's one decimal.
    QCOMPARE(size->maximum(), 100.0);
    const auto *angle = dialog.findChild<QDoubleSpinBox *>("sb_angle");
    QCOMPARE(angle->decimals(), 0);
    QCOMPARE(angle->minimum(), 0.0);
    QCOMPARE(angle->maximum(), 360.0);
    QCOMPARE(angle->value(), 0.0);
}

void SimpleTextDlgTest::fontOfTheForm_data()
{
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");
    QTest::addColumn<bool>("underline");
    for (int i = 0; i < 8; ++i) {
        QTest::addRow("style %d", i) << ((i & 1) != 0) << ((i & 2) != 0) << ((i & 4) != 0);
    }
}

void SimpleTextDlgTest::fontOfTheForm()
{
    QFETCH(bool, bold);
    QFETCH(bool, italic);
    QFETCH(bool, underline);
    QFont font("Times New Roman", 20, bold ? QFont::Bold : QFont::Normal, italic);
    font.setUnderline(underline);
    TonquillSimpleTextDlg dialog;
    dialog.setFont(font);
    QCOMPARE(dialog.findChild<QCheckBox *>("cb_bold")->isChecked(), bold);
    QCOMPARE(dialog.findChild<QCheckBox *>("cb_italic")->isChecked(), italic);
    QCOMPARE(dialog.findChild<QCheckBox *>("cb_underline")->isChecked(), underline);

    const QFont result = dialog.textFont();
    QCOMPARE(result.family(), QString("Times New Roman"));
    QCOMPARE(result.pointSize(), 20);
    QCOMPARE(result.weight(), bold ? QFont::Bold : QFont::Normal);
    QCOMPARE(result.style(), italic ? QFont::StyleItalic : QFont::StyleNormal);
    QCOMPARE(result.underline(), underline);
}

void SimpleTextDlgTest::unknownFamilyLeavesTheEntry_data()
{
    QTest::addColumn<QString>("family");
    QTest::newRow("no entry") << "Georgia";
    QTest::newRow("other case") << "arial";
    QTest::newRow("part of an entry") << "Courier";
    QTest::newRow("none") << "";
}

void SimpleTextDlgTest::unknownFamilyLeavesTheEntry()
{
    QFETCH(QString, family);
    TonquillSimpleTextDlg dialog;
    dialog.setFont(QFont("Verdana"));
    dialog.setFont(QFont(family));
    QCOMPARE(dialog.textFont().family(), QString("Verdana"));
}

void SimpleTextDlgTest::pointSizeIsCutToWholePoints_data()
{
    QTest::addColumn<double>("typed");
    QTest::addColumn<int>("size");
    QTest::newRow("smallest") << 1.0 << 1;
    QTest::newRow("half a point") << 12.5 << 12;
    QTest::newRow("nearly the next") << 12.9 << 12;
    QTest::newRow("below the smallest") << 0.2 << 1;
    QTest::newRow("far too large") << 5000.0 << 100;
}

void SimpleTextDlgTest::pointSizeIsCutToWholePoints()
{
    QFETCH(double, typed);
    QFETCH(int, size);
    const TonquillSimpleTextDlg dialog;
    dialog.findChild<QDoubleSpinBox *>("sb_pointSize")->setValue(typed);
    QCOMPARE(dialog.textFont().pointSize(), size);
}

void SimpleTextDlgTest::angleIsWhole_data()
{
    QTest::addColumn<float>("set");
    QTest::addColumn<int>("angle");
    QTest::newRow("whole") << 30.0F << 30;
    QTest::newRow("full circle") << 360.0F << 360;
    QTest::newRow("no decimals: 359.7 is 360") << 359.7F << 360;
    QTest::newRow("below the range") << -45.0F << 0;
    QTest::newRow("above the range") << 400.0F << 360;
}

void SimpleTextDlgTest::angleIsWhole()
{
    QFETCH(float, set);
    QFETCH(int, angle);
    TonquillSimpleTextDlg dialog;
    dialog.setAngle(set);
    QCOMPARE(dialog.angle(), angle);
}

void SimpleTextDlgTest::colorButtonShowsTheColor()
{
    TonquillSimpleTextDlg dialog;
    dialog.setDefaultTextColor(QColor(10, 120, 200));
    const auto *button = dialog.findChild<QPushButton *>("pb_color");
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(button->palette().brush(group, button->backgroundRole()).color(),
                 QColor(10, 120, 200));
    dialog.show();
    const QImage picture = dialog.grab().toImage();
    const QPoint middle = button->mapTo(&dialog, button->rect().center());
    QCOMPARE(picture.pixelColor(middle), QColor(10, 120, 200));
}

void SimpleTextDlgTest::colorDialogStartsOnBlack()
{
    TonquillSimpleTextDlg dialog;
    dialog.setDefaultTextColor(Qt::red);
    QString title;
    QColor start;
    whenOpen<QColorDialog>([&](QColorDialog &colors) {
        title = colors.windowTitle();
        start = colors.currentColor();
        colors.setCurrentColor(QColor(1, 2, 3));
        colors.accept();
    });
    clickButton(dialog, "pb_color");
    QCOMPARE(title, QString("Select Color"));
    QCOMPARE(start, QColor(Qt::black));
    QCOMPARE(dialog.color(), QColor(1, 2, 3));
}

/** The invalid colour that a cancelled choice gives is kept; its record is well-formed. */
void SimpleTextDlgTest::cancelledColorDialogLeavesNoColor()
{
    whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
        dialog.setPlainText("Largo");
        dialog.setFont(QFont("Arial", 12));
        whenOpen<QColorDialog>([](QColorDialog &colors) { colors.reject(); });
        clickButton(dialog, "pb_color");
        QVERIFY(!dialog.color().isValid());
        clickButton(dialog, "pb_ok");
    });
    m_window.OnToolBar2ButtonText();
    QGraphicsItem *item = ItemProbe::onlyItem(*m_window.scene);
    QVERIFY(item);
    QVERIFY(ItemProbe::recordOf(item).endsWith(" Largo Arial 12 ff000000 0\n"));
    QVERIFY(ItemProbe::pixelsOf(ItemProbe::pictureOf(*m_window.scene, QRectF(0, 0, 80, 40)),
                                Qt::black) > 0);
}

void SimpleTextDlgTest::newTextIsTurnedTheOtherWay()
{
    whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
        dialog.setPlainText("Da capo");
        dialog.setFont(QFont("Times New Roman", 18, QFont::Bold));
        dialog.setDefaultTextColor(Qt::red);
        dialog.setAngle(30);
        clickButton(dialog, "pb_ok");
    });
    m_window.OnToolBar2ButtonText();
    auto *text = qgraphicsitem_cast<TonquillText *>(ItemProbe::onlyItem(*m_window.scene));
    QVERIFY(text);
    QCOMPARE(text->toPlainText(), QString("Da capo"));
    QCOMPARE(text->font().family(), QString("Times New Roman"));
    QCOMPARE(text->font().pointSize(), 18);
    QCOMPARE(text->font().weight(), QFont::Bold);
    QCOMPARE(text->defaultTextColor(), QColor(Qt::red));
    QCOMPARE(text->rotation(), -30.0);
    QCOMPARE(text->itemStatus(), 1);
    QVERIFY(ItemProbe::frameOf(*text)->isAnchor(text->boundingRect().bottomLeft()));
}

void SimpleTextDlgTest::cancelledDialogMakesNothing()
{
    whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
        dialog.setPlainText("Largo");
        clickButton(dialog, "pb_cancel");
    });
    m_window.OnToolBar2ButtonText();
    QVERIFY(ItemProbe::documentItems(*m_window.scene).isEmpty());
}

void SimpleTextDlgTest::emptyTextIsMadeAndRecorded()
{
    whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
        dialog.setFont(QFont("Arial", 12));
        clickButton(dialog, "pb_ok");
    });
    m_window.OnToolBar2ButtonText();
    QGraphicsItem *item = ItemProbe::onlyItem(*m_window.scene);
    QVERIFY(item);
    // The empty field stands between two blanks.
    QVERIFY(ItemProbe::recordOf(item).endsWith("  Arial 12 ff000000 0\n"));
}

void SimpleTextDlgTest::contextMenuEditsTheText()
{
    TonquillText *text = place();
    QStringList entries;
    m_host.messages.clear();
    whenOpen<QMenu>([&entries](QMenu &menu) {
        for (const QAction *action : menu.actions())
            entries.append(action->text());
        whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
            QCOMPARE(dialog.text(), QString("Largo"));
            QCOMPARE(dialog.textFont().family(), QString("Verdana"));
            QCOMPARE(dialog.textFont().pointSize(), 14);
            QCOMPARE(dialog.textFont().weight(), QFont::Bold);
            QCOMPARE(dialog.color(), QColor(Qt::blue));
            QCOMPARE(dialog.angle(), 30);
            dialog.setPlainText("Larghetto");
            dialog.setFont(QFont("Arial", 24));
            clickButton(dialog, "pb_ok");
        });
        choose(menu, 0);
    });
    openMenu(*text);
    QCOMPARE(entries, QStringList{"Edit..."});
    QCOMPARE(text->toPlainText(), QString("Larghetto"));
    QCOMPARE(text->font().family(), QString("Arial"));
    QCOMPARE(text->font().pointSize(), 24);
    QCOMPARE(text->defaultTextColor(), QColor(Qt::blue));
    QCOMPARE(text->rotation(), 30.0);
    // The anchor went with the larger text.
    QVERIFY(ItemProbe::frameOf(*text)->isAnchor(text->boundingRect().bottomLeft()));
    QTRY_COMPARE(m_host.messages.size(), 1);
    QVERIFY(m_host.messages.constFirst().endsWith(" Larghetto Arial 24 ff0000ff 30\n"));
}

/** The record keeps no weight, so a host that sends the document back takes it away. */
void SimpleTextDlgTest::boldIsShownUntilTheTextIsReadBack()
{
    TonquillText *text = place();
    text->setFont(QFont("Verdana", 14, QFont::Normal));
    m_host.messages.clear();
    whenOpen<QMenu>([](QMenu &menu) {
        whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
            dialog.findChild<QCheckBox *>("cb_bold")->setChecked(true);
            clickButton(dialog, "pb_ok");
        });
        choose(menu, 0);
    });
    openMenu(*text);
    QCOMPARE(text->font().weight(), QFont::Bold);
    ScenePointer(*m_window.scene).drag(text->mapToScene(QPointF(20, 10)), QPointF(400, 400));
    QCOMPARE(text->font().weight(), QFont::Bold);

    QTRY_VERIFY(!m_host.messages.isEmpty());
    m_window.twMsg(text->getParamStr());
    const auto *copy = qgraphicsitem_cast<TonquillText *>(ItemProbe::onlyItem(*m_window.scene));
    QVERIFY(copy);
    QCOMPARE(copy->font().weight(), QFont::Normal);
}

void SimpleTextDlgTest::cancelledEditChangesNothing()
{
    TonquillText *text = place();
    const QString record = text->getParamStr();
    m_host.messages.clear();
    whenOpen<QMenu>([](QMenu &menu) {
        whenOpen<TonquillSimpleTextDlg>([](TonquillSimpleTextDlg &dialog) {
            dialog.setPlainText("other");
            dialog.setAngle(180);
            clickButton(dialog, "pb_cancel");
        });
        choose(menu, 0);
    });
    openMenu(*text);
    QCOMPARE(text->getParamStr(), record);
    QCOMPARE(text->font().weight(), QFont::Bold);
    // The next message that the host gets is this one.
    m_window.notifyTW();
    QTRY_COMPARE(m_host.messages.size(), 1);
}

void SimpleTextDlgTest::editingTakesTheAngleAsItIs_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("typed");
    QTest::newRow("another angle") << 30.0 << 30 << 45;
    QTest::newRow("full circle") << 30.0 << 30 << 360;
    // A new text turned by the dialog's 30 stands at -30, which is below what the box shows.
    QTest::newRow("turned the other way") << -30.0 << 0 << 0;
    QTest::newRow("not whole") << 12.5 << 13 << 13;
}

void SimpleTextDlgTest::editingTakesTheAngleAsItIs()
{
    QFETCH(double, before);
    QFETCH(int, shown);
    QFETCH(int, typed);
    TonquillText *text = place();
    text->setRotation(before);
    int found = -1;
    whenOpen<QMenu>([&found, typed](QMenu &menu) {
        whenOpen<TonquillSimpleTextDlg>([&found, typed](TonquillSimpleTextDlg &dialog) {
            found = dialog.angle();
            dialog.setAngle(float(typed));
            clickButton(dialog, "pb_ok");
        });
        choose(menu, 0);
    });
    openMenu(*text);
    QCOMPARE(found, shown);
    QCOMPARE(text->rotation(), double(typed));
}

/** A document that arrives while the dialog is open takes the text away. */
void SimpleTextDlgTest::textThatGoesMeanwhileIsNotEdited()
{
    const TonquillText *text = place();
    whenOpen<QMenu>([this](QMenu &menu) {
        whenOpen<TonquillSimpleTextDlg>([this](TonquillSimpleTextDlg &dialog) {
            m_window.scene->clearScene();
            clickButton(dialog, "pb_ok");
        });
        choose(menu, 0);
    });
    openMenu(*text);
    QVERIFY(ItemProbe::documentItems(*m_window.scene).isEmpty());
}

TONQUILL_TEST_MAIN(SimpleTextDlgTest)
#include "tst_simpletextdlg.moc"
