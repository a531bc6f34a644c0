#include "InsertMenu.h"

#include "PaletteTable.h"
#include "SymbolTable.h"
#include "TonquillMainWin.h"

#include <QAction>
#include <QMenu>

#include <array>

namespace
{
/** The toolbars that insert something; the first holds commands of other menus. */
bool inserts(const PaletteToolBar &toolBar)
{
    return qstrcmp(toolBar.objectName, "toolBar1") != 0;
}

constexpr int noteValues = 8;
constexpr int firstNoteButton = PaletteTable::toolBar2FirstId + 9;

/** A name without the hint on what Ctrl does, which does not hold for a menu. */
QString plainName(const PaletteEntry &entry)
{
    const QString name = entry.translatedName();
    const qsizetype hint = name.indexOf(QLatin1String(" ("));
    return hint < 0 ? name : name.first(hint);
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
        if (entry.slot)
            addEntry(m_menu, entry);
        else
            addButtonMenu(entry);
    }
}

void InsertMenu::addEntry(QMenu &menu, const PaletteEntry &entry)
{
    QAction *command = m_window.actions.value(entry.id);
    QAction *action =
        menu.addAction(command->icon(), plainName(entry).replace(u'&', QStringLiteral("&&")));
    const int value = entry.id - firstNoteButton;
    if (value < 0 || value >= noteValues) {
        QObject::connect(action, &QAction::triggered, command, &QAction::trigger);
        return;
    }
    // What is called a note is one with Ctrl held, too: the rests have a menu of their own.
    QObject::connect(action, &QAction::triggered, &m_window, [window = &m_window, value] {
        window->InsertNoteRest(SymbolTable::note(value));
    });
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
    const std::array names{tr("Whole rest"), tr("Half rest"), tr("Quarter rest"), tr("Eighth rest"),
                           tr("16th rest"),  tr("32nd rest"), tr("64th rest"),    tr("128th rest")};
    QMenu *rests = m_menu.addMenu(tr("Rests"));
    for (int value = 0; value < int(names.size()); ++value) {
        rests->addAction(names[size_t(value)], &m_window, [window = &m_window, value] {
            window->InsertNoteRest(SymbolTable::rest(value));
        });
    }
}
