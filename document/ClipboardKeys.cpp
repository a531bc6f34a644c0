#include "ClipboardKeys.h"

#include <QKeyEvent>

namespace
{
QKeySequence::StandardKey commandOf(const QKeyEvent &event)
{
    for (const QKeySequence::StandardKey command : {QKeySequence::Copy, QKeySequence::Paste}) {
        if (event.matches(command))
            return command;
    }
    return QKeySequence::UnknownKey;
}

/** With Ctrl a key may have another code than without it, for example on Cyrillic layouts. */
quint32 placeOf(const QKeyEvent &event)
{
    return event.nativeScanCode() ? event.nativeScanCode() : static_cast<quint32>(event.key());
}
} // namespace

void ClipboardKeys::press(const QKeyEvent &event)
{
    const QKeySequence::StandardKey command = commandOf(event);
    if (command == QKeySequence::UnknownKey)
        m_pressed.remove(placeOf(event));
    else
        m_pressed.insert(placeOf(event), command);
}

QKeySequence::StandardKey ClipboardKeys::release(const QKeyEvent &event)
{
    const QKeySequence::StandardKey pressed =
        m_pressed.value(placeOf(event), QKeySequence::UnknownKey);
    m_pressed.remove(placeOf(event));
    const QKeySequence::StandardKey command = commandOf(event);
    return command == QKeySequence::UnknownKey ? pressed : command;
}
