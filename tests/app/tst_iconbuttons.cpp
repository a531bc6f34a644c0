#include "TestMain.h"
#include "TonquillMainWin.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace
{
QList<QToolButton *> buttonsOf(const TonquillMainWin &window, const QString &toolBar)
{
    QList<QToolButton *> buttons;
    const auto *bar = window.findChild<QToolBar *>(toolBar);
    for (QAction *action : bar->actions())
        buttons << qobject_cast<QToolButton *>(bar->widgetForAction(action));
    return buttons;
}

/** The colours of what an icon draws in full. */
QSet<QRgb> inksOf(const QIcon &icon)
{
    QSet<QRgb> inks;
    const QImage picture = icon.pixmap(QSize(24, 24)).toImage();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).alpha() == 255)
                inks.insert(picture.pixel(x, y));
        }
    }
    return inks;
}
} // namespace

/** The toolbars' buttons show no text; what they are for stands in their tips. */
class IconButtonsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyButtonIsNamed_data();
    void everyButtonIsNamed();
    void namesAreTheFieldsOwn_data();
    void namesAreTheFieldsOwn();
    void namesDoNotRepeat();
    void tipsStayWhileCtrlIsHeld();
    void menuButtonsOpenTheirMenusAtOnce_data();
    void menuButtonsOpenTheirMenusAtOnce();
    void iconsAreInkedAnewOnADarkDesktop();
};

void IconButtonsTest::everyButtonIsNamed_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<int>("count");
    QTest::newRow("toolBar1") << "toolBar1" << 8;
    QTest::newRow("toolBar2") << "toolBar2" << 20;
    QTest::newRow("toolBar3") << "toolBar3" << 4;
}

void IconButtonsTest::everyButtonIsNamed()
{
    QFETCH(QString, toolBar);
    QFETCH(int, count);
    const TonquillMainWin window;
    const QList<QToolButton *> buttons = buttonsOf(window, toolBar);
    QCOMPARE(buttons.size(), count);
    for (const QToolButton *button : buttons) {
        QVERIFY(button);
        QVERIFY(!button->icon().isNull());
        QVERIFY(button->text().isEmpty());
        QVERIFY(!button->toolTip().isEmpty());
        QCOMPARE(button->statusTip(), button->toolTip());
        QCOMPARE(button->accessibleName(), button->toolTip());
    }
}

void IconButtonsTest::namesAreTheFieldsOwn_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::newRow("undo") << "toolBar1" << 6 << "Undo";
    QTest::newRow("tablature") << "toolBar3" << 1 << "Tablature lines";
    QTest::newRow("grand staff") << "toolBar2" << 1 << "Grand staff";
    QTest::newRow("accidentals") << "toolBar2" << 5 << "Accidentals";
    QTest::newRow("whole") << "toolBar2" << 9 << "Whole note (hold Ctrl for the rest)";
    QTest::newRow("eighth") << "toolBar2" << 12 << "Eighth note (hold Ctrl for the rest)";
    QTest::newRow("128th") << "toolBar2" << 16 << "128th note (hold Ctrl for the rest)";
    QTest::newRow("tie") << "toolBar2" << 19 << "Tie";
}

void IconButtonsTest::namesAreTheFieldsOwn()
{
    QFETCH(QString, toolBar);
    QFETCH(int, index);
    QFETCH(QString, name);
    const TonquillMainWin window;
    QCOMPARE(buttonsOf(window, toolBar)[index]->accessibleName(), name);
}

void IconButtonsTest::namesDoNotRepeat()
{
    const TonquillMainWin window;
    QSet<QString> names;
    for (const char *toolBar : {"toolBar1", "toolBar2", "toolBar3"}) {
        for (const QToolButton *button : buttonsOf(window, toolBar))
            names.insert(button->accessibleName());
    }
    QCOMPARE(names.size(), 8 + 20 + 4);
}

void IconButtonsTest::tipsStayWhileCtrlIsHeld()
{
    TonquillMainWin window;
    window.restMode = true;
    window.swapTb2();
    const QToolButton *quarter = buttonsOf(window, "toolBar2")[11];
    QCOMPARE(quarter->toolTip(), QString("Quarter note (hold Ctrl for the rest)"));
    QCOMPARE(quarter->accessibleName(), quarter->toolTip());
}

void IconButtonsTest::menuButtonsOpenTheirMenusAtOnce_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<int>("index");
    for (int index = 2; index <= 5; ++index)
        QTest::addRow("toolBar2, %d", index) << "toolBar2" << index;
    QTest::newRow("symbols reference") << "toolBar3" << 2;
}

void IconButtonsTest::menuButtonsOpenTheirMenusAtOnce()
{
    QFETCH(QString, toolBar);
    QFETCH(int, index);
    const TonquillMainWin window;
    const QToolButton *button = buttonsOf(window, toolBar)[index];
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    QVERIFY(button->menu());
    QVERIFY(!button->menu()->actions().isEmpty());
}

/** The desktop may turn dark while the program runs. */
void IconButtonsTest::iconsAreInkedAnewOnADarkDesktop()
{
    TonquillMainWin window;
    const QColor light(240, 240, 230);
    QPalette dark = window.palette();
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Text, Qt::yellow);
    dark.setColor(QPalette::Button, Qt::black);
    dark.setColor(QPalette::ButtonText, light);
    window.setPalette(dark);
    const QSet<QRgb> expected{light.rgb()};
    for (const char *toolBar : {"toolBar1", "toolBar2", "toolBar3"}) {
        for (const QToolButton *button : buttonsOf(window, toolBar))
            QCOMPARE(inksOf(button->icon()), expected);
    }
    const QAction *natural = buttonsOf(window, "toolBar2")[5]->menu()->actions().constLast();
    QCOMPARE(inksOf(natural->icon()), QSet<QRgb>{QColor(Qt::yellow).rgb()});
}

TONQUILL_TEST_MAIN(IconButtonsTest)
#include "tst_iconbuttons.moc"
