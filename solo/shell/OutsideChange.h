#pragma once

#include "FileStamp.h"

#include <QCoreApplication>

class DocumentSession;
class QWidget;

/** The questions about a document's file that another program has changed or removed. */
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

    /** Asks what to do instead of simply saving. */
    Answer askBeforeSaving() const;

    /** Tells of the change; true if the user wants to see the file as it is now. */
    bool tellAndOfferReload() const;

private:
    QString whatHappened() const;

    QWidget &m_window;
    const DocumentSession &m_session;
    FileStamp::Change m_change;
};
