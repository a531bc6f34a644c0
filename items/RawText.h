#pragma once

#include <QTextDocument>

/** The text with all characters as typed; toPlainText() replaces some with spaces. */
inline QString rawText(const QTextDocument &document)
{
    return document.toRawText().replace(QChar::ParagraphSeparator, QChar::LineFeed);
}
