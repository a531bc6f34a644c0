#include "ReceivedDocument.h"

#include "TonquillScene.h"

ReceivedDocument::ReceivedDocument(TonquillScene &scene)
    : m_scene(scene)
{}

void ReceivedDocument::show(QStringView payload)
{
    m_scene.clearScene();
    // The page-count line is ignored: only the user's page controls add and delete pages.
    build(payload);
}

/** Builds the last record separately, since only it may change later. */
bool ReceivedDocument::build(QStringView records)
{
    const qsizetype last = records.lastIndexOf(u'|') + 1;
    const bool hasBuilt = m_scene.constructDocument(records.first(last)).object() != nullptr;
    m_lastItem = m_scene.constructDocument(records.sliced(last));
    return hasBuilt || m_lastItem.object() != nullptr;
}

bool ReceivedDocument::goOn(QStringView text, qsizetype cameBefore)
{
    QStringView rest = text;
    const QStringView record = Records::takeFirst(rest);
    const Records::Record before = Records::parse(text.first(cameBefore));
    bool hasChanged = false;
    if (Records::parse(record) != before) {
        if (std::holds_alternative<std::monostate>(before))
            hasChanged = build(record);
        else
            hasChanged = replaceLastItem(record);
    }
    if (record.size() < text.size())
        hasChanged = build(rest) || hasChanged;
    return hasChanged;
}

/** For a last number that was cut. An item that the user has deleted since is not replaced. */
bool ReceivedDocument::replaceLastItem(QStringView record)
{
    QGraphicsItem *item = m_lastItem.get(&m_scene);
    if (!item)
        return false;
    m_scene.destroyItems({item});
    return build(record);
}
