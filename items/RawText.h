#pragma once

#include <QTextDocument>

/** The text with every character that was typed; toPlainText() would make blanks of some. */
inline QString rawText(const QTextDocument &document)
{
    return document.toRawText().replace(QChar::ParagraphSeparator, QChar::LineFeed);
}
