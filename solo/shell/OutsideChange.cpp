#include "OutsideChange.h"

#include "DocumentSession.h"
#include "PlainMessageBox.h"

#include <QDir>
#include <QPushButton>

QString OutsideChange::whatHappened() const
{
    const QString text = m_change == FileStamp::Change::Removed
                             ? tr("“%1” was moved or deleted by another program.")
                             : tr("“%1” was changed by another program.");
    return text.arg(QDir::toNativeSeparators(m_session.path()));
}

OutsideChange::Answer OutsideChange::askBeforeSaving() const
{
    const bool isRemoved = m_change == FileStamp::Change::Removed;
    PlainMessageBox box(
        QMessageBox::Warning, whatHappened(),
        isRemoved
            ? tr("Saving will create it again.")
            : tr("Overwriting discards the other program's changes. Reloading discards yours."),
        QMessageBox::Cancel, &m_window);
    const QAbstractButton *overwrite =
        box.addButton(isRemoved ? tr("Save") : tr("Overwrite"), QMessageBox::DestructiveRole);
    QPushButton *elsewhere = box.addButton(tr("Save As…"), QMessageBox::AcceptRole);
    const QAbstractButton *reload =
        isRemoved ? nullptr : box.addButton(tr("Reload"), QMessageBox::DestructiveRole);
    // Pressing Enter must not lose anything.
    box.setDefaultButton(elsewhere);
    box.exec();
    const QAbstractButton *clicked = box.clickedButton();
    if (clicked == overwrite)
        return Answer::Overwrite;
    if (clicked == elsewhere)
        return Answer::SaveElsewhere;
    return reload && clicked == reload ? Answer::Reload : Answer::Cancel;
}

bool OutsideChange::tellAndOfferReload() const
{
    if (m_change == FileStamp::Change::Removed) {
        PlainMessageBox::warn(&m_window, whatHappened(),
                              tr("The document in this window is no longer saved anywhere."));
        return false;
    }
    PlainMessageBox box(QMessageBox::Warning, whatHappened(),
                        m_session.isModified() ? tr("Reload it and lose your changes?")
                                               : tr("Reload it?"),
                        QMessageBox::NoButton, &m_window);
    QPushButton *reload = box.addButton(tr("Reload"), QMessageBox::AcceptRole);
    QPushButton *keep = box.addButton(tr("Keep This Version"), QMessageBox::RejectRole);
    box.setDefaultButton(m_session.isModified() ? keep : reload);
    box.setEscapeButton(keep);
    box.exec();
    return box.clickedButton() == reload;
}
