#pragma once

#include <QObject>

class QLabel;
class QPushButton;
class QSpinBox;
class TonquillMainWin;
class TonquillView;
class ZoomControl;

/**
 * Replaces what the page controls below the view do: they name the page that they act on, and going
 * to a page scrolls it to the top of the view.
 *
 * For that the view gets extra room below the last page. The scene rectangle stays the same, so the
 * room is neither printed nor exported.
 */
class PageControls : public QObject
{
    Q_OBJECT

public:
    /** Takes over the controls of `window`. Both arguments must outlive the object. */
    PageControls(TonquillMainWin &window, const ZoomControl &zoom);

    /** The page at the top of the view, from 1 to the number of pages. */
    int currentPage() const;

public Q_SLOTS:
    /** Updates the current page wherever it is shown. */
    void refresh();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void takeOver(const ZoomControl &zoom);
    void goToPage(int page);
    void showInsertMenu();
    void deletePage();
    void makeRoom();
    void makeRoomAt(double scale);

    TonquillMainWin &m_window;
    TonquillView &m_view;
    QLabel *m_label;
    QSpinBox *m_goto;
    QPushButton *m_insert;
    QPushButton *m_delete;
};
