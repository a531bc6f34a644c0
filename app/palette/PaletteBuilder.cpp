#include "PaletteBuilder.h"

#include "TonquillScene.h"
#include "ToolBarStrip.h"

#include <QAction>
#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace
{
/**
 * If the pointer leaves the button while its menu is open, Qt sends no leave event, not even when
 * the menu closes.
 */
void tellIfPointerLeft(QToolButton &button)
{
    if (button.rect().contains(button.mapFromGlobal(QCursor::pos())))
        return;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
}
} // namespace

PaletteBuilder::PaletteBuilder(QWidget &window, TonquillScene &scene, const Parts &parts,
                               std::function<QMenu *()> symbolsReferenceMenu)
    : m_window(window)
    , m_scene(scene)
    , m_parts(parts)
    , m_symbolsReferenceMenu(std::move(symbolsReferenceMenu))
{}

void PaletteBuilder::build(bool rests)
{
    for (const PaletteToolBar &row : PaletteTable::toolBars())
        buildToolBar(row);
    refreshIcons(rests);
}

void PaletteBuilder::buildToolBar(const PaletteToolBar &row)
{
    QToolBar *toolBar = toolBarOf(row);
    for (const PaletteEntry &entry : row.entries) {
        if (entry.opensMenu())
            addMenuButton(toolBar, entry);
        else
            addAction(toolBar, entry);
    }
}

/** The action's text stays empty: the button shows only its icon, and the tips show its name. */
void PaletteBuilder::addAction(QToolBar *toolBar, const PaletteEntry &entry)
{
    QAction *action = toolBar->addAction(QString());
    action->setToolTip(entry.translatedTip());
    action->setStatusTip(entry.translatedTip());
    toolBar->widgetForAction(action)->setAccessibleName(entry.translatedTip());
    m_parts.actions.insert(entry.id, action);
    connectAction(*action, entry);
}

void PaletteBuilder::connectAction(QAction &action, const PaletteEntry &entry)
{
    if (entry.slot) {
        QObject::connect(&action, SIGNAL(triggered()), &m_window, entry.slot);
        return;
    }
    QObject::connect(
        &action, &QAction::triggered, &m_scene,
        [scene = &m_scene, symbol = entry.symbol] { scene->insertSymbol(symbol, true, true); });
}

void PaletteBuilder::addMenuButton(QToolBar *toolBar, const PaletteEntry &entry)
{
    QMenu *menu = constructMenuOf(entry.id);
    QToolButton *button = constructToolButton(QIcon(), menu);
    button->setToolTip(entry.translatedTip());
    button->setStatusTip(entry.translatedTip());
    button->setAccessibleName(entry.translatedTip());
    button->setAutoRaise(true);
    QAction *action = toolBar->addWidget(button);
    m_parts.actions.insert(entry.id, action);
    m_parts.menus.insert(entry.id, menu);
}

QToolButton *PaletteBuilder::constructToolButton(const QIcon &icon, QMenu *menu)
{
    auto *button = new QToolButton;
    button->setIcon(icon);
    button->setPopupMode(QToolButton::InstantPopup);
    if (menu) {
        button->setMenu(menu);
        QObject::connect(menu, &QMenu::aboutToHide, button,
                         [button] { tellIfPointerLeft(*button); });
    }
    return button;
}

QMenu *PaletteBuilder::constructMenuOf(int buttonId)
{
    if (buttonId == PaletteTable::symbolsReferenceId)
        return m_symbolsReferenceMenu();
    const QList<PaletteMenu> &rows = PaletteTable::menus();
    const auto row = std::find_if(rows.cbegin(), rows.cend(), [buttonId](const PaletteMenu &menu) {
        return menu.buttonId == buttonId;
    });
    return constructMenu(*row);
}

QMenu *PaletteBuilder::constructMenu(const PaletteMenu &row)
{
    auto *menu = new QMenu(&m_window);
    for (const PaletteEntry &entry : row.entries) {
        if (entry.isSeparator()) {
            menu->addSeparator();
            continue;
        }
        QAction *action =
            menu->addAction(*entry.text ? QString::fromLatin1(entry.text) : entry.translatedName());
        connectAction(*action, entry);
        action->setStatusTip(entry.translatedTip());
        m_parts.actions.insert(entry.id, action);
    }
    return menu;
}

QColor PaletteBuilder::ink() const
{
    return m_window.palette().color(QPalette::ButtonText);
}

void PaletteBuilder::refreshIcons(bool rests)
{
    for (const PaletteToolBar &row : PaletteTable::toolBars())
        inkToolBar(row);
    inkMenus();
    showToolBar2Icons(rests);
}

void PaletteBuilder::inkToolBar(const PaletteToolBar &row)
{
    const int count = static_cast<int>(row.entries.size());
    const ToolBarStrip strip(QString::fromLatin1(row.strip), count);
    QToolBar *toolBar = toolBarOf(row);
    toolBar->setIconSize(strip.sliceSize());
    for (int i = 0; i < count; ++i) {
        QAction *action = m_parts.actions.value(row.entries[i].id);
        action->setIcon(strip.icon(i, ink()));
        auto *button = qobject_cast<QToolButton *>(toolBar->widgetForAction(action));
        button->setIcon(action->icon());
        button->setIconSize(strip.sliceSize());
    }
    if (row.heldStrip)
        keepToolBar2Strips(strip, ToolBarStrip(QString::fromLatin1(row.heldStrip), count));
}

void PaletteBuilder::keepToolBar2Strips(const ToolBarStrip &normal, const ToolBarStrip &held)
{
    m_parts.tb2Count = normal.count();
    m_parts.tb2IconWidth = normal.sliceSize().width();
    m_parts.tb2IconHeight = normal.sliceSize().height();
    m_toolBar2Icons.clear();
    m_toolBar2HeldIcons.clear();
    for (int i = 0; i < normal.count(); ++i) {
        const int id = PaletteTable::toolBar2FirstId + i;
        m_parts.strip2.insert(id, normal.slice(i, ink()));
        m_parts.strip2B.insert(id, held.slice(i, ink()));
        m_toolBar2Icons.append(normal.icon(i, ink()));
        m_toolBar2HeldIcons.append(held.icon(i, ink()));
    }
}

/** The symbols are black; in a menu they get the colour of its text. */
void PaletteBuilder::inkMenus()
{
    for (const PaletteMenu &row : PaletteTable::menus()) {
        for (const PaletteEntry &entry : row.entries) {
            if (entry.symbol < 0)
                continue;
            const QPixmap picture = m_parts.symbols.value(entry.symbol);
            m_parts.actions.value(entry.id)->setIcon(
                ToolBarStrip::inked(picture.toImage(), m_window.palette().color(QPalette::Text)));
        }
    }
}

void PaletteBuilder::showToolBar2Icons(bool rests)
{
    const QList<QIcon> &icons = rests ? m_toolBar2HeldIcons : m_toolBar2Icons;
    for (int i = 0; i < m_parts.tb2Count; ++i) {
        // The four menu buttons keep their icons.
        const int id = PaletteTable::toolBar2FirstId + i;
        if (!m_parts.menus.contains(id))
            m_parts.actions.value(id)->setIcon(icons[i]);
    }
}

QToolBar *PaletteBuilder::toolBarOf(const PaletteToolBar &row) const
{
    return m_window.findChild<QToolBar *>(QString::fromLatin1(row.objectName));
}
