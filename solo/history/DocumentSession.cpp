#include "DocumentSession.h"

#include "DocumentFile.h"
#include "OrdinaryFile.h"
#include "TonquillMainWin.h"
#include "UnknownItems.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QScrollBar>

#include "TonquillView.h"

namespace
{
// Milliseconds. An edit reaches the journal within a second; the longer a document takes to write,
// the less often it is written during a gesture.
constexpr int shortestDelay = 300;
constexpr int longestDelay = 800;
constexpr int delayPerCost = 4;
} // namespace

DocumentSession::DocumentSession(TonquillMainWin &window, const QString &folder)
    : m_window(window)
    , m_edits(window)
    , m_journal(folder)
    , m_empty(m_edits.document())
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
    const QString shown = QFileInfo(m_path.isEmpty() ? m_origin : m_path).fileName();
    return shown.isEmpty() ? tr("Untitled") : shown;
}

QString DocumentSession::source() const
{
    if (!m_path.isEmpty())
        return m_path;
    return QFileInfo(m_origin).isAbsolute() ? m_origin : QString();
}

bool DocumentSession::comesFrom(const QString &path) const
{
    return path == source() || FileStamp::at(path).isSameFileAs(FileStamp::at(source()));
}

FileStamp::Change DocumentSession::fileChange()
{
    m_seenFile = FileStamp::at(m_path);
    return m_path.isEmpty() ? FileStamp::Change::None : m_file.changeAt(m_path);
}

FileStamp::Change DocumentSession::newFileChange()
{
    const bool isSeen = FileStamp::at(m_path).looksLike(m_seenFile);
    return isSeen ? FileStamp::Change::None : fileChange();
}

bool DocumentSession::isModified() const
{
    return m_differsFromFile || m_edits.document() != m_saved;
}

QStringList DocumentSession::unknownClasses() const
{
    return UnknownItems::classesAmong(DocumentSnapshot::itemsOf(m_window));
}

void DocumentSession::begin(const DocumentSnapshot &document, bool differsFromFile)
{
    m_differsFromFile = differsFromFile;
    m_seenFile = FileStamp::at(m_path);
    document.restore(m_window);
    DocumentSnapshot::setPrinterPaper(m_window);
    m_window.view()->verticalScrollBar()->setValue(0);
    m_window.onViewScroll(m_window.view()->curScenePos());
    m_edits.reset();
    // As captured from the window, so that opening a file does not count as a change.
    m_saved = m_edits.document();
    Q_EMIT changed();
}

void DocumentSession::makeNew()
{
    showUnnamed(m_empty, QString(), false);
}

void DocumentSession::show(const DocumentSnapshot &document, const QString &path,
                           const FileStamp &file)
{
    m_path = path;
    m_origin.clear();
    m_file = file;
    begin(document, false);
}

void DocumentSession::showUnnamed(const DocumentSnapshot &document, const QString &origin,
                                  bool isModified)
{
    m_path.clear();
    m_origin = origin;
    m_file = FileStamp();
    begin(document, isModified);
}

void DocumentSession::showRecovered(const RecoveryJournal::Found &found)
{
    if (!found.problems.isEmpty()) {
        showUnnamed(found.document, found.path, true);
        return;
    }
    m_path = found.path;
    m_origin.clear();
    m_file = found.contents.isEmpty()
                 ? FileStamp::of(found.path, OrdinaryFile::read(found.path).bytes)
                 : FileStamp::ofContents(found.contents);
    begin(found.document, true);
}

void DocumentSession::markUnsaved()
{
    m_differsFromFile = true;
    scheduleJournal();
    Q_EMIT changed();
}

QString DocumentSession::saveAs(const QString &path)
{
    m_edits.check();
    const QString error = DocumentFile::save(path, m_edits.document(), &m_file);
    if (!error.isEmpty())
        return error;
    m_path = path;
    m_origin.clear();
    m_seenFile = m_file;
    m_saved = m_edits.document();
    m_differsFromFile = false;
    m_journal.discard();
    m_journalled = DocumentSnapshot();
    Q_EMIT changed();
    return QString();
}

void DocumentSession::tryJournal()
{
    tellOfJournal(m_journal.prepare());
}

void DocumentSession::tellOfJournal(const QString &error)
{
    const bool isNew = !m_isJournalTroubleTold;
    m_isJournalTroubleTold = !error.isEmpty();
    if (m_isJournalTroubleTold && isNew)
        Q_EMIT journalFailed(error);
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
    if (m_journal.isUndecided()) {
        scheduleJournal();
        return;
    }
    QElapsedTimer cost;
    cost.start();
    // Include unfinished edits: a long gesture must not be lost either.
    const DocumentSnapshot now = m_edits.documentNow();
    if (now == m_saved && !m_differsFromFile) {
        m_journal.discard();
        m_journalled = DocumentSnapshot();
    } else if (now != m_journalled) {
        if (m_journal.write(now, m_path, m_file.contents))
            m_journalled = now;
        tellOfJournal(m_journal.error());
    }
    m_journalDue.setInterval(
        qBound(shortestDelay, int(cost.elapsed()) * delayPerCost, longestDelay));
}
