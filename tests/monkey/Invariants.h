#pragma once

#include <QString>

class TonquillMainWin;

/** What must hold of the editor whatever was done to it. */
namespace Invariants
{
/** The first invariant that does not hold, in words, or nothing. The document is left as it is. */
QString broken(const TonquillMainWin &window);

/**
 * Sends the document through the wire format and back, as a host does. Says which record came
 * back otherwise than designed, or nothing. The scene is rebuilt by this.
 */
QString brokenRoundTrip(TonquillMainWin &window);
} // namespace Invariants
