#pragma once

#include "SelectionFrame.h"

#include <QEvent>
#include <QGraphicsObject>
#include <QGraphicsRectItem>
#include <QPen>
#include <QStringList>

#include <functional>

/** Writes down the events that reach items, as "name press", "name move" and so on. */
struct EventLog
{
    void note(const QString &name, const QEvent &event)
    {
        switch (event.type()) {
        case QEvent::GraphicsSceneMousePress:
            lines << name + " press";
            break;
        case QEvent::GraphicsSceneMouseMove:
            lines << name + " move";
            break;
        case QEvent::GraphicsSceneMouseRelease:
            lines << name + " release";
            break;
        case QEvent::GraphicsSceneMouseDoubleClick:
            lines << name + " double click";
            break;
        default:
            break;
        }
    }

    QStringList takeAll() { return std::exchange(lines, {}); }

    QStringList lines;
};

/** A plain item of 40 by 40 that is no QObject and has no frame. */
class PlainProbe : public QGraphicsRectItem
{
public:
    PlainProbe(EventLog &log, const QString &name)
        : QGraphicsRectItem(-20, -20, 40, 40)
        , m_log(log)
        , m_name(name)
    {
        setPen(Qt::NoPen);
        setFlag(ItemIsSelectable);
    }

protected:
    bool sceneEvent(QEvent *event) override
    {
        m_log.note(m_name, *event);
        return true;
    }

private:
    EventLog &m_log;
    QString m_name;
};

/** An item of 40 by 40 with a frame whose one anchor is the top-left corner. */
class FramedProbe : public QGraphicsObject
{
    Q_OBJECT
    Q_PROPERTY(int itemStatus READ itemStatus)

public:
    FramedProbe(EventLog &log, const QString &name)
        : m_log(log)
        , m_name(name)
        , m_frame(this)
    {
        setObjectName(name);
        setFlags(ItemIsSelectable | ItemIsFocusable);
        m_frame.addAnchor(boundingRect().topLeft());
    }

    int itemStatus() const
    {
        ++statusReads;
        return status;
    }
    QRectF boundingRect() const override { return QRectF(-20, -20, 40, 40); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}

    int status = 0;
    mutable int statusReads = 0;     ///< how often `itemStatus` was asked for
    std::function<void()> onPointer; ///< called with each event of the pointer

protected:
    bool sceneEvent(QEvent *event) override
    {
        const qsizetype before = m_log.lines.size();
        m_log.note(m_name, *event);
        if (onPointer && m_log.lines.size() > before)
            onPointer();
        return true;
    }

private:
    EventLog &m_log;
    QString m_name;
    SelectionFrame m_frame;
};
