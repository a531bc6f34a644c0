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
const QString openProbe = QStringLiteral("solo-open");
const QString openFloorProbe = QStringLiteral("solo-open-floor");
const QString printProbe = QStringLiteral("solo-export-floor");

/** One step back, with the items on the scene as an edit left them. */
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

/** What undoing is held against: the host's answer to its undo command. */
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

/** The path of a file for the probes with `count` items of all kinds; written when first asked. */
QString sampleFile(int count, const QString &suffix)
{
    return Probe::sharedFolder() + QStringLiteral("/%1.%2").arg(count).arg(suffix);
}

void writeSampleFiles(int count)
{
    const QString path = sampleFile(count, QStringLiteral("tonquill"));
    if (QFile::exists(path))
        return;
    Editor editor;
    editor.load(SampleDocument::mix(count));
    const QString error = DocumentFile::save(path, DocumentSnapshot::capture(editor.window()));
    QFile records(sampleFile(count, QStringLiteral("records")));
    const QByteArray text =
        SampleDocument::records(SampleDocument::mix(count)).join(u'|').toLatin1();
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

/** A file is opened as the program does it that is started with one. Resident bytes at the end. */
double openFile(int count)
{
    const QString path = sampleFile(count, QStringLiteral("tonquill"));
    if (!QFile::exists(path))
        qFatal("there is no sample file"); // nobody is there to close the program's box
    const QTemporaryDir folder;
    SoloWindow solo(folder.path());
    solo.show();
    paintAndSettle(solo.window());
    solo.files().openFile(path);
    paintAndSettle(solo.window());
    return Probe::residentBytes();
}

/** The editor's window, and in it what the file holds, built from records. */
std::unique_ptr<TonquillMainWin> windowWithRecords(int count)
{
    auto window = std::make_unique<TonquillMainWin>();
    window->showNormal();
    paintAndSettle(*window);
    QFile records(sampleFile(count, QStringLiteral("records")));
    if (!records.open(QIODevice::ReadOnly))
        qFatal("the sample file cannot be read");
    window->twMsg(QString::fromLatin1(records.readAll()));
    window->scene->setPageNum(SampleDocument::pagesFor(count));
    paintAndSettle(*window);
    return window;
}

double receiveAfterStart(int count)
{
    const auto window = windowWithRecords(count);
    return Probe::residentBytes();
}

double printRecords(int count)
{
    const auto window = windowWithRecords(count);
    window->hide();
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath(QStringLiteral("pages.pdf")));
    window->print(&printer);
    return 0;
}

/** The program itself, from exec to exit. */
double exportFile(int count)
{
    writeSampleFiles(count);
    return Probe::cpuSecondsOfProgram(QStringLiteral("tonquill-solo"),
                                      {QStringLiteral("--export"),
                                       sampleFile(count, QStringLiteral("pdf")),
                                       sampleFile(count, QStringLiteral("tonquill"))});
}

Measure afterWriting(double (*measure)(const QString &probe, int count), const QString &probe)
{
    return [=](int count) {
        writeSampleFiles(count);
        return measure(probe, count);
    };
}
} // namespace

void Rows::addSolo()
{
    Probe::add(openProbe, openFile);
    Probe::add(openFloorProbe, receiveAfterStart);
    Probe::add(printProbe, printRecords);
    compare({.operation = "solo: one undo step", .ours = undo, .floor = receive});
    compare({.operation = "solo: open a file",
             .ours = afterWriting(Probe::cpuSecondsOf, openProbe),
             .floor = afterWriting(Probe::cpuSecondsOf, openFloorProbe)});
    compare({.operation = "solo: open a file, resident memory",
             .ours = afterWriting(Probe::valueOf, openProbe),
             .floor = afterWriting(Probe::valueOf, openFloorProbe),
             .unit = Unit::Bytes});
    compare({.operation = "solo: export to PDF",
             .ours = exportFile,
             .floor = afterWriting(Probe::cpuSecondsOf, printProbe)});
}
