#pragma once

#include <QByteArray>
#include <QImage>
#include <QUrl>

/** Pictures that a formatted text contains as `data:` URLs. They may come from untrusted files. */
namespace EmbeddedPicture
{
/** The most pixels that are decoded for one picture, and for all pictures of a text. */
inline constexpr qint64 mostPixels = 16'000'000;

/** The decoded bytes of a `data:` URL; empty for any other URL. */
QByteArray bytesOf(const QUrl &address);

/** The number of pixels of an encoded picture, without decoding it; 0 if it is not supported. */
qint64 pixelsOf(const QByteArray &bytes);

/**
 * Decodes a PNG, JPEG, GIF, BMP or WebP picture, as far as Qt supports it; the content decides, not
 * the declared type. Returns a null image for other formats (an SVG may refer to files) and for
 * more than `most` pixels.
 */
QImage decoded(const QByteArray &bytes, qint64 most = mostPixels);
} // namespace EmbeddedPicture
