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

/** True if the command line asks for something that needs no window. */
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
 * Silences the editor's diagnostics and Qt's remark about a missing XDG_RUNTIME_DIR, so that the
 * program's own messages stand out on a terminal.
 */
void silenceDiagnostics()
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(
            QStringLiteral("tonquill*.debug=false\ndefault.warning=false"));
}

/** The user's folder for the journal and for finding other instances. */
QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

/** True only for the first call ever, which it remembers in the settings. */
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
    silenceDiagnostics();
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
    parser.setApplicationDescription(tr("A sketch pad for music notation."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption exportTo(QStringLiteral("export"),
                                      tr("Export FILE as PDF, PNG or SVG, depending on the suffix "
                                         "of <out>, without showing a window."),
                                      QStringLiteral("out"));
    const QCommandLineOption page(QStringLiteral("page"),
                                  tr("The page to export as PNG or SVG (default: 1)."),
                                  QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption dots(
        QStringLiteral("dpi"),
        tr("The resolution of a PNG picture in dots per inch (default: 150)."),
        QStringLiteral("dots"), QStringLiteral("150"));
    const QCommandLineOption example(
        QStringLiteral("example"),
        tr("Open a copy of <file> the first time the program is started."), QStringLiteral("file"));
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
    StartRequest request{file, isFirstStart() ? arguments.example : QString(), {}};
    if (!instance.problem().isEmpty())
        request.problems.append(
            {tr("If you start Tonquill again, it will not find this window."), instance.problem()});
    if (const QString error = solo.startHost(); !error.isEmpty())
        request.problems.append(
            {tr("Undo and redo only work from the menu, not from the toolbar."), error});
    QObject::connect(&instance, &SingleInstance::fileHandedOver, &solo, &SoloWindow::openLater);
    QObject::connect(&solo, &SoloWindow::finished, [] { QCoreApplication::exit(0); });
    // Questions wait until the window is in its place, since they are centred on it.
    QObject::connect(&solo, &SoloWindow::appeared, &solo, [&solo, request] {
        solo.tasks().add([&solo, request] { solo.begin(request); });
    });
    solo.show();
    return QCoreApplication::exec();
}

int SoloApplication::handOver(const SingleInstance &instance, const QString &path)
{
    if (instance.handOver(path))
        return 0;
    const QString text = tr("Tonquill is already running but does not respond.");
    const QString details = path.isEmpty()
                                ? QString()
                                : tr("It may open “%1” later.").arg(QDir::toNativeSeparators(path));
    const int status = fail(text);
    PlainMessageBox::warn(nullptr, text, details);
    return status;
}

/** Offers to run as the editor of a host that is already running. */
int SoloApplication::openAsEditorOfHost()
{
    PlainMessageBox box(QMessageBox::Question, tr("A host for Tonquill is already running."),
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
