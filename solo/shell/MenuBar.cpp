#include "MenuBar.h"

#include "FileCommands.h"
#include "HelpPages.h"
#include "InsertMenu.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "UndoCommands.h"
#include "ZoomControl.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QToolBar>

MenuBar::MenuBar(TonquillMainWin &window, FileCommands &files, UndoCommands &undo,
                 ZoomControl &zoom)
    : QMenuBar(&window)
    , m_window(window)
    , m_files(files)
    , m_undo(undo)
    , m_zoom(zoom)
{
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildInsertMenu();
    buildHelpMenu();
    connect(window.scene, &QGraphicsScene::focusItemChanged, this, &MenuBar::onFocusItemChanged);
    for (const QAction *title : actions()) {
        title->menu()->installEventFilter(this);
        // Queued: the next menu of the bar may open instead.
        connect(title->menu(), &QMenu::aboutToHide, this, &MenuBar::forgetText,
                Qt::QueuedConnection);
    }
}

/** Escape also leaves the menu bar, where Qt would invisibly keep the keyboard focus. */
bool MenuBar::eventFilter(QObject *, QEvent *event)
{
    // Queued, so that the menu handles the key first.
    if (event->type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Escape)
        QMetaObject::invokeMethod(this, &MenuBar::leave, Qt::QueuedConnection);
    return false;
}

/** Returns the focus to where it was before, unless only a submenu was closed. */
void MenuBar::leave()
{
    if (!hasFocus() || QApplication::activePopupWidget())
        return;
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &escape);
}

void MenuBar::buildFileMenu()
{
    QMenu *menu = addMenu(tr("&File"));
    menu->addAction(tr("&New"), QKeySequence::New, &m_files, &FileCommands::makeNew);
    menu->addAction(tr("&Open…"), QKeySequence::Open, &m_files, &FileCommands::open);
    m_recent = menu->addMenu(tr("Open &Recent"));
    connect(menu, &QMenu::aboutToShow, this, &MenuBar::fillRecentMenu);
    menu->addAction(tr("&Save"), QKeySequence::Save, &m_files, &FileCommands::save);
    menu->addAction(tr("Save &As…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), &m_files,
                    &FileCommands::saveAs);
    menu->addSeparator();
    menu->addAction(tr("&Export as PDF…"), QKeySequence(Qt::CTRL | Qt::Key_E), &m_files,
                    &FileCommands::exportPdf);
    menu->addAction(tr("Print Pre&view…"), &m_window,
                    &TonquillMainWin::OnToolBar1ButtonPrintPreview);
    menu->addAction(tr("Page Set&up…"), &m_window, &TonquillMainWin::OnToolBar1ButtonPageSetup);
    menu->addAction(tr("&Print…"), QKeySequence::Print, &m_window,
                    &TonquillMainWin::OnToolBar1ButtonPrint);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), &m_window, &QWidget::close);
}

void MenuBar::fillRecentMenu()
{
    m_recent->clear();
    for (const QString &path : FileCommands::recentFiles()) {
        QAction *entry =
            m_recent->addAction(QFileInfo(path).fileName().replace(u'&', QStringLiteral("&&")),
                                &m_files, [this, path] { m_files.openFile(path); });
        entry->setStatusTip(path);
    }
    m_recent->setEnabled(!m_recent->isEmpty());
}

void MenuBar::buildEditMenu()
{
    QMenu *menu = addMenu(tr("&Edit"));
    menu->addAction(tr("&Undo"), QKeySequence::Undo, &m_undo, &UndoCommands::undo);
    QAction *redo = menu->addAction(tr("&Redo"), &m_undo, &UndoCommands::redo);
    redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    menu->addSeparator();
    const QList<QAction *> itemCommands{
        addItemCommand(menu, tr("&Copy"), QKeyCombination(Qt::CTRL, Qt::Key_C),
                       &TonquillScene::copySelection),
        addItemCommand(menu, tr("&Paste"), QKeyCombination(Qt::CTRL, Qt::Key_V),
                       &TonquillScene::pasteCopies),
        addItemCommand(menu, tr("&Delete"), Qt::Key_Delete, &TonquillScene::deleteSelection),
    };
    menu->addSeparator();
    menu->addAction(tr("Select &All"), QKeySequence::SelectAll, this, &MenuBar::selectAll);
    // While a text is edited these would act on whole items instead of the text. A click on the bar
    // or another menu has already ended the editing here; this menu's mnemonic ends it only later.
    connect(menu, &QMenu::aboutToShow, this, [this, itemCommands] {
        const auto *text = qgraphicsitem_cast<TonquillTextBlock *>(m_window.scene->focusItem());
        const bool isTextMeant = m_textWasLeft || (text && TonquillTextBlock::isEdited(*text));
        for (QAction *entry : itemCommands)
            entry->setDisabled(isTextMeant);
    });
}

QAction *MenuBar::addItemCommand(QMenu *menu, const QString &text, QKeyCombination key,
                                 bool (TonquillScene::*command)())
{
    return menu->addAction(text + u'\t' + QKeySequence(key).toString(QKeySequence::NativeText),
                           m_window.scene, command);
}

void MenuBar::selectAll()
{
    for (QGraphicsItem *item : m_window.scene->items()) {
        if (!item->parentItem())
            item->setSelected(true);
    }
}

void MenuBar::onFocusItemChanged(QGraphicsItem *, QGraphicsItem *before, Qt::FocusReason reason)
{
    const bool byMenu = reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
                        (reason == Qt::MouseFocusReason && underMouse());
    m_textWasLeft = byMenu && qgraphicsitem_cast<TonquillTextBlock *>(before) != nullptr;
}

void MenuBar::forgetText()
{
    if (!QApplication::activePopupWidget())
        m_textWasLeft = false;
}

void MenuBar::buildViewMenu()
{
    QMenu *menu = addMenu(tr("&View"));
    QAction *in = menu->addAction(tr("Zoom &In"), &m_zoom, &ZoomControl::zoomIn);
    in->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    menu->addAction(tr("Zoom &Out"), QKeySequence(Qt::CTRL | Qt::Key_Minus), &m_zoom,
                    &ZoomControl::zoomOut);
    menu->addAction(tr("&100 %"), QKeySequence(Qt::CTRL | Qt::Key_0), &m_zoom,
                    &ZoomControl::showActualSize);
    menu->addAction(tr("Fit &Width"), QKeySequence(Qt::CTRL | Qt::Key_9), &m_zoom,
                    &ZoomControl::fitWidth);
    menu->addSeparator();
    addToolBarEntry(menu, "toolBar2", tr("&Sheet Music Toolbar"));
    addToolBarEntry(menu, "toolBar3", tr("&Tablature Toolbar"));
}

void MenuBar::addToolBarEntry(QMenu *menu, const char *objectName, const QString &text)
{
    auto *toolBar = m_window.findChild<QToolBar *>(QString::fromLatin1(objectName));
    QAction *entry = menu->addAction(text);
    entry->setCheckable(true);
    connect(entry, &QAction::triggered, toolBar, &QWidget::setVisible);
    connect(menu, &QMenu::aboutToShow, entry,
            [entry, toolBar] { entry->setChecked(!toolBar->isHidden()); });
}

void MenuBar::buildInsertMenu()
{
    InsertMenu::fill(*addMenu(tr("&Insert")), m_window);
}

void MenuBar::buildHelpMenu()
{
    QMenu *menu = addMenu(tr("&Help"));
    menu->addAction(tr("&Keys and Mouse"), QKeySequence(Qt::Key_F1), &m_window,
                    [this] { HelpPages::showKeysAndMouse(m_window); });
    menu->addAction(tr("Letters of the &Musica Font"), &m_window,
                    [this] { HelpPages::showMusicaLetters(m_window); });
    menu->addAction(tr("&About Tonquill"), &m_window, [this] { HelpPages::showAbout(m_window); });
}
