#include "SoloApplication.h"

#include "BuiltInHost.h"
#include "DocumentFile.h"
#include "Exporter.h"
#include "PlainMessageBox.h"
#include "SingleInstance.h"
#include "SoloWindow.h"
#include "Translations.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

namespace
{
bool isAnyOf(const char *argument, std::initializer_list<const char *> options)
{
    return std::any_of(options.begin(), options.end(), [argument](const char *option) {
        const size_t length = qstrlen(option);
        return qstrncmp(argument, option, length) == 0 &&
               (argument[length] == '\0' || argument[length] == '=');
    });
}

/** True if the command line asks for nothing that is shown in a window. */
bool worksWithoutDisplay(int argc, char *argv[])
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return isAnyOf(argument, {"--export", "--help", "-h", "--help-all", "--version", "-v"});
    });
}

bool hasDisplay()
{
#if defined(Q_OS_LINUX)
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

/**
 * On a terminal, what the program has to say must not drown in the editor's diagnostics, nor in
 * Qt's remark on which folder it takes for want of XDG_RUNTIME_DIR.
 */
void keepDiagnosticsToThoseWhoAsk()
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(
            QStringLiteral("tonquill*.debug=false\ndefault.warning=false"));
}

/** The user's own folder for the journal and for meeting other starts of the program. */
QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

/** True once: when the program is started for the first time. */
bool isFirstStart()
{
    QSettings settings;
    const QString key = QStringLiteral("startedBefore");
    const bool first = !settings.value(key).toBool();
    settings.setValue(key, true);
    return first;
}
} // namespace

int SoloApplication::fail(const QString &text)
{
    std::fprintf(stderr, "tonquill-solo: %s\n", qPrintable(text));
    return 1;
}

int SoloApplication::run(int argc, char *argv[])
{
    keepDiagnosticsToThoseWhoAsk();
    if (worksWithoutDisplay(argc, argv))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!hasDisplay())
        return fail(QStringLiteral("there is no display; --export works without one"));
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Tonquill"));
    QCoreApplication::setApplicationName(QStringLiteral("tonquill-solo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TONQUILL_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    installTranslations(application);
    const SoloArguments arguments = readArguments();
    return arguments.exportTo.isEmpty() ? runWindow(arguments) : exportFile(arguments);
}

SoloArguments SoloApplication::readArguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("A sketch pad for music notation, with files of its own."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption exportTo(
        QStringLiteral("export"),
        tr("Write FILE as PDF, PNG or SVG, told by the suffix of <out>, and show no window."),
        QStringLiteral("out"));
    const QCommandLineOption page(QStringLiteral("page"),
                                  tr("The page of a PNG or SVG picture; the first if not given."),
                                  QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption dots(QStringLiteral("dpi"),
                                  tr("Dots per inch of a PNG picture; 150 if not given."),
                                  QStringLiteral("dots"), QStringLiteral("150"));
    const QCommandLineOption example(
        QStringLiteral("example"),
        tr("Open a copy of <file> if the program was never started before."),
        QStringLiteral("file"));
    parser.addOptions({exportTo, page, dots, example});
    parser.addPositionalArgument(QStringLiteral("FILE"), tr("The document to open."),
                                 QStringLiteral("[FILE]"));
    parser.process(*QCoreApplication::instance());
    return SoloArguments{parser.positionalArguments().value(0), parser.value(exportTo),
                         parser.value(example), parser.value(page).toInt(),
                         parser.value(dots).toInt()};
}

int SoloApplication::exportFile(const SoloArguments &arguments)
{
    if (arguments.file.isEmpty())
        return fail(tr("--export needs a document"));
    TonquillMainWin window(TonquillMainWin::HostConnection::Later);
    const DocumentFile::Reading reading =
        DocumentFile::load(arguments.file, DocumentSnapshot::paperOf(window));
    if (!reading.problems.isEmpty())
        return fail(QStringLiteral("%1: %2").arg(arguments.file,
                                                 reading.problemText().section(u'\n', 0, 0)));
    reading.document.restore(window);
    DocumentSnapshot::setPrinterPaper(window);
    const QString error = Exporter(window).write(
        arguments.exportTo, ExportOptions{arguments.page, arguments.dotsPerInch, arguments.file});
    return error.isEmpty() ? 0 : fail(error);
}

int SoloApplication::runWindow(const SoloArguments &arguments)
{
    const QString file =
        arguments.file.isEmpty() ? QString() : QFileInfo(arguments.file).absoluteFilePath();
    SingleInstance instance(dataFolder());
    if (!instance.begin())
        return handOver(instance, file);
    if (BuiltInHost::isHostListening())
        return openAsEditorOfHost();

    SoloWindow solo(dataFolder());
    Beginning wanted{file, isFirstStart() ? arguments.example : QString(), {}};
    if (!instance.problem().isEmpty())
        wanted.problems.append(
            {tr("Another start of Tonquill will not find this window."), instance.problem()});
    if (const QString error = solo.startHost(); !error.isEmpty())
        wanted.problems.append(
            {tr("The toolbar's undo and redo cannot be used; the menu's can."), error});
    QObject::connect(&instance, &SingleInstance::fileHandedOver, &solo, &SoloWindow::openLater);
    QObject::connect(&solo, &SoloWindow::finished, [] { QCoreApplication::exit(0); });
    // Questions wait until the window is in its place, for they are asked in its middle.
    QObject::connect(&solo, &SoloWindow::appeared, &solo, [&solo, wanted] {
        solo.errands().add([&solo, wanted] { solo.begin(wanted); });
    });
    solo.show();
    return QCoreApplication::exec();
}

int SoloApplication::handOver(const SingleInstance &instance, const QString &path)
{
    if (instance.handOver(path))
        return 0;
    const QString text = tr("Another Tonquill is running and does not answer.");
    const QString details = path.isEmpty()
                                ? QString()
                                : tr("It may open “%1” later.").arg(QDir::toNativeSeparators(path));
    const int status = fail(text);
    PlainMessageBox::warn(nullptr, text, details);
    return status;
}

/** A host that is there already keeps its name; this program can be its editor, or nothing. */
int SoloApplication::openAsEditorOfHost()
{
    PlainMessageBox box(QMessageBox::Question, tr("A host for Tonquill is running already."),
                        tr("It keeps the document and its history. Tonquill can open as its "
                           "editor, without files and menus of its own."),
                        QMessageBox::Cancel);
    const QAbstractButton *open = box.addButton(tr("Open as Its Editor"), QMessageBox::AcceptRole);
    box.exec();
    if (box.clickedButton() != open)
        return 0;
    TonquillMainWin window;
    window.showNormal();
    window.raise();
    return QCoreApplication::exec();
}
