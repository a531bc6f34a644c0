#include "FuzzEditor.h"
#include "RecoveryJournal.h"

#include <QDir>
#include <QFile>

/** What a crash left behind is read by the next start, and shown. */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    TonquillMainWin &window = FuzzEditor::window();
    static const Paper paper = DocumentSnapshot::paperOf(window);
    const QDir folder(QDir::temp().filePath(QStringLiteral("journal")));
    RecoveryJournal journal(folder.path());
    // The journal knows how its files are called.
    if (!journal.write(DocumentSnapshot{paper, 1, {"tonquill_bitmap 1 2 19"}}, QString()))
        return 0;
    for (const QFileInfo &kept : folder.entryInfoList(QDir::Files)) {
        QFile file(kept.filePath());
        if (file.open(QIODevice::WriteOnly))
            file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    }
    if (const auto found = journal.find(paper))
        found->document.restore(window);
    journal.discard();
    return 0;
}
