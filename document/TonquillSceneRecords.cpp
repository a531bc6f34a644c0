#include "ItemFactory.h"
#include "Logging.h"
#include "TonquillBitmap.h"
#include "TonquillScene.h"
#include "TonquillText.h"
#include "TonquillTextBlock.h"
#include "TonquillTimeSig.h"

#include <QCursor>
#include <QGraphicsView>

namespace
{
/** Characters; every second item is the frame of another and has no record. */
constexpr qsizetype typicalRecordSize = 32;
} // namespace

QString TonquillScene::notifyTW()
{
    QString document = Records::pageCountLine(m_context->pages());
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

/** An item without a record, such as a plain picture that a host's extension laid, gives "". */
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
    build(Records::parse(record), adding, offset);
}

ItemReference TonquillScene::constructDocument(QStringView records)
{
    // A glyph that is inserted makes the scene drop the item that waits to be placed.
    const QList<ItemReference> waiting = std::exchange(m_waiting, {});
    // Once all has to be painted, Qt keeps no list of what each item would have painted
    // anew, which takes more time and memory than the items.
    update();
    m_lastBuilt = nullptr;
    m_isBuildingDocument = true;
    while (!records.isEmpty()) {
        const QStringView record = Records::takeFirst(records);
        qCDebug(lcRecords) << "conxtructitem itemname" << Records::keywordOf(record);
        build(Records::parse(record), false, 0);
    }
    m_isBuildingDocument = false;
    m_waiting = waiting;
    if (!m_lastBuilt)
        return {};
    m_lastAdded = ItemReference(m_lastBuilt);
    return m_lastAdded;
}

namespace
{
/** Overloaded lambdas for std::visit. */
template <typename... Visitors>
struct Overloaded : Visitors...
{
    using Visitors::operator()...;
};

template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;
} // namespace

void TonquillScene::build(const Records::Record &parsed, bool adding, int offset)
{
    const auto addAndPlace = [this, offset](QGraphicsItem *item, const auto &record) {
        addNewItem(item);
        place(item, record.x, record.y, offset);
    };
    std::visit(Overloaded{
                   [](std::monostate) {},
                   [&](const Records::Bitmap &record) { buildBitmap(record, adding, offset); },
                   [&](const Records::Text &record) { buildText(record, adding, offset); },
                   [&](const Records::TimeSig &record) {
                       addAndPlace(
                           new TonquillTimeSig(record.numerator, record.denominator, adding),
                           record);
                   },
                   [&](const Records::Vector &record) {
                       addAndPlace(ItemFactory::makeVectorItem(record, adding), record);
                   },
                   [&](const Records::TextBlock &record) {
                       qCDebug(lcRecords)
                           << "tmp1=" << record.x << record.y << record.width << record.height;
                       qCDebug(lcRecords) << "txt=" << record.text;
                       const QRectF rect(record.x, record.y, record.width, record.height);
                       addAndPlace(new TonquillTextBlock(adding, record.text, rect), record);
                   },
               },
               parsed);
}

void TonquillScene::buildBitmap(const Records::Bitmap &record, bool adding, int offset)
{
    TonquillBitmap *item = insertSymbol(record.symbolId, adding, true);
    if (!item)
        return;
    item->setInverted(record.inverted);
    place(item, record.x, record.y, offset);
}

void TonquillScene::buildText(const Records::Text &record, bool adding, int offset)
{
    QFont font;
    font.setFamily(record.family);
    // A size that is none comes from fields that a text of several words has shifted.
    if (record.pointSize > 0)
        font.setPointSize(record.pointSize);
    auto *item = new TonquillText(adding);
    item->setFont(font);
    item->setPlainText(record.text);
    item->setDefaultTextColor(QColor(record.color));
    item->setSelected(adding);
    connect(item, &TonquillText::showTextItemMenu, this, &TonquillScene::onTextItemContextMenu);
    addNewItem(item);
    item->setRotation(record.rotation);
    item->updateFrame();
    // A simple text gets the offset twice. That is intentional.
    place(item, record.x, record.y, offset == atCursor ? atCursor : 2.0 * offset);
    update();
}

void TonquillScene::place(QGraphicsItem *item, int x, int y, double offset)
{
    if (offset == atCursor)
        item->setPos(cursorPosition());
    else
        item->setPos(x + offset, y + offset);
}

/** The mouse cursor in scene coordinates, as the first view maps it. */
QPointF TonquillScene::cursorPosition() const
{
    if (views().isEmpty())
        return QPointF();
    const QGraphicsView *view = views().constFirst();
    return view->mapToScene(view->mapFromGlobal(QCursor::pos()));
}
