#pragma once

#include "EmbeddedPicture.h"

#include <QTextDocument>

/**
 * The text of a block. It may be formatted, come from a stranger's document, and name a picture or
 * a style sheet: no file of this machine is opened for that, which might also be a device without
 * an end. Only what the text itself contains is shown.
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
