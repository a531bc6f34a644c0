#include "FuzzEditor.h"
#include "Records.h"

#include <cstdlib>

/**
 * One record is read, written, read again and built. What was read and written once does not
 * change any more, texts and text blocks apart.
 */
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

namespace
{
QString written(const Records::Record &record)
{
    if (const auto *bitmap = std::get_if<Records::Bitmap>(&record))
        return Records::format(*bitmap);
    if (const auto *signature = std::get_if<Records::TimeSig>(&record))
        return Records::format(*signature);
    if (const auto *figure = std::get_if<Records::Vector>(&record))
        return Records::format(*figure);
    return QString();
}
} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QString record =
        QString::fromLatin1(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString once = written(Records::parse(record));
    if (!once.isEmpty() && written(Records::parse(once)) != once)
        std::abort();

    TonquillScene &scene = *FuzzEditor::window().scene;
    scene.constructItem(record, false, 0);
    scene.notifyTW();
    scene.clearScene();
    return 0;
}
