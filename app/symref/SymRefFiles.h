#pragma once

#include <QHash>
#include <QString>

class QAction;
class QMenu;
class QObject;
class QWidget;

/**
 * The symbols reference files: one plain text file per instrument, in the application's directory.
 * The program lists and writes them and opens them in the user's text editor; it never reads them.
 */
class SymRefFiles
{
public:
    /**
     * `window` owns the menu and has the slots OnMenuActionSymRefCreateNew() and
     * OnMenuActionSymRefSymRef(). The two fixed entries are added to `actions`; an existing menu,
     * found in `menus` by its button's id, is refilled. All of them outlive the object.
     */
    SymRefFiles(QWidget &window, QHash<int, QAction *> &actions, const QHash<int, QMenu *> &menus,
                int buttonId);

    /** The menu of the symbols-reference button, created or refilled from the directory. */
    QMenu *menu();

    /** Opens the file of the menu entry `action`. */
    void open(const QObject *action) const;

    /** Runs the dialog for a new file, then lists it. */
    void createNew();

    /** Opens a text file with the system's "notepad", by its name in the directory. */
    void openWithNotepad(const QString &fileName) const;

private:
    QWidget &m_window;
    QHash<int, QAction *> &m_actions;
    const QHash<int, QMenu *> &m_menus;
    int m_buttonId;
};
