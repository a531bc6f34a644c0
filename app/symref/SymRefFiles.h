#pragma once

#include <QString>

class QMenu;
class QObject;
class TonquillMainWin;

/**
 * The symbols reference files: one plain text for each instrument, in the application's directory.
 * The program lists and writes them and hands them to the user's text editor; it never reads them.
 */
class SymRefFiles
{
public:
    explicit SymRefFiles(TonquillMainWin &window);

    /** The menu of the symbols-reference button, made or filled anew from the directory. */
    QMenu *menu();

    /** Opens the file of the menu entry that `action` is. */
    void open(const QObject *action) const;

    /** Runs the dialog for a new file, then lists it. */
    void createNew();

    /** Opens a text file with the system's "notepad", by its name in the directory. */
    void openWithNotepad(const QString &fileName) const;

    /** The file of an instrument. */
    static QString pathOf(const QString &instrument);

    /** False if the name climbs out of a folder, and with it out of the application's directory. */
    static bool staysInDirectory(const QString &instrument);

private:
    TonquillMainWin &m_window;
};
