#include "Monkey.h"

#include "DocumentMirror.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"
#include "TonquillView.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>

namespace
{
const QList<Qt::MouseButton> buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                     Qt::RightButton, Qt::MiddleButton};

struct Key
{
    int key;
    Qt::KeyboardModifiers modifiers;
    const char *text;
};

const QList<Key> keys{
    {Qt::Key_Left, Qt::NoModifier, ""},     {Qt::Key_Right, Qt::NoModifier, ""},
    {Qt::Key_Up, Qt::NoModifier, ""},       {Qt::Key_Down, Qt::NoModifier, ""},
    {Qt::Key_Delete, Qt::NoModifier, ""},   {Qt::Key_Backspace, Qt::NoModifier, "\b"},
    {Qt::Key_Space, Qt::NoModifier, " "},   {Qt::Key_F5, Qt::NoModifier, ""},
    {Qt::Key_Control, Qt::NoModifier, ""},  {Qt::Key_C, Qt::ControlModifier, ""},
    {Qt::Key_V, Qt::ControlModifier, ""},   {Qt::Key_A, Qt::NoModifier, "a"},
    {Qt::Key_Z, Qt::NoModifier, "z"},       {Qt::Key_1, Qt::NoModifier, "1"},
    {Qt::Key_Return, Qt::NoModifier, "\r"}, {Qt::Key_Escape, Qt::NoModifier, "\x1b"},
    {Qt::Key_Tab, Qt::NoModifier, "\t"},    {Qt::Key_Home, Qt::ShiftModifier, ""},
    {Qt::Key_PageDown, Qt::NoModifier, ""},
};

const QList<QByteArray> rubbish{
    "",
    "tw2tonquill",
    "tw2tonquill ",
    "xx tw2tonquill state:activate",
    QByteArray(5000, '|'),
    QByteArray("tw2tonquill state:activate\0more", 31),
    "tw2tonquill STATE:ACTIVATE",
    "tw2tonquill state:nothingtoundo",
    "tw2tonquill state:nothingtoredo",
    "tw2tonquill state:activate",
    "tw2tonquill tonquill_bitmap|tonquill_text 1 2|\n|",
};
} // namespace

Monkey::Monkey(quint32 seed)
    : m_random(seed)
    , m_dialogs(m_random)
{
    connect(&m_dialogs, SIGNAL(dialogIsOpen()), this, SLOT(hostSendsDocument()));
    startAfresh();
}

Monkey::~Monkey() = default;

void Monkey::startAfresh()
{
    m_pointer.reset();
    m_mirror.reset();
    m_window.reset();
    m_host = std::make_unique<TestHost>();
    m_window = std::make_unique<TonquillMainWin>();
    // Symbols reference files go into a folder that goes away.
    g_csINIPath = m_files.path();
    m_window->show();
    m_window->activateWindow();
    m_pointer = std::make_unique<ScenePointer>(*m_window->scene);
    m_mirror = std::make_unique<DocumentMirror>(*m_window);
    QApplication::processEvents();
}

void Monkey::step()
{
    const int what = m_random.below(100);
    if (what < 40)
        usePointer();
    else if (what < 55)
        dragPointer();
    else if (what < 75)
        useKey();
    else if (what < 89)
        usePalette();
    else if (what < 92)
        usePages();
    else if (what < 97)
        useHost();
    else if (what < 99)
        zoomAndScroll();
    else if (m_random.onceIn(4))
        print();
    QApplication::processEvents();
    m_mirror->refresh(); // ends the program if an edit was not announced
}

QPointF Monkey::anyPoint()
{
    const double height = m_window->pageCount * m_window->scene->pagePitch();
    return QPointF(m_random.between(-30, m_window->scene->paperRect.width() + 30),
                   m_random.between(-30, qMin(height, 1500.0)));
}

/** Aims at an item's corner, where anchors are, more often than chance would. */
QPointF Monkey::anyAnchorOrPoint()
{
    const QList<QGraphicsItem *> items = m_window->scene->items();
    if (items.isEmpty() || m_random.onceIn(3))
        return anyPoint();
    const QRectF bounds = m_random.oneOf(items)->sceneBoundingRect();
    return m_random.oneOf<QPointF>(
        {bounds.topLeft(), bounds.bottomRight(), bounds.center(), bounds.bottomLeft()});
}

void Monkey::usePointer()
{
    const Qt::MouseButton button = m_random.oneOf(buttons);
    const QPointF point = anyAnchorOrPoint();
    switch (m_random.below(5)) {
    case 0:
        m_pointer->moveTo(point);
        break;
    case 1:
        m_pointer->press(point, button);
        break;
    case 2:
        m_pointer->release(point, button);
        break;
    case 3:
        m_pointer->doubleClick(point, button);
        break;
    default:
        m_pointer->click(point, button);
    }
}

void Monkey::dragPointer()
{
    m_pointer->drag(anyAnchorOrPoint(), anyAnchorOrPoint(), m_random.oneOf(buttons));
}

void Monkey::useKey()
{
    const Key key = m_random.oneOf(keys);
    const QString text = QString::fromLatin1(key.text);
    const int way = m_random.below(8); // a press alone, a release alone, mostly both
    if (way != 1) {
        QKeyEvent press(QEvent::KeyPress, key.key, key.modifiers, text, m_random.onceIn(5));
        QApplication::sendEvent(m_window->view(), &press);
    }
    if (way != 0) {
        QKeyEvent release(QEvent::KeyRelease, key.key, key.modifiers, text);
        QApplication::sendEvent(m_window->view(), &release);
    }
}

void Monkey::usePalette()
{
    m_random.oneOf(m_window->actions.values())->trigger();
    if (m_random.onceIn(2))
        m_pointer->click(anyPoint());
}

void Monkey::usePages()
{
    switch (m_random.below(4)) {
    case 0:
        if (m_window->pageCount < 6)
            m_window->findChild<QPushButton *>("pb_insertPage")->click();
        break;
    case 1:
        m_window->findChild<QPushButton *>("pb_deletePAge")->click();
        break;
    case 2:
        m_window->findChild<QSpinBox *>("sb_page")->setValue(m_random.below(9));
        break;
    default:
        m_window->OnPageSetupAccepted();
    }
}

QString Monkey::anyRecord()
{
    const auto number = [this] { return QString::number(m_random.below(900) - 50); };
    const QString place = number() + u' ' + number();
    static const QStringList figures{"tonquill_grandstaff", "tonquill_interactiveline",
                                     "tonquill_linetab", "tonquill_notetie", "tonquill_triplet"};
    switch (m_random.below(6)) {
    case 0:
        return QStringLiteral("tonquill_timesig %1 3 4\n").arg(place);
    case 1:
        return QStringLiteral("tonquill_text %1 1 1 Word%2 Arial 12 ff000000 %3\n")
            .arg(place, number(), number());
    case 2:
        return QStringLiteral("tonquill_textblock_begin %1 %2 %3\n%4\ntonquill_textblock_end\n")
            .arg(place, number(), number(), m_random.text());
    case 3:
        return QStringLiteral("tonquill_bitmap %1 %2 %3\n")
            .arg(m_random.below(40))
            .arg(place)
            .arg(m_random.below(2));
    default:
        return QStringLiteral("%1 %2 %3 %4 %5 %6\n")
            .arg(m_random.oneOf(figures), place, number(), number(), number(), number());
    }
}

void Monkey::hostSendsDocument()
{
    QString document = QStringLiteral("tonquill_pagecount 1\n");
    for (int count = m_random.below(100); count > 0; --count)
        document += u'|' + anyRecord();
    if (m_host->isConnected() && m_random.onceIn(2))
        m_host->send(document.toLatin1());
    else
        m_window->twMsg(document);
}

void Monkey::useHost()
{
    if (m_random.onceIn(60)) {
        startAfresh();
    } else if (m_host->isConnected() && m_random.onceIn(40)) {
        m_host->closeConnection();
    } else if (m_host->isConnected() && m_random.onceIn(2)) {
        m_host->sendRaw(m_random.oneOf(rubbish));
    } else if (m_random.onceIn(2)) {
        hostSendsDocument();
    } else {
        m_window->notifyTW();
    }
}

void Monkey::print()
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFileName(m_files.filePath(QStringLiteral("printed.pdf")));
    m_window->print(&printer);
}

void Monkey::zoomAndScroll()
{
    QScrollBar *bar = m_window->view()->verticalScrollBar();
    bar->setValue(m_random.below(bar->maximum() + 1));
    m_window->view()->resetTransform();
    const double zoom = m_random.between(0.3, 3.0);
    m_window->view()->scale(zoom, zoom);
    m_window->view()->viewport()->grab();
}
