#include "Comparison.h"
#include "Probe.h"
#include "Rows.h"
#include "TableReporter.h"
#include "TonquillMainWin.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTemporaryDir>

namespace
{
void addRows()
{
    Rows::addDocument();
    Rows::addKinds();
    Rows::addEditing();
    Rows::addPages();
    Rows::addPainting();
    Rows::addPrinting();
    Rows::addMemory();
    Rows::addStart();
    Rows::addSolo();
    Rows::addSoloEditing();
}

/**
 * Measures the two sides of a row alternately and several times, so that other load on the machine
 * affects both equally.
 */
void initializeBenchmarks(const QString &repetitions, const QString &only)
{
    QByteArrayList options{"tonquill-bench", "--benchmark_enable_random_interleaving=true",
                           "--benchmark_repetitions=" + repetitions.toLatin1(),
                           "--benchmark_filter=" + only.toLatin1()};
    std::vector<char *> arguments;
    for (QByteArray &option : options)
        arguments.push_back(option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
}
} // namespace

int main(int argc, char *argv[])
{
    // The host's socket is in the temporary folder; a private one avoids meeting a real host.
    const QTemporaryDir temporary(QStringLiteral("/tmp/tonquill-bench-XXXXXX"));
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    Probe::shareFolder(temporary.path());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("tonquill.debug=false");
    QApplication application(argc, argv);

    const QCommandLineOption only("only", "Measure what matches <regex>.", "regex", ".");
    const QCommandLineOption repetitions("repetitions", "Measure each <n> times.", "n", "5");
    const QCommandLineOption json("json", "Write the rows to <file> as well.", "file");
    const QCommandLineOption items("items", "Measure with <n> items and no other number.", "n");
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({only, repetitions, json, items, Probe::option()});
    parser.process(application);

    if (parser.isSet(items))
        compareOnlyWith(parser.value(items).toInt());
    addRows();
    if (parser.isSet(Probe::option()))
        return Probe::run(parser.value(Probe::option()));

    TonquillMainWin window;
    // Shown once for its layout, then hidden so that repaints are not counted.
    window.show();
    QCoreApplication::processEvents();
    window.hide();
    initializeBenchmarks(parser.value(repetitions), parser.value(only));
    TableReporter reporter(parser.value(json).toStdString());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
