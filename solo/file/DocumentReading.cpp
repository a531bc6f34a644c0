#include "DocumentReading.h"

#include <QCoreApplication>

namespace
{
constexpr qsizetype mostProblemsShown = 8;
} // namespace

QString DocumentReading::problemText() const
{
    QStringList lines;
    for (const Problem &problem : problems.first(qMin(problems.size(), mostProblemsShown))) {
        lines.append(problem.line > 0 ? QCoreApplication::translate("DocumentFile", "Line %1: %2")
                                            .arg(QString::number(problem.line), problem.text)
                                      : problem.text);
    }
    if (problems.size() > mostProblemsShown)
        lines.append(QCoreApplication::translate("DocumentFile", "… and %1 more.")
                         .arg(problems.size() - mostProblemsShown));
    return lines.join(u'\n');
}
