#include "FileStamp.h"
#include "SoloTestMain.h"

#include <sys/stat.h>
#include <unistd.h>

/** Whether another program has changed a file. */
class FileStampTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anUntouchedFileIsUnchanged();
    void otherContentsAreAChange();
    void theSameContentsAreNone();
    void aRemovedFileIsToldFromAChangedOne();
    void aFileThatAppearedIsAChange();
    void aPipeInItsPlaceIsAChange();
    void oneFileHasManyNames();

private:
    void write(const QByteArray &bytes, const QDateTime &time = QDateTime()) const;
    FileStamp::Change change() const { return m_stamp.changeAt(m_path); }

    QTemporaryDir m_folder;
    QString m_path;
    FileStamp m_stamp;
};

void FileStampTest::init()
{
    m_path = m_folder.filePath("file");
    QFile::remove(m_path);
    write("one");
    m_stamp = FileStamp::of(m_path, "one");
}

void FileStampTest::write(const QByteArray &bytes, const QDateTime &time) const
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.flush();
    if (time.isValid())
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

void FileStampTest::anUntouchedFileIsUnchanged()
{
    QCOMPARE(change(), FileStamp::Change::None);
    QVERIFY(FileStamp::at(m_path).looksLike(m_stamp));
}

/** Neither the size nor the time has to tell. */
void FileStampTest::otherContentsAreAChange()
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1'000'000);
    write("one", time);
    m_stamp = FileStamp::of(m_path, "one");
    write("two", time);
    QVERIFY(FileStamp::at(m_path).looksLike(m_stamp));
    QCOMPARE(change(), FileStamp::Change::Changed);
}

void FileStampTest::theSameContentsAreNone()
{
    QVERIFY(QFile::rename(m_path, m_path + "-before"));
    write("one", QDateTime::fromSecsSinceEpoch(1'000'000));
    QVERIFY(QFile::remove(m_path + "-before"));
    QVERIFY(!FileStamp::at(m_path).looksLike(m_stamp));
    QCOMPARE(change(), FileStamp::Change::None);
}

void FileStampTest::aRemovedFileIsToldFromAChangedOne()
{
    QVERIFY(QFile::remove(m_path));
    QCOMPARE(change(), FileStamp::Change::Removed);
    QCOMPARE(FileStamp().changeAt(m_path), FileStamp::Change::None);
}

void FileStampTest::aFileThatAppearedIsAChange()
{
    QCOMPARE(FileStamp().changeAt(m_path), FileStamp::Change::Changed);
}

void FileStampTest::aPipeInItsPlaceIsAChange()
{
    QVERIFY(QFile::remove(m_path));
    QCOMPARE(mkfifo(QFile::encodeName(m_path), S_IRUSR | S_IWUSR), 0);
    QCOMPARE(change(), FileStamp::Change::Changed);
}

void FileStampTest::oneFileHasManyNames()
{
    const QString link = m_folder.filePath("link");
    const QString hardLink = m_folder.filePath("hard link");
    QVERIFY(QFile::link(m_path, link));
    QCOMPARE(::link(QFile::encodeName(m_path), QFile::encodeName(hardLink)), 0);
    const FileStamp file = FileStamp::at(m_path);
    QVERIFY(file.isSameFileAs(FileStamp::at(link)));
    QVERIFY(file.isSameFileAs(FileStamp::at(hardLink)));
    QVERIFY(!file.isSameFileAs(FileStamp::at(m_folder.path())));
    QVERIFY(!FileStamp::at("/none").isSameFileAs(FileStamp::at("/none")));
}

TONQUILL_SOLO_TEST_MAIN(FileStampTest)
#include "tst_filestamp.moc"
