#include "Probe.h"

#include <QCoreApplication>
#include <QHash>
#include <QProcess>
#include <QStringList>

#include <cstdio>

#include <sys/resource.h>

namespace
{
QHash<QString, Probe::Work> &probes()
{
    static QHash<QString, Probe::Work> known;
    return known;
}

QByteArray outputOf(const QString &name, int count)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(
        QCoreApplication::applicationFilePath(),
        {"--" + Probe::option().names().constFirst(), name + u':' + QString::number(count)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("the probe %s failed", qPrintable(name));
    return process.readAllStandardOutput();
}

/** The CPU time of all child processes that have ended. */
double childrensSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
}
} // namespace

void Probe::add(const QString &name, const Work &work)
{
    probes().insert(name, work);
}

const QCommandLineOption &Probe::option()
{
    static const QCommandLineOption probe = [] {
        QCommandLineOption result("probe", "Print what <name:count> measures.", "name:count");
        result.setFlags(QCommandLineOption::HiddenFromHelp);
        return result;
    }();
    return probe;
}

int Probe::run(const QString &optionValue)
{
    const QStringList nameAndCount = optionValue.split(u':');
    const Work work = probes().value(nameAndCount.first());
    if (!work)
        return 1;
    std::printf("%.0f\n", work(nameAndCount.last().toInt()));
    return 0;
}

double Probe::valueOf(const QString &name, int count)
{
    return outputOf(name, count).toDouble();
}

double Probe::cpuSecondsOf(const QString &name, int count)
{
    const double before = childrensSeconds();
    outputOf(name, count);
    return childrensSeconds() - before;
}
