#pragma once

#include <QHash>
#include <QKeySequence>

class QKeyEvent;

/**
 * Tells which keys copy and paste, by the platform's bindings. They act when they are released.
 * A hand often lets go of Ctrl a moment before the letter, so a press is remembered until its
 * release, which then means the same without Ctrl.
 */
class ClipboardKeys
{
public:
    /** Takes note of any press. */
    void press(const QKeyEvent &event);

    /** What this release asks for: Copy, Paste, or UnknownKey for neither. */
    QKeySequence::StandardKey release(const QKeyEvent &event);

    /** The keyboard goes elsewhere: releases of what is held now will not be told. */
    void forgetPresses() { m_pressed.clear(); }

private:
    QHash<quint32, QKeySequence::StandardKey> m_pressed; ///< by the place on the keyboard
};
