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
    // Copied before the question, so that what cannot be read is never lost.
    const QString copy = found->problems.isEmpty() ? QString() : journal.keepCopy();
    const bool isWanted = wants(*found, copy);
    if (isWanted) {
        // A damaged journal that could not be copied must not be overwritten.
        if (found->problems.isEmpty() || !copy.isEmpty())
            journal.takeOver();
        m_session.showRecovered(*found);
    } else {
        journal.takeOver();
        journal.discard();
    }
    return isWanted;
}

/** The text above the name of a journal that could not be copied. */
QString RecoveryOffer::untilMoved()
{
    return tr("Until this file is moved, no further changes can be recovered after a crash:");
}

void RecoveryOffer::tellUnreadable()
{
    const QString copy = m_session.journal().keepCopy();
    const QString details = copy.isEmpty() ? untilMoved() : tr("They are kept in this file:");
    const QString file = copy.isEmpty() ? m_session.journal().file() : copy;
    PlainMessageBox::warn(
        &m_window, tr("Tonquill ended unexpectedly, and the unsaved changes cannot be read."),
        details + u'\n' + QDir::toNativeSeparators(file));
    if (!copy.isEmpty())
        m_session.journal().takeOver();
}

bool RecoveryOffer::wants(const RecoveryJournal::Found &found, const QString &copy)
{
    const QString name =
        found.path.isEmpty() ? tr("an untitled document") : QDir::toNativeSeparators(found.path);
    const QString details = tr("%1, %2.\nThe file itself is not changed until you save.")
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

/** The details about a journal that can only be read in part; empty for any other. */
QString RecoveryOffer::lossesOf(const RecoveryJournal::Found &found, const QString &copy) const
{
    if (found.problems.isEmpty())
        return QString();
    QString text =
        QStringLiteral("\n\n") + tr("Not everything can be read:") + u'\n' + found.problems;
    if (!copy.isEmpty())
        return text + QStringLiteral("\n\n") + tr("Everything is kept in this file:") + u'\n' +
               QDir::toNativeSeparators(copy);
    return text + QStringLiteral("\n\n") + untilMoved() + u'\n' +
           QDir::toNativeSeparators(m_session.journal().file());
}
