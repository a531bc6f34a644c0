#include "UndoCommands.h"

#include "DocumentSession.h"
#include "OpenBox.h"
#include "TonquillMainWin.h"

UndoCommands::UndoCommands(TonquillMainWin &window, DocumentSession &session)
    : m_window(window)
    , m_session(session)
{}

void UndoCommands::undo()
{
    if (!m_session.edits().undo())
        sayNothingLeft(QStringLiteral("Undo"), QStringLiteral("Nothing to undo"));
}

void UndoCommands::redo()
{
    if (!m_session.edits().redo())
        sayNothingLeft(QStringLiteral("Redo"), QStringLiteral("Nothing to redo"));
}

/** The box that the editor shows when a host says so. */
void UndoCommands::sayNothingLeft(const QString &title, const QString &text)
{
    openBox(m_window, QMessageBox::Warning, title, text);
}
