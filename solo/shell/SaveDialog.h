#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

/** Asks where to write a file, and whether one that exists may be replaced. */
class SaveDialog
{
    Q_DECLARE_TR_FUNCTIONS(SaveDialog)

public:
    /** `suffix` is what a name without one gets, without its dot. */
    SaveDialog(const QString &title, const QString &filter, const QString &suffix)
        : m_title(title)
        , m_filter(filter)
        , m_suffix(suffix)
    {}

    /** The path that the user has chosen, with a suffix; empty if the user gave up. */
    QString ask(QWidget &window, const QString &suggested) const;

    /**
     * The chosen path with a suffix. A dialog of the desktop may have asked about the name without
     * one, so if the whole name is another file, the user is asked here; empty if that one stays.
     */
    QString completed(QWidget &window, const QString &chosen) const;

private:
    QString m_title;
    QString m_filter;
    QString m_suffix;
};
