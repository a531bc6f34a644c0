#pragma once

#include <QCoreApplication>

class QWidget;

/** The pages of the Help menu. They stay open beside the editor until they are closed. */
class HelpPages
{
    Q_DECLARE_TR_FUNCTIONS(HelpPages)

public:
    static void showKeysAndMouse(QWidget &window);
    static void showMusicaLetters(QWidget &window);
    static void showAbout(QWidget &window);

private:
    static void showPage(QWidget &window, const QString &title, const QString &markdown);
    static QString keysAndMouse();
    static QString musicaLetters();
};
