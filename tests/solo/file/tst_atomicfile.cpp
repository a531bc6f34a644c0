#include "AtomicFile.h"
#include "DocumentFile.h"
#include "FullDisk.h"
#include "SoloTestMain.h"

#include <filesystem>
#include <functional>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
/** What the program asked of the system while it wrote, and what the system is to refuse. */
struct System
{
    QStringList calls;
    QList<mode_t> modes; ///< of the files that were synced
    QString failingSync; ///< the file that the disk does not take
    int failures = 0;    ///< how often
};

System &theSystem()
{
    static System system;
    return system;
}

QString nameOf(int descriptor)
{
    return QFileInfo(QStringLiteral("/proc/self/fd/%1").arg(descriptor)).symLinkTarget();
}
} // namespace

// These take the places of the system's own in all of this executable.
extern "C" int fsync(int descriptor)
{
    const QString name = nameOf(descriptor);
    theSystem().calls.append("sync " + name);
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        theSystem().modes.append(status.st_mode & 07777);
    if (name == theSystem().failingSync && theSystem().failures-- > 0) {
        errno = EIO;
        return -1;
    }
    return int(syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    theSystem().calls.append(QStringLiteral("rename to ") + to);
    return int(syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

/** Writing a file so that whoever has a right to it keeps it, and nothing is ever half there. */
class AtomicFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aNewFileIsLikeAnyOther();
    void fileAndFolderAreOnTheDiskWhenItReturns();
    void theOwnersOwnIsNobodyElsesAtAnyMoment();
    void tellsWhatIsLeftWhenItFails();
    void aFailedSaveSaysWhatIsLeft();
    void modeAndAttributesAreKept();
    void anAccessListIsKept();
    void theAdministratorLeavesOwnerAndGroup();
    void aFileOfAnotherUserStaysTheirs();
    void aFileInAFolderThatTakesNoNewOnesIsWritten();
    void hardLinksStayTogether();
    void aChainOfLinksIsFollowed();
    void linksInACircleAreSpokenOf();
    void inAStickyFolderOnesOwnFileIsReplaced();
    void aWriteProtectedFileIsLeftAlone();
    void aFullDiskLeavesTheFile_data();
    void aFullDiskLeavesTheFile();
    void whatFailsInTheMiddleIsPutBack();
    void whatCannotBePutBackIsKept();
    void aFileThatCannotBeKeptSafeIsLeftAlone();
    void aNameMayBeAsLongAsTheSystemAllows_data();
    void aNameMayBeAsLongAsTheSystemAllows();
    void aNameThatIsNotUtf8IsSpokenOf();

private:
    QString path(const QString &name = "song.tonquill") const { return m_folder->filePath(name); }
    QByteArray bytesOf(const QString &path) const;
    void make(const QString &path, const QByteArray &bytes = "before", int mode = 0644) const;
    QStringList names() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{
constexpr uid_t nobody = 65534;
constexpr gid_t band = 4711;

bool isAdministrator()
{
    return geteuid() == 0;
}

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("%s is not there", qPrintable(path));
    return status;
}

/** Does something as a user who is in a group. */
void asNobodyInTheBand(const std::function<void()> &act)
{
    if (setgroups(1, &band) != 0 || setegid(band) != 0 || seteuid(nobody) != 0)
        qFatal("the user cannot be changed");
    act();
    if (seteuid(0) != 0 || setegid(0) != 0 || setgroups(0, nullptr) != 0)
        qFatal("the user cannot be changed back");
}
} // namespace

void AtomicFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    theSystem() = System();
    QVERIFY(chmod(QFile::encodeName(QDir::tempPath()).constData(), 01777) == 0);
}

void AtomicFileTest::cleanup()
{
    chmod(QFile::encodeName(m_folder->path()).constData(), 0700);
    m_folder.reset();
}

QByteArray AtomicFileTest::bytesOf(const QString &path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void AtomicFileTest::make(const QString &path, const QByteArray &bytes, int mode) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be made", qPrintable(path));
    file.close();
    chmod(QFile::encodeName(path).constData(), mode_t(mode));
}

QStringList AtomicFileTest::names() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void AtomicFileTest::aNewFileIsLikeAnyOther()
{
    const mode_t before = umask(027);
    const QString error = AtomicFile::write(path(), "after");
    umask(before);
    QCOMPARE(error, QString());
    QCOMPARE(bytesOf(path()), "after");
    QCOMPARE(statusOf(path()).st_mode & 07777, 0640U);
    QCOMPARE(names(), QStringList("song.tonquill"));
}

void AtomicFileTest::fileAndFolderAreOnTheDiskWhenItReturns()
{
    make(path());
    theSystem() = System();
    QCOMPARE(AtomicFile::write(path(), "after"), QString());
    const QStringList calls = theSystem().calls;
    QCOMPARE(calls.size(), 3);
    QVERIFY2(calls[0].startsWith("sync " + path() + '.'), qPrintable(calls[0]));
    QCOMPARE(calls[1], "rename to " + path());
    QCOMPARE(calls[2], "sync " + m_folder->path());

    theSystem().failingSync = m_folder->path();
    theSystem().failures = 1;
    QVERIFY(!AtomicFile::write(path(), "later").isEmpty());
}

void AtomicFileTest::theOwnersOwnIsNobodyElsesAtAnyMoment()
{
    const mode_t before = umask(0);
    const auto write = [this] {
        return AtomicFile::write(path(), "mine", AtomicFile::Readers::OwnerOnly);
    };
    QString error = write();
    QVERIFY(chmod(QFile::encodeName(path()).constData(), 0644) == 0);
    error += write();
    umask(before);
    QCOMPARE(error, QString());
    QCOMPARE(theSystem().modes, QList<mode_t>({0600, 0600}));
    QCOMPARE(statusOf(path()).st_mode & 07777, 0600U);
}

void AtomicFileTest::tellsWhatIsLeftWhenItFails()
{
    using AtomicFile::Left;
    make(path());
    const auto leftAfter = [this](const QString &failingSync, int failures) {
        theSystem().failingSync = failingSync;
        theSystem().failures = failures;
        Left left = Left::AsBefore;
        const QString error =
            AtomicFile::write(path(), "after", AtomicFile::Readers::AsUsual, &left);
        return error.isEmpty() ? QString() : QString::number(int(left)) + bytesOf(path());
    };
    QCOMPARE(leftAfter(m_folder->path(), 1), QString::number(int(Left::New)) + "after");
    make(path());
    QVERIFY(QFile(path()).exists() && link(QFile::encodeName(path()).constData(),
                                           QFile::encodeName(path("other")).constData()) == 0);
    QCOMPARE(leftAfter(path(), 1), QString::number(int(Left::AsBefore)) + "before");
    QVERIFY(leftAfter(path(), 2).startsWith(QString::number(int(Left::Damaged))));
}

void AtomicFileTest::aFailedSaveSaysWhatIsLeft()
{
    const QString asBefore = "\nThe file is as it was before.";
    const DocumentSnapshot document{{{728, 1052}, {12, 13, 704, 1026}}, 1, {}};
    FileStamp stamp;
    make(path());
    theSystem().failingSync = m_folder->path();
    theSystem().failures = 1;
    QString error = DocumentFile::save(path(), document, &stamp);
    QVERIFY2(error.contains("\nThe file is written, but"), qPrintable(error));
    QVERIFY2(!error.contains(asBefore), qPrintable(error));
    // It is known by its contents, so that the next save does not take it for another's.
    QCOMPARE(stamp.changeAt(path()), FileStamp::Change::None);
    QVERIFY(link(QFile::encodeName(path()).constData(),
                 QFile::encodeName(path("other")).constData()) == 0);
    theSystem().failingSync = path();
    theSystem().failures = 1;
    error = DocumentFile::save(path(), document, &stamp);
    QVERIFY2(error.endsWith(asBefore), qPrintable(error));
    theSystem().failures = 2;
    error = DocumentFile::save(path(), document, &stamp);
    QVERIFY2(error.contains("The file is damaged now."), qPrintable(error));
    QVERIFY2(!error.contains(asBefore), qPrintable(error));
}

void AtomicFileTest::modeAndAttributesAreKept()
{
    make(path(), "before", 0604);
    const QByteArray name = QFile::encodeName(path());
    QCOMPARE(setxattr(name.constData(), "user.composer", "Anna", 4, 0), 0);
    QCOMPARE(AtomicFile::write(path(), "after"), QString());
    QCOMPARE(bytesOf(path()), "after");
    QCOMPARE(statusOf(path()).st_mode & 07777, 0604U);
    char value[8] = {};
    QCOMPARE(getxattr(name.constData(), "user.composer", value, sizeof value), ssize_t(4));
    QCOMPARE(QByteArray(value), "Anna");
}

void AtomicFileTest::anAccessListIsKept()
{
    // Version 2; then each with its rights and, for a person, the number: the owner, another user,
    // the group, the most that those two may have, all others.
    const QByteArray list = QByteArray::fromHex("02000000"
                                                "01000600ffffffff"
                                                "0200060068120000"
                                                "04000400ffffffff"
                                                "10000600ffffffff"
                                                "20000000ffffffff");
    const char *attribute = "system.posix_acl_access";
    const QByteArray name = QFile::encodeName(path());
    make(path());
    QCOMPARE(setxattr(name.constData(), attribute, list.constData(), size_t(list.size()), 0), 0);
    QCOMPARE(AtomicFile::write(path(), "after"), QString());
    QCOMPARE(bytesOf(path()), "after");
    QByteArray kept(list.size(), '\0');
    QCOMPARE(getxattr(name.constData(), attribute, kept.data(), size_t(kept.size())), list.size());
    QCOMPARE(kept, list);

    // One that the folder gives to new files does not come upon a file that has none.
    QCOMPARE(removexattr(name.constData(), attribute), 0);
    QCOMPARE(setxattr(QFile::encodeName(m_folder->path()).constData(), "system.posix_acl_default",
                      list.constData(), size_t(list.size()), 0),
             0);
    QCOMPARE(AtomicFile::write(path(), "later"), QString());
    QCOMPARE(getxattr(name.constData(), attribute, kept.data(), size_t(kept.size())), ssize_t(-1));
}

void AtomicFileTest::theAdministratorLeavesOwnerAndGroup()
{
    if (!isAdministrator())
        QSKIP("only the administrator can give files away");
    make(path(), "before", 0660);
    QCOMPARE(chown(QFile::encodeName(path()).constData(), nobody, band), 0);
    QCOMPARE(AtomicFile::write(path(), "after"), QString());
    const struct stat after = statusOf(path());
    QCOMPARE(bytesOf(path()), "after");
    QCOMPARE(after.st_uid, nobody);
    QCOMPARE(after.st_gid, band);
    QCOMPARE(after.st_mode & 07777, 0660U);
}

/** A folder that a group shares: one of it saves what another one made. */
void AtomicFileTest::aFileOfAnotherUserStaysTheirs()
{
    if (!isAdministrator())
        QSKIP("only the administrator can be several users");
    constexpr uid_t anna = 4712;
    QCOMPARE(chown(QFile::encodeName(m_folder->path()).constData(), 0, band), 0);
    QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 02770), 0);
    make(path(), "a longer text than the one after", 0660);
    QCOMPARE(chown(QFile::encodeName(path()).constData(), anna, band), 0);
    const struct stat before = statusOf(path());
    QString error;
    asNobodyInTheBand([&] { error = AtomicFile::write(path(), "after"); });
    QCOMPARE(error, QString());
    const struct stat after = statusOf(path());
    QCOMPARE(bytesOf(path()), "after");
    QCOMPARE(after.st_uid, anna);
    QCOMPARE(after.st_gid, band);
    QCOMPARE(after.st_mode & 07777, 0660U);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(names(), QStringList("song.tonquill"));

    // A new file of theirs is the group's, as the folder says.
    asNobodyInTheBand([&] { error = AtomicFile::write(path("new.tonquill"), "new"); });
    QCOMPARE(error, QString());
    QCOMPARE(statusOf(path("new.tonquill")).st_gid, band);
}

void AtomicFileTest::aFileInAFolderThatTakesNoNewOnesIsWritten()
{
    make(path(), "before", 0666);
    chmod(QFile::encodeName(m_folder->path()).constData(), 0555);
    QString error;
    const auto act = [&] { error = AtomicFile::write(path(), "after"); };
    isAdministrator() ? asNobodyInTheBand(act) : act();
    QCOMPARE(error, QString());
    QCOMPARE(bytesOf(path()), "after");
    QCOMPARE(QDir::temp().entryList({"song.tonquill*"}), QStringList());
}

void AtomicFileTest::hardLinksStayTogether()
{
    make(path());
    const QByteArray name = QFile::encodeName(path());
    QCOMPARE(link(name.constData(), QFile::encodeName(path("other")).constData()), 0);
    QCOMPARE(AtomicFile::write(path(), "after, which is longer"), QString());
    QCOMPARE(bytesOf(path("other")), "after, which is longer");
    QCOMPARE(statusOf(path()).st_ino, statusOf(path("other")).st_ino);
    QCOMPARE(names(), QStringList({"other", "song.tonquill"}));
}

void AtomicFileTest::aChainOfLinksIsFollowed()
{
    QVERIFY(QDir(m_folder->path()).mkdir("far"));
    make(path("far/song.tonquill"));
    QVERIFY(QFile::link("far/song.tonquill", path("b")));
    QVERIFY(QFile::link("b", path("a")));
    QCOMPARE(AtomicFile::write(path("a"), "after"), QString());
    QCOMPARE(bytesOf(path("far/song.tonquill")), "after");
    QVERIFY(QFileInfo(path("a")).isSymLink());
    QVERIFY(QFileInfo(path("b")).isSymLink());
    // One that leads to a file that is still to be made.
    QVERIFY(QFile::link(path("far/new"), path("c")));
    QCOMPARE(AtomicFile::write(path("c"), "new"), QString());
    QCOMPARE(bytesOf(path("far/new")), "new");
}

void AtomicFileTest::linksInACircleAreSpokenOf()
{
    QVERIFY(QFile::link(path("b"), path("a")));
    QVERIFY(QFile::link(path("a"), path("b")));
    QVERIFY(!AtomicFile::write(path("a"), "after").isEmpty());
    QVERIFY(QFileInfo(path("a")).isSymLink());
}

void AtomicFileTest::inAStickyFolderOnesOwnFileIsReplaced()
{
    make(path(), "before", 0600);
    if (isAdministrator()) {
        QCOMPARE(chown(QFile::encodeName(path()).constData(), nobody, band), 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 01777), 0);
    }
    const ino_t before = statusOf(path()).st_ino;
    QString error;
    const auto act = [&] { error = AtomicFile::write(path(), "after"); };
    isAdministrator() ? asNobodyInTheBand(act) : act();
    QCOMPARE(error, QString());
    QCOMPARE(bytesOf(path()), "after");
    QVERIFY(statusOf(path()).st_ino != before);
    QCOMPARE(statusOf(path()).st_mode & 07777, 0600U);
}

void AtomicFileTest::aWriteProtectedFileIsLeftAlone()
{
    make(path(), "before", 0444);
    if (isAdministrator())
        chmod(QFile::encodeName(m_folder->path()).constData(), 0777);
    QString error;
    const auto act = [&] { error = AtomicFile::write(path(), "after"); };
    isAdministrator() ? asNobodyInTheBand(act) : act();
    QCOMPARE(error, "The file is write-protected.");
    QCOMPARE(bytesOf(path()), "before");
    QCOMPARE(names(), QStringList("song.tonquill"));
}

void AtomicFileTest::aFullDiskLeavesTheFile_data()
{
    QTest::addColumn<bool>("isWrittenThrough");
    QTest::newRow("replaced") << false;
    QTest::newRow("written where it is") << true;
}

void AtomicFileTest::aFullDiskLeavesTheFile()
{
    QFETCH(bool, isWrittenThrough);
    make(path());
    if (isWrittenThrough)
        QVERIFY(QFile(path()).exists() && link(QFile::encodeName(path()).constData(),
                                               QFile::encodeName(path("other")).constData()) == 0);
    QString error;
    {
        const FullDisk full(4096);
        error = AtomicFile::write(path(), QByteArray(100'000, 'x'));
    }
    QCOMPARE(error, "Not everything could be written. Is the disk full?");
    QCOMPARE(bytesOf(path()), "before");
    QCOMPARE(names().size(), isWrittenThrough ? 2 : 1);
}

void AtomicFileTest::whatFailsInTheMiddleIsPutBack()
{
    make(path(), "before, which is longer");
    QCOMPARE(
        link(QFile::encodeName(path()).constData(), QFile::encodeName(path("other")).constData()),
        0);
    theSystem().failingSync = path();
    theSystem().failures = 1;
    QVERIFY(!AtomicFile::write(path(), "after").isEmpty());
    QCOMPARE(bytesOf(path()), "before, which is longer");
    QCOMPARE(names(), QStringList({"other", "song.tonquill"}));
}

void AtomicFileTest::whatCannotBePutBackIsKept()
{
    make(path());
    QCOMPARE(
        link(QFile::encodeName(path()).constData(), QFile::encodeName(path("other")).constData()),
        0);
    theSystem().failingSync = path();
    theSystem().failures = 2;
    const QString error = AtomicFile::write(path(), "after");
    const QStringList kept = names().filter("song.tonquill.");
    QCOMPARE(kept.size(), 1);
    QVERIFY2(error.contains(path(kept[0])), qPrintable(error));
    QCOMPARE(bytesOf(path(kept[0])), "before");
}

/** Neither a new file nor a copy of the old one can be made anywhere. */
void AtomicFileTest::aFileThatCannotBeKeptSafeIsLeftAlone()
{
    make(path(), "before", 0666);
    chmod(QFile::encodeName(m_folder->path()).constData(), 0555);
    const QByteArray temporary = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    QString error;
    const auto act = [&] { error = AtomicFile::write(path(), "after"); };
    isAdministrator() ? asNobodyInTheBand(act) : act();
    qputenv("TMPDIR", temporary);
    QVERIFY2(error.contains("cannot be kept safe"), qPrintable(error));
    QCOMPARE(bytesOf(path()), "before");
}

void AtomicFileTest::aNameMayBeAsLongAsTheSystemAllows_data()
{
    QTest::addColumn<QString>("name");
    // Names have at most 255 bytes.
    for (const int length : {248, 249, 255})
        QTest::addRow("%d letters", length) << QString(length, 'n');
    QTest::newRow("255 bytes of letters of two") << QString(127, QChar(0xe9)) + 'n';
    QTest::newRow("255 bytes of letters of three") << QString(85, QChar(0x266f));
}

void AtomicFileTest::aNameMayBeAsLongAsTheSystemAllows()
{
    QFETCH(QString, name);
    QCOMPARE(AtomicFile::write(path(name), "new"), QString());
    QCOMPARE(AtomicFile::write(path(name), "after"), QString());
    QCOMPARE(bytesOf(path(name)), "after");
    QCOMPARE(link(QFile::encodeName(path(name)).constData(),
                  QFile::encodeName(path("other")).constData()),
             0);
    QCOMPARE(AtomicFile::write(path(name), "later"), QString());
    QCOMPARE(bytesOf(path("other")), "later");
    QVERIFY(!AtomicFile::write(path(QString(256, 'n')), "new").isEmpty());
}

void AtomicFileTest::aNameThatIsNotUtf8IsSpokenOf()
{
    const QByteArray bytes = QFile::encodeName(m_folder->path()) + "/caf\xe9";
    const int descriptor = open(bytes.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    QVERIFY(descriptor >= 0);
    ::close(descriptor);
    QVERIFY(AtomicFile::write(QFile::decodeName(bytes), "after").contains("UTF-8"));
    QCOMPARE(symlink(bytes.constData(), QFile::encodeName(path("link")).constData()), 0);
    QVERIFY(AtomicFile::write(path("link"), "after").contains("UTF-8"));
    QVERIFY(AtomicFile::write(path(QString(QChar(0xd800))), "after").contains("UTF-8"));
    // The broken name and the link.
    QCOMPARE(std::distance(std::filesystem::directory_iterator(m_folder->path().toStdString()),
                           std::filesystem::directory_iterator()),
             2);
    ::unlink(bytes.constData()); // Qt cannot
    // A file that is really called so is like any other.
    QVERIFY(AtomicFile::write(path("\u266f"), "sharp").isEmpty());
    make(path("\ufffd"));
    QCOMPARE(AtomicFile::write(path("\ufffd"), "after"), QString());
    QCOMPARE(bytesOf(path("\ufffd")), "after");
}

TONQUILL_SOLO_TEST_MAIN(AtomicFileTest)
#include "tst_atomicfile.moc"
