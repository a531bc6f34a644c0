#pragma once

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QPrinter>
#include <QTextItem>

/** A paint engine that draws nothing and records its input. */
class PaintRecorder : public QPaintEngine
{
public:
    struct Text
    {
        QString text;
        QPointF position; ///< start of the baseline, in the painter's coordinates
        QFont font;
    };

    PaintRecorder()
        : QPaintEngine(AllFeatures)
    {}

    QList<Text> texts;
    QList<QRectF> rects;
    QList<QLineF> lines;
    QList<QPen> pens; ///< the pen of each text, rectangle, line and path in turn

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}

    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        texts.append({item.text(), position, item.font()});
        pens.append(painter()->pen());
    }
    void drawRects(const QRectF *given, int count) override
    {
        for (int i = 0; i < count; ++i)
            rects.append(given[i]);
        pens.append(painter()->pen());
    }
    void drawLines(const QLineF *given, int count) override
    {
        for (int i = 0; i < count; ++i)
            lines.append(given[i]);
        pens.append(painter()->pen());
    }
    void drawPath(const QPainterPath &) override { pens.append(painter()->pen()); }
};

/** A device whose painter is recorded: an image for the screen, or a QPrinter for paper. */
template <typename Device>
class RecordingDevice : public Device
{
public:
    using Device::Device;
    PaintRecorder &recorder() const { return m_recorder; }
    QPaintEngine *paintEngine() const override { return &m_recorder; }

private:
    mutable PaintRecorder m_recorder;
};

using RecordingScreen = RecordingDevice<QImage>;
using RecordingPrinter = RecordingDevice<QPrinter>;
