#include "TonquillTextBlock.h"

#include "DrawingText.h"
#include "PaperPainting.h"
#include "Records.h"
#include "SelfContainedText.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QTextCursor>

#include <array>

namespace
{
constexpr std::array pointSizes{8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30, 32, 34, 36};

constexpr int bottomRightAnchor = 1;

QString placeholder()
{
    return QStringLiteral("Text Block:\r\n\r\nSet the size with the Mouse.\r\n"
                          "Double-click to Edit.");
}
} // namespace

TonquillTextBlock::TonquillTextBlock(bool adding, const QString &text, const QRectF &rect,
                                     QGraphicsItem *parent)
    : DocumentItemOf(adding, parent)
{
    setZValue(symbolZValue);
    frame().setZValue(0.0);
    setSelected(adding);
    setDocument(new SelfContainedText(this));
    announceChangesOf(*document());
    if (defaultTextColor() != Qt::black)
        setDefaultTextColor(Qt::black); // the palette's colour may be white on a dark desktop

    if (!text.isEmpty() || rect.width() != 0.0 || rect.height() != 0.0) {
        fitTo(rect.size());
        setPlainText(text); // after the width is set: layout is the slowest part
    } else {
        setPlainText(placeholder());
        fitTo(document()->size());
    }
    setTextInteractionFlags(Qt::NoTextInteraction);
    setData(ItemData::keyword, Records::textblockKeyword());
}

TonquillTextBlock::~TonquillTextBlock() = default;

void TonquillTextBlock::fitTo(QSizeF textSize)
{
    setCorners(QPointF(0, 0),
               QPointF(textSize.width() + Records::widthBesideText, textSize.height()));
    fitTextToWidth();
}

/**
 * The menu blocks until it is closed; a document that arrives in the meantime deletes this block.
 */
void TonquillTextBlock::openSizeMenu()
{
    if (!m_sizeMenu) {
        m_sizeMenu = std::make_unique<QMenu>();
        m_sizeMenu->addAction(QStringLiteral("Font point size"));
        m_sizeMenu->addSeparator();
        for (const int size : pointSizes)
            m_sizeMenu->addAction(QString::number(size), this, SLOT(onFontSizeChange()));
    }
    m_sizeMenu->exec(QCursor::pos());
}

bool TonquillTextBlock::isEdited(const QGraphicsTextItem &item)
{
    return (item.textInteractionFlags() & Qt::TextEditorInteraction) != 0;
}

/** True while all flags of text editing are on, as after a double click. */
bool TonquillTextBlock::isInEditor() const
{
    return textInteractionFlags() == Qt::TextEditorInteraction;
}

QRectF TonquillTextBlock::boundingRect() const
{
    return QRectF(m_topLeft, m_bottomRight);
}

void TonquillTextBlock::setCorners(QPointF topLeft, QPointF bottomRight)
{
    prepareGeometryChange();
    frame().parentBoundsAboutToChange();
    m_topLeft = topLeft;
    m_bottomRight = bottomRight;
    frame().setAnchors({topLeft, bottomRight});
    announce(ItemEvent::Altered);
}

void TonquillTextBlock::updateFrame()
{
    const QRectF textBounds = QGraphicsTextItem::boundingRect();
    setCorners(textBounds.topLeft(), textBounds.bottomRight());
}

QString TonquillTextBlock::getParamStr()
{
    const QRectF bounds = boundingRect();
    return Records::format(Records::TextBlock{truncatedToInt(x()), truncatedToInt(y()),
                                              truncatedToInt(bounds.width()),
                                              truncatedToInt(bounds.height()), toPlainText()},
                           ItemModel::keywordOf(*this));
}

void TonquillTextBlock::onFontSizeChange()
{
    const auto *entry = qobject_cast<QAction *>(sender());
    if (!entry || !m_sizeMenu || !m_sizeMenu->actions().contains(entry))
        return;
    QFont sized = font();
    sized.setPointSize(entry->text().toInt());
    setFont(sized);
    adjustSize();
    fitTextToWidth();
    update();
}

void TonquillTextBlock::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                              QWidget *widget)
{
    if (PaperPainting::isPrinter(*painter) || DrawingText::isNeeded(*painter, *document()))
        PaperPainting::drawText(painter, *this, option->exposedRect);
    else
        QGraphicsTextItem::paint(painter, option, widget);
}

const PointerManners &TonquillTextBlock::manners() const
{
    static const PointerManners manners{.grab = PointerManners::Grab::UntilOthersTakeIt,
                                        .notesEveryPress = true};
    return manners;
}

void TonquillTextBlock::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (isInEditor())
        QGraphicsTextItem::mousePressEvent(event);
    else
        press(*event);
}

/** The top-left anchor moves the block like any other point inside. */
int TonquillTextBlock::resizingAnchorAt(QPointF point) const
{
    QPointF anchor;
    return frame().getAnchor(point, anchor) == bottomRightAnchor ? bottomRightAnchor : -1;
}

void TonquillTextBlock::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (isInEditor())
        QGraphicsTextItem::mouseMoveEvent(event);
    else
        move(*event);
}

void TonquillTextBlock::dragAnchorTo(int anchor, QPointF point)
{
    prepareGeometryChange();
    frame().parentBoundsAboutToChange();
    m_bottomRight = point;
    frame().setAnchor(anchor, point);
    announce(ItemEvent::Altered);
    letOthersPaintAndFitText();
}

void TonquillTextBlock::resized()
{
    letOthersPaintAndFitText();
}

/**
 * The last steps of a resize. Pending events are processed in between so that a long text keeps up
 * with the pointer; one of them may delete this block.
 */
void TonquillTextBlock::letOthersPaintAndFitText()
{
    const QPointer<TonquillTextBlock> self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!self)
        return;
    adjustSize();
    fitTextToWidth();
    update();
}

void TonquillTextBlock::fitTextToWidth()
{
    setTextWidth(boundingRect().width() - Records::widthBesideText);
}

void TonquillTextBlock::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const QPointer<TonquillTextBlock> self(this);
    if (isInEditor())
        QGraphicsTextItem::mouseReleaseEvent(event);
    release(*event);
    if (self && event->button() == Qt::RightButton && status() == ItemStatus::Placed)
        openSizeMenu();
}

void TonquillTextBlock::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (textInteractionFlags() == Qt::NoTextInteraction)
        setTextInteractionFlags(Qt::TextEditorInteraction);
    QGraphicsTextItem::mouseDoubleClickEvent(event);
}

void TonquillTextBlock::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    // The only menu is that of point sizes, which opens on release.
    event->accept();
}

void TonquillTextBlock::keyPressEvent(QKeyEvent *event)
{
    if (!isEdited(*this)) {
        event->ignore();
        return;
    }
    QGraphicsTextItem::keyPressEvent(event);
    followTyping();
}

void TonquillTextBlock::keyReleaseEvent(QKeyEvent *event)
{
    if (!isEdited(*this)) {
        event->ignore();
        return;
    }
    QGraphicsTextItem::keyReleaseEvent(event);
    followTyping();
}

void TonquillTextBlock::followTyping()
{
    adjustSize();
    updateFrame();
    update();
}

void TonquillTextBlock::focusOutEvent(QFocusEvent *event)
{
    setTextInteractionFlags(Qt::NoTextInteraction);
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
    QGraphicsTextItem::focusOutEvent(event);
}
