#include "SymRefPaths.h"

#include <QDir>

QString g_csINIPath;

QString SymRefPaths::pathOf(const QString &instrument)
{
    return g_csINIPath + u'/' + namePrefix + instrument + QStringLiteral(".txt");
}

bool SymRefPaths::staysInDirectory(const QString &instrument)
{
    // "SymRef_" stands before the name, so "..", too, is a name of its own until a separator comes.
    QString name = instrument;
    const QStringList steps = name.replace(QDir::separator(), u'/').split(u'/');
    return steps.size() == 1 || !steps.contains(QStringLiteral(".."));
}
