#include "RecoveryOffer.h"

#include "DocumentSession.h"
#include "PlainMessageBox.h"

#include <QDir>
#include <QLocale>
#include <QPushButton>

bool RecoveryOffer::make()
{
    RecoveryJournal &journal = m_session.journal();
    const auto found = journal.find(m_session.defaultPaper());
    if (!found) {
        if (journal.isUndecided())
            tellUnreadable();
        return false;
    }
    // Made before the question: what is left out is never on its way out without a copy.
    const QString copy = found->problems.isEmpty() ? QString() : journal.keepCopy();
    const bool isWanted = wants(*found, copy);
    if (isWanted) {
        // What could be kept nowhere else is not written over.
        if (found->problems.isEmpty() || !copy.isEmpty())
            journal.takeOver();
        m_session.showRecovered(*found);
    } else {
        journal.takeOver();
        journal.discard();
    }
    return isWanted;
}

/** What is said above the name of a journal of which there is no copy. */
QString RecoveryOffer::untilMoved()
{
    return tr("Until this file is moved away, no other changes are kept for recovery:");
}

void RecoveryOffer::tellUnreadable()
{
    const QString copy = m_session.journal().keepCopy();
    const QString details = copy.isEmpty() ? untilMoved() : tr("It is kept in this file:");
    const QString file = copy.isEmpty() ? m_session.journal().file() : copy;
    PlainMessageBox::warn(&m_window,
                          tr("Tonquill ended unexpectedly, and what was not saved cannot be read."),
                          details + u'\n' + QDir::toNativeSeparators(file));
    if (!copy.isEmpty())
        m_session.journal().takeOver();
}

bool RecoveryOffer::wants(const RecoveryJournal::Found &found, const QString &copy)
{
    const QString name = found.path.isEmpty() ? tr("a document without a name")
                                              : QDir::toNativeSeparators(found.path);
    const QString details = tr("%1, %2.\nThe file itself stays as it is until you save.")
                                .arg(name, QLocale().toString(found.time, QLocale::ShortFormat));
    PlainMessageBox box(QMessageBox::Question,
                        tr("Tonquill ended unexpectedly. Recover the unsaved changes?"),
                        details + lossesOf(found, copy), QMessageBox::NoButton, &m_window);
    QPushButton *recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
    box.addButton(tr("Discard"), QMessageBox::DestructiveRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(recover);
    box.exec();
    return box.clickedButton() == recover;
}

/** What the details say about a journal that can only be read in part. */
QString RecoveryOffer::lossesOf(const RecoveryJournal::Found &found, const QString &copy) const
{
    if (found.problems.isEmpty())
        return QString();
    QString text =
        QStringLiteral("\n\n") + tr("Not everything can be read:") + u'\n' + found.problems;
    if (!copy.isEmpty())
        return text + QStringLiteral("\n\n") + tr("All that was kept is in this file:") + u'\n' +
               QDir::toNativeSeparators(copy);
    return text + QStringLiteral("\n\n") + untilMoved() + u'\n' +
           QDir::toNativeSeparators(m_session.journal().file());
}
