#include "FuzzEditor.h"
#include "HostMessages.h"
#include "IncomingMessage.h"

/**
 * Reads of one message: the first byte says how long each is. What they add up to is judged and,
 * if it is a document, shown.
 */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1),
                           static_cast<qsizetype>(size - 1));
    const qsizetype pieceSize = 1 + data[0];
    IncomingMessage message;
    for (qsizetype at = 0; at < bytes.size(); at += pieceSize) {
        message.append(bytes.mid(at, pieceSize));
        message.endsWithRecord();
    }
    const QString text = message.take();
    if (text.startsWith(HostMessages::fromHost)) {
        FuzzEditor::window().twMsg(text.sliced(HostMessages::fromHost.size()));
        FuzzEditor::window().scene->notifyTW();
    }
    return 0;
}
