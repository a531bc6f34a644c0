#include "SymRefFiles.h"

#include "SymRefDialog.h"
#include "SymRefPaths.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QProcess>

namespace
{
// The keys of the menu's two fixed entries.
constexpr int headingId = 0x1000;
constexpr int createNewId = 0x1001;

/** Opens a text file in the user's editor; waits for the command and ignores its result. */
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

SymRefFiles::SymRefFiles(QWidget &window, QHash<int, QAction *> &actions,
                         const QHash<int, QMenu *> &menus, int buttonId)
    : m_window(window)
    , m_actions(actions)
    , m_menus(menus)
    , m_buttonId(buttonId)
{}

QMenu *SymRefFiles::menu()
{
    QMenu *menu = m_menus.value(m_buttonId);
    if (menu)
        menu->clear();
    else
        menu = new QMenu(&m_window);
    m_actions.insert(headingId, menu->addAction(QStringLiteral("Symbols Reference...")));
    m_actions.insert(createNewId, menu->addAction(QStringLiteral("Create New"), &m_window,
                                                  SLOT(OnMenuActionSymRefCreateNew())));
    QDir directory(g_csINIPath);
    // Name filters ignore case and would also match "symref_", which is another kind of file.
    directory.setFilter(directory.filter() | QDir::CaseSensitive);
    for (const QString &fileName :
         directory.entryList({SymRefPaths::namePrefix + QStringLiteral("*.txt")})) {
        const QString instrument =
            QFileInfo(fileName).baseName().sliced(SymRefPaths::namePrefix.size());
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
