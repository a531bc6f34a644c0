#pragma once

#include <QMessageBox>

/**
 * Opens a box over the window that runs no loop of its own: the host is heard while it is open, and
 * whoever opens it goes on. The window owns it, until it is closed and goes.
 */
inline QMessageBox *openBox(QWidget &window, QMessageBox::Icon icon, const QString &title,
                            const QString &text)
{
    auto *box = new QMessageBox(icon, title, text, QMessageBox::Ok, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return box;
}
