#include "DocumentSnapshot.h"

#include "DocumentItem.h"
#include "ItemKinds.h"
#include "PageGeometry.h"
#include "PagePrinter.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"
#include "UnknownItems.h"

#include <QScrollBar>

#include <algorithm>

namespace
{
void setPaper(TonquillMainWin &window, const Paper &paper)
{
    TonquillScene &scene = *window.scene;
    if (paper.size.isEmpty() || paper == DocumentSnapshot::paperOf(window))
        return;
    scene.setPaper(QRectF(scene.paperRect.topLeft(), paper.size), paper.frame);
    DocumentSnapshot::setPrinterPaper(window);
}

void buildItems(TonquillMainWin &window, const LineList &lines, const ItemSelection &selection)
{
    const QBitArray selected = selection.toBits(lines.size());
    qsizetype index = 0;
    for (const QByteArray &line : lines) {
        const bool isSelected = selected.testBit(index++);
        if (const auto state = ItemKinds::catalogue().readLine(QString::fromUtf8(line)))
            window.scene->buildItem(*state)->setSelected(isSelected);
    }
}

bool isHeld(const QGraphicsItem *item)
{
    const DocumentItem *own = DocumentItem::of(item);
    return own && own->isHeld();
}
} // namespace

QByteArray DocumentSnapshot::lineOf(const QGraphicsItem *item)
{
    const ItemKind *kind = ItemKinds::catalogue().ofItem(*item);
    if (!kind) {
        UnknownItems::report(*item);
        return QByteArray();
    }
    const auto state = kind->stateOf(*item);
    return state ? state->line() : QByteArray();
}

QList<QGraphicsItem *> DocumentSnapshot::itemsOf(const TonquillMainWin &window)
{
    QList<QGraphicsItem *> result = window.scene->itemsFromTop();
    result.removeIf([](const QGraphicsItem *item) { return item->parentItem() != nullptr; });
    std::reverse(result.begin(), result.end());
    return result;
}

Paper DocumentSnapshot::paperOf(const TonquillMainWin &window)
{
    return Paper{window.scene->paperRect.size(), window.scene->pageRect};
}

/** Scene units are 1/88 inch horizontally and 1/90 inch vertically. */
Paper Paper::inInches() const
{
    const QRectF inch = PageGeometry::paperRect(QRectF(0, 0, 1, 1));
    const auto scaled = [inch](double across, double down) {
        return QPointF(across / inch.width(), down / inch.height());
    };
    const QPointF corner = scaled(size.width(), size.height());
    return Paper{QSizeF(corner.x(), corner.y()),
                 QRectF(scaled(frame.left(), frame.top()), scaled(frame.right(), frame.bottom()))};
}

void DocumentSnapshot::setPrinterPaper(TonquillMainWin &window)
{
    const Paper inches = paperOf(window).inInches();
    window.pagePrinter().setOwnPaper(inches.size, inches.frame);
}

DocumentSnapshot DocumentSnapshot::capture(const TonquillMainWin &window,
                                           QList<QGraphicsItem *> *read)
{
    DocumentSnapshot snapshot{paperOf(window), window.pageCount, {}};
    for (QGraphicsItem *item : itemsOf(window)) {
        const QByteArray line = lineOf(item);
        if (line.isEmpty())
            continue;
        snapshot.items.append(line);
        if (read)
            read->append(item);
    }
    return snapshot;
}

void DocumentSnapshot::restore(TonquillMainWin &window, const ItemSelection &selection) const
{
    QScrollBar *across = window.view()->horizontalScrollBar();
    QScrollBar *down = window.view()->verticalScrollBar();
    const QPoint scrolled(across->value(), down->value());

    window.scene->clearScene();
    setPaper(window, paper);
    buildItems(window, items, selection);
    window.scene->setPageNum(pageCount);

    across->setValue(scrolled.x());
    down->setValue(scrolled.y());
    window.onViewScroll(window.view()->curScenePos());
    window.scene->update();
}

bool DocumentSnapshot::isItemHeld(const TonquillMainWin &window)
{
    const QList<QGraphicsItem *> selected = window.scene->selectedItems();
    return std::any_of(selected.cbegin(), selected.cend(), isHeld);
}
