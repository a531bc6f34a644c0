#include "InsertCommands.h"

#include "Logging.h"
#include "TonquillScene.h"
#include "TonquillSimpleTextDlg.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"
#include "TonquillVectorGrandstaff.h"
#include "TonquillVectorInteractiveLine.h"
#include "TonquillVectorLineTab.h"
#include "TonquillVectorNoteTie.h"
#include "TonquillVectorTriplet.h"

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
    addText(item);
    // A new text turns the other way than an edited one. That is intentional.
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
    addText(item);
    item->updateFrame();
}

void InsertCommands::addText(TonquillText *item)
{
    QObject::connect(item, &TonquillText::showTextItemMenu, &m_scene,
                     &TonquillScene::onTextItemContextMenu);
    m_scene.addNewItem(item);
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
    if (!m_scene.isNewItemIsAdding())
        m_scene.addNewItem(new TonquillTextBlock(true, QString(), QRectF()));
}

template <typename VectorItem>
void InsertCommands::vectorItem()
{
    if (!m_scene.isNewItemIsAdding())
        m_scene.addNewItem(new VectorItem(true, QPointF(0, 0), QPointF(0, 0)));
}

void InsertCommands::grandstaff()
{
    vectorItem<TonquillVectorGrandstaff>();
}

void InsertCommands::triplet()
{
    vectorItem<TonquillVectorTriplet>();
}

void InsertCommands::tie()
{
    vectorItem<TonquillVectorNoteTie>();
}

void InsertCommands::line()
{
    vectorItem<TonquillVectorInteractiveLine>();
}

void InsertCommands::tablature()
{
    m_scene.addNewItem(new TonquillVectorLineTab(true, QPointF(0, 0), QPointF(0, 0)));
}
