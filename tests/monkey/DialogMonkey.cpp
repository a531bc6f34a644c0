#include "DialogMonkey.h"

#include "Randomness.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTextEdit>
#include <QTimer>

namespace
{
/** The dialogs that the program itself draws; those of Qt are closed again. */
bool isOurs(const QWidget *dialog)
{
    return dialog->objectName() == QLatin1String("TonquillSimpleTextDlg") ||
           dialog->objectName() == QLatin1String("SymRefDialog");
}
} // namespace

DialogMonkey::DialogMonkey(Randomness &random)
    : m_random(random)
{
    answer();
}

void DialogMonkey::answer()
{
    // A timer does not fire within its own slot, and an answer may open the next dialog.
    QTimer::singleShot(1, this, SLOT(answer()));
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *modal = QApplication::activeModalWidget();
    if (!popup && !modal)
        return;
    if (m_random.onceIn(4))
        Q_EMIT dialogIsOpen();
    // What was open may have gone with the document that came.
    popup = QApplication::activePopupWidget();
    modal = QApplication::activeModalWidget();
    if (auto *menu = qobject_cast<QMenu *>(popup))
        answerMenu(menu);
    else if (popup)
        popup->close();
    else if (modal)
        answerDialog(modal);
}

void DialogMonkey::answerMenu(QMenu *menu)
{
    QAction *entry = menu->actions().isEmpty() ? nullptr : m_random.oneOf(menu->actions());
    if (entry && !entry->isSeparator() && m_random.below(3) > 0) {
        menu->setActiveAction(entry);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(menu, &enter);
    } else {
        menu->close();
    }
}

void DialogMonkey::answerDialog(QWidget *dialog)
{
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    if (isOurs(dialog)) {
        fillIn(dialog);
        m_random.oneOf(buttons)->click();
        if (m_random.onceIn(5))
            dialog->close();
    } else if (qobject_cast<QMessageBox *>(dialog) && !buttons.isEmpty()) {
        m_random.oneOf(buttons)->click();
    } else {
        dialog->close();
    }
}

void DialogMonkey::fillIn(QWidget *dialog)
{
    for (auto *line : dialog->findChildren<QLineEdit *>()) {
        if (!line->isReadOnly() && m_random.onceIn(2))
            line->setText(m_random.text());
    }
    for (auto *edit : dialog->findChildren<QTextEdit *>())
        edit->setPlainText(m_random.text());
}
