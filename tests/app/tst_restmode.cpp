#include "TestMain.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"
#include "ui_TonquillMainWin.h"

#include <QAction>
#include <QDialog>
#include <QSpinBox>

namespace
{
/** The symbol of the only glyph on the scene. */
int symbolOnScene(const TonquillMainWin &window)
{
    for (const QGraphicsItem *item : window.scene->items()) {
        if (item->data(256).isValid())
            return item->data(256).toInt();
    }
    return -1;
}

QImage quarterIcon(const TonquillMainWin &window)
{
    return window.actions.value(0x10b)->icon().pixmap(24).toImage();
}

constexpr int quarterNote = 19;
constexpr int quarterRest = 21;
} // namespace

/** Ctrl makes the note buttons insert rests while our window has the keyboard. */
class RestModeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void ctrlSwapsNotesForRests();
    void otherKeysDoNot();
    void losingTheFocusEndsIt_data();
    void losingTheFocusEndsIt();
    void dialogEndsIt();
    void menuDoesNotEndIt();
    void pressInTheWindowKeepsTheKeyboardOnThePage();
    void pageFieldGivesTheKeyboardBack_data();
    void pageFieldGivesTheKeyboardBack();
    void losingTheFocusWithoutCtrlChangesNothing();

private:
    void sendToView(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers);

    std::unique_ptr<TonquillMainWin> m_window;
    QImage m_noteIcon;
};

void RestModeTest::init()
{
    m_window = std::make_unique<TonquillMainWin>();
    m_window->show();
    m_window->activateWindow();
    m_window->view()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_window->view()->hasFocus());
    m_noteIcon = quarterIcon(*m_window);
}

void RestModeTest::sendToView(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(type, key, modifiers);
    QCoreApplication::sendEvent(m_window->view(), &event);
}

void RestModeTest::ctrlSwapsNotesForRests()
{
    sendToView(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
    QVERIFY(m_window->restMode);
    QVERIFY(quarterIcon(*m_window) != m_noteIcon);
    m_window->actions.value(0x10b)->trigger();
    QCOMPARE(symbolOnScene(*m_window), quarterRest);
    sendToView(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
    QVERIFY(!m_window->restMode);
    QCOMPARE(quarterIcon(*m_window), m_noteIcon);
    m_window->actions.value(0x10b)->trigger();
    QCOMPARE(symbolOnScene(*m_window), quarterNote);
}

void RestModeTest::otherKeysDoNot()
{
    sendToView(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    QVERIFY(!m_window->restMode);
    sendToView(QEvent::KeyRelease, Qt::Key_Shift, Qt::NoModifier);
    QVERIFY(!m_window->restMode);
}

void RestModeTest::losingTheFocusEndsIt_data()
{
    QTest::addColumn<bool>("toAnotherWindow");
    QTest::newRow("to the spin box") << false;
    QTest::newRow("to another window") << true;
}

void RestModeTest::losingTheFocusEndsIt()
{
    QFETCH(bool, toAnotherWindow);
    sendToView(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
    QWidget other;
    if (toAnotherWindow) {
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    } else {
        m_window->ui->sb_page->setFocus();
    }
    QTRY_VERIFY(!m_window->restMode);
    QCOMPARE(quarterIcon(*m_window), m_noteIcon);
    m_window->actions.value(0x10b)->trigger();
    QCOMPARE(symbolOnScene(*m_window), quarterNote);
}

void RestModeTest::dialogEndsIt()
{
    sendToView(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
    QDialog dialog(m_window.get());
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_VERIFY(!m_window->restMode);
    dialog.close();
    QVERIFY(!m_window->restMode);
    QCOMPARE(quarterIcon(*m_window), m_noteIcon);
}

void RestModeTest::menuDoesNotEndIt()
{
    sendToView(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(m_window->view(), &toMenu);
    QVERIFY(m_window->restMode);
    // Nobody holds Ctrl when the menu is closed.
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(m_window->view(), &back);
    QVERIFY(!m_window->restMode);
    QCOMPARE(quarterIcon(*m_window), m_noteIcon);
}

void RestModeTest::pressInTheWindowKeepsTheKeyboardOnThePage()
{
    for (QWidget *pressed : {static_cast<QWidget *>(m_window->ui->toolBar2),
                             static_cast<QWidget *>(m_window->ui->groupBox),
                             static_cast<QWidget *>(m_window->ui->pb_insertPage)}) {
        m_window->ui->sb_page->setFocus();
        QVERIFY(!m_window->view()->hasFocus());
        QTest::mousePress(pressed, Qt::LeftButton, {}, QPoint(3, 3));
        QVERIFY(m_window->view()->hasFocus());
    }
}

void RestModeTest::pageFieldGivesTheKeyboardBack_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Escape") << Qt::Key_Escape;
}

void RestModeTest::pageFieldGivesTheKeyboardBack()
{
    QFETCH(Qt::Key, key);
    QSpinBox *field = m_window->ui->sb_page;
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Up);
    QTest::keyClick(field, Qt::Key_5);
    QVERIFY(field->hasFocus());
    const int typed = field->value();
    QVERIFY(typed != 0);
    QSignalSpy told(field, &QSpinBox::valueChanged);
    QTest::keyClick(field, key);
    QVERIFY(m_window->view()->hasFocus());
    QCOMPARE(field->value(), typed);
    // Return goes to the page once more, Escape leaves it at that.
    QCOMPARE(told.size(), key == Qt::Key_Escape ? 0 : 1);
}

void RestModeTest::losingTheFocusWithoutCtrlChangesNothing()
{
    m_window->ui->sb_page->setFocus();
    QTRY_VERIFY(!m_window->view()->hasFocus());
    QVERIFY(!m_window->restMode);
    QCOMPARE(quarterIcon(*m_window), m_noteIcon);
}

TONQUILL_TEST_MAIN(RestModeTest)
#include "tst_restmode.moc"
