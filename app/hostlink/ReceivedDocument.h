#pragma once

#include "ItemReference.h"

#include <QStringView>

class TonquillScene;

/** The host's last document on the scene, which may turn out to have been cut, and then goes on. */
class ReceivedDocument
{
public:
    /** `scene` outlives the object. */
    explicit ReceivedDocument(TonquillScene &scene);

    /** Replaces everything on the scene by these records, which are separated by "|". */
    void show(QStringView payload);

    /**
     * Builds what was missing, as if it had come at once. `text` begins with the record at which
     * the document stopped, of which `cameBefore` characters were known. True if that changed
     * anything.
     */
    bool goOn(QStringView text, qsizetype cameBefore);

private:
    bool build(QStringView records);
    bool replaceLastItem(QStringView record);

    TonquillScene &m_scene;
    ItemReference m_lastItem; ///< what the document's last record built
};
