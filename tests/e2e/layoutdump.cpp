#include "SoloWindow.h"
#include "TonquillMainWin.h"
#include "TonquillView.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

namespace
{

QJsonObject toJson(const QRect &rect)
{
    return {{QStringLiteral("x"), rect.x()},
            {QStringLiteral("y"), rect.y()},
            {QStringLiteral("width"), rect.width()},
            {QStringLiteral("height"), rect.height()}};
}

QRect rectInWindow(const QWidget &widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/** The buttons of a toolbar, from left to right, by id: numbers that count on from the first. */
void addButtons(QJsonObject &buttons, const TonquillMainWin &window, const QString &toolBarName,
                int firstId)
{
    const auto *toolBar = window.findChild<QToolBar *>(toolBarName);
    int id = firstId;
    const QList<QAction *> actions = toolBar->actions();
    for (QAction *action : actions) {
        const QWidget *button = toolBar->widgetForAction(action);
        if (button->isVisible())
            buttons.insert(QString::number(id), toJson(rectInWindow(*button)));
        ++id;
    }
}

/** The page controls below the view, by their object names. */
QJsonObject pageControls(const TonquillMainWin &window)
{
    QJsonObject controls;
    for (const char *name : {"pb_insertPage", "pb_deletePAge", "sb_page", "lbl_page"}) {
        const QString objectName = QString::fromLatin1(name);
        controls.insert(objectName, toJson(rectInWindow(*window.findChild<QWidget *>(objectName))));
    }
    return controls;
}

/**
 * Where things are inside the window. A point of the viewport plus "scene" is the
 * scene's point there.
 */
QJsonObject layout(const TonquillMainWin &window)
{
    QJsonObject buttons;
    addButtons(buttons, window, QStringLiteral("toolBar1"), 0);
    addButtons(buttons, window, QStringLiteral("toolBar2"), 0x100);
    addButtons(buttons, window, QStringLiteral("toolBar3"), 0x200);

    const auto *view = window.findChild<TonquillView *>(QStringLiteral("graphicsView"));
    const QPointF origin = view->mapToScene(0, 0);
    return {{QStringLiteral("window"), toJson({QPoint(0, 0), window.size()})},
            {QStringLiteral("viewport"), toJson(rectInWindow(*view->viewport()))},
            {QStringLiteral("scene"), QJsonArray{origin.x(), origin.y()}},
            {QStringLiteral("buttons"), buttons},
            {QStringLiteral("controls"), pageControls(window)}};
}

/** The size that the arguments name; not valid if they leave the window its own. */
QSize wantedSize(const QStringList &arguments)
{
    const auto option = arguments.indexOf(QStringLiteral("--size"));
    return option < 0
               ? QSize()
               : QSize(arguments.value(option + 1).toInt(), arguments.value(option + 2).toInt());
}

/** Prints the layout of the window, which is shown, once it has this size and come to rest. */
void printLayout(TonquillMainWin &window, QSize size)
{
    if (size.isValid())
        window.resize(size);
    QTimer timer;
    QJsonObject last;
    QObject::connect(&timer, &QTimer::timeout, &window, [&] {
        if (!window.windowHandle()->isExposed() || !window.isActiveWindow() ||
            (size.isValid() && size != window.size()))
            return;
        const QJsonObject now = layout(window);
        if (now == last)
            QCoreApplication::quit();
        last = now;
    });
    timer.start(50);
    QApplication::exec();
    QTextStream(stdout) << QJsonDocument(last).toJson();
}

} // namespace

/**
 * Shows the main window as tonquill does, or with --solo as tonquill-solo does, in the size that
 * `--size WIDTH HEIGHT` gives it, prints its layout as JSON and ends: so a test knows where to
 * click, and the programs need no way to be asked.
 */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QSize size = wantedSize(arguments);
    if (arguments.contains(QStringLiteral("--solo"))) {
        const QTemporaryDir journal;
        SoloWindow solo(journal.path());
        solo.show();
        printLayout(solo.window(), size);
    } else {
        TonquillMainWin window;
        window.showNormal();
        window.raise();
        printLayout(window, size);
    }
    return 0;
}
