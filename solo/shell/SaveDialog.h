#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

/** Asks where to save a file and whether to replace an existing one. */
class SaveDialog
{
    Q_DECLARE_TR_FUNCTIONS(SaveDialog)

public:
    /** `suffix`, without its dot, is added to names that have none. */
    SaveDialog(const QString &title, const QString &filter, const QString &suffix)
        : m_title(title)
        , m_filter(filter)
        , m_suffix(suffix)
    {}

    /** The path that the user has chosen, with a suffix; empty if the user cancelled. */
    QString ask(QWidget &window, const QString &suggested) const;

    /**
     * The chosen path with a suffix. A native dialog may have checked the name without the suffix
     * only, so if the completed name exists, the user is asked; empty if it is not to be replaced.
     */
    QString completed(QWidget &window, const QString &chosen) const;

private:
    QString m_title;
    QString m_filter;
    QString m_suffix;
};
