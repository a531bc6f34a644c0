#pragma once

#include "FileStamp.h"

#include <QCoreApplication>

class DocumentSession;
class QWidget;

/** The dialogs about a document's file that another program has changed or removed. */
class OutsideChange
{
    Q_DECLARE_TR_FUNCTIONS(OutsideChange)

public:
    enum class Answer { Overwrite, SaveElsewhere, Reload, Cancel };

    OutsideChange(QWidget &window, const DocumentSession &session, FileStamp::Change change)
        : m_window(window)
        , m_session(session)
        , m_change(change)
    {}

    /** Asks whether to overwrite the file, save elsewhere, reload or cancel. */
    Answer askBeforeSaving() const;

    /** Reports the change; returns true if the user wants to reload the file. */
    bool tellAndOfferReload() const;

private:
    QString whatHappened() const;

    QWidget &m_window;
    const DocumentSession &m_session;
    FileStamp::Change m_change;
};
