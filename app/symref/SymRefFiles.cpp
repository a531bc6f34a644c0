#include "SymRefFiles.h"

#include "PaletteTable.h"
#include "SymRefDialog.h"
#include "TonquillMainWin.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QProcess>

namespace
{
constexpr QStringView namePrefix = u"SymRef_";

/** Opens a text file in the user's editor and waits for the opener, whatever becomes of it. */
void openInTextEditor(const QString &path)
{
#if defined(Q_OS_MACOS)
    QProcess::execute(QStringLiteral("open"), {QStringLiteral("-t"), path});
#elif defined(Q_OS_WIN)
    QProcess::execute(QStringLiteral("notepad"), {path});
#else
    QProcess::execute(QStringLiteral("xdg-open"), {path});
#endif
}
} // namespace

SymRefFiles::SymRefFiles(TonquillMainWin &window)
    : m_window(window)
{}

QMenu *SymRefFiles::menu()
{
    QMenu *menu = m_window.menus.value(PaletteTable::symbolsReferenceId);
    if (menu)
        menu->clear();
    else
        menu = new QMenu(&m_window);
    m_window.actions.insert(PaletteTable::symRefHeadingId,
                            menu->addAction(QStringLiteral("Symbols Reference...")));
    m_window.actions.insert(PaletteTable::symRefCreateNewId,
                            menu->addAction(QStringLiteral("Create New"), &m_window,
                                            SLOT(OnMenuActionSymRefCreateNew())));
    QDir directory(g_csINIPath);
    // Name filters alone would take "symref_" as well, which is another kind of file.
    directory.setFilter(directory.filter() | QDir::CaseSensitive);
    for (const QString &fileName : directory.entryList({QStringLiteral("SymRef_*.txt")})) {
        const QString instrument = QFileInfo(fileName).baseName().sliced(namePrefix.size());
        QAction *action = menu->addAction(instrument, &m_window, SLOT(OnMenuActionSymRefSymRef()));
        action->setData(directory.absoluteFilePath(fileName));
    }
    return menu;
}

void SymRefFiles::open(const QObject *action) const
{
    if (const auto *entry = qobject_cast<const QAction *>(action))
        openInTextEditor(entry->data().toString());
}

void SymRefFiles::createNew()
{
    SymRefDialog dialog;
    if (dialog.exec() == QDialog::Accepted)
        menu();
}

void SymRefFiles::openWithNotepad(const QString &fileName) const
{
    const QString path = QDir(g_csINIPath).absolutePath() + QLatin1Char('/') + fileName;
#if defined(Q_OS_WIN)
    QProcess::execute(QStringLiteral("notepad"), {path});
#else
    openInTextEditor(path);
#endif
}

QString SymRefFiles::pathOf(const QString &instrument)
{
    return g_csINIPath + QStringLiteral("/SymRef_") + instrument + QStringLiteral(".txt");
}

bool SymRefFiles::staysInDirectory(const QString &instrument)
{
    // "SymRef_" stands before the name, so "..", too, is a name of its own until a separator comes.
    QString name = instrument;
    const QStringList steps = name.replace(QDir::separator(), u'/').split(u'/');
    return steps.size() == 1 || !steps.contains(QStringLiteral(".."));
}
