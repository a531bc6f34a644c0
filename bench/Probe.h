#pragma once

#include <QCommandLineOption>
#include <QString>
#include <QStringList>

#include <functional>

/**
 * Measurements that need a process of their own: this program starts itself with the name of a
 * probe, which runs there and prints one number.
 */
namespace Probe
{
/** The function of a probe; returns its result. */
using Work = std::function<double(int count)>;

/** Registers a probe. */
void add(const QString &name, const Work &work);

/** The command line option that starts this program as a probe. */
const QCommandLineOption &option();

/** Runs the probe named in the option's value. Returns the exit code of the process. */
int run(const QString &optionValue);

/** Runs the probe in a process of its own and returns the number that it prints. */
double valueOf(const QString &name, int count);

/** The total CPU time of such a process from exec to exit, in seconds. */
double cpuSecondsOf(const QString &name, int count);

/** The same for a program in the folder of this one. */
double cpuSecondsOfProgram(const QString &program, const QStringList &arguments);

/** The current resident memory of this process, in bytes. */
double residentBytes();

/** Sets the folder of files for the probes, unless this process is a probe. */
void shareFolder(const QString &path);

/** The shared folder, which is the same in this process and its probes. */
QString sharedFolder();
} // namespace Probe
