#include "InsertCommands.h"
#include "Logging.h"
#include "OpenBox.h"
#include "PaletteBuilder.h"
#include "SymbolTable.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "ui_TonquillMainWin.h"

#include <QAction>

void TonquillMainWin::constructBitmapSymbols()
{
    symbols = SymbolTable::load();
}

TonquillBitmap *TonquillMainWin::InsertBitmapSymbol(int id, bool adding, bool withInverted)
{
    return scene->insertSymbol(id, adding, withInverted);
}

void TonquillMainWin::InsertNoteRest(int id)
{
    InsertBitmapSymbol(id, true, true);
}

/** `value` counts from 0 (whole) to 7 (128th). */
void TonquillMainWin::insertNoteOrRest(int value)
{
    InsertNoteRest(restMode ? SymbolTable::rest(value) : SymbolTable::note(value));
}

void TonquillMainWin::swapTb2()
{
    m_palette->showToolBar2Icons(restMode);
}

/** The text of the menu entry that triggered the current slot. */
QString TonquillMainWin::senderText() const
{
    const auto *action = qobject_cast<QAction *>(sender());
    return action ? action->text() : QString();
}

void TonquillMainWin::onQuickTextAction(bool on)
{
    quickText = on;
    qCDebug(lcTonquill) << "onQuickTextAction " << (on ? "true" : "false");
    openBox(*this, QMessageBox::Information, QStringLiteral("Quick Text"),
            on ? QStringLiteral("Quick text is on") : QStringLiteral("Quick text is off"));
}

void TonquillMainWin::OnToolBar1ButtonSheetMusic()
{
    ui->toolBar2->setVisible(ui->toolBar2->isHidden());
}

void TonquillMainWin::OnToolBar1ButtonGuitarTabs()
{
    ui->toolBar3->setVisible(ui->toolBar3->isHidden());
}

void TonquillMainWin::OnToolBar3ButtonTextBlock()
{
    m_insert->textBlock();
}

void TonquillMainWin::OnToolBar3ButtonLineTab()
{
    m_insert->tablature();
}

void TonquillMainWin::OnToolBar3ButtonInteractiveLine()
{
    m_insert->line();
}

void TonquillMainWin::OnToolBar2ButtonText()
{
    m_insert->text();
}

void TonquillMainWin::OnToolBar2ButtonGrandstaff()
{
    m_insert->grandstaff();
}

void TonquillMainWin::OnMenuButtonGClef()
{
    InsertBitmapSymbol(SymbolTable::gClef, true, false);
}

void TonquillMainWin::OnMenuButtonFClef()
{
    InsertBitmapSymbol(SymbolTable::fClef, true, false);
}

void TonquillMainWin::OnToolBar2ActionTempo()
{
    m_insert->tempo(senderText());
}

void TonquillMainWin::OnMenuButtonCReg()
{
    InsertBitmapSymbol(SymbolTable::commonTime, true, false);
}

void TonquillMainWin::OnMenuButtonCCut()
{
    InsertBitmapSymbol(SymbolTable::cutTime, true, false);
}

void TonquillMainWin::OnToolBar2ActionTimesig()
{
    m_insert->timeSignature(senderText());
}

void TonquillMainWin::OnMenuButtonFlat()
{
    InsertBitmapSymbol(SymbolTable::flat, true, false);
}

void TonquillMainWin::OnMenuButtonSharp()
{
    InsertBitmapSymbol(SymbolTable::sharp, true, false);
}

void TonquillMainWin::OnMenuButtonNatural()
{
    InsertBitmapSymbol(SymbolTable::natural, true, false);
}

void TonquillMainWin::OnToolBar2ButtonRepeatB()
{
    InsertBitmapSymbol(SymbolTable::repeatBegin, true, false);
}

void TonquillMainWin::OnToolBar2ButtonRepeatE()
{
    InsertBitmapSymbol(SymbolTable::repeatEnd, true, false);
}

void TonquillMainWin::OnToolBar2ButtonStaffLine()
{
    InsertBitmapSymbol(SymbolTable::staffLine, true, false);
}

void TonquillMainWin::OnToolBar2ButtonNote1()
{
    insertNoteOrRest(0);
}

void TonquillMainWin::OnToolBar2ButtonNote2()
{
    insertNoteOrRest(1);
}

void TonquillMainWin::OnToolBar2ButtonNote4()
{
    insertNoteOrRest(2);
}

void TonquillMainWin::OnToolBar2ButtonNote8()
{
    insertNoteOrRest(3);
}

void TonquillMainWin::OnToolBar2ButtonNote16()
{
    insertNoteOrRest(4);
}

void TonquillMainWin::OnToolBar2ButtonNote32()
{
    insertNoteOrRest(5);
}

void TonquillMainWin::OnToolBar2ButtonNote64()
{
    insertNoteOrRest(6);
}

void TonquillMainWin::OnToolBar2ButtonNote128()
{
    insertNoteOrRest(7);
}

void TonquillMainWin::OnToolBar2ButtonNoteDot()
{
    InsertBitmapSymbol(SymbolTable::noteDot, true, false);
}

void TonquillMainWin::OnToolBar2ButtonNoteTrip()
{
    m_insert->triplet();
}

void TonquillMainWin::OnToolBar2ButtonNoteTie()
{
    m_insert->tie();
}

void TonquillMainWin::OnToolBar2ButtonCommonTimeW()
{
    InsertBitmapSymbol(SymbolTable::commonTime, true, false);
}

void TonquillMainWin::OnToolBar2ButtonCommonTimeH()
{
    InsertBitmapSymbol(SymbolTable::cutTime, true, false);
}
