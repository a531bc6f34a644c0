#pragma once

#include <QList>
#include <QString>

/** One toolbar button or menu entry of the palette. */
struct PaletteEntry
{
    int id;           ///< its key in the main window's action or menu hash
    const char *slot; ///< the main window's slot, as SLOT() gives it; null for a menu button
    const char *text; ///< what a menu shows; empty on a toolbar, whose buttons are icons
    const char *name; ///< tooltip, status tip and accessible name, untranslated
    int symbol = -1;  ///< the glyph that a menu entry shows as its icon, or -1

    /** What a line between two entries of a menu is written as. */
    static PaletteEntry separator() { return {-1, nullptr, "", "", -1}; }
    bool isSeparator() const { return id < 0; }

    /** The name in the user's language. */
    QString translatedName() const;
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
 * else, so a new symbol is one row here, one slot, and one slice of a strip.
 */
namespace PaletteTable
{
/** The button of toolbar 3 whose menu lists the symbols reference files. */
inline constexpr int symbolsReferenceId = 0x202;
inline constexpr int toolBar2FirstId = 0x100;
inline constexpr int symRefHeadingId = 0x1000;
inline constexpr int symRefCreateNewId = 0x1001;

/** The toolbars in the order in which they are built: 1, 3, 2. */
const QList<PaletteToolBar> &toolBars();

/** The menus of toolbar 2, by their buttons' order. */
const QList<PaletteMenu> &menus();
} // namespace PaletteTable
