#include "TextBlockState.h"

#include "LineFields.h"
#include "RawText.h"
#include "Records.h"
#include "TonquillTextBlock.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

namespace
{
/** True if parts of the text are formatted differently, for example after pasting. */
bool hasFormats(const QTextDocument &document)
{
    if (!document.rootFrame()->childFrames().isEmpty())
        return true;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.textList() || block.blockFormat().propertyCount() > 0)
            return true;
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().propertyCount() > 0)
                return true;
        }
    }
    return false;
}
} // namespace

TextBlockState TextBlockState::of(const TonquillTextBlock &item)
{
    const bool isHtml = hasFormats(*item.document());
    return TextBlockState{item.pos(),
                          item.topLeft(),
                          item.bottomRight(),
                          item.textWidth(),
                          FontState::of(item.font()),
                          isHtml ? item.toHtml() : rawText(*item.document()),
                          isHtml};
}

TextBlockState TextBlockState::read(LineReader &line)
{
    const bool isHtml = line.has(QStringLiteral("html"));
    return TextBlockState{line.position(),
                          line.point(3),
                          line.point(5),
                          line.number(QStringLiteral("wrap")),
                          FontState::read(line),
                          line.text(isHtml ? QStringLiteral("html") : QStringLiteral("text")),
                          isHtml};
}

std::optional<TextBlockState> TextBlockState::ofRecord(QStringView fields)
{
    const auto record = Records::parseTextBlock(fields);
    if (!record)
        return std::nullopt;
    return TextBlockState{QPointF(record->x, record->y),
                          QPointF(0, 0),
                          QPointF(record->width, record->height),
                          record->width - Records::widthBesideText,
                          FontState::plain(),
                          record->text,
                          false};
}

QStringList TextBlockState::fieldNames()
{
    return FontState::fieldNames() +
           QStringList{QStringLiteral("text"), QStringLiteral("html"), QStringLiteral("wrap")};
}

QByteArray TextBlockState::line() const
{
    LineWriter line(lineKeyword(), position);
    line << topLeft << bottomRight;
    line.named("wrap", textWidth);
    font.write(line);
    return line.quoted(isHtml ? "html" : "text", text).line();
}

QGraphicsItem *TextBlockState::build(const SymbolSource &) const
{
    // A space, because a block without text would show its instructions.
    auto *item = new TonquillTextBlock(false, QStringLiteral(" "), QRectF());
    item->setFont(font.toFont());
    if (isHtml)
        item->setHtml(text);
    else
        item->setPlainText(text);
    item->setTextWidth(textWidth);
    item->setCorners(topLeft, bottomRight);
    return item;
}
