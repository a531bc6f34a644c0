#include "BareScene.h"
#include "Comparison.h"
#include "Editor.h"
#include "Rows.h"
#include "TonquillBitmap.h"

#include <QCoreApplication>
#include <QKeyEvent>

using SampleDocument::Samples;

namespace
{
using MakeSamples = Samples (*)(int count);

/** From the arrival of the host's message to the built scene. */
double receive(const Samples &samples)
{
    Editor editor;
    editor.connectToHost();
    const QPointer<QObject> old = editor.window().InsertBitmapSymbol(0, false, false);
    editor.host().send(SampleDocument::message(samples));
    return cpuSeconds([&] { editor.receiveDocumentInPlaceOf(old); });
}

double addBareItems(const Samples &samples, BareScene::Glyphs glyphs)
{
    BareScene scene(static_cast<int>(samples.size()), glyphs);
    return cpuSeconds([&] { scene.addBareItems(samples); });
}

void compareReceiving(const char *operation, MakeSamples make, BareScene::Glyphs glyphs,
                      const std::vector<int> &counts)
{
    compare({.operation = operation,
             .ours = [make](int count) { return receive(make(count)); },
             .floor = [make, glyphs](int count) { return addBareItems(make(count), glyphs); },
             .counts = counts});
}

double clear(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    return cpuSeconds([&] { editor.scene().clearScene(); });
}

double clearBare(int count)
{
    BareScene scene(count);
    scene.addBareItems(SampleDocument::glyphs(count));
    scene.settle();
    return cpuSeconds([&] { scene.clear(); });
}

/** Like the Delete key, without a host. */
double deleteEverySecondItem(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    const QList<QGraphicsItem *> items = editor.scene().items();
    // Each item is followed by its frame in the list.
    for (qsizetype i = 0; i < items.size(); i += 4)
        items[i]->topLevelItem()->setSelected(true);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Delete, Qt::NoModifier);
    return cpuSeconds([&] { QCoreApplication::sendEvent(&editor.scene(), &release); });
}
} // namespace

void Rows::addDocument()
{
    compareReceiving("receive a document of glyphs", SampleDocument::glyphs,
                     BareScene::Glyphs::CallableByName, {1000, 10000, 50000, 100000});
    compareReceiving("receive a document of all kinds", SampleDocument::mix,
                     BareScene::Glyphs::CallableByName, {1000, 10000, 100000});
    compareReceiving("receive glyphs, against plain items", SampleDocument::glyphs,
                     BareScene::Glyphs::Plain, {50000, 100000});
    compare({.operation = "clear the scene", .ours = clear, .floor = clearBare});
    compare({.operation = "delete a selection of half the items",
             .ours = deleteEverySecondItem,
             .floor = clearBare});
}
