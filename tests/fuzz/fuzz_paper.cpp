#include "DocumentFile.h"
#include "Exporter.h"
#include "FuzzEditor.h"

#include <QDir>

/** Sheets and numbers of pages are read from a file, shown, and their last page is exported. */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    TonquillMainWin &window = FuzzEditor::window();
    static const Paper paper = DocumentSnapshot::paperOf(window);
    QByteArray bytes("tonquill-document 1\n");
    for (const QByteArray &line :
         QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).split('\n'))
        bytes += (line.contains(' ') ? "tonquill_paper " : "tonquill_pagecount ") + line + '\n';
    DocumentFile::parse(bytes + "tonquill_bitmap 90 90 19\ntonquill-end\n", paper)
        .document.restore(window);
    // Coarse, because only the size matters.
    constexpr int dots = 10;
    for (const char *name : {"page.png", "page.svg"})
        Exporter(window).write(QDir::temp().filePath(QString::fromLatin1(name)),
                               ExportOptions{window.pageCount, dots});
    return 0;
}
