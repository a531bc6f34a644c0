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
    // In the key text Tab is typed like any letter; with Ctrl it leads on, as it does elsewhere.
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
    // Only a folder of that name asks; an existing file is overwritten. The "%s" is shown as it
    // stands. Both are intentional.
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

/** False, after a word to the user, if something is missing or the name is no file's name. */
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
