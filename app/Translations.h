#pragma once

class QCoreApplication;

/**
 * Translates the application into the user's language if there is a translation; otherwise it stays
 * English. Texts that hosts and users rely on literally are not translated.
 */
void installTranslations(QCoreApplication &application);
