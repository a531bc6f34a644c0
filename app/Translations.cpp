#include "Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

void installTranslations(QCoreApplication &application)
{
    Q_INIT_RESOURCE(translations);
    auto *translator = new QTranslator(&application);
    if (translator->load(QLocale(), QStringLiteral("tonquill"), QStringLiteral("_"),
                         QStringLiteral(":/translations")))
        QCoreApplication::installTranslator(translator);
}
