#include "PlainMessageBox.h"

#include <QLabel>

PlainMessageBox::PlainMessageBox(Icon icon, const QString &text, const QString &details,
                                 StandardButtons buttons, QWidget *parent)
    : QMessageBox(icon, QStringLiteral("Tonquill"), QString(), buttons, parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
    setInformativeText(details);
    // setTextFormat() does not apply to the informative text.
    if (auto *label = findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        label->setTextFormat(Qt::PlainText);
}

void PlainMessageBox::warn(QWidget *parent, const QString &text, const QString &details)
{
    PlainMessageBox(Warning, text, details, Ok, parent).exec();
}
