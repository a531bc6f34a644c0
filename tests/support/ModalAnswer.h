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
 * Calls `act` with the dialog or menu of this class once it is open, and closes it if `act` has
 * not. To be called before it is opened; for nested ones, from within `act`.
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

/** The number of menus that open while `act` runs; each is closed, since it would block. */
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

/** Chooses an entry of an open menu with the keyboard. */
inline void choose(QMenu &menu, int entry)
{
    menu.setActiveAction(menu.actions().at(entry));
    QTest::keyClick(&menu, Qt::Key_Return);
}

/** Clicks the button with this object name. */
inline void clickButton(const QWidget &dialog, const char *name)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
}
} // namespace ModalAnswer
