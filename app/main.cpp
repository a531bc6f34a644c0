#include "TonquillMainWin.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    TonquillMainWin window;
    window.showNormal();
    window.raise();
    return application.exec();
}
