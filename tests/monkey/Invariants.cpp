#include "Invariants.h"

#include "ItemReference.h"
#include "Records.h"
#include "SelectionFrame.h"
#include "TonquillMainWin.h"
#include "TonquillScene.h"

#include <QSet>

#include <algorithm>

namespace
{
QString brokenItem(QGraphicsItem *item)
{
    if (const auto *frame = qgraphicsitem_cast<SelectionFrame *>(item))
        return frame->parentItem() ? QString() : QStringLiteral("a frame without its item");
    const QObject *object = ItemReference::objectOf(item);
    const QVariant status = object ? object->property("itemStatus") : QVariant();
    if (!status.isValid() || status.toInt() < 0 || status.toInt() > 4)
        return QStringLiteral("an item of type %1 has no valid status").arg(item->type());
    return QString();
}

/** What is to be seen of a record after one trip through the wire format. */
struct AfterTrip
{
    QString operator()(std::monostate) const { return QString(); }
    QString operator()(const Records::Bitmap &record) const { return Records::format(record); }
    QString operator()(const Records::TimeSig &record) const { return Records::format(record); }
    QString operator()(const Records::Vector &record) const { return Records::format(record); }

    /** Size, font and colour of a simple text follow from whatever its fields shifted to. */
    QString operator()(const Records::Text &record) const
    {
        return QStringLiteral("text %1 %2 %3").arg(record.x).arg(record.y).arg(record.text);
    }

    /** A block gains a unit of width and a line break, whose number does not tell. */
    QString operator()(const Records::TextBlock &record) const
    {
        QString text = record.text;
        while (text.endsWith(u'\n'))
            text.chop(1);
        return QStringLiteral("block %1 %2 %3 %4")
            .arg(record.x)
            .arg(record.y)
            .arg(record.height)
            .arg(text);
    }
};

QStringList recordsOf(const TonquillMainWin &window)
{
    QStringList records;
    for (QGraphicsItem *item : window.scene->items()) {
        QString record;
        if (QObject *object = ItemReference::objectOf(item))
            QMetaObject::invokeMethod(object, "getParamStr", Qt::DirectConnection,
                                      Q_RETURN_ARG(QString, record));
        if (!record.isEmpty())
            records.append(record);
    }
    return records;
}

/** Sorted, for a trip turns the stacking order round. */
QStringList afterTrip(const QStringList &records)
{
    QStringList result;
    for (const QString &record : records)
        result.append(std::visit(AfterTrip(), Records::parse(record)));
    std::sort(result.begin(), result.end());
    return result;
}
} // namespace

QString Invariants::broken(const TonquillMainWin &window)
{
    if (window.pageCount < 1)
        return QStringLiteral("the document has %1 pages").arg(window.pageCount);
    const QList<QGraphicsItem *> items = window.scene->items();
    for (QGraphicsItem *item : items) {
        if (const QString what = brokenItem(item); !what.isEmpty())
            return what;
    }
    const QSet<QGraphicsItem *> alive(items.cbegin(), items.cend());
    for (QGraphicsItem *item : window.scene->selectedItems()) {
        if (!alive.contains(item))
            return QStringLiteral("an item is selected but not on the scene");
    }
    return QString();
}

QString Invariants::brokenRoundTrip(TonquillMainWin &window)
{
    const QStringList records = recordsOf(window);
    const QStringList expected = afterTrip(records);
    window.twMsg(records.join(u'|'));
    const QStringList actual = afterTrip(recordsOf(window));
    for (qsizetype i = 0; i < qMax(expected.size(), actual.size()); ++i) {
        if (expected.value(i) != actual.value(i))
            return QStringLiteral("\"%1\" came back as \"%2\"")
                .arg(expected.value(i), actual.value(i));
    }
    return QString();
}
