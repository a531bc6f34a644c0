#include "UnknownItems.h"

#include "DocumentItem.h"
#include "ItemKinds.h"
#include "Logging.h"

#include <QGraphicsItem>
#include <QSet>

#include <typeinfo>

namespace
{
/** The class of a document item without a row; empty for any other item. */
QString unknownClass(const QGraphicsItem &item)
{
    const DocumentItem *own = DocumentItem::of(&item);
    const auto *object = dynamic_cast<const QObject *>(&item);
    const bool isWaiting = own && own->isWaiting();
    const bool hasRecord = object && object->metaObject()->indexOfMethod("getParamStr()") >= 0;
    if (isWaiting || (!own && !hasRecord))
        return QString();
    return QString::fromLatin1(object ? object->metaObject()->className() : typeid(item).name());
}
} // namespace

QStringList UnknownItems::classesAmong(const QList<QGraphicsItem *> &items)
{
    QStringList classes;
    for (const QGraphicsItem *item : items) {
        if (ItemKinds::catalogue().ofItem(*item))
            continue;
        const QString name = unknownClass(*item);
        if (!name.isEmpty() && !classes.contains(name))
            classes.append(name);
    }
    return classes;
}

void UnknownItems::report(const QGraphicsItem &item)
{
    static QSet<QString> reported;
    const QString name = unknownClass(item);
    if (name.isEmpty() || reported.contains(name))
        return;
    reported.insert(name);
    qCWarning(lcTonquill) << "Items of the class" << name
                          << "are neither saved nor undone: the catalogue has no row for them";
}
