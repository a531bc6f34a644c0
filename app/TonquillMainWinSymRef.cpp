#include "SymRefFiles.h"
#include "TonquillMainWin.h"

QMenu *TonquillMainWin::constructMenuSymRef()
{
    return m_symRefs->menu();
}

void TonquillMainWin::OnMenuActionSymRefCreateNew()
{
    m_symRefs->createNew();
}

void TonquillMainWin::OnMenuActionSymRefSymRef()
{
    m_symRefs->open(sender());
}

// These files are spelt "Symref_", unlike those that the menu lists. Both spellings are
// intentional.

void TonquillMainWin::OnMenuActionSymRefCymbals()
{
    m_symRefs->openWithNotepad(QStringLiteral("Symref_Cymbals.txt"));
}

void TonquillMainWin::OnMenuActionSymRefDrumKit()
{
    m_symRefs->openWithNotepad(QStringLiteral("Symref_DrumKit.txt"));
}

void TonquillMainWin::OnMenuActionSymRefDrums()
{
    m_symRefs->openWithNotepad(QStringLiteral("Symref_Drums.txt"));
}

void TonquillMainWin::OnMenuActionSymRefGuitar()
{
    m_symRefs->openWithNotepad(QStringLiteral("Symref_Guitar.txt"));
}

void TonquillMainWin::OnMenuActionSymRefHarmonica() {}
