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

/** Shows the same box as the editor when a host reports this. */
void UndoCommands::sayNothingLeft(const QString &title, const QString &text)
{
    openBox(m_window, QMessageBox::Warning, title, text);
}
