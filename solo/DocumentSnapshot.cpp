#include "DocumentSnapshot.h"

#include "ItemRecords.h"
#include "PageGeometry.h"
#include "SceneItems.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QPageLayout>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace
{
/** Scene units are 1/88 inch across and 1/90 inch down. */
QSizeF inInches(QSizeF units)
{
    const QRectF inch = PageGeometry::paperRect(QRectF(0, 0, 1, 1));
    return QSizeF(units.width() / inch.width(), units.height() / inch.height());
}

/** Sets the shared printer to the document's paper, so that pages print as they are laid out. */
void setPrinterPaper(QPrinter &printer, const Paper &paper)
{
    constexpr double tolerance = 0.02; // inch
    const QSizeF size = inInches(paper.size);
    const QSizeF present = printer.paperRect(QPrinter::Inch).size();
    if (std::fabs(size.width() - present.width()) < tolerance &&
        std::fabs(size.height() - present.height()) < tolerance)
        return;
    const QSizeF corner = inInches(QSizeF(paper.frame.left(), paper.frame.top()));
    const QSizeF rest = inInches(QSizeF(paper.size.width() - paper.frame.right(),
                                        paper.size.height() - paper.frame.bottom()));
    printer.setPageLayout(
        QPageLayout(QPageSize(size, QPageSize::Inch), QPageLayout::Portrait,
                    QMarginsF(corner.width(), corner.height(), rest.width(), rest.height()),
                    QPageLayout::Inch));
}

void setPaper(TonquillMainWin &window, const Paper &paper)
{
    TonquillScene &scene = *window.scene;
    if (paper.size.isEmpty() || paper == DocumentSnapshot::paperOf(window))
        return;
    scene.paperRect.setSize(paper.size);
    scene.pageRect = paper.frame;
    scene.pageSpacing = PageGeometry::spacing(paper.size.height());
    setPrinterPaper(window.sharedPrinter(), paper);
}

void buildItems(TonquillMainWin &window, const QList<QByteArray> &lines,
                const ItemSelection &selection)
{
    const QBitArray selected = selection.toBits(lines.size());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto state = ItemRecords::parse(QString::fromUtf8(lines[i]));
        if (!state)
            continue;
        QGraphicsItem *item = SceneItems::build(window, *state);
        item->setSelected(selected.testBit(i));
    }
}
} // namespace

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

DocumentSnapshot DocumentSnapshot::capture(const TonquillMainWin &window,
                                           QList<QGraphicsItem *> *read)
{
    DocumentSnapshot snapshot{paperOf(window), window.pageCount, {}};
    for (QGraphicsItem *item : itemsOf(window)) {
        const auto state = SceneItems::stateOf(item);
        if (!state)
            continue;
        snapshot.items.append(ItemRecords::format(*state));
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
    return std::any_of(selected.cbegin(), selected.cend(), SceneItems::isHeld);
}
