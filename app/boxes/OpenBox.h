#pragma once

#include <QMessageBox>

/**
 * Opens a message box without running an event loop: the caller continues, and messages of the host
 * are handled while it is open. The window owns it; it is deleted when it is closed.
 */
inline QMessageBox *openBox(QWidget &window, QMessageBox::Icon icon, const QString &title,
                            const QString &text)
{
    auto *box = new QMessageBox(icon, title, text, QMessageBox::Ok, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return box;
}
