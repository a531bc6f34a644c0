#pragma once

#include "ItemProbe.h"
#include "ScenePointer.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QCursor>
#include <QtTest>

/** The editor's window, shown and active, with helpers for tests. */
struct EditorWindow
{
    EditorWindow()
        : pointer(*window.scene)
    {
        window.show();
        window.view()->setFocus();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not become active");
    }

    TonquillScene &scene() { return *window.scene; }
    TonquillView &view() { return *window.view(); }

    /** The records of all items, in the order of the document. */
    QStringList records()
    {
        QStringList result;
        for (QGraphicsItem *item : ItemProbe::documentItems(scene()))
            result.append(ItemProbe::recordOf(item));
        return result;
    }

    /** Builds a record and returns its item, the topmost of its kind; the scene owns it. */
    template <typename Item>
    Item *build(const QString &record)
    {
        scene().constructItem(record, false, 0);
        for (QGraphicsItem *item : ItemProbe::documentItems(scene())) {
            if (auto *found = qgraphicsitem_cast<Item *>(item))
                return found;
        }
        return nullptr;
    }

    /** Moves the mouse cursor over the view and returns the scene point of an item placed there. */
    QPointF putCursorOnPage()
    {
        const QPoint inView(150, 120);
        QCursor::setPos(view().mapToGlobal(inView));
        return view().mapToScene(inView);
    }

    TonquillMainWin window;
    ScenePointer pointer;
};
