#include "BareScene.h"
#include "Comparison.h"
#include "Editor.h"
#include "Rows.h"
#include "TonquillView.h"

#include <QImage>

namespace
{
constexpr int repaints = 5;

enum class Zoom { Full, FitWidth };
using MakeSamples = SampleDocument::Samples (*)(int count);

void setZoom(QGraphicsView &view, Zoom zoom)
{
    view.resetTransform();
    if (zoom == Zoom::FitWidth) {
        const double scale = view.viewport()->width() / view.sceneRect().width();
        view.scale(scale, scale);
    }
    view.centerOn(view.sceneRect().center());
}

/** One repaint of the whole viewport. */
double repaint(QGraphicsView &view, Zoom zoom)
{
    setZoom(view, zoom);
    QImage image(view.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    const auto paint = [&] { view.viewport()->render(&image); };
    paint(); // loads everything that is loaded only once
    return cpuSecondsOfOne(repaints, paint);
}

double repaintOurs(const SampleDocument::Samples &samples, Zoom zoom)
{
    Editor editor;
    editor.load(samples);
    const double result = repaint(*editor.window().view(), zoom);
    setZoom(*editor.window().view(), Zoom::Full);
    return result;
}

double repaintBare(const SampleDocument::Samples &samples, Zoom zoom)
{
    BareScene scene(static_cast<int>(samples.size()));
    scene.addBareItems(samples);
    QGraphicsView view(&scene);
    view.resize(g_pMainWin->view()->size());
    view.show();
    view.hide();
    return repaint(view, zoom);
}

void compareRepaint(const char *operation, MakeSamples make, Zoom zoom)
{
    compare({.operation = operation,
             .ours = [=](int count) { return repaintOurs(make(count), zoom); },
             .floor = [=](int count) { return repaintBare(make(count), zoom); }});
}
} // namespace

void Rows::addPainting()
{
    compareRepaint("repaint at 100 %, glyphs", SampleDocument::glyphs, Zoom::Full);
    compareRepaint("repaint at 100 %, all kinds", SampleDocument::mix, Zoom::Full);
    compareRepaint("repaint at fit width, glyphs", SampleDocument::glyphs, Zoom::FitWidth);
    compareRepaint("repaint at fit width, all kinds", SampleDocument::mix, Zoom::FitWidth);
}
