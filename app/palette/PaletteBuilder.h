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

/** Builds the three toolbars and their menus from the PaletteTable, for a window that has them. */
class PaletteBuilder
{
public:
    /** Where what is built can be found, and the pictures of the symbols, all by their ids. */
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
     * `window` has the toolbars by their names, and the slots that the table names; it owns the
     * menus. Symbols without a slot are inserted into `scene`. All of them and the parts outlive
     * the builder. `symbolsReferenceMenu` makes the menu of the button of that name.
     */
    PaletteBuilder(QWidget &window, TonquillScene &scene, const Parts &parts,
                   std::function<QMenu *()> symbolsReferenceMenu);

    /** Builds everything and connects every action to what it does. */
    void build(bool rests);

    /** Builds the menu of a row, which the window then owns. */
    QMenu *constructMenu(const PaletteMenu &row);

    /** Inks all icons in the window's present palette; `rests` as for showToolBar2Icons(). */
    void refreshIcons(bool rests);

    /** Shows rests on toolbar 2's note buttons, or the normal icons. */
    void showToolBar2Icons(bool rests);

    /** A button that opens `menu` at once; it is added to a toolbar as a widget. */
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
