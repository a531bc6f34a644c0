#include "BareScene.h"
#include "Comparison.h"
#include "Editor.h"
#include "Rows.h"
#include "ScenePointer.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainterPath>

namespace
{
/** The number of items in the baseline of the pointer and arrow rows. */
constexpr int fewItems = 100;
constexpr int steps = 1000;

/** A path of the pointer that crosses as many items as in the baseline's document. */
QPointF onTheWay(int step)
{
    return QPointF(step % 600, 100);
}

/** From the release of the left button to the last byte handed to the system. */
double finishEdit(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    editor.connectToHost();
    ScenePointer pointer(editor.scene());
    const QPointF paper(2, 2);
    pointer.press(paper);
    pointer.release(paper); // ends a rubber-band selection, which sends nothing
    return cpuSeconds([&] {
        pointer.release(paper);
        editor.writeOut();
    });
}

double askEachByName(int count)
{
    BareScene scene(count, BareScene::Glyphs::CallableByName);
    scene.addBareItems(SampleDocument::glyphs(count));
    return cpuSeconds([&] {
        for (QGraphicsItem *item : scene.items()) {
            if (item->parentItem())
                continue;
            QString record;
            QMetaObject::invokeMethod(static_cast<BareGlyphObject *>(item), "getParamStr",
                                      Qt::DirectConnection, Q_RETURN_ARG(QString, record));
        }
    });
}

QRectF firstPage(int)
{
    return g_pMainWin->scene->paperRect;
}

QRectF allPages(int count)
{
    QRectF area = g_pMainWin->scene->paperRect;
    area.setHeight(SampleDocument::pagesFor(count) * g_pMainWin->scene->pagePitch());
    return area;
}

using Area = QRectF (*)(int count);

/** The release of a rubber-band selection. */
double rubberBand(int count, Area area)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    ScenePointer pointer(editor.scene());
    pointer.press(area(count).topLeft());
    pointer.moveTo(area(count).bottomRight());
    return cpuSeconds([&] { pointer.release(area(count).bottomRight()); });
}

double setSelectionArea(int count, Area area)
{
    BareScene scene(count);
    scene.addBareItems(SampleDocument::glyphs(count));
    scene.settle();
    QPainterPath path;
    path.addRect(area(count));
    return cpuSeconds(
        [&] { scene.setSelectionArea(path, Qt::ReplaceSelection, Qt::ContainsItemBoundingRect); });
}

void compareRubberBand(const char *operation, Area area)
{
    compare({.operation = operation,
             .ours = [area](int count) { return rubberBand(count, area); },
             .floor = [area](int count) { return setSelectionArea(count, area); }});
}

void selectOneItem(Editor &editor)
{
    editor.scene()
        .itemAt(SampleDocument::glyphs(1).front().position, QTransform())
        ->topLevelItem()
        ->setSelected(true);
}

/** One move of the pointer over the page, with one item selected and no button held. */
double movePointer(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    selectOneItem(editor);
    ScenePointer pointer(editor.scene());
    int step = 0;
    return cpuSecondsOfOne(steps, [&] { pointer.moveTo(onTheWay(step++)); });
}

/** One move of the pointer that drags the selected item. */
double dragItem(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    selectOneItem(editor);
    ScenePointer pointer(editor.scene());
    pointer.press(SampleDocument::glyphs(1).front().position);
    int step = 0;
    return cpuSecondsOfOne(steps, [&] { pointer.moveTo(onTheWay(step++)); });
}

double pressArrow(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    selectOneItem(editor);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    return cpuSecondsOfOne(steps, [&] { QCoreApplication::sendEvent(&editor.scene(), &press); });
}

void compareWithFewItems(const char *operation, double (*measure)(int))
{
    compare({.operation = operation,
             .ours = measure,
             .floor = [measure](int) { return measure(fewItems); },
             .counts = {1000, 10000, 50000, 100000}});
}
} // namespace

void Rows::addEditing()
{
    compare({.operation = "finish an edit",
             .ours = finishEdit,
             .floor = askEachByName,
             .counts = {1000, 10000, 50000, 100000}});
    compareRubberBand("rubber band over one page", firstPage);
    compareRubberBand("rubber band over everything", allPages);
    compareWithFewItems("pointer move, one item selected", movePointer);
    compareWithFewItems("drag of one item", dragItem);
    compareWithFewItems("arrow key, one item selected", pressArrow);
}
