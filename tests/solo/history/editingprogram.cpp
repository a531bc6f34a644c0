// Edits a document without end, as fast as a hand could, for a test that kills it. Each line of
// its output is the number of items after an edit.
#include "DocumentSession.h"
#include "TonquillBitmap.h"
#include "TonquillMainWin.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    constexpr int pause = 20; // milliseconds
    QApplication application(argc, argv);
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    DocumentSession session(window, QString::fromLocal8Bit(argv[1]));
    int count = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        window.InsertBitmapSymbol(19, false, true)->setPos(count % 700, count / 7);
        session.edits().check();
        std::printf("%d\n", ++count);
        std::fflush(stdout);
    });
    timer.start(pause);
    return application.exec();
}
