#pragma once

#include "PaletteTable.h"

#include <QHash>
#include <QIcon>
#include <QPixmap>

#include <functional>

class QAction;
class QMenu;
class QToolBar;
class QToolButton;
class QWidget;
class TonquillScene;
class ToolBarStrip;

/** Builds the three toolbars of a window and their menus from the PaletteTable. */
class PaletteBuilder
{
public:
    /** Stores the results by their ids, with the pictures of the symbols. */
    struct Parts
    {
        const QHash<int, QPixmap> &symbols;
        QHash<int, QAction *> &actions;
        QHash<int, QMenu *> &menus;
        QHash<int, QPixmap> &strip2;  ///< toolbar 2's icons
        QHash<int, QPixmap> &strip2B; ///< the same while Ctrl is held
        int &tb2Count;
        int &tb2IconWidth;  ///< pixels
        int &tb2IconHeight; ///< pixels
    };

    /**
     * `window` has the toolbars, found by object name, and the slots named in the table; it owns
     * the menus. Symbols without a slot are inserted into `scene`. All of these and the parts
     * outlive the builder. `symbolsReferenceMenu` creates the menu of the symbols-reference button.
     */
    PaletteBuilder(QWidget &window, TonquillScene &scene, const Parts &parts,
                   std::function<QMenu *()> symbolsReferenceMenu);

    /** Builds everything and connects all actions. */
    void build(bool rests);

    /** Builds the menu of a row; the window owns it. */
    QMenu *constructMenu(const PaletteMenu &row);

    /** Redraws all icons in the window's current palette; `rests` as for showToolBar2Icons(). */
    void refreshIcons(bool rests);

    /** Shows rests on toolbar 2's note buttons, or the normal icons. */
    void showToolBar2Icons(bool rests);

    /** A button that opens `menu` immediately, to be added to a toolbar, which then owns it. */
    static QToolButton *constructToolButton(const QIcon &icon, QMenu *menu);

private:
    void buildToolBar(const PaletteToolBar &row);
    void addAction(QToolBar *toolBar, const PaletteEntry &entry);
    void addMenuButton(QToolBar *toolBar, const PaletteEntry &entry);
    QMenu *constructMenuOf(int buttonId);
    void connectAction(QAction &action, const PaletteEntry &entry);
    void inkToolBar(const PaletteToolBar &row);
    void inkMenus();
    void keepToolBar2Strips(const ToolBarStrip &normal, const ToolBarStrip &held);
    QToolBar *toolBarOf(const PaletteToolBar &row) const;
    QColor ink() const;

    QWidget &m_window;
    TonquillScene &m_scene;
    Parts m_parts;
    std::function<QMenu *()> m_symbolsReferenceMenu;
    QList<QIcon> m_toolBar2Icons;
    QList<QIcon> m_toolBar2HeldIcons;
};
