#include "BareScene.h"
#include "Comparison.h"
#include "Editor.h"
#include "Probe.h"
#include "Rows.h"

namespace
{
const QString oursProbe = QStringLiteral("memory");
const QString floorProbe = QStringLiteral("memory-floor");

double growthPerItem(int count, const std::function<void()> &build)
{
    const double before = Probe::residentBytes();
    build();
    return (Probe::residentBytes() - before) / count;
}

double memoryOfOurs(int count)
{
    TonquillMainWin window;
    const QStringList records = SampleDocument::records(SampleDocument::glyphs(count));
    return growthPerItem(count, [&] {
        for (const QString &record : records)
            window.scene->constructItem(record, false, 0);
    });
}

double memoryOfBare(int count)
{
    TonquillMainWin window;
    const SampleDocument::Samples samples = SampleDocument::glyphs(count);
    BareScene scene(count);
    return growthPerItem(count, [&] { scene.addBareItems(samples); });
}
} // namespace

void Rows::addMemory()
{
    Probe::add(oursProbe, memoryOfOurs);
    Probe::add(floorProbe, memoryOfBare);
    compare({.operation = "memory of a glyph, resident",
             .ours = [](int count) { return Probe::valueOf(oursProbe, count); },
             .floor = [](int count) { return Probe::valueOf(floorProbe, count); },
             .unit = Unit::Bytes});
}
