#include "SelfContainedText.h"

#include <QPixmap>

QVariant SelfContainedText::loadResource(int type, const QUrl &name)
{
    // As text: bytes would be kept under this name and taken for a picture of any kind later.
    if (type == StyleSheetResource)
        return QString::fromUtf8(EmbeddedPicture::bytesOf(name));
    QImage picture = EmbeddedPicture::decoded(EmbeddedPicture::bytesOf(name), m_pixelsLeft);
    m_pixelsLeft -= qint64(picture.width()) * picture.height();
    // Were there none at all, Qt would open the file in another way.
    if (picture.isNull()) {
        picture = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
    }
    const QPixmap kept = QPixmap::fromImage(picture);
    addResource(type, name, kept); // or it would be decoded for each painting
    return kept;
}
