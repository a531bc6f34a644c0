#include "PageControls.h"

#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"
#include "ZoomControl.h"

#include <QCursor>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>

namespace
{
/** The smallest maximum of "Goto Page"; documents with more pages raise it. */
constexpr int leastMaximum = 99;
} // namespace

PageControls::PageControls(TonquillMainWin &window, const ZoomControl &zoom)
    : m_window(window)
    , m_view(*window.view())
    , m_label(window.findChild<QLabel *>(QStringLiteral("lbl_page")))
    , m_goto(window.findChild<QSpinBox *>(QStringLiteral("sb_page")))
    , m_insert(window.findChild<QPushButton *>(QStringLiteral("pb_insertPage")))
    , m_delete(window.findChild<QPushButton *>(QStringLiteral("pb_deletePAge")))
{
    takeOver(zoom);
    makeRoom();
    refresh();
}

void PageControls::takeOver(const ZoomControl &zoom)
{
    disconnect(&m_view, SIGNAL(scrolled(QPointF)), &m_window, SLOT(onViewScroll(QPointF)));
    disconnect(m_goto, SIGNAL(valueChanged(int)), &m_window, SLOT(OnSetCurPage(int)));
    disconnect(m_insert, SIGNAL(clicked()), &m_window, SLOT(OnInsertPageClicked()));
    disconnect(m_delete, SIGNAL(clicked()), &m_window, SLOT(OnMenuDeletePage()));
    connect(&m_view, &TonquillView::scrolled, this, &PageControls::refresh);
    connect(m_goto, &QSpinBox::valueChanged, this, &PageControls::goToPage);
    connect(m_insert, &QPushButton::clicked, this, &PageControls::showInsertMenu);
    connect(m_delete, &QPushButton::clicked, this, &PageControls::deletePage);
    connect(m_window.scene, &QGraphicsScene::sceneRectChanged, this, &PageControls::makeRoom);
    // Before as well: with the room of the larger scale, a smaller one could not keep its place.
    connect(&zoom, &ZoomControl::aboutToZoom, this, &PageControls::makeRoomAt);
    connect(&zoom, &ZoomControl::zoomed, this, &PageControls::makeRoom);
    m_view.viewport()->installEventFilter(this);
}

int PageControls::currentPage() const
{
    // The lowest quarter of the last page counts as the next one, which is not there.
    return qBound(1, m_window.scene->getPageAt(m_view.curScenePos()), m_window.pageCount);
}

void PageControls::refresh()
{
    const int page = currentPage();
    m_label->setText(QStringLiteral("%1/%2").arg(page).arg(m_window.pageCount));
    m_delete->setText(tr("Delete Page %1").arg(page));
    const QSignalBlocker noJump(m_goto);
    m_goto->setMaximum(qMax(leastMaximum, m_window.pageCount));
}

void PageControls::goToPage(int page)
{
    if (page < 1 || page > m_window.pageCount)
        return;
    makeRoom();
    const QPointF top(0, m_window.scene->getCoordByPageNum(page));
    QScrollBar *bar = m_view.verticalScrollBar();
    bar->setValue(bar->value() + m_view.mapFromScene(top).y());
    refresh();
}

void PageControls::showInsertMenu()
{
    TonquillScene *scene = m_window.scene;
    const int page = currentPage();
    QMenu menu;
    menu.addAction(tr("At the Beginning"), scene, &TonquillScene::addPageAtBegining);
    menu.addAction(tr("Before The Current Page"), scene,
                   [scene, page] { scene->addPageBeforeCurPage(page); });
    menu.addAction(tr("After The Current Page"), scene,
                   [scene, page] { scene->addPageAfterCurPage(page); });
    menu.addAction(tr("At the End"), scene, &TonquillScene::addPageAtEnd);
    menu.exec(QCursor::pos());
    refresh();
}

void PageControls::deletePage()
{
    // The whole pitch, so that the following items keep their places on their pages.
    m_window.scene->deletePage(currentPage(), m_window.scene->pagePitch());
    refresh();
}

void PageControls::makeRoom()
{
    makeRoomAt(m_view.transform().m11());
    refresh();
}

/** Lets the view scroll the last page to its top at `scale` pixels per scene unit. */
void PageControls::makeRoomAt(double scale)
{
    const TonquillScene &scene = *m_window.scene;
    QRectF reach = scene.sceneRect();
    // A single page is always at the top, and a window that shows all of it must not scroll.
    if (m_window.pageCount > 1) {
        const double lastTop = scene.getCoordByPageNum(m_window.pageCount);
        // Without the horizontal scroll bar, which Qt may hide later.
        const double shown = m_view.maximumViewportSize().height() / scale;
        reach.setBottom(qMax(reach.bottom(), lastTop + shown));
    }
    m_view.setSceneRect(reach);
}

bool PageControls::eventFilter(QObject *, QEvent *event)
{
    // Queued, since Qt may be in the middle of updating the scroll bars for the new height.
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &PageControls::makeRoom, Qt::QueuedConnection);
    return false;
}
