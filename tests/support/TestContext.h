#pragma once

#include "DocumentContext.h"

/** A document context for tests without a window: A4 with a frame, and plain values. */
class TestContext : public DocumentContext
{
public:
    Sheet sheet() const override
    {
        return {QRectF(0, 0, 8.27, 11.69), QMarginsF(0.14, 0.14, 0.14, 0.14)};
    }
    int pages() const override { return pageCount; }
    void setPages(int count) override { pageCount = count; }
    bool isRestModeOn() const override { return restMode; }
    void setRestMode(bool on) override { restMode = on; }
    bool isQuickTextOn() const override { return quickText; }
    void setQuickText(bool on) override { quickText = on; }
    QPixmap symbolPicture(int id) const override
    {
        QPixmap picture(10 + id, 20);
        picture.fill(Qt::black);
        return picture;
    }
    void editFinished() override { ++finishedEdits; }

    int pageCount = 0;
    int finishedEdits = 0;
    bool restMode = false;
    bool quickText = false;
};
