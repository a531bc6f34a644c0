#pragma once

#include <QObject>

class TonquillMainWin;

/**
 * The zoom of the window's view. Ctrl and the mouse wheel zoom at the pointer. As long as a control
 * exists, lines grow with the zoom as glyphs do.
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
    /** Zooms so that a sheet is as wide as the view. */
    void fitWidth();

Q_SIGNALS:
    /** Emitted before the zoom changes to `scale` pixels per scene unit. */
    void aboutToZoom(double scale);
    void zoomed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY_MOVE(ZoomControl)

    /** Shows a scene unit as `scale` pixels, keeping the centre or the point under the pointer. */
    void setScale(double scale, bool atPointer);
    double scale() const;

    TonquillMainWin &m_window;
};
