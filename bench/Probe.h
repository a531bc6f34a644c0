#pragma once

#include <QCommandLineOption>
#include <QString>
#include <QStringList>

#include <functional>

/**
 * Measurements that need a process of their own: this program starts itself with the name of a
 * probe, which does its work there and prints one number.
 */
namespace Probe
{
/** The work of a probe. */
using Work = std::function<double(int count)>;

/** Makes a probe known. */
void add(const QString &name, const Work &work);

/** The option with which this program is started as a probe. */
const QCommandLineOption &option();

/** Does the work that the option's value names. The exit code of the process. */
int run(const QString &optionValue);

/** The number that the probe prints when it is run in a process of its own. */
double valueOf(const QString &name, int count);

/** The CPU time that such a process takes in all, from exec to exit. Seconds. */
double cpuSecondsOf(const QString &name, int count);

/** The same for one of the programs that were built beside this one. */
double cpuSecondsOfProgram(const QString &program, const QStringList &arguments);

/** The memory of this process that is in use now. */
double residentBytes();

/** Makes `path` the folder of files for the probes, unless this process is one. */
void shareFolder(const QString &path);

/** The folder that was shared, the same in this process and its probes. */
QString sharedFolder();
} // namespace Probe
