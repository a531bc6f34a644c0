#include "DocumentFile.h"
#include "FuzzEditor.h"
#include "TextBlockState.h"

#include <QImage>
#include <QPainter>

/** The formatted text of a block is read from a file, shown and painted, and so once more. */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

namespace
{
DocumentSnapshot read(const QByteArray &line, const Paper &paper)
{
    return DocumentFile::parse("tonquill-document 1\n" + line + "\ntonquill-end\n", paper).document;
}

void show(const DocumentSnapshot &document)
{
    constexpr int width = 200;
    constexpr int height = 300;
    TonquillMainWin &window = FuzzEditor::window();
    document.restore(window);
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    window.scene->render(&painter);
}
} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static const Paper paper = DocumentSnapshot::paperOf(FuzzEditor::window());
    constexpr double wrap = 300;
    const QString html =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const TextBlockState block{QPointF(20, 20),
                               QPointF(0, 0),
                               QPointF(wrap, wrap),
                               wrap,
                               FontState{QStringLiteral("Arial"), 12},
                               html,
                               true};
    show(read(block.line(), paper));
    const DocumentSnapshot written = DocumentSnapshot::capture(FuzzEditor::window());
    if (!written.items.isEmpty())
        show(read(written.items.constFirst(), paper));
    return 0;
}
