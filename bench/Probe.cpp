#include "Probe.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QStringList>

#include <cstdio>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
QHash<QString, Probe::Work> &probes()
{
    static QHash<QString, Probe::Work> known;
    return known;
}

constexpr const char *sharedFolderVariable = "TONQUILL_BENCH_FOLDER";

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("%s %s failed", qPrintable(program), qPrintable(arguments.join(u' ')));
    return process.readAllStandardOutput();
}

QByteArray outputOf(const QString &name, int count)
{
    return outputOf(
        QCoreApplication::applicationFilePath(),
        {"--" + Probe::option().names().constFirst(), name + u':' + QString::number(count)});
}

/** The CPU time of all finished child processes, in seconds. */
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

double Probe::cpuSecondsOfProgram(const QString &program, const QStringList &arguments)
{
    const double before = childrensSeconds();
    outputOf(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
    return childrensSeconds() - before;
}

double Probe::residentBytes()
{
    malloc_trim(0);
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        qFatal("/proc/self/statm cannot be read");
    return statm.readAll().split(' ').at(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

void Probe::shareFolder(const QString &path)
{
    if (!qEnvironmentVariableIsSet(sharedFolderVariable))
        qputenv(sharedFolderVariable, QFile::encodeName(path));
}

QString Probe::sharedFolder()
{
    return QFile::decodeName(qgetenv(sharedFolderVariable));
}
