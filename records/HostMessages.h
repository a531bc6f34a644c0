#pragma once

#include <QString>

/** The texts of the host link. Messages have no end mark: one write is one message. */
namespace HostMessages
{
/** The name of the host's local server. */
inline const QString serverName = QStringLiteral("trackwrightqt");

inline const QString fromHost = QStringLiteral("tw2tonquill ");
inline const QString toHost = QStringLiteral("tonquill2tw ");

inline const QString stateActivate = QStringLiteral("state:activate");
inline const QString stateNothingToUndo = QStringLiteral("state:nothingtoundo");
inline const QString stateNothingToRedo = QStringLiteral("state:nothingtoredo");

/** True if the text after the prefix is a state, not a document. */
inline bool isState(const QString &payload)
{
    return payload == stateActivate || payload == stateNothingToUndo ||
           payload == stateNothingToRedo;
}

inline const QString commandRaise = QStringLiteral("command:raise");
inline const QString commandUndo = QStringLiteral("command:undo");
inline const QString commandRedo = QStringLiteral("command:redo");
} // namespace HostMessages
