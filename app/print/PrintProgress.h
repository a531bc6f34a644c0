#pragma once

#include <QCoreApplication>
#include <QProgressDialog>

#include <functional>

class QWidget;

/** How to defer external input, such as a host's document, while pages are printed. */
struct OutsidePause
{
    std::function<void()> begin;
    std::function<void()> end;
};

/**
 * The progress of one print. A dialog appears if the print takes long, and processes the user's
 * events after each page. During the print the rest of the program is blocked, and external input
 * is deferred.
 */
class PrintProgress
{
    Q_DECLARE_TR_FUNCTIONS(PrintProgress)

public:
    /**
     * For a print of `pages` pages, shown over `window`. Both `window` and `pause` outlive the
     * object.
     */
    PrintProgress(QWidget &window, const OutsidePause &pause, int pages);
    ~PrintProgress();

    /**
     * To be called before page `index`, counted from 0. Returns false if the user has cancelled.
     */
    bool beginPage(int index);

private:
    Q_DISABLE_COPY_MOVE(PrintProgress)

    const OutsidePause &m_pause;
    QProgressDialog m_dialog;
};
