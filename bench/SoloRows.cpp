#include "Comparison.h"
#include "DocumentFile.h"
#include "EditWatcher.h"
#include "Editor.h"
#include "ItemReference.h"
#include "Probe.h"
#include "Rows.h"
#include "SoloWindow.h"
#include "TonquillView.h"

#include <QCoreApplication>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

using SampleDocument::Samples;

namespace
{
/** A kind of document, and its name in rows, probes and files. */
struct Content
{
    QString name;
    Samples (*make)(int count);
};

const Content glyphs{QStringLiteral("glyphs"), SampleDocument::glyphs};
const Content allKinds{QStringLiteral("all kinds"), SampleDocument::mix};

/** Undoes one step, with the items on the scene as after an edit. */
double undo(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    EditWatcher edits(editor.window());
    QGraphicsItem *moved =
        editor.scene().itemAt(SampleDocument::glyphs(1).front().position, QTransform());
    moved->topLevelItem()->moveBy(3, 4);
    edits.check();
    return cpuSeconds([&] {
        if (!edits.undo())
            qFatal("nothing was undone");
    });
}

/** The baseline of undo: the host's answer to the undo command. */
double receive(int count)
{
    Editor editor;
    editor.load(SampleDocument::glyphs(count));
    editor.connectToHost();
    const QPointer<QObject> old =
        ItemReference::objectOf(editor.scene().items(Qt::AscendingOrder).constFirst());
    editor.host().send(SampleDocument::message(SampleDocument::glyphs(count)));
    return cpuSeconds([&] { editor.receiveDocumentInPlaceOf(old); });
}

/** The path of a file that this process and its probes share. */
QString sampleFile(const Content &content, int count, const QString &suffix)
{
    return Probe::sharedFolder() + QStringLiteral("/%1 %2.%3").arg(count).arg(content.name, suffix);
}

QString documentFile(const Content &content, int count)
{
    return sampleFile(content, count, QStringLiteral("tonquill"));
}

QString recordsFile(const Content &content, int count)
{
    return sampleFile(content, count, QStringLiteral("records"));
}

/** Writes the document as a file of the program and as a host's records, on the first call. */
void writeSampleFiles(const Content &content, int count)
{
    if (QFile::exists(documentFile(content, count)))
        return;
    Editor editor;
    editor.load(content.make(count));
    const QString error = DocumentFile::save(documentFile(content, count),
                                             DocumentSnapshot::capture(editor.window()));
    QFile records(recordsFile(content, count));
    const QByteArray text = SampleDocument::records(content.make(count)).join(u'|').toLatin1();
    if (!error.isEmpty() || !records.open(QIODevice::WriteOnly) ||
        records.write(text) != text.size())
        qFatal("the sample files cannot be written");
}

void paintAndSettle(TonquillMainWin &window)
{
    QCoreApplication::processEvents();
    window.view()->viewport()->repaint();
    QCoreApplication::processEvents();
}

/**
 * Opens a file like the program started with it. Returns the resident memory after it, in bytes.
 */
double openFile(const Content &content, int count)
{
    const QString path = documentFile(content, count);
    if (!QFile::exists(path))
        qFatal("there is no sample file"); // nobody would close the program's message box
    const QTemporaryDir folder;
    SoloWindow solo(folder.path());
    solo.show();
    paintAndSettle(solo.window());
    solo.files().openFile(path);
    paintAndSettle(solo.window());
    return Probe::residentBytes();
}

/** The editor's window with the contents of the file, built from records. */
std::unique_ptr<TonquillMainWin> windowWithRecords(const Content &content, int count)
{
    auto window = std::make_unique<TonquillMainWin>();
    window->showNormal();
    paintAndSettle(*window);
    QFile records(recordsFile(content, count));
    if (!records.open(QIODevice::ReadOnly))
        qFatal("the sample file cannot be read");
    window->twMsg(QString::fromLatin1(records.readAll()));
    window->scene->setPageNum(SampleDocument::pagesFor(count));
    paintAndSettle(*window);
    return window;
}

double receiveAfterStart(const Content &content, int count)
{
    const auto window = windowWithRecords(content, count);
    return Probe::residentBytes();
}

double printRecords(const Content &content, int count)
{
    const auto window = windowWithRecords(content, count);
    window->hide();
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath(QStringLiteral("pages.pdf")));
    window->print(&printer);
    return 0;
}

/** Runs the program itself, from exec to exit. */
double exportFile(const Content &content, int count)
{
    writeSampleFiles(content, count);
    return Probe::cpuSecondsOfProgram(QStringLiteral("tonquill-solo"),
                                      {QStringLiteral("--export"),
                                       sampleFile(content, count, QStringLiteral("pdf")),
                                       documentFile(content, count)});
}

/** Applies `measure` to the probe, after writing its files. */
Measure ofProbe(double (*measure)(const QString &probe, int count), const Content &content,
                const QString &probe)
{
    return [=](int count) {
        writeSampleFiles(content, count);
        return measure(probe, count);
    };
}

QString addProbe(const QString &name, const Content &content,
                 double (*work)(const Content &content, int count))
{
    const QString full = name + u' ' + content.name;
    Probe::add(full, [=](int count) { return work(content, count); });
    return full;
}

void addContent(const Content &content)
{
    const QString open = addProbe(QStringLiteral("open"), content, openFile);
    const QString openFloor = addProbe(QStringLiteral("open floor"), content, receiveAfterStart);
    const QString printFloor = addProbe(QStringLiteral("export floor"), content, printRecords);
    const std::vector<int> counts{1000, 10000, 50000, 100000};
    const std::string of = " of " + content.name.toStdString();
    compare({.operation = "solo: open a file" + of,
             .ours = ofProbe(Probe::cpuSecondsOf, content, open),
             .floor = ofProbe(Probe::cpuSecondsOf, content, openFloor),
             .counts = counts});
    compare({.operation = "solo: resident with a file" + of,
             .ours = ofProbe(Probe::valueOf, content, open),
             .floor = ofProbe(Probe::valueOf, content, openFloor),
             .counts = counts,
             .unit = Unit::Bytes});
    compare({.operation = "solo: export a file" + of,
             .ours = [content](int count) { return exportFile(content, count); },
             .floor = ofProbe(Probe::cpuSecondsOf, content, printFloor),
             .counts = counts});
}
} // namespace

void Rows::addSolo()
{
    compare({.operation = "solo: one undo step", .ours = undo, .floor = receive});
    addContent(glyphs);
    addContent(allKinds);
}
