#include "ItemKinds.h"
#include "Logging.h"
#include "Records.h"
#include "TonquillScene.h"

#include <QCursor>
#include <QGraphicsView>

namespace
{
/** Characters; every second item is the frame of another and has no record. */
constexpr qsizetype typicalRecordSize = 32;
} // namespace

QString TonquillScene::pageCountLine() const
{
    return Records::pageCountLine(m_context->pages());
}

QString TonquillScene::notifyTW()
{
    QString document = pageCountLine();
    const QList<QGraphicsItem *> all = itemsFromTop();
    document.reserve(document.size() + all.size() * typicalRecordSize / 2);
    for (QGraphicsItem *item : all) {
        if (QObject *object = ItemReference::objectOf(item)) {
            const QString record = recordOf(object);
            qCDebug(lcRecords).noquote() << record;
            document += record;
        }
    }
    return document;
}

/** Empty for an item without a record, such as a plain picture of an embedding program. */
QString TonquillScene::recordOf(QObject *item)
{
    QString record;
    QMetaObject::invokeMethod(item, "getParamStr", Qt::DirectConnection,
                              Q_RETURN_ARG(QString, record));
    return record;
}

void TonquillScene::constructItem(const QString &record, bool adding, int offset)
{
    qCDebug(lcRecords) << "conxtructitem itemname" << Records::keywordOf(record);
    if (const ItemKind *kind = ItemKinds::catalogue().ofRecord(Records::keywordOf(record)))
        build(*kind, record, adding, offset);
}

ItemReference TonquillScene::constructDocument(QStringView records)
{
    // Inserting a glyph drops the item that waits to be placed.
    const QList<ItemReference> waiting = std::exchange(m_waiting, {});
    // When everything has to be repainted, Qt keeps no list of dirty regions, which takes more time
    // and memory than the items.
    update();
    m_lastBuilt = nullptr;
    m_isBuildingDocument = true;
    while (!records.isEmpty()) {
        const QStringView record = Records::takeFirst(records);
        const QStringView keyword = Records::keywordOf(record);
        qCDebug(lcRecords) << "conxtructitem itemname" << keyword;
        const ItemKind *kind = ItemKinds::catalogue().ofRecord(keyword);
        if (kind && kind->isHostKind)
            build(*kind, record, false, 0);
    }
    m_isBuildingDocument = false;
    m_waiting = waiting;
    if (!m_lastBuilt)
        return {};
    m_lastAdded = ItemReference(m_lastBuilt);
    return m_lastAdded;
}

void TonquillScene::build(const ItemKind &kind, QStringView record, bool adding, int offset)
{
    const auto [item, position] = kind.readRecord(Records::fieldsOf(record), adding, *m_context);
    if (!item)
        return;
    if (kind.dropsWaitingItem)
        isNewItemIsAdding();
    const double away = double(kind.offsetTimes) * offset;
    item->setPos(offset == atCursor ? cursorPosition() : position + QPointF(away, away));
    addOwnItem(item);
}

void TonquillScene::addOwnItem(QGraphicsItem *item)
{
    addNewItem(item);
    const ItemKind *kind = ItemKinds::catalogue().ofItem(*item);
    if (kind && kind->joinScene)
        kind->joinScene(*item, *this);
}

QGraphicsItem *TonquillScene::buildItem(const ItemState &state)
{
    QGraphicsItem *item = state.build(*m_context);
    addOwnItem(item);
    return item;
}

/** The mouse cursor in scene coordinates, as the first view maps it. */
QPointF TonquillScene::cursorPosition() const
{
    if (views().isEmpty())
        return QPointF();
    const QGraphicsView *view = views().constFirst();
    return view->mapToScene(view->mapFromGlobal(QCursor::pos()));
}
