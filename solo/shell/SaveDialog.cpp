#include "SaveDialog.h"

#include "PlainMessageBox.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>

QString SaveDialog::ask(QWidget &window, const QString &suggested) const
{
    QFileDialog dialog(&window, m_title, QFileInfo(suggested).path(), m_filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // The dialog completes the name before it asks whether to replace a file.
    dialog.setDefaultSuffix(m_suffix);
    dialog.selectFile(suggested);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return completed(window, dialog.selectedFiles().value(0));
}

QString SaveDialog::completed(QWidget &window, const QString &chosen) const
{
    if (chosen.isEmpty() || !QFileInfo(chosen).suffix().isEmpty())
        return chosen;
    const QString path = chosen + u'.' + m_suffix;
    if (!QFileInfo::exists(path))
        return path;
    PlainMessageBox box(
        QMessageBox::Warning, tr("“%1” already exists.").arg(QDir::toNativeSeparators(path)),
        tr("Replacing it will overwrite its contents."), QMessageBox::Cancel, &window);
    const QAbstractButton *replace = box.addButton(tr("Replace"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == replace ? path : QString();
}
