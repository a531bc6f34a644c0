#include "SoloWindow.h"
#include "TonquillView.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

namespace
{
QJsonArray rectInWindow(const QWidget &widget)
{
    const QPoint corner = widget.mapTo(widget.window(), QPoint(0, 0));
    return {corner.x(), corner.y(), widget.width(), widget.height()};
}

/** Where the page controls and the view's inside are: left, top, width, height. */
QJsonObject layout(const TonquillMainWin &window)
{
    QJsonObject result{{QStringLiteral("viewport"), rectInWindow(*window.view()->viewport())}};
    for (const char *name : {"sb_page", "pb_insertPage", "pb_deletePAge", "lbl_page"}) {
        const QString objectName = QString::fromLatin1(name);
        result.insert(objectName, rectInWindow(*window.findChild<QWidget *>(objectName)));
    }
    return result;
}
} // namespace

/**
 * Shows the program's window in the width and height that are given, prints where things are in it
 * as JSON and ends: so a test knows where to click, and the program needs no way to be asked.
 */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QSize size(arguments.value(1).toInt(), arguments.value(2).toInt());
    const QTemporaryDir folder;
    SoloWindow solo(folder.path());
    solo.window().resize(size);
    solo.show();

    QTimer timer;
    QJsonObject last;
    QObject::connect(&timer, &QTimer::timeout, &solo, [&] {
        if (!solo.window().isActiveWindow() || solo.window().size() != size)
            return;
        const QJsonObject now = layout(solo.window());
        if (now == last)
            QCoreApplication::quit();
        last = now;
    });
    timer.start(50);
    QApplication::exec();
    solo.session().close();
    QTextStream(stdout) << QJsonDocument(last).toJson();
    return 0;
}
