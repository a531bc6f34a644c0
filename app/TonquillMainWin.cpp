#include "TonquillMainWin.h"

#include "HostLink.h"
#include "InsertCommands.h"
#include "Logging.h"
#include "PagePrinter.h"
#include "PaletteBuilder.h"
#include "SymRefFiles.h"
#include "TonquillScene.h"
#include "ui_TonquillMainWin.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPointer>
#include <QShortcut>

TonquillMainWin *g_pMainWin = nullptr;

namespace
{
/** Scenes, which outlive their windows until the application ends. */
QList<QPointer<TonquillScene>> &scenesOfTheProcess()
{
    static QList<QPointer<TonquillScene>> scenes;
    return scenes;
}

void destroyScenes()
{
    for (const QPointer<TonquillScene> &scene : std::as_const(scenesOfTheProcess()))
        delete scene.data();
    scenesOfTheProcess().clear();
}

TonquillScene *makeSceneForTheProcess(DocumentContext &context)
{
    if (scenesOfTheProcess().isEmpty())
        qAddPostRoutine(destroyScenes);
    auto *scene = new TonquillScene(context);
    scenesOfTheProcess().append(scene);
    return scene;
}

void loadNotationFont()
{
    const int id =
        QFontDatabase::addApplicationFont(QCoreApplication::applicationDirPath() + "/Musica.ttf");
    qCDebug(lcTonquill) << "add font :" << id << QFontDatabase::applicationFontFamilies(id);
}
} // namespace

TonquillMainWin::TonquillMainWin(QWidget *parent)
    : TonquillMainWin(HostConnection::AtOnce, parent)
{}

TonquillMainWin::TonquillMainWin(HostConnection connection, QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui_TonquillMainWin)
    , m_printer(QPrinter::ScreenResolution)
{
    // Closing a dialog while this window is hidden must not end the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);

    ui->setupUi(this);
    ui->textEdit->hide();
    loadNotationFont();
    resize(826, 704);
    g_pMainWin = this;
    DocumentContext::current = this;
    g_csINIPath = QCoreApplication::applicationDirPath();
    qCDebug(lcTonquill) << g_csINIPath;
    connect(&socket, SIGNAL(readyRead()), this, SLOT(onTWData()));
    connect(&socket, SIGNAL(connected()), this, SLOT(onTWConnect()));
    scene = makeSceneForTheProcess(*this);
    ui->graphicsView->setScene(scene);
    makeParts();
    constructBitmapSymbols();
    connect(ui->graphicsView, SIGNAL(scrolled(QPointF)), this, SLOT(onViewScroll(QPointF)));
    m_palette->build(restMode);
    connect(ui->pb_insertPage, SIGNAL(clicked()), this, SLOT(OnInsertPageClicked()));
    connect(ui->pb_deletePAge, SIGNAL(clicked()), this, SLOT(OnMenuDeletePage()));
    connect(ui->sb_page, SIGNAL(valueChanged(int)), this, SLOT(OnSetCurPage(int)));
    ui->graphicsView->centerOn(QPointF(0, 0));
    setWindowState(Qt::WindowActive);
    if (connection == HostConnection::AtOnce)
        connectToHost();
    setWindowFlags(windowFlags() & ~(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    setFocusPolicy(Qt::ClickFocus);
    giveKeyboardToPage();
}

void TonquillMainWin::makeParts()
{
    m_insert = std::make_unique<InsertCommands>(*this, *scene);
    m_symRefs =
        std::make_unique<SymRefFiles>(*this, actions, menus, PaletteTable::symbolsReferenceId);
    m_palette = std::make_unique<PaletteBuilder>(*this, *scene,
                                                 PaletteBuilder::Parts{symbols, actions, menus,
                                                                       strip2, strip2B, tb2Count,
                                                                       tb2IconWidth, tb2IconHeight},
                                                 [this] { return constructMenuSymRef(); });
    m_hostLink = std::make_unique<HostLink>(*this, socket, *scene);
    m_pagePrinter = std::make_unique<PagePrinter>(
        *this, m_printer, *scene, [this] { return currentPage(); },
        OutsidePause{[this] { m_hostLink->pause(); }, [this] { m_hostLink->resume(); }});
}

TonquillMainWin::~TonquillMainWin()
{
    // The view's last focus events must not reach a window that is being destroyed.
    if (g_pMainWin == this)
        g_pMainWin = nullptr;
    if (DocumentContext::current == this)
        DocumentContext::current = nullptr;
    scene->leaveContext();
    socket.disconnect(this);
    // Neither must the host's last message, which is handled when the connection ends.
    m_hostLink.reset();
    socket.disconnectFromServer();
    socket.close();
    delete ui;
}

Sheet TonquillMainWin::sheet() const
{
    return {m_printer.paperRect(QPrinter::Inch), m_printer.pageLayout().margins(QPageLayout::Inch)};
}

void TonquillMainWin::setRestMode(bool on)
{
    restMode = on;
    swapTb2();
}

TonquillView *TonquillMainWin::view() const
{
    return ui->graphicsView;
}

void TonquillMainWin::keyPressEvent(QKeyEvent *event)
{
    QMainWindow::keyPressEvent(event);
}

void TonquillMainWin::keyReleaseEvent(QKeyEvent *event)
{
    QMainWindow::keyReleaseEvent(event);
}

bool TonquillMainWin::event(QEvent *event)
{
    return QMainWindow::event(event);
}

/** The page has the keyboard from the start, and again when the typing of a page's number ends. */
void TonquillMainWin::giveKeyboardToPage()
{
    ui->graphicsView->setFocus();
    // Return first goes to the page of this number, even if the number has not changed.
    const auto *number = ui->sb_page->findChild<QLineEdit *>();
    connect(number, SIGNAL(returnPressed()), ui->graphicsView, SLOT(setFocus()));
    auto *escape = new QShortcut(Qt::Key_Escape, ui->sb_page);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, SIGNAL(activated()), ui->graphicsView, SLOT(setFocus()));
}

/**
 * A click on a toolbar or between the controls moves the focus to the window, which ends the
 * editing of a text. The window forwards its keys to the page.
 */
void TonquillMainWin::focusInEvent(QFocusEvent *event)
{
    QMainWindow::focusInEvent(event);
    ui->graphicsView->setFocus(event->reason());
}

void TonquillMainWin::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_palette->refreshIcons(restMode);
}

void TonquillMainWin::closeEvent(QCloseEvent *event)
{
    qCDebug(lcTonquill) << "Tonquill close event";
    setVisible(false);
    event->ignore();
}
