#pragma once

#include <QCoreApplication>

class QAction;
class QMenu;
class TonquillMainWin;
struct PaletteEntry;
struct PaletteToolBar;

/**
 * The palette as a menu, so that every command can be reached by keyboard and by name. It is built
 * from the palette's table, and an entry triggers the palette's action, except for notes and rests,
 * which have separate entries that do not depend on Ctrl.
 */
class InsertMenu
{
    Q_DECLARE_TR_FUNCTIONS(InsertMenu)

public:
    /** Fills `menu` with the commands of `window`. */
    static void fill(QMenu &menu, TonquillMainWin &window);

private:
    InsertMenu(QMenu &menu, TonquillMainWin &window)
        : m_menu(menu)
        , m_window(window)
    {}

    void addToolBar(const PaletteToolBar &toolBar);
    void addEntry(QMenu &menu, const PaletteEntry &entry);
    void addButtonMenu(const PaletteEntry &entry);
    void addRests();

    QMenu &m_menu;
    TonquillMainWin &m_window;
};
