#include "ZoomControl.h"

#include "PaperPainting.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QWheelEvent>

#include <cmath>

namespace
{
constexpr double smallest = 0.1;
constexpr double largest = 8.0;
constexpr double step = 1.25;
/** One notch of an ordinary wheel, in Qt's eighths of a degree. */
constexpr double notch = 120.0;
} // namespace

ZoomControl::ZoomControl(TonquillMainWin &window)
    : m_window(window)
{
    window.view()->viewport()->installEventFilter(this);
    PaperPainting::setScreenLines(PaperPainting::ScreenLines::AsOnPaper);
}

ZoomControl::~ZoomControl()
{
    PaperPainting::setScreenLines(PaperPainting::ScreenLines::OnePixel);
}

double ZoomControl::scale() const
{
    return m_window.view()->transform().m11();
}

void ZoomControl::setScale(double scale, bool atPointer)
{
    TonquillView &view = *m_window.view();
    view.setTransformationAnchor(atPointer ? QGraphicsView::AnchorUnderMouse
                                           : QGraphicsView::AnchorViewCenter);
    const double bounded = qBound(smallest, scale, largest);
    Q_EMIT aboutToZoom(bounded);
    view.setTransform(QTransform::fromScale(bounded, bounded));
    Q_EMIT zoomed();
}

void ZoomControl::zoomIn()
{
    setScale(scale() * step, false);
}

void ZoomControl::zoomOut()
{
    setScale(scale() / step, false);
}

void ZoomControl::showActualSize()
{
    setScale(1.0, false);
}

void ZoomControl::fitWidth()
{
    constexpr double border = 4.0;
    setScale(m_window.view()->viewport()->width() / (m_window.scene->paperRect.width() + border),
             false);
}

bool ZoomControl::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    const auto *wheel = static_cast<const QWheelEvent *>(event);
    if (!(wheel->modifiers() & Qt::ControlModifier))
        return false;
    setScale(scale() * std::pow(step, wheel->angleDelta().y() / notch), true);
    return true;
}
