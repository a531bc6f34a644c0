#pragma once

#include <QCoreApplication>
#include <QString>

class SingleInstance;

/** What the command line asks for. */
struct SoloArguments
{
    QString file;
    QString exportTo;
    QString example;
    int page = 1;
    int dotsPerInch = 150;
};

/** The program from start to end: command line, other instances, window. */
class SoloApplication
{
    Q_DECLARE_TR_FUNCTIONS(SoloApplication)

public:
    /** Runs the program and returns its exit status. */
    static int run(int argc, char *argv[]);

private:
    static SoloArguments readArguments();
    static int exportFile(const SoloArguments &arguments);
    static int runWindow(const SoloArguments &arguments);
    static int handOver(const SingleInstance &instance, const QString &path);
    static int openAsEditorOfHost();
    static int fail(const QString &text);
};
