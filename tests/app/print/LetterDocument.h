#pragma once

#include "ItemModel.h"
#include "ItemProbe.h"
#include "PdfFile.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QGraphicsRectItem>
#include <QPageSize>
#include <QPen>
#include <QPrinter>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

/**
 * A document on US Letter with margins of 0.5, 0.75, 0.25 and 1.0 inch (left, top, right, bottom),
 * and a printer with the same paper. Worked out, at 88 scene units an inch across and 90 down:
 *
 * sheet 748 x 990; frame from x = 0.5 * 88 = 44 to (8.5 - 0.25) * 88 = 726, and from
 * y = 0.75 * 90 = 67.5 to (11 - 1) * 90 = 900; gap 0.05 * 990 = 49.5, so a pitch of 1039.5.
 * With 2 units more on each side the page's source is 686 x 836.5 at (42, 65.5), and it fills the
 * printable 7.75 x 9.25 inches at (0.5, 0.75).
 */
struct LetterDocument
{
    static constexpr QRectF sheet{0, 0, 748, 990};
    static constexpr QRectF frame{44, 67.5, 682, 832.5};
    static constexpr double pitch = 1039.5;
    static constexpr QRectF source{42, 65.5, 686, 836.5};
    static constexpr QRectF printableInches{0.5, 0.75, 7.75, 9.25};

    LetterDocument()
    {
        window.scene->paperRect = sheet;
        window.scene->pageRect = frame;
        window.scene->pageSpacing = pitch - sheet.height();
        makeLetter(window.sharedPrinter());
        clear();
    }

    /** Takes everything away but one page, or as many as are asked for. */
    void clear(int pages = 1)
    {
        window.scene->clearScene();
        window.scene->setPageNum(pages);
    }

    /** Where PDF files go that are not named otherwise. */
    QString pdfPath() const { return folder.filePath("pages.pdf"); }

    /** Prints into a PDF file on Letter, with this many dots to the inch. */
    PdfFile print(int dotsPerInch = 96)
    {
        QPrinter printer(QPrinter::ScreenResolution);
        makeLetter(printer);
        printer.setResolution(dotsPerInch);
        printer.setOutputFileName(pdfPath());
        window.print(&printer);
        return PdfFile(pdfPath());
    }

    static void makeLetter(QPrinter &printer)
    {
        printer.setPageSize(QPageSize(QPageSize::Letter));
        printer.setPageMargins(QMarginsF(0.5, 0.75, 0.25, 1.0), QPageLayout::Inch);
    }

    /** Where a rectangle of the first page comes out on Letter, in inches. */
    static QRectF onPaper(const QRectF &scene) { return onPaper(scene, printableInches); }

    /** The same on paper with another printable area. */
    static QRectF onPaper(const QRectF &scene, const QRectF &printable)
    {
        const double across = printable.width() / source.width();
        const double down = printable.height() / source.height();
        return QRectF(printable.left() + (scene.left() - source.left()) * across,
                      printable.top() + (scene.top() - source.top()) * down, scene.width() * across,
                      scene.height() * down);
    }

    /** A black rectangle, by its scene coordinates. */
    QGraphicsRectItem *addBlack(const QRectF &rect)
    {
        return window.scene->addRect(rect, Qt::NoPen, Qt::black);
    }

    /** An item of each of the nine kinds, on page `page`, counted from 0. */
    void addNineKinds(int page = 0)
    {
        const int y = qRound(page * pitch);
        for (const QString &record : nineKinds(y))
            window.scene->constructItem(record, false, 0);
    }

    static QStringList nineKinds(int y)
    {
        return {
            QString("tonquill_bitmap 2 100 %1 0").arg(y + 150),
            QString("tonquill_timesig 200 %1 12 8").arg(y + 150),
            QString("tonquill_grandstaff 100 %1 0 0 200 100").arg(y + 300),
            QString("tonquill_interactiveline 100 %1 0 0 200 40").arg(y + 500),
            QString("tonquill_linetab 400 %1 0 0 200 70").arg(y + 300),
            QString("tonquill_notetie 400 %1 0 0 100 0").arg(y + 500),
            QString("tonquill_triplet 100 %1 0 0 100 0").arg(y + 600),
            QString("tonquill_text 400 %1 60 20 Adagio Arial 14 0 0").arg(y + 150),
            QString(
                "tonquill_textblock_begin 400 %1 200 60\nHold\nthe pedal\ntonquill_textblock_end")
                .arg(y + 600),
        };
    }

    /**
     * The items that do not lie on a picture of Letter where they do on the page on screen, each
     * with what was found instead.
     */
    QStringList misplacedItems(const QImage &paper) const
    {
        QStringList misplaced;
        for (QGraphicsItem *item : ItemProbe::documentItems(*window.scene)) {
            const QRectF around =
                item->sceneBoundingRect().adjusted(-12, -12, 12, 12).toAlignedRect();
            const QRectF expected = onPaper(inkOnScreen(around));
            const QRectF actual = inkOnPaper(paper, onPaper(around));
            if (!areClose(expected, actual))
                QDebug(&misplaced.emplace_back())
                    << item->data(ItemData::keyword) << actual << "instead of" << expected;
        }
        return misplaced;
    }

    QTemporaryDir folder;
    TonquillMainWin window;

private:
    /** One pixel of an ordinary screen: lines are that wide and may lie on either side. */
    static bool areClose(const QRectF &a, const QRectF &b)
    {
        constexpr double inches = 1.0 / 96;
        return !a.isEmpty() && std::abs(a.left() - b.left()) <= inches &&
               std::abs(a.right() - b.right()) <= inches && std::abs(a.top() - b.top()) <= inches &&
               std::abs(a.bottom() - b.bottom()) <= inches;
    }

    /** The ink within an area of the scene, as the screen shows it at 300 %. */
    QRectF inkOnScreen(const QRectF &area) const
    {
        constexpr qreal zoom = 3.0;
        const QRectF ink = inkOf(ItemProbe::pictureOf(*window.scene, area, zoom));
        return QRectF(area.topLeft() + ink.topLeft() / zoom, ink.size() / zoom);
    }

    /** The ink within an area of the paper, in inches as the area. */
    static QRectF inkOnPaper(const QImage &paper, const QRectF &area)
    {
        const double dpi = paper.width() / 8.5;
        const QRect part = QRectF(area.topLeft() * dpi, area.size() * dpi).toRect();
        const QRectF ink = inkOf(paper.copy(part));
        return QRectF((part.topLeft() + ink.topLeft()) / dpi, ink.size() / dpi);
    }
};
