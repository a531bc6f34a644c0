#include "Comparison.h"
#include "Probe.h"
#include "Rows.h"
#include "TonquillMainWin.h"
#include "TonquillView.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>

namespace
{
const QString oursProbe = QStringLiteral("start");
const QString floorProbe = QStringLiteral("start-floor");

/** Records whether the watched widget has been painted. */
class PaintWatcher : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
    bool painted = false;
};

/** Shows the window and waits until `widget` in it has been painted. */
void showUntilPainted(QMainWindow &window, QWidget &widget)
{
    PaintWatcher watcher;
    widget.installEventFilter(&watcher);
    window.showNormal();
    window.raise();
    while (!watcher.painted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

double startOurs(int)
{
    TonquillMainWin window;
    showUntilPainted(window, *window.view()->viewport());
    return 0;
}

double startBare(int)
{
    QMainWindow window;
    window.resize(826, 704);
    showUntilPainted(window, window);
    return 0;
}
} // namespace

void Rows::addStart()
{
    Probe::add(oursProbe, startOurs);
    Probe::add(floorProbe, startBare);
    compare({.operation = "start to the first painted frame",
             .ours = [](int count) { return Probe::cpuSecondsOf(oursProbe, count); },
             .floor = [](int count) { return Probe::cpuSecondsOf(floorProbe, count); },
             .counts = {0}});
}
