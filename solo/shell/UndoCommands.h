#pragma once

#include <QObject>

class DocumentSession;
class TonquillMainWin;

/** The undo and redo commands, which tell the user when there is nothing to undo or redo. */
class UndoCommands : public QObject
{
public:
    /** Both arguments must outlive the object. */
    UndoCommands(TonquillMainWin &window, DocumentSession &session);

    void undo();
    void redo();

private:
    void sayNothingLeft(const QString &title, const QString &text);

    TonquillMainWin &m_window;
    DocumentSession &m_session;
};
