#pragma once

#include <QObject>

class TonquillMainWin;

/**
 * How large the window shows the page. Ctrl with the wheel zooms at the pointer. While there is
 * such a control, lines grow with the zoom as glyphs do.
 */
class ZoomControl : public QObject
{
    Q_OBJECT

public:
    explicit ZoomControl(TonquillMainWin &window);
    ~ZoomControl() override;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void showActualSize();
    /** Makes a sheet as wide as the view. */
    void fitWidth();

Q_SIGNALS:
    /** A scene unit is going to be shown as so many pixels. */
    void aboutToZoom(double scale);
    void zoomed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY_MOVE(ZoomControl)

    /** Shows a scene unit as `scale` pixels. The point in the middle, or under the pointer, stays.
     */
    void setScale(double scale, bool atPointer);
    double scale() const;

    TonquillMainWin &m_window;
};
