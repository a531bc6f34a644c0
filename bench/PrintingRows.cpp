#include "Comparison.h"
#include "DirectPainting.h"
#include "Editor.h"
#include "Rows.h"

#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

namespace
{
constexpr int itemsOnPage = 100;

/** A printer to a file that is deleted with it. */
struct FilePrinter
{
    FilePrinter()
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("pages.pdf")));
    }
    QTemporaryDir folder;
    QPrinter printer{QPrinter::ScreenResolution};
};

double print(int pages)
{
    Editor editor;
    editor.load(SampleDocument::mixOnPages(pages, itemsOnPage));
    editor.scene().setPageNum(pages);
    FilePrinter file;
    return cpuSeconds([&] { editor.window().print(&file.printer); });
}

void paintPages(QPrinter &printer, const SampleDocument::Samples &samples, int pages)
{
    const TonquillScene &scene = *g_pMainWin->scene;
    QPainter painter(&printer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(printer.width() / scene.pageRect.width(),
                  printer.height() / scene.pageRect.height());
    const QTransform toPaper = painter.transform();
    for (int page = 0; page < pages; ++page) {
        for (int i = page * itemsOnPage; i < (page + 1) * itemsOnPage; ++i) {
            const QPointF place = samples[i].position - QPointF(0, page * scene.pagePitch());
            painter.setTransform(QTransform::fromTranslate(place.x(), place.y()) * toPaper);
            DirectPainting::paint(painter, samples[i].kind);
        }
        if (page < pages - 1)
            printer.newPage();
    }
}

double paintDirectly(int pages)
{
    const SampleDocument::Samples samples = SampleDocument::mixOnPages(pages, itemsOnPage);
    FilePrinter file;
    return cpuSeconds([&] { paintPages(file.printer, samples, pages); });
}
} // namespace

void Rows::addPrinting()
{
    compare({.operation = "print pages of 100 items to PDF",
             .ours = print,
             .floor = paintDirectly,
             .counts = {1, 10, 100}});
}
