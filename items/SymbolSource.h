#pragma once

#include <QPixmap>

/** Provides the pictures of symbols. */
class SymbolSource
{
public:
    virtual ~SymbolSource() = default;

    /** The picture of a symbol; a null pixmap if this id has none. */
    virtual QPixmap symbolPicture(int id) const = 0;
};
