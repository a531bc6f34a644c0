#pragma once

#include "DocumentContext.h"
#include "SymRefPaths.h"

#include <QHash>
#include <QLocalSocket>
#include <QMainWindow>
#include <QPixmap>
#include <QPrinter>

#include <memory>

class HostLink;
class InsertCommands;
class PagePrinter;
class PaletteBuilder;
class QAction;
class QMenu;
class SymRefFiles;
class TonquillBitmap;
class TonquillScene;
class TonquillView;
class Ui_TonquillMainWin;

/**
 * The one main window: the view of the document, the three toolbars, the page controls, the
 * printer and the link to the host.
 *
 * The slots are declared in the order of their controls; each is one line that calls the class for
 * its work. Closing the window only hides it.
 */
class TonquillMainWin : public QMainWindow, public DocumentContext
{
    Q_OBJECT

public:
    /** Whether a window looks for its host as soon as it is built. */
    enum class HostConnection {
        AtOnce,
        Later ///< when connectToHost() is called
    };

    explicit TonquillMainWin(QWidget *parent = nullptr);
    explicit TonquillMainWin(HostConnection connection, QWidget *parent = nullptr);
    ~TonquillMainWin() override;

    // What the scene, the palette and embedding programs read and write directly.

    Ui_TonquillMainWin *ui;         ///< the widget tree
    QLocalSocket socket;            ///< the link to the host
    TonquillScene *scene = nullptr; ///< the document; it outlives the window
    QHash<int, QPixmap> symbols;    ///< the pictures, by symbol id
    QHash<int, QAction *> actions;  ///< toolbar and menu actions, by slot id
    QHash<int, QMenu *> menus;      ///< the menus of toolbar buttons, by the button's slot id
    QHash<int, QPixmap> strip2;     ///< toolbar 2's icons, by slot id
    QHash<int, QPixmap> strip2B;    ///< the same while Ctrl is held: rests for notes
    int tb2Count = 0;               ///< number of icons in toolbar 2
    int tb2IconWidth = 0;           ///< pixels
    int tb2IconHeight = 0;          ///< pixels
    int pageCount = 0;              ///< pages of the document; kept by the scene
    bool restMode = false;          ///< Ctrl is held: the note buttons insert rests
    bool quickText = false;         ///< typing on the page opens a text block

    /** The printer of every print, preview and page setup while the program runs. */
    QPrinter &sharedPrinter() { return m_printer; }

    /** Prints the pages and reports the outcome and the paper. */
    PagePrinter &pagePrinter() const { return *m_pagePrinter; }

    /** Connects to the host, if one is listening; otherwise the editor runs alone. */
    void connectToHost();

    /**
     * The same for a host in this process, which sees the scene itself: of the document it is sent
     * the page-count line, to know that an edit is finished. The items would cost their number.
     */
    void connectToOwnHost();

    /** The view of the scene. */
    TonquillView *view() const;

    /** Loads the pictures of the symbol table. */
    void constructBitmapSymbols();

    /**
     * Makes a glyph and adds it to the scene, which owns it. With `withInverted` its inverted
     * form is its symbol's upside-down one, if any. An id without a picture makes an item without
     * one. Null if no item was made.
     */
    TonquillBitmap *InsertBitmapSymbol(int id, bool adding, bool withInverted);

    /** Makes a note or rest that waits to be placed and can be inverted with the right button. */
    void InsertNoteRest(int id);

    /** Sets the icons of toolbar 2 according to `restMode`. */
    void swapTb2();

    /** The menu of the symbols-reference button, refilled from the application directory. */
    QMenu *constructMenuSymRef();

    /** Replaces the document by that of a host's message: records separated by "|". */
    void twMsg(const QString &msg);

public Q_SLOTS:
    // Page controls
    void OnInsertPageClicked();
    void OnMenuAddPageBeginning();
    void OnMenuAddPageBeforeCurPage();
    void OnMenuAddPageAfterCurPage();
    void OnMenuAddPageEnd();
    void OnMenuDeletePage();
    void OnSetCurPage(int val);
    void onViewScroll(QPointF pt);

    // Toolbar 1
    void OnToolBar1ButtonTrackwright();
    void OnToolBar1ButtonSheetMusic();
    void OnToolBar1ButtonGuitarTabs();
    void OnToolBar1ButtonPrintPreview();
    void OnToolBar1ButtonPageSetup();
    void OnToolBar1ButtonPrint();
    void OnToolBar1ButtonUndo();
    void OnToolBar1ButtonRedo();

    // Toolbar 3
    void OnToolBar3ButtonTextBlock();
    void OnToolBar3ButtonLineTab();
    void OnMenuActionSymRefCreateNew();
    void OnMenuActionSymRefSymRef();
    void OnToolBar3ButtonInteractiveLine();

    // Toolbar 2
    void OnToolBar2ButtonText();
    void OnToolBar2ButtonGrandstaff();
    void OnMenuButtonGClef();
    void OnMenuButtonFClef();
    void OnToolBar2ActionTempo();
    void OnMenuButtonCReg();
    void OnMenuButtonCCut();
    void OnToolBar2ActionTimesig();
    void OnMenuButtonFlat();
    void OnMenuButtonSharp();
    void OnMenuButtonNatural();
    void OnToolBar2ButtonRepeatB();
    void OnToolBar2ButtonRepeatE();
    void OnToolBar2ButtonStaffLine();
    void OnToolBar2ButtonNote1();
    void OnToolBar2ButtonNote2();
    void OnToolBar2ButtonNote4();
    void OnToolBar2ButtonNote8();
    void OnToolBar2ButtonNote16();
    void OnToolBar2ButtonNote32();
    void OnToolBar2ButtonNote64();
    void OnToolBar2ButtonNote128();
    void OnToolBar2ButtonNoteDot();
    void OnToolBar2ButtonNoteTrip();
    void OnToolBar2ButtonNoteTie();

    // Bound to no button
    void OnToolBar2ButtonCommonTimeW();
    void OnToolBar2ButtonCommonTimeH();
    void OnMenuActionSymRefCymbals();
    void OnMenuActionSymRefDrumKit();
    void OnMenuActionSymRefDrums();
    void OnMenuActionSymRefGuitar();
    void OnMenuActionSymRefHarmonica();

    // Quick text
    void onQuickTextAction(bool on);

    // Printing
    void OnPageSetupAccepted();
    void filePrint();
    void print(QPrinter *printer);
    /** Kept for those who connect to it; it does nothing. */
    void printer();

    // Host link
    void onTWConnect();
    void onTWData();
    /** Sends the whole document to the host. */
    void notifyTW();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    // What the document asks for; embedding programs have the members above for it.
    Sheet sheet() const override;
    int pages() const override { return pageCount; }
    void setPages(int count) override { pageCount = count; }
    bool isRestModeOn() const override { return restMode; }
    void setRestMode(bool on) override;
    bool isQuickTextOn() const override { return quickText; }
    void setQuickText(bool on) override { onQuickTextAction(on); }
    QPixmap symbolPicture(int id) const override { return symbols.value(id); }
    void editFinished() override { notifyTW(); }

    void makeParts();
    void giveKeyboardToPage();
    int currentPage() const;
    void refreshPageLabel();
    void insertNoteOrRest(int value);
    QString senderText() const;

    QPrinter m_printer;
    std::unique_ptr<InsertCommands> m_insert;
    std::unique_ptr<PaletteBuilder> m_palette;
    std::unique_ptr<SymRefFiles> m_symRefs;
    std::unique_ptr<HostLink> m_hostLink;
    std::unique_ptr<PagePrinter> m_pagePrinter;
};

/** The one main window, from its construction to its destruction. */
extern TonquillMainWin *g_pMainWin;
