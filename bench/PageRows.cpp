#include "BareScene.h"
#include "Comparison.h"
#include "Editor.h"
#include "Rows.h"

namespace
{
double insertPageAtBeginning(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    return cpuSeconds([&] { editor.scene().addPageAtBegining(); });
}

double deleteFirstPage(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    return cpuSeconds([&] { editor.scene().deletePage(1); });
}

double moveBareItems(int count)
{
    BareScene scene(count);
    scene.addBareItems(SampleDocument::glyphs(count));
    scene.settle();
    const double pitch = g_pMainWin->scene->pagePitch();
    return cpuSeconds([&] {
        for (QGraphicsItem *item : scene.bareItems())
            item->setPos(item->x(), item->y() + pitch);
    });
}
} // namespace

void Rows::addPages()
{
    compare({.operation = "insert a page at the beginning",
             .ours = insertPageAtBeginning,
             .floor = moveBareItems});
    compare({.operation = "delete page 1", .ours = deleteFirstPage, .floor = moveBareItems});
}
