#include "TextState.h"

#include "LineFields.h"
#include "RawText.h"
#include "Records.h"
#include "TonquillText.h"

TextState TextState::of(const TonquillText &item)
{
    return TextState{item.pos(), rawText(*item.document()), FontState::of(item.font()),
                     QColor::fromRgba(item.defaultTextColor().rgba()), item.rotation()};
}

TextState TextState::read(LineReader &line)
{
    TextState state{line.position(), line.text(QStringLiteral("text")), FontState::read(line),
                    QColor(line.text(QStringLiteral("color"))),
                    line.number(QStringLiteral("rotation"), 0)};
    line.require(state.color.isValid());
    return state;
}

QStringList TextState::fieldNames()
{
    return FontState::fieldNames() +
           QStringList{QStringLiteral("text"), QStringLiteral("color"), QStringLiteral("rotation")};
}

QByteArray TextState::line() const
{
    LineWriter line(Records::textKeyword(), position);
    line.quoted("text", text);
    font.write(line);
    line.named("color",
               color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb).toLatin1());
    if (rotation != 0)
        line.named("rotation", rotation);
    return line.line();
}

QGraphicsItem *TextState::build(const SymbolSource &) const
{
    auto *item = new TonquillText(false);
    item->setFont(font.toFont());
    item->setPlainText(text);
    item->setDefaultTextColor(color);
    item->setSelected(false);
    item->setRotation(rotation);
    item->updateFrame();
    return item;
}
