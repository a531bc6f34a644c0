#include "EditorWindow.h"
#include "KindsDocument.h"
#include "TestHost.h"
#include "TestMain.h"

namespace
{
const QByteArray prefix = "tw2tonquill ";
const QByteArray formerGlyph = "tonquill_bitmap 3 50 60 0\n";

/** The document's bytes with its prefix, and the places where a host may pause. */
struct Place
{
    const char *name;
    QByteArray upTo; ///< the pause is behind this
};

const QList<Place> &places()
{
    static const QList<Place> list{
        {"within the prefix", "tw2ton"},
        {"within a keyword", "tonquill_bitmap 22 120 310 1\n|tonquill_tim"},
        {"within a number", "tonquill_grandstaff 40 8"},
        {"within the last number", "tonquill_interactiveline 60 240 0 0 81 -1"},
        {"within a word", "tonquill_text 80 45 58 24 Len"},
        {"within a text block", "says tw2tonquill state:activate\ntw"},
        {"before a typed prefix", "says "},
        {"before a separator", "tonquill_linetab 41 300 0 0 601 84\n"},
        {"behind a separator", "tonquill_notetie 210 160 0 0 48 10\n|"},
    };
    return list;
}
} // namespace

/** A host that pauses in the middle of what it writes, by the clock. */
class PausesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void documentGoesOnBehindAPause_data();
    void documentGoesOnBehindAPause();
    void documentOfManyPausesIsWhole();
    void tenThousandGlyphsAreWhole_data();
    void tenThousandGlyphsAreWhole();
    void messagesBehindEachOtherAreTwo_data();
    void messagesBehindEachOtherAreTwo();
    void stateGoesOnBehindAPause();

private:
    /** Sends the pieces with pauses between them. */
    void sendPieces(const QByteArrayList &pieces, int milliseconds);
    void verifyWhole();
    qsizetype items() { return ItemProbe::documentItems(m_editor->scene()).size(); }
    bool hasLastGlyph() { return m_editor->records().contains("tonquill_bitmap 2 320 330 0\n"); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<EditorWindow> m_editor;
};

void PausesTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_editor = std::make_unique<EditorWindow>();
    QTRY_COMPARE(m_host->messages.size(), 1);
    m_host->send(formerGlyph);
    QTRY_COMPARE(items(), 1);
    m_host->messages.clear();
}

void PausesTest::cleanup()
{
    m_editor.reset();
    m_host.reset();
}

void PausesTest::sendPieces(const QByteArrayList &pieces, int milliseconds)
{
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            QTest::qWait(milliseconds);
        m_host->sendRaw(pieces[i]);
    }
}

/** The same items as those of the document that came at once, and the host is told of no other. */
void PausesTest::verifyWhole()
{
    QTRY_VERIFY(hasLastGlyph());
    const QStringList records = m_editor->records();
    m_host->send(KindsDocument::text + '|' + formerGlyph);
    QTRY_COMPARE(items(), KindsDocument::items + 1);
    QCOMPARE(records, m_editor->records().sliced(1));
    QCOMPARE(m_host->messages, QStringList());
}

void PausesTest::documentGoesOnBehindAPause_data()
{
    QTest::addColumn<QByteArray>("upTo");
    QTest::addColumn<int>("milliseconds");
    for (const Place &place : places()) {
        for (const int milliseconds : {100, 700})
            QTest::addRow("%s, %d ms", place.name, milliseconds) << place.upTo << milliseconds;
    }
}

void PausesTest::documentGoesOnBehindAPause()
{
    QFETCH(const QByteArray, upTo);
    QFETCH(const int, milliseconds);
    const QByteArray message = prefix + KindsDocument::text;
    const qsizetype cut = message.indexOf(upTo) + upTo.size();
    sendPieces({message.first(cut), message.sliced(cut)}, milliseconds);
    verifyWhole();
}

/** One document with a pause of three seconds at each of the places. */
void PausesTest::documentOfManyPausesIsWhole()
{
    const QByteArray message = prefix + KindsDocument::text;
    QList<qsizetype> cuts{0, message.size()};
    for (const Place &place : places())
        cuts.append(message.indexOf(place.upTo) + place.upTo.size());
    std::sort(cuts.begin(), cuts.end());
    QByteArrayList pieces;
    for (qsizetype i = 1; i < cuts.size(); ++i)
        pieces.append(message.sliced(cuts[i - 1], cuts[i] - cuts[i - 1]));
    sendPieces(pieces, 3000);
    verifyWhole();
}

void PausesTest::tenThousandGlyphsAreWhole_data()
{
    QTest::addColumn<QByteArray>("cutBehind");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("within a record") << QByteArray("tonquill_bitmap 2 71") << 700;
    QTest::newRow("at a record's end") << QByteArray("tonquill_bitmap 2 7142 300 0\n|") << 150;
}

/** An edit in the middle and one behind it: the host keeps the whole document. */
void PausesTest::tenThousandGlyphsAreWhole()
{
    QFETCH(const QByteArray, cutBehind);
    QFETCH(const int, milliseconds);
    constexpr int glyphs = 10000;
    QByteArray message = prefix;
    for (int i = 0; i < glyphs; ++i)
        message += "tonquill_bitmap 2 " + QByteArray::number(i) + " 300 0\n|";
    const qsizetype cut = message.lastIndexOf(cutBehind) + cutBehind.size();
    m_host->sendRaw(message.first(cut));
    QTest::qWait(milliseconds);
    m_editor->window.notifyTW();
    m_host->sendRaw(message.sliced(cut));
    QTRY_COMPARE(items(), glyphs);
    m_editor->window.notifyTW();
    const QString newest = "tonquill2tw " + m_editor->scene().notifyTW();
    QTRY_VERIFY(m_host->messages.join("").endsWith(newest));
}

void PausesTest::messagesBehindEachOtherAreTwo_data()
{
    QTest::addColumn<int>("milliseconds");
    for (const int milliseconds : {0, 30, 100, 700})
        QTest::addRow("%d ms", milliseconds) << milliseconds;
}

/** A large document, a state, and a small document. */
void PausesTest::messagesBehindEachOtherAreTwo()
{
    QFETCH(const int, milliseconds);
    QByteArray large = prefix;
    for (int i = 0; i < 2000; ++i)
        large += "tonquill_bitmap 2 " + QByteArray::number(i) + " 300 0\n|";
    m_editor->window.close();
    sendPieces({large, prefix + "state:activate", prefix + KindsDocument::text}, milliseconds);
    QTRY_COMPARE(items(), KindsDocument::items);
    QVERIFY(m_editor->window.isVisible());
}

void PausesTest::stateGoesOnBehindAPause()
{
    m_editor->window.close();
    sendPieces({prefix + "state:", "activate"}, 700);
    QTRY_VERIFY(m_editor->window.isVisible());
    QCOMPARE(items(), 1);
}

TONQUILL_TEST_MAIN(PausesTest)
#include "tst_pauses.moc"
