#pragma once

#include <QMessageBox>

/**
 * A box whose texts are shown as they stand. Left to itself Qt takes a text with "<" for
 * a page of the web, with pictures and links; but so may a file be called.
 */
class PlainMessageBox : public QMessageBox
{
public:
    /** `details` stand below `text`, in smaller print; they may be empty. */
    PlainMessageBox(Icon icon, const QString &text, const QString &details, StandardButtons buttons,
                    QWidget *parent = nullptr);

    /** Shows a warning until it is closed; `parent` may be null. */
    static void warn(QWidget *parent, const QString &text, const QString &details);
};
