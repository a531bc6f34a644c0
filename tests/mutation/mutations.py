"""Ways to break the program, each in one place and each something that a test has to notice."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Mutation:
    """One break: this text of the file, which is there once, becomes that one."""

    name: str
    file: str
    text: str
    broken: str
    # The tests that should notice, as a regular expression for ctest.
    tests: str


MUTATIONS = [
    Mutation(
        "the page pitch is one unit short",
        "document/TonquillScene.h",
        "return paperRect.height() + pageSpacing;",
        "return paperRect.height() + pageSpacing - 1;",
        "tst_page",
    ),
    Mutation(
        "items behind a deleted page move up by the whole pitch",
        "document/TonquillScenePages.cpp",
        "const double shift = pageSpacing - paperRect.height();",
        "const double shift = -pagePitch();",
        "tst_pages",
    ),
    Mutation(
        "the lowest half of a page counts as the next page",
        "document/TonquillScenePages.cpp",
        "(0.25 * paperRect.height() + p.y())",
        "(0.5 * paperRect.height() + p.y())",
        "tst_pagegeometry",
    ),
    Mutation(
        "a cleared scene has the normal height",
        "document/TonquillScenePages.cpp",
        "setSceneRect(0, 0, sceneRect().width(), paperRect.height() - pageSpacing);",
        "setSceneRect(0, 0, sceneRect().width(), paperRect.height() + pageSpacing);",
        "tst_pages",
    ),
    Mutation(
        "the units across and down are swapped",
        "document/PageGeometry.cpp",
        "unitsPerInchAcross = 88.0;\nconstexpr double unitsPerInchDown = 90.0;",
        "unitsPerInchAcross = 90.0;\nconstexpr double unitsPerInchDown = 88.0;",
        "tst_pagegeometry",
    ),
    Mutation(
        "coordinates are rounded",
        "items/Truncation.h",
        "return static_cast<int>(value);",
        "return static_cast<int>(value < 0 ? value - 0.5 : value + 0.5);",
        "tst_(bitmap|truncation)",
    ),
    Mutation(
        "a simple text gets the offset once",
        "document/TonquillSceneRecords.cpp",
        "offset == atCursor ? atCursor : 2",
        "offset == atCursor ? atCursor : 1",
        "tst_construction",
    ),
    Mutation(
        "a copy is pasted elsewhere",
        "document/TonquillSceneKeyboard.cpp",
        "constexpr int pasteOffset = 30;",
        "constexpr int pasteOffset = 20;",
        "tst_keyboard",
    ),
    Mutation(
        "the up and down keys are swapped",
        "document/TonquillSceneKeyboard.cpp",
        "return QPointF(0, -nudge);\n    case Qt::Key_Down:\n        return QPointF(0, nudge);",
        "return QPointF(0, nudge);\n    case Qt::Key_Down:\n        return QPointF(0, -nudge);",
        "tst_keyboard",
    ),
    Mutation(
        "of two anchors at one place the higher one is taken",
        "vector/SelectionFrame.cpp",
        "for (qsizetype i = 0; i < m_anchors.size(); ++i)",
        "for (qsizetype i = m_anchors.size() - 1; i >= 0; --i)",
        "tst_selectionframe",
    ),
    Mutation(
        "a glyph turns back when its right button is let go after it was placed",
        "items/TonquillBitmap.cpp",
        "event->button() == Qt::RightButton && !(event->buttons() & Qt::LeftButton);",
        "event->button() == Qt::RightButton;",
        "tst_bitmap",
    ),
    Mutation(
        "a figure is placed with its first click",
        "vector/TonquillVectorItem.cpp",
        "m_itemStatus = ItemStatus::Stretching;",
        "m_itemStatus = ItemStatus::Placed;",
        "tst_pointerstates",
    ),
    Mutation(
        "the end of a rubber band is told to the host",
        "document/TonquillScenePointer.cpp",
        "        selectByRubberBand();\n        return;",
        "        selectByRubberBand();\n        g_pMainWin->notifyTW();\n        return;",
        "tst_(rubberband|hostnotices)",
    ),
    Mutation(
        "a rubber band selects what it touches",
        "document/TonquillScenePointer.cpp",
        "Qt::ContainsItemBoundingRect",
        "Qt::IntersectsItemBoundingRect",
        "tst_rubberband",
    ),
    Mutation(
        "a grand staff of 80 units has a second staff",
        "vector/VectorShapes.cpp",
        "end.y() - start.y() > secondStaffFrom",
        "end.y() - start.y() >= secondStaffFrom",
        "tst_vectorshapes",
    ),
    Mutation(
        "the hooks of a triplet do not turn round",
        "vector/VectorShapes.cpp",
        "start.x() > end.x() ? -tripletHook : tripletHook;",
        "tripletHook;",
        "tst_vectorshapes",
    ),
    Mutation(
        "a tie drawn to the left bends the wrong way",
        "vector/ArcValuesFromPoints.cpp",
        "if (x1 > x2) {",
        "if (x1 < x2) {",
        "tst_arcvalues",
    ),
    Mutation(
        "a message goes on behind a NUL",
        "app/hostlink/IncomingMessage.cpp",
        "m_bytes.indexOf('\\0');",
        "-1;",
        "tst_messages",
    ),
    Mutation(
        "the host's records are separated by line ends",
        "document/Records.cpp",
        "positionOf(u'|', records)",
        "positionOf(u'\\n', records)",
        "tst_messages",
    ),
    Mutation(
        "an undone step leaves its items on top of the others",
        "solo/DocumentPatch.cpp",
        "above->zValue() == item->zValue()",
        "above->zValue() != item->zValue()",
        "tst_editwatcher",
    ),
    Mutation(
        "the index is made for the first items only",
        "document/TonquillScene.cpp",
        "if (m_addedItems <= m_indexFitsUpTo)",
        "if (m_indexFitsUpTo > 0)",
        "tst_manyitems",
    ),
    Mutation(
        "a new text turns the other way",
        "app/palette/InsertCommands.cpp",
        "item->setRotation(-dialog.angle());",
        "item->setRotation(dialog.angle());",
        "tst_simpletextdlg",
    ),
    Mutation(
        "a blank page is printed behind the last one",
        "app/print/PagePrinter.cpp",
        "i < m_window.pageCount - 1",
        "i < m_window.pageCount",
        "tst_printedpages",
    ),
    Mutation(
        "a press in an edited block also begins a drag of other items",
        "document/TonquillScenePointer.cpp",
        "        QGraphicsScene::mousePressEvent(event);\n        return true;",
        "        QGraphicsScene::mousePressEvent(event);\n        return false;",
        "tst_editedtext",
    ),
    Mutation(
        "a move in an edited block also drags other items",
        "document/TonquillScenePointer.cpp",
        "        QGraphicsScene::mouseMoveEvent(event);\n        return;",
        "        QGraphicsScene::mouseMoveEvent(event);",
        "tst_editedtext",
    ),
    Mutation(
        "a release in an edited block tells the host nothing",
        "document/TonquillScenePointer.cpp",
        "        QGraphicsScene::mouseReleaseEvent(event);",
        "        QGraphicsScene::mouseReleaseEvent(event);\n        return;",
        "tst_editedtext",
    ),
    Mutation(
        "a release in an edited block opens its menu twice",
        "document/TonquillScenePointer.cpp",
        "if (frame && frame->parentItem() != served.get(this))",
        "if (frame)",
        "tst_editedtext",
    ),
    Mutation(
        "a block is edited on when another place is pressed",
        "document/TonquillScenePointer.cpp",
        " block->setTextInteractionFlags(Qt::NoTextInteraction);",
        " block->setTextInteractionFlags(Qt::TextEditorInteraction);",
        "tst_editedtext",
    ),
    Mutation(
        "any button ends the editing of quick text",
        "document/TonquillScenePointer.cpp",
        "if (event->button() == Qt::LeftButton && m_quickTextBlock) {",
        "if (m_quickTextBlock) {",
        "tst_quicktext",
    ),
    Mutation(
        "quick text follows the pointer when its mode is off",
        "document/TonquillScenePointer.cpp",
        "if (m_quickTextBlock && g_pMainWin->quickText)",
        "if (m_quickTextBlock)",
        "tst_quicktext",
    ),
    Mutation(
        "a quick text block is smaller than its blank",
        "document/TonquillSceneKeyboard.cpp",
        "    block->adjustSize();\n",
        "",
        "tst_quicktext",
    ),
    Mutation(
        "a rubber band selects with its corners put in order",
        "document/TonquillScenePointer.cpp",
        "path.addRect(m_rubberBand);",
        "path.addRect(m_rubberBand.normalized());",
        "tst_rubberband",
    ),
    Mutation(
        "the item with the focus gets no release of a key",
        "document/TonquillSceneKeyboard.cpp",
        "    } else {\n        QGraphicsScene::keyReleaseEvent(event);\n    }",
        "    }",
        "tst_focuskeys",
    ),
    Mutation(
        "arrow keys stop for a text that is not selected",
        "document/TonquillSceneKeyboard.cpp",
        "    if (!step.isNull()) {\n        if (isSelectedItemEdited()) {",
        "    if (!step.isNull()) {\n        if (isAnyItemEdited()) {",
        "tst_focuskeys",
    ),
    Mutation(
        "quick text opens a block beside a text that is edited",
        "document/TonquillSceneKeyboard.cpp",
        "        if (!isAnyItemEdited())\n            startQuickTextBlock();",
        "        if (!isSelectedItemEdited())\n            startQuickTextBlock();",
        "tst_focuskeys",
    ),
    Mutation(
        "a glyph's record begins with the keyword of its class",
        "items/TonquillBitmap.cpp",
        "ItemModel::keywordOf(*this)",
        "Records::bitmapKeyword()",
        "tst_itemmodel",
    ),
    Mutation(
        "a press in an edited block drags it",
        "items/TonquillTextBlock.cpp",
        "    else if (ItemModel::onlyLeftButtonHeld(*event))\n        startDrag(*event);",
        "    if (ItemModel::onlyLeftButtonHeld(*event))\n        startDrag(*event);",
        "tst_textblock",
    ),
    Mutation(
        "the last item of a document is not the one that Space repeats",
        "document/TonquillSceneRecords.cpp",
        "    m_lastAdded = ItemReference(m_lastBuilt);\n",
        "",
        "tst_keyboard",
    ),
    Mutation(
        "a page is not painted while a block on it is resized",
        "items/TonquillTextBlock.cpp",
        "    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);\n",
        "",
        "tst_textblock",
    ),
]
