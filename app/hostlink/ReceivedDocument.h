#pragma once

#include "ItemReference.h"

#include <QStringView>

class TonquillScene;

/** The host's last document on the scene. If it turns out to have been cut, it continues. */
class ReceivedDocument
{
public:
    /** `scene` outlives the object. */
    explicit ReceivedDocument(TonquillScene &scene);

    /** Replaces all items of the scene with these records, which are separated by "|". */
    void show(QStringView payload);

    /**
     * Builds the rest of the document as if all had arrived at once. `text` begins with the record
     * at which the document stopped, of which `cameBefore` characters were known. Returns true if
     * anything changed.
     */
    bool goOn(QStringView text, qsizetype cameBefore);

private:
    bool build(QStringView records);
    bool replaceLastItem(QStringView record);

    TonquillScene &m_scene;
    ItemReference m_lastItem; ///< the item of the document's last record
};
