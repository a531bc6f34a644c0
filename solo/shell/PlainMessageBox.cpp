#include "PlainMessageBox.h"

#include <QLabel>

PlainMessageBox::PlainMessageBox(Icon icon, const QString &text, const QString &details,
                                 StandardButtons buttons, QWidget *parent)
    : QMessageBox(icon, QStringLiteral("Tonquill"), QString(), buttons, parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
    setInformativeText(details);
    // The format of the text is not that of the details.
    if (auto *label = findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        label->setTextFormat(Qt::PlainText);
}

void PlainMessageBox::warn(QWidget *parent, const QString &text, const QString &details)
{
    PlainMessageBox(Warning, text, details, Ok, parent).exec();
}
