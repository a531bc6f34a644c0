#include "SampleDocument.h"

#include "HostMessages.h"
#include "Records.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

namespace
{
constexpr int columns = 20;
constexpr int kinds = 9;
constexpr QPoint firstOnPage(45, 45);
constexpr int columnWidth = 32;
constexpr int rowHeight = 37;

/** The position of item `index` on page `page`, both from 0, in scene units. */
QPoint placeOnPage(int page, int index)
{
    const int top = static_cast<int>(page * g_pMainWin->scene->pagePitch());
    return firstOnPage + QPoint(index % columns * columnWidth, top + index / columns * rowHeight);
}

QString vectorRecord(const QString &keyword, const Sample &sample)
{
    const QPoint extent = SampleDocument::extentOf(sample.kind);
    return Records::format(Records::Vector{keyword, sample.position.x(), sample.position.y(), 0, 0,
                                           extent.x(), extent.y()});
}

QString recordOf(const Sample &sample)
{
    const int x = sample.position.x();
    const int y = sample.position.y();
    switch (sample.kind) {
    case Kind::Glyph:
        return Records::format(Records::Bitmap{SampleDocument::glyphId, x, y, false});
    case Kind::TimeSig:
        return Records::format(Records::TimeSig{x, y, 3, 4});
    case Kind::Grandstaff:
        return vectorRecord(Records::grandstaffKeyword(), sample);
    case Kind::Line:
        return vectorRecord(Records::interactivelineKeyword(), sample);
    case Kind::LineTab:
        return vectorRecord(Records::linetabKeyword(), sample);
    case Kind::Tie:
        return vectorRecord(Records::notetieKeyword(), sample);
    case Kind::Triplet:
        return vectorRecord(Records::tripletKeyword(), sample);
    case Kind::Text:
        return Records::format(Records::Text{x, y, 30, 20, SampleDocument::textOf(sample.kind),
                                             QStringLiteral("Arial"), 12, qRgb(0, 0, 0), 0.0});
    case Kind::TextBlock:
        return Records::format(
            Records::TextBlock{x, y, 30, 20, SampleDocument::textOf(sample.kind)});
    }
    return QString();
}
} // namespace

SampleDocument::Samples SampleDocument::glyphs(int count)
{
    Samples samples;
    for (int i = 0; i < count; ++i)
        samples.push_back({Kind::Glyph, placeOnPage(i / itemsPerPage, i % itemsPerPage)});
    return samples;
}

SampleDocument::Samples SampleDocument::mix(int count)
{
    Samples samples = glyphs(count);
    for (int i = 0; i < count; ++i)
        samples[i].kind = static_cast<Kind>(i % kinds);
    return samples;
}

SampleDocument::Samples SampleDocument::mixOnPages(int pages, int perPage)
{
    Samples samples;
    for (int i = 0; i < pages * perPage; ++i)
        samples.push_back({static_cast<Kind>(i % kinds), placeOnPage(i / perPage, i % perPage)});
    return samples;
}

int SampleDocument::pagesFor(int count)
{
    return (count + itemsPerPage - 1) / itemsPerPage;
}

QPoint SampleDocument::extentOf(Kind kind)
{
    return kind == Kind::Grandstaff || kind == Kind::LineTab ? QPoint(30, 32) : QPoint(30, 10);
}

QString SampleDocument::textOf(Kind kind)
{
    return kind == Kind::Text ? QStringLiteral("dolce") : QStringLiteral("la");
}

QStringList SampleDocument::records(const Samples &samples)
{
    QStringList result;
    for (const Sample &sample : samples)
        result.append(recordOf(sample));
    return result;
}

QByteArray SampleDocument::message(const Samples &samples)
{
    return (HostMessages::fromHost + records(samples).join(u'|')).toLatin1();
}
