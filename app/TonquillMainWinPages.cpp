#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "ui_TonquillMainWin.h"

#include <QCursor>
#include <QMenu>

int TonquillMainWin::currentPage() const
{
    return scene->getPageAt(ui->graphicsView->curScenePos());
}

void TonquillMainWin::refreshPageLabel()
{
    onViewScroll(ui->graphicsView->curScenePos());
}

void TonquillMainWin::OnInsertPageClicked()
{
    QMenu menu;
    menu.addAction(QStringLiteral("At the Beginning"), this, SLOT(OnMenuAddPageBeginning()));
    menu.addAction(QStringLiteral("Before The Current Page"), this,
                   SLOT(OnMenuAddPageBeforeCurPage()));
    menu.addAction(QStringLiteral("After The Current Page"), this,
                   SLOT(OnMenuAddPageAfterCurPage()));
    menu.addAction(QStringLiteral("At the End"), this, SLOT(OnMenuAddPageEnd()));
    menu.exec(QCursor::pos());
}

void TonquillMainWin::OnMenuAddPageBeginning()
{
    scene->addPageAtBegining();
    refreshPageLabel();
}

void TonquillMainWin::OnMenuAddPageBeforeCurPage()
{
    scene->addPageBeforeCurPage(currentPage());
    refreshPageLabel();
}

void TonquillMainWin::OnMenuAddPageAfterCurPage()
{
    scene->addPageAfterCurPage(currentPage());
    refreshPageLabel();
}

void TonquillMainWin::OnMenuAddPageEnd()
{
    scene->addPageAtEnd();
    refreshPageLabel();
}

void TonquillMainWin::OnMenuDeletePage()
{
    scene->deletePage(currentPage());
    refreshPageLabel();
}

void TonquillMainWin::OnSetCurPage(int val)
{
    if (val < 1 || val > pageCount)
        return;
    ui->graphicsView->centerOn(QPointF(0, scene->getCoordByPageNum(val)));
    refreshPageLabel();
}

void TonquillMainWin::onViewScroll(QPointF pt)
{
    ui->lbl_page->setText(QStringLiteral("%1/%2").arg(scene->getPageAt(pt)).arg(pageCount));
}
