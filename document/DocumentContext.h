#pragma once

#include "SymbolSource.h"

#include <QMarginsF>
#include <QRectF>

/** A sheet of paper; all lengths are inches. */
struct Sheet
{
    QRectF paper;      ///< the whole sheet
    QMarginsF margins; ///< between its edges and its printable area
};

/** What the document asks of the program round it: the main window, or a test. */
class DocumentContext : public SymbolSource
{
public:
    /** The context of scenes that are made without one: the main window while there is one. */
    inline static DocumentContext *current = nullptr;

    /** The paper of a new document. */
    virtual Sheet sheet() const = 0;

    /** The number of pages. It is stored here, but only the document changes it. */
    virtual int pages() const = 0;
    virtual void setPages(int count) = 0;

    /** Rest mode: Ctrl is held, and the note buttons insert rests. */
    virtual bool isRestModeOn() const = 0;
    virtual void setRestMode(bool on) = 0;

    /** Quick text mode: typing on the page opens a text block. */
    virtual bool isQuickTextOn() const = 0;
    virtual void setQuickText(bool on) = 0;

    /** An edit is complete. */
    virtual void editFinished() = 0;
};
