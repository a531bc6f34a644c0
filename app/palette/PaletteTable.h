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
    const char *slot = nullptr; ///< of the main window, as SLOT() returns it; null if none
    const char *text = "";      ///< shown in a menu; empty for the name, and on a toolbar
    const char *name = nullptr; ///< untranslated; null for the sense of its symbol
    const char *hint = nullptr; ///< added to the tips, untranslated; null for none
    /**
     * The id of its symbol, which is the icon of a menu entry; -1 for none. Without a slot, the
     * entry inserts the symbol with its upside-down form, if any.
     */
    int symbol = -1;

    /** A separator between two entries of a menu. */
    static PaletteEntry separator() { return {}; }
    bool isSeparator() const { return id < 0; }

    /** True for the button of a menu. */
    bool opensMenu() const { return !isSeparator() && !slot && symbol < 0; }

    /** The name in the user's language. */
    QString translatedName() const;

    /** The tool tip, status tip and accessible name: name and hint in the user's language. */
    QString translatedTip() const;
};

/** One of the three toolbars: its entries' icons are the slices of one image strip, in order. */
struct PaletteToolBar
{
    const char *objectName;
    const char *strip;     ///< name of the strip's image
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
 * The whole palette as rows, from which toolbars, menus, tool tips and connections are built. A new
 * symbol takes one row here and, on a toolbar, one slice of its strip.
 */
namespace PaletteTable
{
/** The button of toolbar 3 whose menu lists the symbols reference files. */
inline constexpr int symbolsReferenceId = 0x202;
inline constexpr int toolBar2FirstId = 0x100;

/** The toolbars in building order: 1, 3, 2. */
const QList<PaletteToolBar> &toolBars();

/** The menus of toolbar 2, in the order of their buttons. */
const QList<PaletteMenu> &menus();
} // namespace PaletteTable
