#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace
{
bool install(QCoreApplication &application, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    return translator->load(QLocale(), name, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(translator);
}
} // namespace

void installTranslations(QCoreApplication &application)
{
    Q_INIT_RESOURCE(translations);
    // Qt has more translations than we do; without one of ours it stays English, too.
    if (install(application, QStringLiteral("tonquill"), QStringLiteral(":/translations")))
        install(application, QStringLiteral("qtbase"),
                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}
