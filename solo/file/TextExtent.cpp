#include "TextExtent.h"

#include "DocumentLimits.h"
#include "SelfContainedText.h"

#include <QFont>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace
{
constexpr double pixelsPerPoint = 96.0 / 72;

/** The most by which a line is higher than its font size. */
constexpr double lineSpacing = 1.6;

/** The most by which named font sizes are larger than the surrounding text. */
constexpr double mostAdjustment = 3;

double pixelsOf(const FontState &font)
{
    return font.sizeInPixels ? font.size : font.size * pixelsPerPoint;
}

double pixelsOf(const QTextCharFormat &format, double inherited)
{
    double pixels = inherited;
    if (format.hasProperty(QTextFormat::FontPixelSize))
        pixels = std::abs(double(format.intProperty(QTextFormat::FontPixelSize)));
    else if (format.hasProperty(QTextFormat::FontPointSize))
        pixels = std::fabs(format.fontPointSize()) * pixelsPerPoint;
    const bool isAdjusted = format.hasProperty(QTextFormat::FontSizeAdjustment);
    return isAdjusted ? pixels * mostAdjustment : pixels;
}

bool isLineEnd(QChar c)
{
    return c == u'\n' || c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
}

/** The length given by a property; 0 if it is not a length. */
double lengthOf(int property, const QVariant &value)
{
    constexpr double indentation = 40;
    const bool isLetters =
        property == QTextFormat::FontPointSize || property == QTextFormat::LineHeight;
    if (value.typeId() == qMetaTypeId<QTextLength>()) {
        const auto length = value.value<QTextLength>();
        return length.type() == QTextLength::FixedLength ? std::fabs(length.rawValue()) : 0;
    }
    if (property == QTextFormat::BlockIndent)
        return std::fabs(value.toDouble()) * indentation;
    return value.typeId() == QMetaType::Double && !isLetters ? std::fabs(value.toDouble()) : 0;
}
} // namespace

TextExtent::TextExtent(const TextContent &text)
    : m_width(text.width)
{
    text.isHtml ? measureHtml(text) : measurePlain(text);
}

void TextExtent::count(const QString &text)
{
    double letters = 0;
    for (const QChar c : text) {
        if (isLineEnd(c))
            ++m_lines;
        const bool isWordEnd = isLineEnd(c) || c == u' ' || c == u'\t';
        if (isWordEnd)
            m_wordSquares += letters * letters;
        letters = isWordEnd ? 0 : letters + 1;
    }
    m_wordSquares += letters * letters;
}

/**
 * The most lines that a paragraph is wrapped into; two consecutive ones are longer than the width.
 */
double TextExtent::linesOf(QStringView paragraph, double pixels) const
{
    const double own = 1 + double(paragraph.count(QChar::LineSeparator));
    if (m_width < 0)
        return own;
    const auto letters = double(paragraph.size());
    return own + std::min(letters, 2 * letters * pixels / std::max(m_width, 1.0));
}

void TextExtent::measurePlain(const TextContent &text)
{
    count(text.text);
    const double pixels = pixelsOf(text.font);
    const QList<QStringView> lines = QStringView(text.text).split(u'\n');
    for (const QStringView line : lines)
        m_height += linesOf(line, pixels) * pixels * lineSpacing;
    if (m_height <= DocumentLimits::highestText || m_wordSquares > DocumentLimits::mostWordSquares)
        return;
    // Much text or a large font: only a real layout can tell.
    QFont font(text.font.family);
    font.setPixelSize(std::max(1, int(std::ceil(pixels))));
    m_height = 0;
    for (const QStringView line : lines) {
        QTextLayout layout(line.toString(), font);
        layout.beginLayout();
        for (QTextLine one = layout.createLine(); one.isValid(); one = layout.createLine()) {
            one.setLineWidth(m_width < 0 ? DocumentLimits::highestText : m_width);
            m_height += one.height();
        }
        layout.endLayout();
        if (m_height > DocumentLimits::highestText)
            return;
    }
}

void TextExtent::measureHtml(const TextContent &text)
{
    SelfContainedText document;
    document.setHtml(text.text);
    count(document.toRawText());
    measureTables(*document.rootFrame(), 0);
    for (const QTextFormat &format : document.allFormats())
        measureFormat(format);
    // The contents of tables or lists may have any part of the width.
    if (m_width >= 0 && m_longest > 0)
        m_width = 0;
    double places = 1;
    for (QTextBlock part = document.begin(); part.isValid(); part = part.next()) {
        ++places;
        double pixels = pixelsOf(text.font);
        for (auto at = part.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            pixels = std::max(pixels, pixelsOf(fragment.charFormat(), pixelsOf(text.font)));
            places += double(fragment.text().count(QChar::ObjectReplacementCharacter));
        }
        m_height += linesOf(part.text(), pixels) * pixels * lineSpacing * m_perLine;
    }
    // Margins above, below and around everything.
    m_height += 4 * places * m_longest;
}

void TextExtent::measureTables(const QTextFrame &around, qsizetype depth)
{
    m_tableDepth = std::max(m_tableDepth, depth);
    for (const QTextFrame *frame : around.childFrames()) {
        const auto *table = qobject_cast<const QTextTable *>(frame);
        const qsizetype within = depth + (table ? 1 : 0);
        if (table)
            m_cells += double(table->rows()) * table->columns() * std::exp2(double(within));
        measureTables(*frame, within);
    }
}

void TextExtent::measureFormat(const QTextFormat &format)
{
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it)
        m_longest = std::max(m_longest, lengthOf(it.key(), it.value()));
    if (!format.hasProperty(QTextFormat::LineHeight))
        return;
    const double lineHeight = std::fabs(format.doubleProperty(QTextFormat::LineHeight));
    m_perLine = std::max(m_perLine, lineHeight / 100);
    if (format.intProperty(QTextFormat::LineHeightType) != QTextBlockFormat::ProportionalHeight)
        m_perLine = std::max(m_perLine, lineHeight);
}
