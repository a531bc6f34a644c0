#pragma once

#include "PaperPainting.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QProgressDialog>
#include <QTimer>
#include <QtTest>

#include <functional>

/** Counts how often it is printed; the first time is slow. */
class SlowItem : public QGraphicsItem
{
public:
    /** Milliseconds; the progress dialog needs at least 50 to estimate the duration. */
    static constexpr int slowness = 60;

    explicit SlowItem(int &paints)
        : m_paints(paints)
    {}
    QRectF boundingRect() const override { return QRectF(0, 0, 10, 10); }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        if (PaperPainting::isPrinter(*painter) && m_paints++ == 0)
            QTest::qSleep(slowness);
    }

private:
    int &m_paints;
};

/** Counts the progress dialogs that the program shows, and calls a function for each. */
class ProgressWatch : public QObject
{
public:
    using Act = std::function<void(QProgressDialog &)>;

    explicit ProgressWatch(Act act = {})
        : m_act(std::move(act))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *dialog = qobject_cast<QProgressDialog *>(object);
        if (!dialog || event->type() != QEvent::Show)
            return false;
        ++shown;
        if (m_act)
            QTimer::singleShot(0, dialog, [this, dialog] { m_act(*dialog); });
        return false;
    }

    int shown = 0;

private:
    Act m_act;
};
