#pragma once

#include "RecoveryJournal.h"

#include <QCoreApplication>

class DocumentSession;
class QWidget;

/** Offers to recover unsaved changes of a run that ended unexpectedly. */
class RecoveryOffer
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryOffer)

public:
    RecoveryOffer(QWidget &window, DocumentSession &session)
        : m_window(window)
        , m_session(session)
    {}

    /** Asks the user if there is anything to recover. Returns true if it is shown now. */
    bool make();

private:
    void tellUnreadable();
    bool wants(const RecoveryJournal::Found &found, const QString &copy);
    static QString untilMoved();
    QString lossesOf(const RecoveryJournal::Found &found, const QString &copy) const;

    QWidget &m_window;
    DocumentSession &m_session;
};
