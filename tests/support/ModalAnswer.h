#pragma once

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>

/** Answers to dialogs and menus that block their caller. */
namespace ModalAnswer
{
/**
 * Acts on the dialog or menu of this class as soon as it is open, and closes it if `act` has left
 * it open. To be called before what opens it; nested ones are asked for from within `act`.
 */
template <typename Window>
void whenOpen(const std::function<void(Window &)> &act)
{
    QTimer::singleShot(1, qApp, [act] {
        QWidget *popup = QApplication::activePopupWidget();
        const QPointer<Window> window =
            qobject_cast<Window *>(popup ? popup : QApplication::activeModalWidget());
        if (!window) {
            whenOpen<Window>(act);
            return;
        }
        act(*window);
        if (window && window->isVisible())
            window->close();
    });
}

/** How many menus open while `act` runs; each is closed, for it would block. */
inline int menusDuring(const std::function<void()> &act)
{
    int opened = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&opened] {
        if (QWidget *popup = QApplication::activePopupWidget()) {
            ++opened;
            popup->close();
        }
    });
    watch.start(0);
    act();
    return opened;
}

/** Chooses an entry of an open menu as the keyboard does. */
inline void choose(QMenu &menu, int entry)
{
    menu.setActiveAction(menu.actions().at(entry));
    QTest::keyClick(&menu, Qt::Key_Return);
}

/** Clicks the button of this object name. */
inline void clickButton(const QWidget &dialog, const char *name)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
}
} // namespace ModalAnswer
