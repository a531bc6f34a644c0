#pragma once

#include <QPixmap>

/** Where the pictures of symbols come from. */
class SymbolSource
{
public:
    virtual ~SymbolSource() = default;

    /** The picture of a symbol; null if there is none of this id. */
    virtual QPixmap symbolPicture(int id) const = 0;
};
