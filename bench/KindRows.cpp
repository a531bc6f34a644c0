#include "Comparison.h"
#include "ItemKinds.h"
#include "Rows.h"
#include "TonquillMainWin.h"

#include <QGraphicsRectItem>

namespace
{
/** Builds items from the kind's example one by one, and writes each as its line. */
double buildAndWrite(const ItemKind &kind, int count)
{
    const auto state = ItemKinds::catalogue().readLine(kind.example);
    if (!state)
        qFatal("no item is like this: %s", qPrintable(kind.example));
    return cpuSeconds([&] {
        for (int i = 0; i < count; ++i) {
            const std::unique_ptr<QGraphicsItem> item(state->build(*g_pMainWin));
            if (kind.stateOf(*item)->line().isEmpty())
                qFatal("an item has no line");
        }
    });
}

/** Builds plain items with one child each, and copies as many bytes. */
double buildBare(const ItemKind &kind, int count)
{
    const QByteArray line = kind.example.toUtf8();
    return cpuSeconds([&] {
        for (int i = 0; i < count; ++i) {
            QGraphicsRectItem item(0, 0, i, i);
            const QGraphicsRectItem child(&item);
            item.setPos(i, i);
            const QByteArray written(line.constData(), line.size());
        }
    });
}
} // namespace

void Rows::addKinds()
{
    for (const ItemKind &kind : ItemKinds::catalogue().kinds()) {
        compare({.operation = "build and write " + kind.lineKeyword.toStdString(),
                 .ours = [&kind](int count) { return buildAndWrite(kind, count); },
                 .floor = [&kind](int count) { return buildBare(kind, count); },
                 .counts = {10000}});
    }
}
