#include "PaletteTable.h"

#include <QCoreApplication>
#include <QObject>

namespace PaletteTable
{
namespace
{
/** Marks a name for translation; scripts/translate knows it, and takes its context from here. */
#define NAME(text) QT_TRANSLATE_NOOP("PaletteTable", text)

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
        {0x106, SLOT(OnToolBar2ButtonRepeatB()), "", NAME("Repeat begin")},
        {0x107, SLOT(OnToolBar2ButtonRepeatE()), "", NAME("Repeat end")},
        {0x108, SLOT(OnToolBar2ButtonStaffLine()), "", NAME("Staff line")},
        {0x109, SLOT(OnToolBar2ButtonNote1()), "", NAME("Whole note (hold Ctrl for the rest)")},
        {0x10a, SLOT(OnToolBar2ButtonNote2()), "", NAME("Half note (hold Ctrl for the rest)")},
        {0x10b, SLOT(OnToolBar2ButtonNote4()), "", NAME("Quarter note (hold Ctrl for the rest)")},
        {0x10c, SLOT(OnToolBar2ButtonNote8()), "", NAME("Eighth note (hold Ctrl for the rest)")},
        {0x10d, SLOT(OnToolBar2ButtonNote16()), "", NAME("16th note (hold Ctrl for the rest)")},
        {0x10e, SLOT(OnToolBar2ButtonNote32()), "", NAME("32nd note (hold Ctrl for the rest)")},
        {0x10f, SLOT(OnToolBar2ButtonNote64()), "", NAME("64th note (hold Ctrl for the rest)")},
        {0x110, SLOT(OnToolBar2ButtonNote128()), "", NAME("128th note (hold Ctrl for the rest)")},
        {0x111, SLOT(OnToolBar2ButtonNoteDot()), "", NAME("Note dot")},
        {0x112, SLOT(OnToolBar2ButtonNoteTrip()), "", NAME("Triplet bracket")},
        {0x113, SLOT(OnToolBar2ButtonNoteTie()), "", NAME("Tie")},
    };
}

QList<PaletteEntry> clefs()
{
    return {
        {0x1100, SLOT(OnMenuButtonGClef()), "G Clef", NAME("G clef"), 2},
        {0x1101, SLOT(OnMenuButtonFClef()), "F Clef", NAME("F clef"), 3},
    };
}

QList<PaletteEntry> accidentals()
{
    return {
        {0x1400, SLOT(OnMenuButtonFlat()), "Flat", NAME("Flat"), 5},
        {0x1401, SLOT(OnMenuButtonSharp()), "Sharp", NAME("Sharp"), 4},
        {0x1402, SLOT(OnMenuButtonNatural()), "Natural", NAME("Natural"), 6},
    };
}

/** Entries that differ only in their text, which is what their common slot inserts. */
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
        {0x1300, SLOT(OnMenuButtonCReg()), "C", NAME("Common time"), 0},
        {0x1301, SLOT(OnMenuButtonCCut()), "C(cut)", NAME("Cut time"), 1},
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
    return QCoreApplication::translate("PaletteTable", name);
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
