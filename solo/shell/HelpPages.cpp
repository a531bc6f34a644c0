#include "HelpPages.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QMessageBox>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace
{
constexpr QSize pageSize(620, 640);

QString row(const QString &left, const QString &right)
{
    return QStringLiteral("| %1 | %2 |\n").arg(left, right);
}

QString tableHead(const QString &left, const QString &right)
{
    return row(left, right) + QStringLiteral("|---|---|\n");
}
} // namespace

void HelpPages::showPage(QWidget &window, const QString &title, const QString &markdown)
{
    auto *page = new QDialog(&window);
    page->setAttribute(Qt::WA_DeleteOnClose);
    page->setWindowTitle(title);
    auto *text = new QTextBrowser(page);
    text->setOpenLinks(false);
    text->setMarkdown(markdown);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, page);
    QObject::connect(buttons, &QDialogButtonBox::rejected, page, &QDialog::close);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(text);
    layout->addWidget(buttons);
    page->resize(pageSize);
    page->show();
}

QString HelpPages::keysAndMouse()
{
    return tableHead(tr("Mouse"), tr("Effect")) +
           row(tr("A palette button, then a click"), tr("places an item on the page")) +
           row(tr("A second click"), tr("places the other end of a staff, tie, bracket or line")) +
           row(tr("Right button held while placing"), tr("flips a note")) +
           row(tr("Drag on empty paper"), tr("selects the items inside")) +
           row(tr("Drag an item"), tr("moves the selection")) +
           row(tr("Drag a green anchor"), tr("stretches a figure or a text block")) +
           row(tr("Double-click a text block"), tr("edits its text")) +
           row(tr("Right-click a text"), tr("changes its text, font, colour and angle")) +
           row(tr("Right-click a text block"), tr("changes its font size")) +
           row(tr("Ctrl and the mouse wheel"), tr("zooms at the pointer")) +
           QStringLiteral("\n\n") + tableHead(tr("Key"), tr("Effect")) +
           row(tr("Ctrl, held"), tr("the note buttons insert rests")) +
           row(tr("Arrow keys"), tr("nudge the selection")) +
           row(tr("Delete, Backspace"), tr("delete the selection")) +
           row(tr("Ctrl+C, Ctrl+V"), tr("copy the selection; paste everything copied so far")) +
           row(tr("Space"), tr("adds another item like the last one")) +
           row(tr("F5"), tr("quick text on or off: typing on the page opens a text block")) +
           row(tr("Ctrl+Z, Ctrl+Shift+Z"), tr("undo and redo")) +
           row(tr("Ctrl+A"), tr("select everything")) +
           row(tr("Ctrl++, Ctrl+-, Ctrl+0, Ctrl+9"), tr("zoom in, zoom out, 100 %, fit width")) +
           row(tr("Ctrl+N, Ctrl+O, Ctrl+S"), tr("new, open, save")) +
           row(tr("Ctrl+E, Ctrl+P, Ctrl+Q"), tr("export as PDF, print, quit"));
}

/** The table of the documentation, without the sentence that leads to another of its pages. */
QString HelpPages::musicaLetters()
{
    QFile file(QStringLiteral(":/help/musica-letters.md"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QString text = QString::fromUtf8(file.readAll());
    const qsizetype link = text.indexOf(QLatin1String("[The contact sheet]"));
    const qsizetype end = text.indexOf(QLatin1String("\n\n"), link);
    return link < 0 ? text : text.remove(link, end - link);
}

void HelpPages::showKeysAndMouse(QWidget &window)
{
    showPage(window, tr("Keys and Mouse"), keysAndMouse());
}

void HelpPages::showMusicaLetters(QWidget &window)
{
    showPage(window, tr("Letters of the Musica Font"), musicaLetters());
}

void HelpPages::showAbout(QWidget &window)
{
    QMessageBox::about(&window, tr("About Tonquill"),
                       tr("<h3>Tonquill %1</h3><p>A sketch pad for music notation: symbols laid "
                          "by hand, exactly where you want them.</p>")
                           .arg(QCoreApplication::applicationVersion()));
}
