#include "InsertCommands.h"

#include "ItemKinds.h"
#include "Logging.h"
#include "Records.h"
#include "TonquillScene.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"
#include "TonquillTimeSig.h"

InsertCommands::InsertCommands(QWidget &window, TonquillScene &scene)
    : m_window(window)
    , m_scene(scene)
{}

void InsertCommands::text()
{
    if (m_scene.isNewItemIsAdding())
        return;
    TonquillSimpleTextDlg dialog(&m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    auto *item = new TonquillText(true);
    dialog.applyTo(*item);
    m_scene.addOwnItem(item);
    // Intentional: a new text rotates in the opposite direction of an edited one.
    item->setRotation(-dialog.angle());
    item->updateFrame();
}

void InsertCommands::tempo(const QString &term)
{
    qCDebug(lcTonquill) << "OnToolBar2ActionTempo";
    qCDebug(lcTonquill) << "OnToolBar2ActionTempo action" << term;
    auto *item = new TonquillText(true);
    item->setFont(QFont(QStringLiteral("Arial"), 12));
    item->setPlainText(term);
    item->setDefaultTextColor(Qt::black);
    m_scene.addOwnItem(item);
    item->updateFrame();
}

void InsertCommands::timeSignature(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    const QStringView view(text);
    const int upper = slash < 0 ? text.toInt() : view.first(slash).toInt();
    const int lower = slash < 0 ? 0 : view.sliced(slash + 1).toInt();
    m_scene.addNewItem(new TonquillTimeSig(upper, lower, true));
}

void InsertCommands::textBlock()
{
    addInsteadOfWaiting(Records::textblockKeyword());
}

void InsertCommands::grandstaff()
{
    addInsteadOfWaiting(Records::grandstaffKeyword());
}

void InsertCommands::triplet()
{
    addInsteadOfWaiting(Records::tripletKeyword());
}

void InsertCommands::tie()
{
    addInsteadOfWaiting(Records::notetieKeyword());
}

void InsertCommands::line()
{
    addInsteadOfWaiting(Records::interactivelineKeyword());
}

void InsertCommands::tablature()
{
    add(Records::linetabKeyword());
}

void InsertCommands::addInsteadOfWaiting(const QString &keyword)
{
    if (!m_scene.isNewItemIsAdding())
        add(keyword);
}

void InsertCommands::add(const QString &keyword)
{
    m_scene.addOwnItem(ItemKinds::catalogue().ofRecord(keyword)->makeNew());
}
