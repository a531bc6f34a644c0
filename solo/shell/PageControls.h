#pragma once

#include <QObject>

class QLabel;
class QPushButton;
class QSpinBox;
class TonquillMainWin;
class TonquillView;
class ZoomControl;

/**
 * What the controls under the view do in the program of its own, in place of the editor's own
 * answers: they name the page that they mean, and going to a page brings it to the top of the view.
 *
 * The view gets as much room below the last page as that takes. The scene keeps its rectangle, so
 * nothing of the room is printed or exported.
 */
class PageControls : public QObject
{
    Q_OBJECT

public:
    /** Takes the controls of `window` over. Both arguments outlive the object. */
    PageControls(TonquillMainWin &window, const ZoomControl &zoom);

    /** The page at the top of the view, from 1 to the number of pages. */
    int currentPage() const;

public Q_SLOTS:
    /** Names the current page wherever it is shown. */
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
