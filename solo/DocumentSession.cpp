#include "DocumentSession.h"

#include "DocumentFile.h"
#include "TonquillMainWin.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QScrollBar>

#include "TonquillView.h"

namespace
{
// Milliseconds. An edit reaches the journal within a second; the more a large document takes to
// be written, the rarer that is done while a gesture goes on.
constexpr int shortestDelay = 300;
constexpr int longestDelay = 800;
constexpr int delayPerCost = 4;
} // namespace

DocumentSession::DocumentSession(TonquillMainWin &window, const QString &folder)
    : m_window(window)
    , m_edits(window)
    , m_journal(folder)
    , m_empty(DocumentSnapshot::capture(window))
    , m_saved(m_empty)
{
    m_journalDue.setSingleShot(true);
    m_journalDue.setInterval(shortestDelay);
    connect(&m_journalDue, &QTimer::timeout, this, &DocumentSession::writeJournal);
    connect(&m_edits, &EditWatcher::touched, this, &DocumentSession::scheduleJournal);
    connect(&m_edits, &EditWatcher::documentChanged, this, &DocumentSession::scheduleJournal);
    connect(&m_edits, &EditWatcher::documentChanged, this, &DocumentSession::changed);
}

QString DocumentSession::name() const
{
    if (!m_path.isEmpty())
        return QFileInfo(m_path).fileName();
    return m_suggestedName.isEmpty() ? tr("Untitled") : m_suggestedName;
}

bool DocumentSession::isModified() const
{
    return m_differsFromFile || m_edits.document() != m_saved;
}

void DocumentSession::begin(const DocumentSnapshot &document)
{
    document.restore(m_window);
    DocumentSnapshot::setPrinterPaper(m_window);
    m_window.view()->verticalScrollBar()->setValue(0);
    m_window.onViewScroll(m_window.view()->curScenePos());
    m_edits.reset();
    // As the program itself reads it from the window, so that opening a file changes nothing.
    m_saved = m_edits.document();
    Q_EMIT changed();
}

void DocumentSession::makeNew()
{
    m_path.clear();
    m_suggestedName.clear();
    m_differsFromFile = false;
    begin(m_empty);
}

void DocumentSession::show(const DocumentSnapshot &document, const QString &path, bool isWhole)
{
    m_path = path;
    m_differsFromFile = !isWhole;
    begin(document);
}

void DocumentSession::showCopy(const DocumentSnapshot &document, const QString &name)
{
    m_path.clear();
    m_suggestedName = name;
    m_differsFromFile = false;
    begin(document);
}

void DocumentSession::showRecovered(const RecoveryJournal::Found &found)
{
    show(found.document, found.path, false);
}

QString DocumentSession::saveAs(const QString &path)
{
    m_edits.check();
    const QString error = DocumentFile::save(path, m_edits.document());
    if (!error.isEmpty())
        return error;
    m_path = path;
    m_saved = m_edits.document();
    m_differsFromFile = false;
    m_journal.discard();
    m_journalled = DocumentSnapshot();
    Q_EMIT changed();
    return QString();
}

void DocumentSession::close()
{
    m_closed = true;
    m_journalDue.stop();
    m_journal.discard();
}

void DocumentSession::scheduleJournal()
{
    if (!m_journalDue.isActive() && !m_closed)
        m_journalDue.start();
}

void DocumentSession::writeJournal()
{
    QElapsedTimer cost;
    cost.start();
    // Not only finished edits: a long gesture must not be lost either.
    const DocumentSnapshot now = DocumentSnapshot::capture(m_window);
    if (now == m_saved && !m_differsFromFile) {
        m_journal.discard();
        m_journalled = DocumentSnapshot();
    } else if (now != m_journalled && m_journal.write(now, m_path)) {
        m_journalled = now;
    }
    m_journalDue.setInterval(
        qBound(shortestDelay, int(cost.elapsed()) * delayPerCost, longestDelay));
}
