#pragma once

#include <QHash>
#include <QKeySequence>

class QKeyEvent;

/**
 * Recognises the keys for copy and paste, by the platform's bindings. They act when released. Users
 * often release Ctrl a moment before the letter, so a press is remembered until its release, which
 * then counts even without Ctrl.
 */
class ClipboardKeys
{
public:
    /** Records a press of any key. */
    void press(const QKeyEvent &event);

    /** The command of this release: Copy, Paste, or UnknownKey for neither. */
    QKeySequence::StandardKey release(const QKeyEvent &event);

    /** The focus was lost: there will be no releases of keys that are held now. */
    void forgetPresses() { m_pressed.clear(); }

private:
    QHash<quint32, QKeySequence::StandardKey> m_pressed; ///< by native scan code
};
