#pragma once

class QCoreApplication;

/**
 * Has the application speak the user's language where it is one that we have, and English
 * otherwise. Texts that hosts and users know word by word are not translated.
 */
void installTranslations(QCoreApplication &application);
