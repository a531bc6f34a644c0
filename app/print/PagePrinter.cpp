#include "PagePrinter.h"

#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>

namespace
{
/** The frame of a page is printed whole: this much more than the frame on every side. */
constexpr qreal aroundFrame = 2.0;
} // namespace

PagePrinter::PagePrinter(TonquillMainWin &window)
    : m_window(window)
{}

void PagePrinter::showPreview()
{
    QPrintPreviewDialog dialog(&m_window.sharedPrinter(), &m_window);
    QObject::connect(&dialog, SIGNAL(paintRequested(QPrinter *)), &m_window,
                     SLOT(print(QPrinter *)));
    dialog.exec();
}

void PagePrinter::showPageSetup()
{
    auto *dialog = new QPageSetupDialog(&m_window.sharedPrinter(), &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open(&m_window, SLOT(OnPageSetupAccepted()));
}

void PagePrinter::showPrintDialog()
{
    QPrintDialog dialog(&m_window.sharedPrinter(), &m_window);
    if (dialog.exec() == QDialog::Accepted)
        print(m_window.sharedPrinter());
}

QRectF PagePrinter::sourceOfPage(int index) const
{
    const TonquillScene &scene = *m_window.scene;
    return QRectF(scene.pageRect.left() - aroundFrame,
                  index * scene.pagePitch() + scene.pageRect.top() - aroundFrame,
                  scene.pageRect.width() + 2 * aroundFrame,
                  scene.pageRect.height() + 2 * aroundFrame);
}

void PagePrinter::print(QPrinter &printer) const
{
    QPainter painter(&printer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    for (int i = 0; i < m_window.pageCount; ++i) {
        m_window.scene->render(&painter, QRectF(), sourceOfPage(i), Qt::IgnoreAspectRatio);
        if (i < m_window.pageCount - 1)
            printer.newPage();
    }
}
