#include "TonquillMainWin.h"
#include "Translations.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    installTranslations(application);
    TonquillMainWin window;
    window.showNormal();
    window.raise();
    return application.exec();
}
