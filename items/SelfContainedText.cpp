#include "SelfContainedText.h"

#include <QPixmap>

QVariant SelfContainedText::loadResource(int type, const QUrl &name)
{
    // As text: bytes would be cached under this name and later decoded as a picture of any format.
    if (type == StyleSheetResource)
        return QString::fromUtf8(EmbeddedPicture::bytesOf(name));
    QImage picture = EmbeddedPicture::decoded(EmbeddedPicture::bytesOf(name), m_pixelsLeft);
    m_pixelsLeft -= qint64(picture.width()) * picture.height();
    // Without any picture, Qt would try to open the file in another way.
    if (picture.isNull()) {
        picture = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
    }
    const QPixmap kept = QPixmap::fromImage(picture);
    addResource(type, name, kept); // else it would be decoded at every paint
    return kept;
}
