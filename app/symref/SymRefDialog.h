#pragma once

#include <QDialog>

class QKeySequence;
class Ui_SymRefDialog;

/** Asks for an instrument's name and the key to its tablature symbols; writes them to a file. */
class SymRefDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SymRefDialog(QWidget *parent = nullptr);
    ~SymRefDialog() override;

private Q_SLOTS:
    void on_pb_ok_clicked();
    void on_pb_cancel_clicked();

private:
    void moveFocusBy(const QKeySequence &keys, bool forwards);
    bool checkInput();
    void warn(const QString &text);

    Ui_SymRefDialog *ui;
};
