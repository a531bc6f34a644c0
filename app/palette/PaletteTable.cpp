#include "PaletteTable.h"

#include "SymbolTable.h"

#include <QCoreApplication>
#include <QObject>

namespace PaletteTable
{
namespace
{
/** Marks a name for translation; scripts/translate extracts it with this context. */
#define NAME(text) QT_TRANSLATE_NOOP("PaletteTable", text)

/** A button or entry for a symbol, with the symbol's name. */
PaletteEntry symbolEntry(int id, const char *slot, int symbol, const char *text = "")
{
    return {.id = id, .slot = slot, .text = text, .symbol = symbol};
}

/** The button of a note value; `value` is 0 (whole) to 7 (128th). */
PaletteEntry noteButton(int id, const char *slot, int value)
{
    PaletteEntry entry = symbolEntry(id, slot, SymbolTable::note(value));
    entry.hint = NAME("hold Ctrl for the rest");
    return entry;
}

QList<PaletteEntry> toolBar1Entries()
{
    return {
        {0, SLOT(OnToolBar1ButtonTrackwright()), "", NAME("Bring Trackwright to the front")},
        {1, SLOT(OnToolBar1ButtonSheetMusic()), "", NAME("Show or hide the sheet music toolbar")},
        {2, SLOT(OnToolBar1ButtonGuitarTabs()), "", NAME("Show or hide the tablature toolbar")},
        {3, SLOT(OnToolBar1ButtonPrintPreview()), "", NAME("Print preview")},
        {4, SLOT(OnToolBar1ButtonPageSetup()), "", NAME("Page setup")},
        {5, SLOT(OnToolBar1ButtonPrint()), "", NAME("Print")},
        {6, SLOT(OnToolBar1ButtonUndo()), "", NAME("Undo")},
        {7, SLOT(OnToolBar1ButtonRedo()), "", NAME("Redo")},
    };
}

QList<PaletteEntry> toolBar3Entries()
{
    return {
        {0x200, SLOT(OnToolBar3ButtonTextBlock()), "", NAME("Text block")},
        {0x201, SLOT(OnToolBar3ButtonLineTab()), "", NAME("Tablature lines")},
        {PaletteTable::symbolsReferenceId, nullptr, "", NAME("Symbols reference")},
        {0x203, SLOT(OnToolBar3ButtonInteractiveLine()), "", NAME("Line")},
    };
}

QList<PaletteEntry> toolBar2Entries()
{
    return {
        {0x100, SLOT(OnToolBar2ButtonText()), "", NAME("Text")},
        {0x101, SLOT(OnToolBar2ButtonGrandstaff()), "", NAME("Grand staff")},
        {0x102, nullptr, "", NAME("Clefs")},
        {0x103, nullptr, "", NAME("Tempo")},
        {0x104, nullptr, "", NAME("Time signatures")},
        {0x105, nullptr, "", NAME("Accidentals")},
        symbolEntry(0x106, SLOT(OnToolBar2ButtonRepeatB()), SymbolTable::repeatBegin),
        symbolEntry(0x107, SLOT(OnToolBar2ButtonRepeatE()), SymbolTable::repeatEnd),
        symbolEntry(0x108, SLOT(OnToolBar2ButtonStaffLine()), SymbolTable::staffLine),
        noteButton(0x109, SLOT(OnToolBar2ButtonNote1()), 0),
        noteButton(0x10a, SLOT(OnToolBar2ButtonNote2()), 1),
        noteButton(0x10b, SLOT(OnToolBar2ButtonNote4()), 2),
        noteButton(0x10c, SLOT(OnToolBar2ButtonNote8()), 3),
        noteButton(0x10d, SLOT(OnToolBar2ButtonNote16()), 4),
        noteButton(0x10e, SLOT(OnToolBar2ButtonNote32()), 5),
        noteButton(0x10f, SLOT(OnToolBar2ButtonNote64()), 6),
        noteButton(0x110, SLOT(OnToolBar2ButtonNote128()), 7),
        symbolEntry(0x111, SLOT(OnToolBar2ButtonNoteDot()), SymbolTable::noteDot),
        {0x112, SLOT(OnToolBar2ButtonNoteTrip()), "", NAME("Triplet bracket")},
        {0x113, SLOT(OnToolBar2ButtonNoteTie()), "", NAME("Tie")},
    };
}

QList<PaletteEntry> clefs()
{
    return {
        symbolEntry(0x1100, SLOT(OnMenuButtonGClef()), SymbolTable::gClef, "G Clef"),
        symbolEntry(0x1101, SLOT(OnMenuButtonFClef()), SymbolTable::fClef, "F Clef"),
    };
}

QList<PaletteEntry> accidentals()
{
    return {
        symbolEntry(0x1400, SLOT(OnMenuButtonFlat()), SymbolTable::flat, "Flat"),
        symbolEntry(0x1401, SLOT(OnMenuButtonSharp()), SymbolTable::sharp, "Sharp"),
        symbolEntry(0x1402, SLOT(OnMenuButtonNatural()), SymbolTable::natural, "Natural"),
    };
}

/** Entries with a common slot, which inserts their text. */
QList<PaletteEntry> entriesByText(int firstId, const char *slot,
                                  std::initializer_list<const char *> texts)
{
    QList<PaletteEntry> entries;
    int id = firstId;
    for (const char *text : texts)
        entries.append({id++, slot, text, text});
    return entries;
}

QList<PaletteEntry> tempos()
{
    return entriesByText(0x1200, SLOT(OnToolBar2ActionTempo()),
                         {"Larghissimo", "Grave", "Lento", "Largo", "Larghetto", "Adagio",
                          "Adagietto", "Andante Moderato", "Andante", "Andantino", "Moderato",
                          "Allegretto", "Allegro Moderato", "Allegro", "Vivace", "Vivacissimo",
                          "Allegrissimo", "Presto", "Prestissimo"});
}

QList<PaletteEntry> timeSignatures()
{
    QList<PaletteEntry> entries{
        symbolEntry(0x1300, SLOT(OnMenuButtonCReg()), SymbolTable::commonTime, "C"),
        symbolEntry(0x1301, SLOT(OnMenuButtonCCut()), SymbolTable::cutTime, "C(cut)"),
        PaletteEntry::separator(),
    };
    entries += entriesByText(0x1302, SLOT(OnToolBar2ActionTimesig()),
                             {"2/2", "2/4", "3/4", "3/8", "4/2", "4/4", "6/8", "9/8"});
    entries += PaletteEntry::separator();
    entries += entriesByText(
        0x130a, SLOT(OnToolBar2ActionTimesig()),
        {"3/2", "3/16", "4/8", "5/2", "5/4", "5/8", "5/16", "6/4", "7/16", "9/16", "12/8"});
    return entries;
}

#undef NAME
} // namespace
} // namespace PaletteTable

QString PaletteEntry::translatedName() const
{
    if (name)
        return QCoreApplication::translate("PaletteTable", name);
    const Symbol *shown = SymbolTable::find(symbol);
    return shown ? shown->translatedSense() : QString();
}

QString PaletteEntry::translatedTip() const
{
    if (!hint)
        return translatedName();
    return QStringLiteral("%1 (%2)").arg(translatedName(),
                                         QCoreApplication::translate("PaletteTable", hint));
}

const QList<PaletteToolBar> &PaletteTable::toolBars()
{
    static const QList<PaletteToolBar> table{
        {"toolBar1", "ToolBar1-HighColor", nullptr, toolBar1Entries()},
        {"toolBar3", "ToolBar3-HighColor", nullptr, toolBar3Entries()},
        {"toolBar2", "ToolBar2-HighColor", "ToolBar2-HighColor-B", toolBar2Entries()},
    };
    return table;
}

const QList<PaletteMenu> &PaletteTable::menus()
{
    static const QList<PaletteMenu> table{
        {0x102, clefs()},
        {0x103, tempos()},
        {0x104, timeSignatures()},
        {0x105, accidentals()},
    };
    return table;
}
