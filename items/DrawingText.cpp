#include "DrawingText.h"

#include "SelfContainedText.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextFrame>

#include <algorithm>
#include <array>

namespace
{
/** A special character of XML, its stand-in (a private-use character), and its escaped form. */
struct StandIn
{
    QChar letter;
    QChar substitute;
    QLatin1String escaped;
};

constexpr std::array standIns{
    StandIn{u'"', u'\uf8f0', QLatin1String("&quot;")},
    StandIn{u'&', u'\uf8f1', QLatin1String("&amp;")},
    StandIn{u'<', u'\uf8f2', QLatin1String("&lt;")},
};

/** True for characters that XML cannot contain, not even escaped. */
bool isForbidden(QChar c)
{
    return (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c >= u'\ufffe';
}

bool isSafe(const QString &family)
{
    return std::none_of(family.cbegin(), family.cend(), [](QChar c) {
        return isForbidden(c) || std::any_of(standIns.begin(), standIns.end(),
                                             [c](const StandIn &one) { return one.letter == c; });
    });
}

bool areSafe(const QStringList &families)
{
    return std::all_of(families.cbegin(), families.cend(), isSafe);
}

QStringList safe(QStringList families)
{
    for (QString &family : families) {
        for (const StandIn &one : standIns)
            family.replace(one.letter, one.substitute);
        std::replace_if(family.begin(), family.end(), isForbidden, QChar::ReplacementCharacter);
    }
    return families;
}

QStringList familiesOf(const QTextFormat &format)
{
    return format.toCharFormat().fontFamilies().toStringList();
}

/** Replaces the special characters in the family names of the text that `cursor` has selected. */
void makeSafe(QTextCursor cursor, const QTextCharFormat &present)
{
    QTextCharFormat changed;
    changed.setFontFamilies(safe(familiesOf(present)));
    cursor.mergeCharFormat(changed);
}

void makePartsSafe(QTextBlock block)
{
    struct Part
    {
        int begin;
        int end;
        QTextCharFormat format;
    };
    QList<Part> parts;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment part = at.fragment();
        if (!areSafe(familiesOf(part.charFormat())))
            parts.append({part.position(), part.position() + part.length(), part.charFormat()});
    }
    QTextCursor cursor(block);
    if (!areSafe(familiesOf(block.charFormat()))) {
        QTextCharFormat changed;
        changed.setFontFamilies(safe(familiesOf(block.charFormat())));
        cursor.mergeBlockCharFormat(changed);
    }
    for (const Part &part : parts) {
        cursor.setPosition(part.begin);
        cursor.setPosition(part.end, QTextCursor::KeepAnchor);
        makeSafe(cursor, part.format);
    }
}
} // namespace

bool DrawingText::isNeeded(const QPainter &painter, const QTextDocument &text)
{
    if (painter.paintEngine()->type() != QPaintEngine::SVG)
        return false;
    const QList<QTextFormat> formats = text.allFormats();
    return !areSafe(text.defaultFont().families()) ||
           std::any_of(formats.cbegin(), formats.cend(),
                       [](const QTextFormat &format) { return !areSafe(familiesOf(format)); });
}

std::unique_ptr<QTextDocument> DrawingText::copyOf(const QTextDocument &text)
{
    auto copy = std::make_unique<SelfContainedText>();
    QFont font = text.defaultFont();
    font.setFamilies(safe(font.families()));
    copy->setDefaultFont(font);
    copy->setDefaultTextOption(text.defaultTextOption());
    copy->setUseDesignMetrics(text.useDesignMetrics());
    copy->setIndentWidth(text.indentWidth());
    QTextCursor(copy.get()).insertFragment(QTextDocumentFragment(&text));
    copy->rootFrame()->setFrameFormat(text.rootFrame()->frameFormat());
    copy->setTextWidth(text.textWidth());
    for (QTextBlock block = copy->begin(); block.isValid(); block = block.next())
        makePartsSafe(block);
    return copy;
}

QString DrawingText::finished(QString svg)
{
    std::replace_if(svg.begin(), svg.end(), isForbidden, QChar::ReplacementCharacter);
    // Quotation marks in texts are escaped, so this matches only the attributes.
    static const QRegularExpression family(QStringLiteral("font-family=\"[^\"]*\""));
    QString result;
    qsizetype end = 0;
    for (auto match = family.globalMatch(svg); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        result += QStringView(svg).sliced(end, one.capturedStart() - end);
        QString escaped = one.captured();
        for (const StandIn &standIn : standIns)
            escaped.replace(standIn.substitute, standIn.escaped);
        result += escaped;
        end = one.capturedEnd();
    }
    result += QStringView(svg).sliced(end);
    return result;
}
