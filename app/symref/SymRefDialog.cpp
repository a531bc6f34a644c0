#include "SymRefDialog.h"

#include "SymRefPaths.h"
#include "ui_SymRefDialog.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QShortcut>

SymRefDialog::SymRefDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_SymRefDialog)
{
    ui->setupUi(this);
    // In the key text Tab types a tab character; with Ctrl it moves the focus.
    moveFocusBy(Qt::CTRL | Qt::Key_Tab, true);
    moveFocusBy(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, false);
}

SymRefDialog::~SymRefDialog()
{
    delete ui;
}

void SymRefDialog::moveFocusBy(const QKeySequence &keys, bool forwards)
{
    auto *shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this,
            [this, forwards] { focusNextPrevChild(forwards); });
}

void SymRefDialog::on_pb_ok_clicked()
{
    if (!checkInput())
        return;
    const QString path = SymRefPaths::pathOf(ui->lineEdit->text());
    // Only a folder of that name shows the question; an existing file is overwritten. The "%s" is
    // shown literally. Both are intentional.
    if (QDir(path).exists() &&
        QMessageBox::question(this, QStringLiteral("Overwrite?"),
                              QStringLiteral("The destination file already exists:\n\n\t%s\n\n"
                                             "Do you want to overwrite it?"),
                              QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes)
        return;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(ui->textEdit->toPlainText().toLatin1());
    accept();
}

/** Returns false, after telling the user, if a field is empty or the name is not a file name. */
bool SymRefDialog::checkInput()
{
    const QString instrument = ui->lineEdit->text();
    if (instrument.isEmpty()) {
        warn(QStringLiteral("Please supply an Instrument Name, thanks."));
        return false;
    }
    if (ui->textEdit->toPlainText().isEmpty()) {
        warn(QStringLiteral("Please supply some Symbols Key Text, thanks."));
        return false;
    }
    if (!SymRefPaths::staysInDirectory(instrument)) {
        warn(
            QStringLiteral("Please use letters and numbers only for the Instrument Name, thanks."));
        return false;
    }
    return true;
}

void SymRefDialog::warn(const QString &text)
{
    QMessageBox::warning(this, QStringLiteral("Tonquill"), text);
}

void SymRefDialog::on_pb_cancel_clicked()
{
    reject();
}
