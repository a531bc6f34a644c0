#pragma once

#include <QString>

class QWidget;
class TonquillScene;

/**
 * The palette's commands for everything except symbols: each adds a new item to the scene, where it
 * follows the pointer until it is placed. Most of them first drop an item that is still waiting.
 */
class InsertCommands
{
public:
    /** Adds to `scene` and opens dialogs over `window`. Both outlive the object. */
    InsertCommands(QWidget &window, TonquillScene &scene);

    /** A simple text, after its dialog was accepted. */
    void text();

    /** A simple text with a tempo term. A waiting item is kept. */
    void tempo(const QString &term);

    /** A time signature written "upper/lower". A waiting item is kept. */
    void timeSignature(const QString &text);

    void textBlock();
    void grandstaff();
    void triplet();
    void tie();
    void line();

    /** Tablature lines. A waiting item is kept, so several can be placed in a row. */
    void tablature();

private:
    void addInsteadOfWaiting(const QString &keyword);
    void add(const QString &keyword);

    QWidget &m_window;
    TonquillScene &m_scene;
};
