#include "FuzzEditor.h"
#include "HostMessages.h"
#include "IncomingMessage.h"
#include "ReceivedDocument.h"

#include <QRegularExpression>

namespace
{
/** What came of messages: the records on the scene. */
class Shown
{
public:
    void handle(const IncomingMessage::Message &message)
    {
        if (message.cameBefore)
            m_document.goOn(message.text, *message.cameBefore);
        else if (message.text.startsWith(HostMessages::fromHost))
            m_document.show(QStringView(message.text).sliced(HostMessages::fromHost.size()));
    }

    QString records() const { return FuzzEditor::window().scene->notifyTW(); }

private:
    ReceivedDocument m_document{*FuzzEditor::window().scene};
};

/** True if the bytes are a document as hosts write it, which may be cut anywhere. */
bool isOneDocument(const QByteArray &bytes)
{
    static const QRegularExpression line(
        QStringLiteral("^(tonquill_text( \\d+){4} [A-Za-z]+ [A-Za-z]+ \\d+ [0-9a-f]+ \\d+|"
                       "tonquill_(?!text)[a-z]+( -?\\d+)+|"
                       "tonquill_textblock_begin( \\d+){4}\n[^|\\0]*tonquill_textblock_end)\n\\z"));
    const QByteArray prefix = HostMessages::fromHost.toLatin1();
    const QByteArray endMark = Records::textblockEnd().toLatin1() + '\n';
    if (!bytes.startsWith(prefix) || bytes.indexOf(prefix, 1) >= 0)
        return false;
    for (const QByteArray &record : bytes.sliced(prefix.size()).split('|')) {
        const qsizetype end = record.indexOf(endMark.chopped(1));
        if (!line.match(QString::fromLatin1(record)).hasMatch() ||
            (end >= 0 && end != record.size() - endMark.size()))
            return false;
    }
    return true;
}
} // namespace

/**
 * Reads of the host's: the first byte says how long each is, the second behind which of them it
 * pauses for so long that what came is judged. A document has to be the same as when it comes
 * whole.
 */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size < 2)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 2),
                           static_cast<qsizetype>(size - 2));
    const qsizetype pieceSize = 1 + data[0];
    const qsizetype piecesToPause = 1 + data[1] % 8;
    FuzzEditor::window().scene->clearScene();
    Shown shown;
    IncomingMessage incoming;
    qsizetype pieces = 0;
    for (qsizetype at = 0; at < bytes.size(); at += pieceSize) {
        incoming.append(bytes.mid(at, pieceSize));
        if (++pieces % piecesToPause != 0 && at + pieceSize < bytes.size())
            continue;
        while (const auto message = incoming.take())
            shown.handle(*message);
    }
    const QString records = shown.records();
    if (isOneDocument(bytes)) {
        FuzzEditor::window().twMsg(
            QString::fromLatin1(bytes).sliced(HostMessages::fromHost.size()));
        if (records != shown.records())
            qFatal("the pieces give other items than the whole");
    }
    return 0;
}
