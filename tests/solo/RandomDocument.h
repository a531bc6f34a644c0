#pragma once

#include "ItemState.h"

#include <QRandomGenerator>

class QImage;
class TonquillMainWin;

/** Items of all kinds with random values for everything that a user can give them. */
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed)
    {}

    /** Any of the nine kinds. */
    ItemState item();

    /** One of the kinds, counted from 0 to 8. */
    ItemState item(int kind);

    /** A number from 0 up to but without `bound`. */
    int below(int bound) { return m_random.bounded(bound); }

    /** Adds so many items to the window. */
    void fill(TonquillMainWin &window, int count);

    /** What the document looks like, page by page, without selection marks. */
    static QList<QImage> pictures(TonquillMainWin &window);

private:
    QPointF point(double reach);
    QPointF placeOnPage();
    FontState font();
    QString text();

    QRandomGenerator m_random;
};
