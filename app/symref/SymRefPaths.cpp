#include "SymRefPaths.h"

#include <QDir>

QString g_csINIPath;

QString SymRefPaths::pathOf(const QString &instrument)
{
    return g_csINIPath + u'/' + namePrefix + instrument + QStringLiteral(".txt");
}

bool SymRefPaths::staysInDirectory(const QString &instrument)
{
    // The name follows "SymRef_", so ".." does not climb before the first separator.
    QString name = instrument;
    const QStringList steps = name.replace(QDir::separator(), u'/').split(u'/');
    return steps.size() == 1 || !steps.contains(QStringLiteral(".."));
}
