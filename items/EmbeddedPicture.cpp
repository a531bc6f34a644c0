#include "EmbeddedPicture.h"

#include <QBuffer>
#include <QImageReader>

namespace
{
/** Qt's name of the format, detected by the first bytes; empty if it is not supported. */
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return QByteArrayLiteral("png");
    if (bytes.startsWith("\xff\xd8\xff"))
        return QByteArrayLiteral("jpeg");
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return QByteArrayLiteral("gif");
    if (bytes.startsWith("BM"))
        return QByteArrayLiteral("bmp");
    constexpr qsizetype webpMark = 8;
    if (bytes.startsWith("RIFF") && bytes.sliced(qMin(webpMark, bytes.size())).startsWith("WEBP"))
        return QByteArrayLiteral("webp");
    return QByteArray();
}

/**
 * Calls `use` with a reader for this picture's format only; returns a default value for other
 * formats.
 */
template <typename Use>
auto withReader(const QByteArray &bytes, const Use &use)
{
    const QByteArray format = formatOf(bytes);
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    using Result = decltype(use(reader));
    return format.isEmpty() ? Result() : use(reader);
}

qint64 pixelsFor(const QImageReader &reader)
{
    const QSize size = reader.size();
    return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}
} // namespace

QByteArray EmbeddedPicture::bytesOf(const QUrl &address)
{
    if (address.scheme() != QLatin1String("data"))
        return QByteArray();
    const QByteArray text = address.toEncoded();
    const qsizetype comma = text.indexOf(',');
    if (comma < 0)
        return QByteArray();
    const QByteArray payload = QByteArray::fromPercentEncoding(text.sliced(comma + 1));
    return text.first(comma).trimmed().endsWith(";base64") ? QByteArray::fromBase64(payload)
                                                           : payload;
}

qint64 EmbeddedPicture::pixelsOf(const QByteArray &bytes)
{
    return withReader(bytes, [](const QImageReader &reader) { return pixelsFor(reader); });
}

QImage EmbeddedPicture::decoded(const QByteArray &bytes, qint64 most)
{
    return withReader(bytes, [most](QImageReader &reader) {
        const qint64 pixels = pixelsFor(reader);
        return pixels > 0 && pixels <= most ? reader.read() : QImage();
    });
}
