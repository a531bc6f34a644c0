#include "DocumentFile.h"
#include "FuzzEditor.h"

#include <algorithm>
#include <cstdlib>

/**
 * A file is read. What could be read of it is written and read again without a loss, and so it is
 * when the window has shown it once.
 */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

namespace
{
void verifyRoundTrip(const DocumentSnapshot &document)
{
    const DocumentFile::Reading again =
        DocumentFile::parse(DocumentFile::format(document), Paper());
    if (!again.problems.isEmpty() || again.document != document)
        std::abort();
}

/** True if there is text that Qt words anew each time, which looks the same. */
bool hasFormattedText(const DocumentSnapshot &document)
{
    return std::any_of(document.items.cbegin(), document.items.cend(),
                       [](const QByteArray &line) { return line.contains(" html="); });
}

DocumentSnapshot shown(const DocumentSnapshot &document)
{
    document.restore(FuzzEditor::window());
    return DocumentSnapshot::capture(FuzzEditor::window());
}
} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const Paper paper = DocumentSnapshot::paperOf(FuzzEditor::window());
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const DocumentSnapshot read = DocumentFile::parse(bytes, paper).document;
    verifyRoundTrip(read);
    const DocumentSnapshot first = shown(read);
    verifyRoundTrip(first);
    if (shown(first) != first && !hasFormattedText(first))
        std::abort();
    return 0;
}
