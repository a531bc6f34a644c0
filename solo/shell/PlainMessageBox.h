#pragma once

#include <QMessageBox>

/**
 * A message box with plain text. By default Qt treats a text with "<" as HTML with pictures and
 * links, but file names may contain that character, too.
 */
class PlainMessageBox : public QMessageBox
{
public:
    /** `details` are shown below `text` in smaller type; they may be empty. */
    PlainMessageBox(Icon icon, const QString &text, const QString &details, StandardButtons buttons,
                    QWidget *parent = nullptr);

    /** Shows a modal warning; `parent` may be null. */
    static void warn(QWidget *parent, const QString &text, const QString &details);
};
