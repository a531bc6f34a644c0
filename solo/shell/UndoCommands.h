#pragma once

#include <QObject>

class DocumentSession;
class TonquillMainWin;

/** Undo and redo as commands of the user, who hears when there is nothing left. */
class UndoCommands : public QObject
{
public:
    /** Both arguments outlive the object. */
    UndoCommands(TonquillMainWin &window, DocumentSession &session);

    void undo();
    void redo();

private:
    void sayNothingLeft(const QString &title, const QString &text);

    TonquillMainWin &m_window;
    DocumentSession &m_session;
};
