#include "FontState.h"

#include "LineFields.h"

FontState FontState::of(const QFont &font)
{
    const bool inPixels = font.pointSizeF() <= 0;
    return FontState{font.family(), inPixels ? double(font.pixelSize()) : font.pointSizeF(),
                     inPixels,      font.weight(),
                     font.style(),  font.underline()};
}

FontState FontState::plain()
{
    FontState font = of(QFont());
    font.weight = QFont::Normal;
    font.style = QFont::StyleNormal;
    font.underline = false;
    return font;
}

QFont FontState::toFont() const
{
    QFont font;
    font.setFamily(family);
    if (sizeInPixels)
        font.setPixelSize(qMax(1, int(size)));
    else
        font.setPointSizeF(size);
    font.setWeight(QFont::Weight(weight));
    font.setStyle(style);
    font.setUnderline(underline);
    return font;
}

FontState FontState::read(LineReader &line)
{
    FontState font;
    font.family = line.text(QStringLiteral("font"));
    font.sizeInPixels = line.has(QStringLiteral("pixels"));
    font.size = line.number(font.sizeInPixels ? QStringLiteral("pixels") : QStringLiteral("size"));
    if (line.has(QStringLiteral("weight")))
        font.weight = line.integer(QStringLiteral("weight"));
    if (line.flag(QStringLiteral("italic")))
        font.style = QFont::StyleItalic;
    else if (line.flag(QStringLiteral("oblique")))
        font.style = QFont::StyleOblique;
    font.underline = line.flag(QStringLiteral("underline"));
    line.require(font.isPossible());
    return font;
}

void FontState::write(LineWriter &line) const
{
    line.quoted("font", family).named(sizeInPixels ? "pixels" : "size", size);
    if (weight != QFont::Normal)
        line.named("weight", weight);
    line.flag("italic", style == QFont::StyleItalic);
    line.flag("oblique", style == QFont::StyleOblique);
    line.flag("underline", underline);
}

QStringList FontState::fieldNames()
{
    return {QStringLiteral("font"),     QStringLiteral("size"),   QStringLiteral("pixels"),
            QStringLiteral("weight"),   QStringLiteral("italic"), QStringLiteral("oblique"),
            QStringLiteral("underline")};
}
