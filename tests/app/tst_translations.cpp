#include "PaletteTable.h"
#include "SymbolTable.h"
#include "TestMain.h"
#include "Translations.h"

#include <QLocale>
#include <QTest>

/** The way of a text from its source to the user's language. */
class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksTheUsersLanguage_data();
    void speaksTheUsersLanguage();
    void knowsAllNamesOfThePalette();
    void hasQtSpeakTheSameLanguage_data();
    void hasQtSpeakTheSameLanguage();

private:
    /** What a text of this context is after a start in this language. */
    static QString textIn(const QLocale &locale, const char *context, const char *text);
};

QString TranslationsTest::textIn(const QLocale &locale, const char *context, const char *text)
{
    QCoreApplication *application = QCoreApplication::instance();
    QLocale::setDefault(locale);
    installTranslations(*application);
    const QString result = QCoreApplication::translate(context, text);
    qDeleteAll(application->findChildren<QTranslator *>());
    return result;
}

void TranslationsTest::speaksTheUsersLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");
    QTest::newRow("German") << "de_DE"
                            << "Haltebogen";
    QTest::newRow("German of Austria") << "de_AT"
                                       << "Haltebogen";
    QTest::newRow("English") << "en_GB"
                             << "Tie";
    QTest::newRow("a language that we do not have") << "fi_FI"
                                                    << "Tie";
    QTest::newRow("none") << "C"
                          << "Tie";
}

void TranslationsTest::speaksTheUsersLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, expected);
    QCOMPARE(textIn(QLocale(locale), "PaletteTable", "Tie"), expected);
}

/** Terms such as Tempo are the same in both languages, so what counts is that there is an entry. */
void TranslationsTest::knowsAllNamesOfThePalette()
{
    Q_INIT_RESOURCE(translations);
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/translations/tonquill_de.qm")));
    int known = 0;
    const auto lookUp = [&](const PaletteEntry &entry) {
        const bool hasOwnName = entry.name != nullptr;
        const char *english = hasOwnName ? entry.name : SymbolTable::find(entry.symbol)->sense;
        const QString name = german.translate(hasOwnName ? "PaletteTable" : "SymbolTable", english);
        QVERIFY2(!name.isEmpty(), english);
        QVERIFY2(!entry.hint || !german.translate("PaletteTable", entry.hint).isEmpty(),
                 entry.hint);
        ++known;
    };
    for (const PaletteToolBar &toolBar : PaletteTable::toolBars()) {
        for (const PaletteEntry &entry : toolBar.entries)
            lookUp(entry);
    }
    for (const PaletteMenu &menu : PaletteTable::menus()) {
        for (const PaletteEntry &entry : menu.entries) {
            // Italian tempo terms and figures are the same everywhere; an entry with a glyph is
            // not.
            if (entry.symbol >= 0)
                lookUp(entry);
        }
    }
    // 8 + 4 + 20 buttons, 2 clefs, 3 accidentals, 2 time signatures.
    QCOMPARE(known, 8 + 4 + 20 + 2 + 3 + 2);
}

void TranslationsTest::hasQtSpeakTheSameLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");
    QTest::newRow("German") << "de_DE"
                            << "Abbrechen";
    QTest::newRow("a language that only Qt has") << "fi_FI"
                                                 << "Cancel";
}

void TranslationsTest::hasQtSpeakTheSameLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, expected);
    QCOMPARE(textIn(QLocale(locale), "QPlatformTheme", "Cancel"), expected);
}

TONQUILL_TEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
