#include "Invariants.h"
#include "Monkey.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>
#include <QTextStream>

namespace
{
constexpr int stepsBetweenChecks = 500;
constexpr int stepsOfOneWindow = 4000;

int run(quint32 seed, int steps)
{
    QTextStream out(stdout);
    Monkey monkey(seed);
    qsizetype largest = 0; // items, each with its frame
    for (int step = 1; step <= steps; ++step) {
        monkey.step();
        if (step % stepsBetweenChecks != 0)
            continue;
        largest = qMax(largest, monkey.window().scene->items().size() / 2);
        QString broken = Invariants::broken(monkey.window());
        if (broken.isEmpty())
            broken = Invariants::brokenRoundTrip(monkey.window());
        if (!broken.isEmpty()) {
            out << "seed " << seed << ", step " << step << ": " << broken << Qt::endl;
            return 1;
        }
        if (step % stepsOfOneWindow == 0)
            monkey.startAfresh();
    }
    out << "seed " << seed << ": " << steps << " steps survived, with up to " << largest << " items"
        << Qt::endl;
    return 0;
}
} // namespace

/** tonquill-monkey [--seed N] [--steps N]: exits with 1, and the step, if an invariant breaks. */
int main(int argc, char *argv[])
{
    QTemporaryDir temporary(QStringLiteral("/tmp/tonquill-monkey-XXXXXX"));
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    // No text editor or printer command is ever found, so none is started.
    qputenv("PATH", "/nonexistent");
    QApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Uses the editor at random."));
    parser.addHelpOption();
    parser.addOptions({{QStringLiteral("seed"), QStringLiteral("Where chance begins."),
                        QStringLiteral("number"), QStringLiteral("1")},
                       {QStringLiteral("steps"), QStringLiteral("How much is done."),
                        QStringLiteral("number"), QStringLiteral("20000")}});
    parser.process(application);
    return run(parser.value(QStringLiteral("seed")).toUInt(),
               parser.value(QStringLiteral("steps")).toInt());
}
