#pragma once

#include "EmbeddedPicture.h"

#include <QTextDocument>

/**
 * The text of a block. It may be formatted, come from an untrusted document, and refer to pictures
 * or style sheets: only those that the text itself contains are shown. Local files, which might be
 * endless devices, are never opened.
 */
class SelfContainedText : public QTextDocument
{
public:
    using QTextDocument::QTextDocument;

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    qint64 m_pixelsLeft = EmbeddedPicture::mostPixels;
};
