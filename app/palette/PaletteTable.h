#pragma once

#include <QList>
#include <QString>

/**
 * One toolbar button or menu entry of the palette: it triggers a slot, inserts a symbol, or opens a
 * menu.
 */
struct PaletteEntry
{
    int id = -1;                ///< its key in the main window's action or menu hash
    const char *slot = nullptr; ///< the main window's, as SLOT() gives it; null if it has none
    const char *text = "";      ///< what a menu shows; empty for its name, and on a toolbar
    const char *name = nullptr; ///< untranslated; null if it is the sense of its symbol
    const char *hint = nullptr; ///< what the tips add, untranslated, or null
    /**
     * The symbol that it stands for, or -1: the icon of a menu entry. Without a slot the entry
     * inserts it, with its upside-down form if it has one.
     */
    int symbol = -1;

    /** What a line between two entries of a menu is written as. */
    static PaletteEntry separator() { return {}; }
    bool isSeparator() const { return id < 0; }

    /** True for the button of a menu. */
    bool opensMenu() const { return !isSeparator() && !slot && symbol < 0; }

    /** The name in the user's language. */
    QString translatedName() const;

    /** Tooltip, status tip and accessible name: the name and the hint in the user's language. */
    QString translatedTip() const;
};

/** One of the three toolbars: its entries' icons are the slices of one image strip, in order. */
struct PaletteToolBar
{
    const char *objectName;
    const char *strip;     ///< the name of the strip's image
    const char *heldStrip; ///< the strip while Ctrl is held, or null
    QList<PaletteEntry> entries;
};

/** The menu behind a toolbar button. */
struct PaletteMenu
{
    int buttonId;
    QList<PaletteEntry> entries;
};

/**
 * The whole palette as rows. Toolbars, menus, tooltips and connections are built from nothing
 * else, so a new symbol is one row here, and on a toolbar a slice of its strip.
 */
namespace PaletteTable
{
/** The button of toolbar 3 whose menu lists the symbols reference files. */
inline constexpr int symbolsReferenceId = 0x202;
inline constexpr int toolBar2FirstId = 0x100;

/** The toolbars in the order in which they are built: 1, 3, 2. */
const QList<PaletteToolBar> &toolBars();

/** The menus of toolbar 2, by their buttons' order. */
const QList<PaletteMenu> &menus();
} // namespace PaletteTable
