#pragma once

#include "DocumentItem.h"

#include <QFont>
#include <QGraphicsObject>

/** A time signature: two numbers, one above the other. It can be moved but not resized. */
class TonquillTimeSig : public DocumentItemOf<QGraphicsObject>
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    enum { Type = UserType + 3 };

    TonquillTimeSig(int numerator, int denominator, bool adding, QGraphicsItem *parent = nullptr);

    /** The upper number. */
    int numerator() const { return m_numerator; }
    /** The lower number. */
    int denominator() const { return m_denominator; }

    int type() const override { return Type; }

    /** Always 30 by 45 scene units; wide numbers extend beyond it. */
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /** The item's record. */
    QString getParamStr();

protected:
    const PointerManners &manners() const override;

private:
    QFont m_font; ///< bold, 23 points; painting uses another font
    int m_numerator;
    int m_denominator;
};
