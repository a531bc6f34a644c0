#include "InsertMenu.h"

#include "PaletteTable.h"
#include "SymbolTable.h"
#include "TonquillMainWin.h"

#include <QAction>
#include <QMenu>

namespace
{
/** The toolbars that insert something; the first holds commands of other menus. */
bool inserts(const PaletteToolBar &toolBar)
{
    return qstrcmp(toolBar.objectName, "toolBar1") != 0;
}
} // namespace

void InsertMenu::fill(QMenu &menu, TonquillMainWin &window)
{
    InsertMenu filler(menu, window);
    for (const PaletteToolBar &toolBar : PaletteTable::toolBars()) {
        if (!inserts(toolBar))
            continue;
        menu.addSeparator();
        filler.addToolBar(toolBar);
    }
    menu.addSeparator();
    filler.addRests();
}

void InsertMenu::addToolBar(const PaletteToolBar &toolBar)
{
    for (const PaletteEntry &entry : toolBar.entries) {
        if (entry.opensMenu())
            addButtonMenu(entry);
        else
            addEntry(m_menu, entry);
    }
}

void InsertMenu::addEntry(QMenu &menu, const PaletteEntry &entry)
{
    QAction *command = m_window.actions.value(entry.id);
    // Without the hint on what Ctrl does, which does not hold for a menu.
    QAction *action =
        menu.addAction(command->icon(), entry.translatedName().replace(u'&', QStringLiteral("&&")));
    if (!SymbolTable::isNote(entry.symbol)) {
        QObject::connect(action, &QAction::triggered, command, &QAction::trigger);
        return;
    }
    // What is called a note is one with Ctrl held, too: the rests have a menu of their own.
    QObject::connect(action, &QAction::triggered, &m_window,
                     [window = &m_window, note = entry.symbol] { window->InsertNoteRest(note); });
}

void InsertMenu::addButtonMenu(const PaletteEntry &entry)
{
    QMenu *submenu = m_menu.addMenu(entry.translatedName());
    if (entry.id == PaletteTable::symbolsReferenceId) {
        // The files may be others the next time.
        QObject::connect(submenu, &QMenu::aboutToShow, submenu, [submenu, window = &m_window] {
            submenu->clear();
            submenu->addActions(window->constructMenuSymRef()->actions());
        });
        return;
    }
    for (const PaletteMenu &row : PaletteTable::menus()) {
        if (row.buttonId != entry.id)
            continue;
        for (const PaletteEntry &inner : row.entries)
            inner.isSeparator() ? void(submenu->addSeparator()) : addEntry(*submenu, inner);
    }
}

/** The toolbar has them behind the notes while Ctrl is held. */
void InsertMenu::addRests()
{
    QMenu *rests = m_menu.addMenu(tr("Rests"));
    for (int value = 0; value < SymbolTable::noteValues; ++value) {
        const int rest = SymbolTable::rest(value);
        rests->addAction(SymbolTable::find(rest)->translatedSense(), &m_window,
                         [window = &m_window, rest] { window->InsertNoteRest(rest); });
    }
}
