#pragma once

#include <QString>

class QWidget;
class TonquillScene;

/**
 * The palette's commands for all but symbols: each makes a new item and hands it to the scene,
 * where it follows the pointer until it is placed. Most of them first drop an item that still waits
 * for that.
 */
class InsertCommands
{
public:
    /** For `scene`, with dialogs over `window`. Both outlive the object. */
    InsertCommands(QWidget &window, TonquillScene &scene);

    /** A simple text, after its dialog was accepted. */
    void text();

    /** A simple text with a tempo term. An item that waits stays. */
    void tempo(const QString &term);

    /** A time signature written "upper/lower". An item that waits stays. */
    void timeSignature(const QString &text);

    void textBlock();
    void grandstaff();
    void triplet();
    void tie();
    void line();

    /** Tablature lines. An item that waits stays, so that two of these may be laid in a row. */
    void tablature();

private:
    void addInsteadOfWaiting(const QString &keyword);
    void add(const QString &keyword);

    QWidget &m_window;
    TonquillScene &m_scene;
};
