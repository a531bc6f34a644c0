#pragma once

#include <QMenuBar>

class FileCommands;
class QGraphicsItem;
class TonquillMainWin;
class TonquillScene;
class UndoCommands;
class ZoomControl;

/**
 * The menus of the editor's window. Entries for what the editor's own keys do show the key but are
 * not bound to it: the editor acts on the key's release and would act twice.
 */
class MenuBar : public QMenuBar
{
    Q_OBJECT

public:
    /** All arguments must outlive the menu bar. */
    MenuBar(TonquillMainWin &window, FileCommands &files, UndoCommands &undo, ZoomControl &zoom);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildInsertMenu();
    void buildHelpMenu();
    void fillRecentMenu();
    void addToolBarEntry(QMenu *menu, const char *objectName, const QString &text);
    QAction *addItemCommand(QMenu *menu, const QString &text, QKeyCombination key,
                            bool (TonquillScene::*command)());
    void leave();
    void selectAll();
    void forgetText();
    void onFocusItemChanged(QGraphicsItem *now, QGraphicsItem *before, Qt::FocusReason reason);

    TonquillMainWin &m_window;
    FileCommands &m_files;
    UndoCommands &m_undo;
    ZoomControl &m_zoom;
    QMenu *m_recent = nullptr;
    bool m_textWasLeft = false; ///< opening a menu has just ended text editing
};
