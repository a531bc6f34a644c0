#pragma once

#include "PaletteTable.h"

#include <QIcon>

class QMenu;
class QToolBar;
class QToolButton;
class TonquillMainWin;
class ToolBarStrip;

/** Builds the three toolbars and their menus from the PaletteTable, into the window's hashes. */
class PaletteBuilder
{
public:
    explicit PaletteBuilder(TonquillMainWin &window);

    /** Builds everything and connects every action to its slot. */
    void build();

    /** Inks all icons in the window's present palette. */
    void refreshIcons();

    /** Shows rests on toolbar 2's note buttons, or the normal icons. */
    void showToolBar2Icons(bool rests);

    /** A button that opens `menu` at once; it is added to a toolbar as a widget. */
    static QToolButton *constructToolButton(const QIcon &icon, QMenu *menu);

private:
    void buildToolBar(const PaletteToolBar &row);
    void addAction(QToolBar *toolBar, const PaletteEntry &entry);
    void addMenuButton(QToolBar *toolBar, const PaletteEntry &entry);
    QMenu *constructMenu(int buttonId);
    QMenu *fillMenu(const PaletteMenu &row);
    void inkToolBar(const PaletteToolBar &row);
    void inkMenus();
    void keepToolBar2Strips(const ToolBarStrip &normal, const ToolBarStrip &held);
    QToolBar *toolBarOf(const PaletteToolBar &row) const;
    QColor ink() const;

    TonquillMainWin &m_window;
    QList<QIcon> m_toolBar2Icons;
    QList<QIcon> m_toolBar2HeldIcons;
};
