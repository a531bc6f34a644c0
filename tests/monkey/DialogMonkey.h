#pragma once

#include <QObject>

class QMenu;
class QWidget;
class Randomness;

/**
 * Answers whatever stands in the way: menus and dialogs that an action of the monkey's opened and
 * that run a loop of their own. Now and then it lets something else happen first.
 */
class DialogMonkey : public QObject
{
    Q_OBJECT

public:
    explicit DialogMonkey(Randomness &random);

Q_SIGNALS:
    /** A dialog is open: the time for a host to send a document. */
    void dialogIsOpen();

private Q_SLOTS:
    void answer();

private:
    void answerMenu(QMenu *menu);
    void answerDialog(QWidget *dialog);
    void fillIn(QWidget *dialog);

    Randomness &m_random;
};
