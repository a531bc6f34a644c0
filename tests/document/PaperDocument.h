#pragma once

#include "TonquillBitmap.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QPageSize>

/**
 * A document on paper of the test's choice. The window's own scene has read its paper when the
 * window was made, so this is a second one, and the window counts its pages.
 */
struct PaperDocument
{
    explicit PaperDocument(QPageSize::PageSizeId paper = QPageSize::Letter, int pages = 1,
                           const QMarginsF &marginInches = QMarginsF(0.5, 0.75, 0.25, 1.0))
        : scene(sceneOn(paper, marginInches))
    {
        scene->setPageNum(pages);
    }

    /** A glyph of 10 by 10 centred on a point, and so reaching 5 to each side. */
    TonquillBitmap *addGlyph(QPointF centre)
    {
        QPixmap picture(10, 10);
        picture.fill(Qt::black);
        auto *item = new TonquillBitmap(picture, 2, false, QPixmap());
        scene->addNewItem(item);
        item->setPos(centre);
        return item;
    }

    TonquillMainWin window;
    std::unique_ptr<TonquillScene> scene;

private:
    std::unique_ptr<TonquillScene> sceneOn(QPageSize::PageSizeId paper,
                                           const QMarginsF &marginInches)
    {
        window.sharedPrinter().setPageSize(QPageSize(paper));
        window.sharedPrinter().setPageMargins(marginInches, QPageLayout::Inch);
        window.pageCount = 0;
        return std::make_unique<TonquillScene>();
    }
};
