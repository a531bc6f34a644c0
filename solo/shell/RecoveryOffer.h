#pragma once

#include "RecoveryJournal.h"

#include <QCoreApplication>

class DocumentSession;
class QWidget;

/** Offers at the start what a run that ended unexpectedly left behind. */
class RecoveryOffer
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryOffer)

public:
    RecoveryOffer(QWidget &window, DocumentSession &session)
        : m_window(window)
        , m_session(session)
    {}

    /** Asks what becomes of it, if there is anything. True if it is shown now. */
    bool make();

private:
    void tellUnreadable();
    bool wants(const RecoveryJournal::Found &found, const QString &copy);
    static QString untilMoved();
    QString lossesOf(const RecoveryJournal::Found &found, const QString &copy) const;

    QWidget &m_window;
    DocumentSession &m_session;
};
