#include "ItemReference.h"

#include "SelectionFrame.h"
#include "TonquillBitmap.h"

#include <typeinfo>

QObject *ItemReference::objectOf(QGraphicsItem *item)
{
    if (!item)
        return nullptr;
    // Nearly all items are glyphs and frames. Comparing their exact class is fast; the cast between
    // base classes takes as long as writing the glyph's record.
    const std::type_info &itemClass = typeid(*item);
    if (itemClass == typeid(SelectionFrame))
        return nullptr;
    if (itemClass == typeid(TonquillBitmap))
        return static_cast<TonquillBitmap *>(item);
    return dynamic_cast<QObject *>(item);
}
