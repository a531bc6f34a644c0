#include "Comparison.h"
#include "EditWatcher.h"
#include "Probe.h"
#include "Rows.h"
#include "SampleDocument.h"
#include "SoloWindow.h"
#include "TonquillScene.h"
#include "TonquillTextBlock.h"
#include "TonquillView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTemporaryDir>

namespace
{
/** The number of items in the baseline of these rows. */
constexpr int fewItems = 100;

/** The measured steps, and the ones before, which exclude one-time work of the process. */
constexpr int steps = 300;
constexpr int stepsBefore = 30;

/**
 * tonquill-solo with a document of glyphs. It is hidden so that repaints are not counted, and its
 * session is closed so that no journal is written, which a timer does and not an edit.
 */
class SoloProgram
{
public:
    explicit SoloProgram(int count)
        : m_solo(m_folder.path())
    {
        if (!m_solo.startHost().isEmpty())
            qFatal("the program has no host");
        const SampleDocument::Samples samples = SampleDocument::glyphs(count);
        for (const QString &record : SampleDocument::records(samples))
            scene().constructItem(record, false, 0);
        scene().setPageNum(SampleDocument::pagesFor(count));
        edits().reset();
        m_solo.session().close();
        QEvent activation(QEvent::WindowActivate); // lets items get the focus
        QCoreApplication::sendEvent(&scene(), &activation);
        handleEvents();
        QObject::connect(&edits(), &EditWatcher::documentChanged, &edits(),
                         [this] { ++m_recorded; });
    }

    TonquillScene &scene() { return *m_solo.window().scene; }
    TonquillView &view() { return *m_solo.window().view(); }

    QGraphicsItem *firstItem()
    {
        const QPointF place = SampleDocument::glyphs(1).front().position;
        return scene().itemAt(place, QTransform())->topLevelItem();
    }

    /** Handles everything that an edit causes, until all bytes are handed to the system. */
    void handleEvents()
    {
        do
            QCoreApplication::processEvents();
        while (m_solo.window().socket.bytesToWrite() > 0);
    }

    void typeKey(int key, const QString &text = QString())
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&view(), &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&view(), &release);
        handleEvents();
    }

    void usePointer(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QWidget *paper = view().viewport();
        QMouseEvent event(type, place, paper->mapToGlobal(place), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(paper, &event);
    }

    /** Nanoseconds per call of `step`, each of which adds `edits` steps to the history. */
    template <typename Step>
    double measure(const Step &step, int edits)
    {
        for (int i = 0; i < stepsBefore; ++i)
            step();
        m_recorded = 0;
        const double seconds = cpuSecondsOfOne(steps, step);
        if (m_recorded != edits * steps)
            qFatal("%d edits were recorded", m_recorded);
        return seconds * 1e9;
    }

private:
    EditWatcher &edits() { return m_solo.session().edits(); }

    QTemporaryDir m_folder;
    SoloWindow m_solo;
    int m_recorded = 0;
};

double releaseKey(int count)
{
    SoloProgram program(count);
    return program.measure([&] { program.typeKey(Qt::Key_Home); }, 0);
}

double nudge(int count)
{
    SoloProgram program(count);
    program.firstItem()->setSelected(true);
    int step = 0;
    const auto toAndFro = [&] { program.typeKey(step++ % 2 ? Qt::Key_Left : Qt::Key_Right); };
    return program.measure(toAndFro, 1);
}

/** Types letters into the bottommost item, a text block. */
double typeLetter(int count)
{
    SoloProgram program(count - 1);
    auto *block = new TonquillTextBlock(false, QStringLiteral(" "), QRectF(0, 0, 100, 20));
    program.scene().addNewItem(block);
    block->setPos(300, 10);
    block->setSelected(true);
    block->setTextInteractionFlags(Qt::TextEditorInteraction);
    block->setFocus();
    program.handleEvents();
    int step = 0;
    const auto toAndFro = [&] {
        if (step++ % 2)
            program.typeKey(Qt::Key_Backspace, QStringLiteral("\b"));
        else
            program.typeKey(Qt::Key_A, QStringLiteral("a"));
    };
    return program.measure(toAndFro, 1);
}

/** Presses, drags and releases an item, which is sent to the host. */
double finishDrag(int count)
{
    SoloProgram program(count);
    QGraphicsItem *item = program.firstItem();
    item->setSelected(true);
    int step = 0;
    const auto toAndFro = [&] {
        const QPoint from = program.view().mapFromScene(item->pos());
        const QPoint to = from + QPoint(step++ % 2 ? -8 : 8, 0);
        program.usePointer(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        program.usePointer(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        program.usePointer(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        program.handleEvents();
    };
    return program.measure(toAndFro, 1);
}

void compareWithFewItems(const char *operation, double (*nanoseconds)(int count))
{
    const QString probe = QString::fromLatin1(operation).remove(u':');
    Probe::add(probe, nanoseconds);
    const auto seconds = [probe](int count) { return Probe::valueOf(probe, count) * 1e-9; };
    compare({.operation = operation,
             .ours = seconds,
             .floor = [seconds](int) { return seconds(fewItems); },
             .counts = {1000, 10000, 100000}});
}
} // namespace

void Rows::addSoloEditing()
{
    compareWithFewItems("solo: key release without an edit", releaseKey);
    compareWithFewItems("solo: nudge", nudge);
    compareWithFewItems("solo: type a letter", typeLetter);
    compareWithFewItems("solo: finish a drag", finishDrag);
}
