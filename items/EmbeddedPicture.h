#pragma once

#include <QByteArray>
#include <QImage>
#include <QUrl>

/** Pictures that a formatted text brings along in `data:` addresses. They may be a stranger's. */
namespace EmbeddedPicture
{
/** More pixels than this are decoded neither for one picture nor for all of a text. */
inline constexpr qint64 mostPixels = 16'000'000;

/** The bytes that a `data:` address stands for; none for any other address. */
QByteArray bytesOf(const QUrl &address);

/** How many pixels an encoded picture has, without decoding it; 0 if it is none that is shown. */
qint64 pixelsOf(const QByteArray &bytes);

/**
 * Decodes a picture in PNG, JPEG, GIF, BMP or WebP, as far as Qt can; its content tells which, not
 * what it is called. Any other is null: a drawing (SVG) may name files that would be opened. So is
 * one with more than `most` pixels.
 */
QImage decoded(const QByteArray &bytes, qint64 most = mostPixels);
} // namespace EmbeddedPicture
