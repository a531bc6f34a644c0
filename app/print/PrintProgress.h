#pragma once

#include <QCoreApplication>
#include <QProgressDialog>

class HostLink;

/**
 * One print as the user watches it. A dialog appears once the print proves to be a long one, and
 * has the user's events processed from page to page. Until the print is over nothing else of the
 * program can be used, and what the host sends has to wait.
 */
class PrintProgress
{
    Q_DECLARE_TR_FUNCTIONS(PrintProgress)

public:
    PrintProgress(QWidget &window, HostLink &hostLink, int pages);
    ~PrintProgress();

    /** To be called before page `index`, counted from 0. False if the user has cancelled. */
    bool beginPage(int index);

private:
    Q_DISABLE_COPY_MOVE(PrintProgress)

    HostLink &m_hostLink;
    QProgressDialog m_dialog;
};
