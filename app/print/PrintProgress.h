#pragma once

#include <QCoreApplication>
#include <QProgressDialog>

#include <functional>

class QWidget;

/** How to keep what comes from outside, such as a host's document, unread while pages are printed.
 */
struct OutsidePause
{
    std::function<void()> begin;
    std::function<void()> end;
};

/**
 * One print as the user watches it. A dialog appears once the print proves to be a long one, and
 * has the user's events processed from page to page. Until the print is over nothing else of the
 * program can be used, and what comes from outside has to wait.
 */
class PrintProgress
{
    Q_DECLARE_TR_FUNCTIONS(PrintProgress)

public:
    /** Of so many pages, watched over `window`. `pause` outlives the object. */
    PrintProgress(QWidget &window, const OutsidePause &pause, int pages);
    ~PrintProgress();

    /** To be called before page `index`, counted from 0. False if the user has cancelled. */
    bool beginPage(int index);

private:
    Q_DISABLE_COPY_MOVE(PrintProgress)

    const OutsidePause &m_pause;
    QProgressDialog m_dialog;
};
