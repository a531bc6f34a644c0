#pragma once

#include "EditorWindow.h"
#include "TestHost.h"
#include "TonquillBitmap.h"
#include "TonquillTextBlock.h"

#include <QKeyEvent>

/** What the tests of keys share: an editor that a host listens to, and the keys its view gets. */
class KeysInEditor
{
protected:
    void openEditor();
    void closeEditor();
    void keyPress(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void keyRelease(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void keyClick(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(QChar letter);
    TonquillBitmap *selectedGlyph();
    TonquillTextBlock *editedBlock();
    QList<QGraphicsItem *> items() { return ItemProbe::documentItems(m_editor->scene()); }

    static void sendKey(QObject &receiver, QEvent::Type type, int key,
                        Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                        const QString &text = QString(), bool autoRepeat = false);

    const QString glyph = QStringLiteral("tonquill_bitmap 2 120 300 0\n");
    const QString block =
        QStringLiteral("tonquill_textblock_begin 80 400 240 60\nabc\ntonquill_textblock_end\n");

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<EditorWindow> m_editor;
};

inline void KeysInEditor::openEditor()
{
    m_host = std::make_unique<TestHost>();
    m_editor = std::make_unique<EditorWindow>();
    QTRY_COMPARE(m_host->messages.size(), 1);
    m_host->messages.clear();
}

inline void KeysInEditor::closeEditor()
{
    m_editor.reset();
    m_host.reset();
}

inline void KeysInEditor::keyPress(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyPress(&m_editor->view(), static_cast<Qt::Key>(key), modifiers);
}

inline void KeysInEditor::keyRelease(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyRelease(&m_editor->view(), static_cast<Qt::Key>(key), modifiers);
}

inline void KeysInEditor::keyClick(int key, Qt::KeyboardModifiers modifiers)
{
    keyPress(key, modifiers);
    keyRelease(key, modifiers);
}

inline void KeysInEditor::type(QChar letter)
{
    const int key = letter.toUpper().unicode();
    sendKey(m_editor->view(), QEvent::KeyPress, key, Qt::NoModifier, letter);
    sendKey(m_editor->view(), QEvent::KeyRelease, key, Qt::NoModifier, letter);
}

inline TonquillBitmap *KeysInEditor::selectedGlyph()
{
    auto *item = m_editor->build<TonquillBitmap>(glyph);
    item->setSelected(true);
    return item;
}

/** A block that a double click has opened. Its rectangle is 241 by 60. */
inline TonquillTextBlock *KeysInEditor::editedBlock()
{
    auto *item = m_editor->build<TonquillTextBlock>(block);
    m_editor->pointer.click(item->pos() + QPointF(100, 30));
    m_editor->pointer.doubleClick(item->pos() + QPointF(100, 30));
    if (!TonquillTextBlock::isEdited(*item))
        qFatal("the double click has not opened the block");
    m_host->messages.clear();
    return item;
}

inline void KeysInEditor::sendKey(QObject &receiver, QEvent::Type type, int key,
                                  Qt::KeyboardModifiers modifiers, const QString &text,
                                  bool autoRepeat)
{
    QKeyEvent event(type, key, modifiers, text, autoRepeat);
    QCoreApplication::sendEvent(&receiver, &event);
}
