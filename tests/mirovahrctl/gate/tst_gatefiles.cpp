#include "mirovahrctl/gate/gatesource.h"
#include "mirovahrctl/gatestate/gatecopies.h"
#include "mirovahrctl/gatestate/gatefile.h"
#include "mirovahrctl/gatestate/gatefolder.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/support/localzone.h"

#include <QBuffer>
#include <QTest>

#include <functional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Row = ExportRow;

constexpr uid_t kNobody = 65534;

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("%s is not there", qPrintable(path));
    return status;
}

uint permissionsOf(const QString &path)
{
    return statusOf(path).st_mode & 07777;
}

void setPermissions(const QString &path, mode_t mode)
{
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("The mode of %s cannot be set", qPrintable(path));
}

void setModified(const QString &path, const QString &time)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::fromString(time, Qt::ISODateWithMs),
                             QFileDevice::FileModificationTime))
        qFatal("The time of %s cannot be set", qPrintable(path));
}

/// Gives up root's rights for its lifetime, if the test runs as root.
class OrdinaryUser {
public:
    OrdinaryUser() { become(kNobody); }
    ~OrdinaryUser() { become(0); }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    void become(uid_t user) const
    {
        if (m_isRoot && ::seteuid(user) != 0)
            qFatal("The test cannot change its user");
    }

    const bool m_isRoot = ::geteuid() == 0;
};

void giveTo(uid_t owner, const QStringList &paths)
{
    for (const QString &path : paths) {
        if (::chown(QFile::encodeName(path).constData(), owner, gid_t(-1)) != 0)
            qFatal("%s cannot be given away", qPrintable(path));
    }
}

/// Accepts everything, and runs an action at the first write.
class Meanwhile : public QBuffer {
public:
    explicit Meanwhile(const std::function<void()> &work)
        : m_work(work)
    {
        open(QIODevice::WriteOnly);
    }

protected:
    qint64 writeData(const char *data, qint64 length) override
    {
        if (m_work)
            std::exchange(m_work, nullptr)();
        return QBuffer::writeData(data, length);
    }

private:
    std::function<void()> m_work;
};

} // namespace

/// The files that the gate reads, keeps and publishes.
class TestGateFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_site.reset(new GateSite); }

    void thePublishedFileIsHrsByteForByte();
    void textsArePublishedInTheirWrittenForm_data();
    void textsArePublishedInTheirWrittenForm();
    void theFormOfTheTextsMayChangeWithoutANewFile();
    void aWrittenTextIsNoError();
    void aLineThatIsTooLongOnceItIsWrittenIsRejected();
    void hrsFileIsLeftAlone();
    void thePublishedFileIsForOwnerAndGroup();
    void theGatesFilesAreForTheirReaders();
    void filesBelongToTheOwnerOfTheirFolder();
    void anEarlierFileIsReplaced();
    void aLinkInThePlaceOfTheFileIsNotFollowed();
    void aFolderInThePlaceOfTheFileIsAFailure();
    void whatAKilledRunLeftIsRemoved();
    void linksAndStrangersFilesAreNoLeftovers();

    void anUnchangedFileIsPublishedAgain();
    void aNewDeliveryOfTheSameFileCountsAsNew();

    void everyTimeOfTheStatusFileIsOfTheLocalZone();
    void anotherZoneMakesNoNewDelivery();
    void everyAdmittedFileHasADatedCopy();
    void theNewestCopiesAreKept_data();
    void theNewestCopiesAreKept();
    void copiesOfOneSecondKeepTheirOrder();
    void nothingElseIsTakenForACopy();

    void theRejectsAreWritten();
    void theRejectsAreWrittenWhenTheFileIsRefused();
    void theRejectsMayLieElsewhere();

    void statusReadsTheStatusFile();
    void aRefusalKeepsTheLastAdmission();
    void aStatusFileThatIsNoneIsReplaced();

    void theFolderIsMadePrivate();
    void theFolderHasANameOfItsOwnByDefault();
    void anUnusableFolderIsAFailure_data();
    void anUnusableFolderIsAFailure();
    void anUntrustworthyFolderIsAFailure_data();
    void anUntrustworthyFolderIsAFailure();
    void aFolderOfAnotherUserIsAFailure();
    void rootLeavesNothingInAFolderThatSomebodyElseMade_data();
    void rootLeavesNothingInAFolderThatSomebodyElseMade();
    void aFolderOfTheOwnerOfTheFolderAboveIsTrusted();
    void aFolderIsMadeInOneThatEverybodyMayWriteTo();
    void aFileOfRootUnderTheNameOfTheLockKeepsItsOwner();
    void theRejectsLieInTheFolderThatWasJudged();
    void aFolderThatCannotBeWrittenIsAFailure();
    void aSecondGateIsRefused();
    void aGateExcludesAnother();
    void theLockGoesWithTheRun();

    void aFileThatIsWrittenMeanwhileHasChanged_data();
    void aFileThatIsWrittenMeanwhileHasChanged();
    void aPipeInPlaceOfTheHrFileDoesNotBlockTheGate();

private:
    QScopedPointer<GateSite> m_site;
};

void TestGateFiles::thePublishedFileIsHrsByteForByte()
{
    const QByteArray content = "\xEF\xBB\xBF" + GatePeople::file(GatePeople::some(2000))
        + "broken\r\n\n\xFF|\n" + GatePeople::file({Row()});
    m_site->deliver(content);
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    QCOMPARE(m_site->published(), content);
    QCOMPARE(contentOf(m_site->inState("admitted.data")), content);
    QCOMPARE(m_site->names(QFileInfo(m_site->target()).path()), QStringList("ron.data"));
    QCOMPARE(m_site->names(m_site->state()),
             QStringList({m_site->copies().value(0), "admitted.data", "lock", "rejects.txt",
                          "status.json"}));
}

void TestGateFiles::textsArePublishedInTheirWrittenForm_data()
{
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("surname");
    QTest::addColumn<QString>("phone");
    QTest::newRow("by default") << QStringList() << "escaped"
                                << "O''Brien"
                                << "\\\\ 100%' '1";
    QTest::newRow("escaped") << QStringList{"--texts", "escaped"} << "escaped"
                             << "O''Brien"
                             << "\\\\ 100%' '1";
    QTest::newRow("no backslash escapes")
        << QStringList{"--texts", "no-backslash-escapes"} << "no-backslash-escapes"
        << "O''Brien"
        << "\\ 100%' '1";
    QTest::newRow("as is") << QStringList{"--texts", "as-is"} << "as-is"
                           << "O'Brien"
                           << "\\ 100%1";
}

void TestGateFiles::textsArePublishedInTheirWrittenForm()
{
    QFETCH(QStringList, option);
    QFETCH(QString, surname);
    QFETCH(QString, phone);
    const Row own = Row().with(&Row::prijmeni, "O'Brien").with(&Row::telefon, "\\ 100%1");
    const Row written = Row().with(&Row::prijmeni, surname).with(&Row::telefon, phone);
    const QByteArray others = GatePeople::file(GatePeople::some(2)) + "broken ' line\r\n";
    m_site->deliver(others + GatePeople::file({own}));
    COMPARE_EXIT(m_site->run(QStringList{"--accept"} + option), ExitStatus::Fine);
    QCOMPARE(m_site->published(), others + GatePeople::file({written}));
    // What later files are compared with is HR's own.
    QCOMPARE(contentOf(m_site->inState("admitted.data")), others + GatePeople::file({own}));
    QTEST(m_site->status()["lastAdmitted"].toObject()["texts"].toString(), "word");
}

void TestGateFiles::theFormOfTheTextsMayChangeWithoutANewFile()
{
    const Row own = Row().with(&Row::prijmeni, "O'Brien");
    m_site->admit({own});
    const ToolRun run = m_site->run({"--texts", "as-is"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.rules(), QStringList({"rejected-lines", "unchanged"}));
    QCOMPARE(m_site->published(), GatePeople::file({own}));
    QCOMPARE(m_site->status()["lastAdmitted"].toObject()["texts"].toString(), QString("as-is"));
}

void TestGateFiles::aWrittenTextIsNoError()
{
    m_site->admit({Row().with(&Row::prijmeni, "O'Brien").with(&Row::titul, "%1\\")});
    const ToolRun run = m_site->run();
    QCOMPARE(run.rules(), QStringList("unchanged"));
    QVERIFY(contentOf(m_site->inState("rejects.txt")).endsWith("\n\n# 0 lines.\n"));
}

void TestGateFiles::aLineThatIsTooLongOnceItIsWrittenIsRejected()
{
    const auto lineOf = [](int length) {
        const QByteArray rest = Row().with(&Row::prijmeni, "").text().toUtf8();
        const Row row = Row().with(&Row::prijmeni, "'" + QString(length - rest.size() - 1, 'x'));
        return row.text().toUtf8();
    };
    // With the apostrophe doubled it has 65536 bytes.
    m_site->admit(lineOf(65535) + '\n');
    QCOMPARE(m_site->run().rules(), QStringList("unchanged"));

    m_site->admit(lineOf(65536) + '\n' + GatePeople::file({Row()}));
    QCOMPARE(m_site->run().rules(), QStringList({"rejected-lines", "unchanged"}));
    QVERIFY(contentOf(m_site->inState("rejects.txt"))
                .contains("): The line is longer than 65536 bytes; the plugin skips it."));

    m_site->admit(lineOf(65535) + "\r\n" + GatePeople::file({Row()}));
    QCOMPARE(m_site->run().rules(), QStringList({"rejected-lines", "unchanged"}));
}

void TestGateFiles::hrsFileIsLeftAlone()
{
    m_site->deliver(GatePeople::some(3));
    setPermissions(m_site->hrFile(), 0440);
    const struct stat before = statusOf(m_site->hrFile());
    m_site->run({"--accept"});
    const struct stat after = statusOf(m_site->hrFile());
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    QCOMPARE(after.st_mode, before.st_mode);
    QCOMPARE(contentOf(m_site->hrFile()), GatePeople::file(GatePeople::some(3)));
}

void TestGateFiles::thePublishedFileIsForOwnerAndGroup()
{
    const mode_t mask = ::umask(0077);
    m_site->admit({Row()});
    m_site->run();
    QCOMPARE(permissionsOf(m_site->target()), 0640U);
    ::umask(0);
    m_site->run();
    ::umask(mask);
    QCOMPARE(permissionsOf(m_site->target()), 0640U);
}

void TestGateFiles::theGatesFilesAreForTheirReaders()
{
    const mode_t mask = ::umask(0);
    m_site->admit({Row()});
    ::umask(mask);
    QCOMPARE(permissionsOf(m_site->state()), 0700U);
    QCOMPARE(permissionsOf(m_site->inState("admitted.data")), 0600U);
    QCOMPARE(permissionsOf(m_site->inState(m_site->copies().value(0))), 0600U);
    QCOMPARE(permissionsOf(m_site->inState("rejects.txt")), 0640U);
    QCOMPARE(permissionsOf(m_site->inState("status.json")), 0644U);
    QCOMPARE(permissionsOf(m_site->inState("lock")), 0600U);
}

void TestGateFiles::filesBelongToTheOwnerOfTheirFolder()
{
    // Root leaves them to the folders' owner; anybody else owns the folders of this test.
    const uid_t owner = ::geteuid() == 0 ? kNobody : ::geteuid();
    const QString plugin = QFileInfo(m_site->target()).path();
    giveTo(owner, {plugin, m_site->folder()});
    m_site->deliver(GatePeople::some(1));
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    QCOMPARE(statusOf(m_site->target()).st_uid, owner);
    QCOMPARE(statusOf(m_site->state()).st_uid, owner);
    for (const QString &name : m_site->names(m_site->state()))
        QVERIFY2(statusOf(m_site->inState(name)).st_uid == owner, qPrintable(name));
}

void TestGateFiles::anEarlierFileIsReplaced()
{
    m_site->admit(GatePeople::some(3));
    writeFile(m_site->target(), "a longer text than that of one person that HR delivers");
    setPermissions(m_site->target(), 0400);
    m_site->deliver(GatePeople::some(4));
    const ToolRun run = m_site->run();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(m_site->published(), GatePeople::file(GatePeople::some(4)));
    QCOMPARE(permissionsOf(m_site->target()), 0640U);
    QCOMPARE(run.findingsOf("unread").value(0)["message"].toString(),
             QString("An earlier file was still in place, which the plugin has not read or does "
                     "not remove. It was replaced."));
}

void TestGateFiles::aLinkInThePlaceOfTheFileIsNotFollowed()
{
    const QString other = m_site->folder() + "/other";
    writeFile(other, "another file");
    m_site->admit(GatePeople::some(3));
    QVERIFY(QFile::link(other, m_site->target()));
    COMPARE_EXIT(m_site->run(), ExitStatus::Fine);
    QCOMPARE(contentOf(other), QByteArray("another file"));
    QVERIFY(S_ISREG(statusOf(m_site->target()).st_mode));
    QCOMPARE(m_site->published(), GatePeople::file(GatePeople::some(3)));
}

void TestGateFiles::aFolderInThePlaceOfTheFileIsAFailure()
{
    m_site->admit(GatePeople::some(3));
    QVERIFY(QDir().mkpath(m_site->target() + "/x"));
    const ToolRun run = m_site->run();
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err,
             QString("mirovahrctl: gate: '%1' cannot be replaced: Is a directory. Nothing was "
                     "published.\n")
                 .arg(m_site->target()));
    QCOMPARE(m_site->names(QFileInfo(m_site->target()).path()), QStringList("ron.data"));
}

void TestGateFiles::whatAKilledRunLeftIsRemoved()
{
    m_site->admit(GatePeople::some(3));
    const QString plugin = QFileInfo(m_site->target()).path();
    const QStringList before = m_site->names(m_site->state());
    writeFile(plugin + "/.ron.data.gate-0123456789abcdef", "half a fi");
    writeFile(m_site->inState(".admitted.data.gate-0123456789abcdef"), "half a fi");
    writeFile(m_site->inState(".rejects.txt.gate-0123456789abcdef"), "half a fi");
    writeFile(m_site->inState(".status.json.gate-0123456789abcdef"), "half a fi");
    COMPARE_EXIT(m_site->run(), ExitStatus::Fine);
    QCOMPARE(m_site->names(plugin), QStringList("ron.data"));
    QCOMPARE(m_site->names(m_site->state()), before);
}

void TestGateFiles::linksAndStrangersFilesAreNoLeftovers()
{
    const QString plugin = QFileInfo(m_site->target()).path();
    const QString other = m_site->folder() + "/other";
    writeFile(other, "another file");
    QStringList names{".ron.data.gate-", ".ron.data.gate-0123", ".ron.dat.gate-0123456789abcdef",
                      "ron.data.gate-0123456789abcdef", ".ron.data.gate-0123456789abcdefg"};
    for (const QString &name : names)
        writeFile(plugin + '/' + name, "x");
    names << ".ron.data.gate-fedcba9876543210"
          << ".ron.data.gate-0000000000000000";
    QVERIFY(QFile::link(other, plugin + '/' + names[5]));
    QVERIFY(QDir().mkdir(plugin + '/' + names[6]));
    m_site->deliver(GatePeople::some(3));
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    names << "ron.data";
    names.sort();
    QStringList left = m_site->names(plugin);
    left.sort();
    QCOMPARE(left, names);
    QCOMPARE(contentOf(other), QByteArray("another file"));
}

void TestGateFiles::anUnchangedFileIsPublishedAgain()
{
    m_site->admit(GatePeople::some(3));
    const QJsonObject last = m_site->status()["lastAdmitted"].toObject();
    const ino_t inode = statusOf(m_site->inState("admitted.data")).st_ino;
    const ToolRun run = m_site->run();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.rules(), QStringList("unchanged"));
    QCOMPARE(m_site->published(), GatePeople::file(GatePeople::some(3)));
    QCOMPARE(m_site->copies().size(), 1);
    QCOMPARE(statusOf(m_site->inState("admitted.data")).st_ino, inode);
    QCOMPARE(m_site->status()["lastAdmitted"].toObject(), last);
    QCOMPARE(last["overridden"].toArray().size(), 1);
}

void TestGateFiles::aNewDeliveryOfTheSameFileCountsAsNew()
{
    m_site->admit(GatePeople::some(3));
    setModified(m_site->hrFile(), "2026-03-04T05:06:07.089Z");
    const ToolRun run = m_site->run();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.rules(), QStringList("unchanged"));
    const QJsonObject last = m_site->status()["lastAdmitted"].toObject();
    QCOMPARE(QDateTime::fromString(last["delivered"].toString(), Qt::ISODateWithMs),
             QDateTime::fromString("2026-03-04T05:06:07.089Z", Qt::ISODateWithMs));
    QCOMPARE(last["time"], m_site->status()["time"]);
    QCOMPARE(m_site->copies().size(), 1);
}

void TestGateFiles::everyTimeOfTheStatusFileIsOfTheLocalZone()
{
    const LocalZone zone("Asia/Kolkata");
    m_site->deliver(GatePeople::some(3));
    setModified(m_site->hrFile(), "2026-03-04T05:06:07.089Z");
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    const QJsonObject last = m_site->status()["lastAdmitted"].toObject();
    QCOMPARE(last["delivered"].toString(), QString("2026-03-04T10:36:07.089+05:30"));
    QVERIFY(last["time"].toString().endsWith("+05:30"));
    QVERIFY(m_site->status()["time"].toString().endsWith("+05:30"));
}

void TestGateFiles::anotherZoneMakesNoNewDelivery()
{
    m_site->deliver(GatePeople::some(3));
    {
        const LocalZone zone("Asia/Kolkata");
        COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    }
    const QJsonObject last = m_site->status()["lastAdmitted"].toObject();
    const LocalZone zone("America/New_York");
    COMPARE_EXIT(m_site->run(), ExitStatus::Fine);
    QCOMPARE(m_site->status()["lastAdmitted"].toObject(), last);
}

void TestGateFiles::everyAdmittedFileHasADatedCopy()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    m_site->admit(GatePeople::some(3));
    m_site->admit(GatePeople::some(4));
    m_site->deliver(GatePeople::some(1));
    COMPARE_EXIT(m_site->run(), ExitStatus::GuardTripped);
    const QStringList copies = m_site->copies();
    QCOMPARE(copies.size(), 2);
    QCOMPARE(contentOf(m_site->inState(copies[0])), GatePeople::file(GatePeople::some(3)));
    QCOMPARE(contentOf(m_site->inState(copies[1])), GatePeople::file(GatePeople::some(4)));
    const QDateTime time =
        QDateTime::fromString(copies[0].mid(9, 15) + "Z", "yyyyMMdd'T'HHmmss'Z'");
    QVERIFY(qAbs(QDateTime(time.date(), time.time(), Qt::UTC).secsTo(before)) < 600);
}

void TestGateFiles::theNewestCopiesAreKept_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("expected"); // of 33 and the new one
    QTest::newRow("by default") << QStringList() << 30;
    QTest::newRow("one fewer than there are") << QStringList{"--keep", "33"} << 33;
    QTest::newRow("as many as there are") << QStringList{"--keep", "34"} << 34;
    QTest::newRow("more than there are") << QStringList{"--keep", "1000"} << 34;
    QTest::newRow("one") << QStringList{"--keep", "1"} << 1;
    QTest::newRow("none") << QStringList{"--keep", "0"} << 0;
}

void TestGateFiles::theNewestCopiesAreKept()
{
    QFETCH(QStringList, options);
    QFETCH(int, expected);
    m_site->admit(GatePeople::some(3));
    QStringList all;
    for (int day = 1; day <= 32; ++day) {
        all << QStringLiteral("admitted-2025%1%2T101500Z.data")
                   .arg(1 + day / 31, 2, 10, QLatin1Char('0'))
                   .arg(1 + day % 31, 2, 10, QLatin1Char('0'));
        writeFile(m_site->inState(all.last()), "x");
    }
    m_site->deliver(GatePeople::some(4));
    COMPARE_EXIT(m_site->run(options), ExitStatus::Fine);
    all = all + m_site->copies();
    all.removeDuplicates();
    all.sort();
    QCOMPARE(m_site->copies().size(), expected);
    QCOMPARE(m_site->copies(), all.mid(all.size() - expected));
    QCOMPARE(m_site->published(), GatePeople::file(GatePeople::some(4)));
    QCOMPARE(contentOf(m_site->inState("admitted.data")), m_site->published());
}

void TestGateFiles::copiesOfOneSecondKeepTheirOrder()
{
    QVERIFY(QDir().mkdir(m_site->state()));
    GateFolder folder;
    QVERIFY(folder.open(m_site->state()));
    const QDateTime time = QDateTime::fromString("2026-03-04T05:59:59.5+01:00", Qt::ISODateWithMs);
    for (const char *content : {"a", "b", "c"}) {
        writeFile(m_site->inState("new"), content);
        QVERIFY(GateCopies(folder).add("new", time));
        QVERIFY(folder.remove("new"));
    }
    QCOMPARE(m_site->copies(),
             QStringList({"admitted-20260304T045959Z.data", "admitted-20260304T050000Z.data",
                          "admitted-20260304T050001Z.data"}));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(contentOf(m_site->inState(m_site->copies()[i])), QByteArray(1, char('a' + i)));
}

void TestGateFiles::nothingElseIsTakenForACopy()
{
    m_site->admit(GatePeople::some(3));
    const QStringList others{"admitted-20250101T000000Z.data.txt", "admitted-old.data",
                             "my-admitted-20250101T000000Z.data", "admitted-20250101T000000.data",
                             "admitted-20250101T000000Z.data\n"};
    for (const QString &name : others)
        writeFile(m_site->inState(name), "x");
    COMPARE_EXIT(m_site->run({"--keep", "0"}), ExitStatus::Fine);
    for (const QString &name : others)
        QVERIFY2(QFile::exists(m_site->inState(name)), qPrintable(name));
}

void TestGateFiles::theRejectsAreWritten()
{
    m_site->admit(GatePeople::some(3));
    const QByteArray broken = "1|2|\xFF\r";
    m_site->deliver(broken + "\n" + GatePeople::file(GatePeople::some(3)));
    const ToolRun run = m_site->run();
    COMPARE_EXIT(run, ExitStatus::Fine);
    const QByteArray rejects = contentOf(m_site->inState("rejects.txt"));
    QVERIFY(rejects.startsWith("# Lines of the export export.txt that the attendance system drops, "
                               "cannot store correctly, or misreads.\n# Checked on "));
    QVERIFY(
        rejects.endsWith("\n# Line 1 (most likely 1.2): The line has 3 fields instead of 18. Write "
                         "empty fields too, each with its |.\n1|2|\xFF\n\n# 1 line.\n"));
    QCOMPARE(run.findingsOf("rejected-lines").value(0)["advice"].toString(),
             "Send HR the file " + m_site->inState("rejects.txt") + '.');

    m_site->takePublished();
    m_site->deliver(GatePeople::some(3));
    m_site->run();
    QVERIFY(contentOf(m_site->inState("rejects.txt")).endsWith("\n\n# 0 lines.\n"));
}

void TestGateFiles::theRejectsAreWrittenWhenTheFileIsRefused()
{
    m_site->deliver(QByteArray("1|2\n"));
    COMPARE_EXIT(m_site->run(), ExitStatus::GuardTripped);
    QVERIFY(contentOf(m_site->inState("rejects.txt")).endsWith("\n1|2\n\n# 1 line.\n"));
}

void TestGateFiles::theRejectsMayLieElsewhere()
{
    const QString path = m_site->folder() + "/hr/rejects of today.txt";
    m_site->deliver(GatePeople::some(3));
    COMPARE_EXIT(m_site->run({"--accept", "--rejects", path}), ExitStatus::Fine);
    QVERIFY(contentOf(path).endsWith("\n\n# 0 lines.\n"));
    QVERIFY(!QFile::exists(m_site->inState("rejects.txt")));
    const ToolRun run = m_site->run({"--rejects", m_site->folder() + "/no/rejects.txt"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err,
             QString("mirovahrctl: gate: '%1/no' cannot be opened as a folder: No such file or "
                     "directory. Nothing was published.\n")
                 .arg(m_site->folder()));
}

void TestGateFiles::statusReadsTheStatusFile()
{
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    m_site->admit(GatePeople::some(3));
    QString error;
    const auto status = GateStatus::read(m_site->inState("status.json"), error);
    QVERIFY2(status, qPrintable(error));
    QCOMPARE(status->isRefused(), false);
    QVERIFY(status->time() >= before && status->time() <= QDateTime::currentSecsSinceEpoch());
    QCOMPARE(status->reasons(), QStringList());
    QCOMPARE(status->admittedTime(), status->time());
    QCOMPARE(status->admittedFile(), m_site->hrFile());
    QCOMPARE(status->admittedLines(), std::make_optional(qint64(3)));
}

void TestGateFiles::aRefusalKeepsTheLastAdmission()
{
    m_site->admit(GatePeople::some(3));
    const QJsonObject last = m_site->status()["lastAdmitted"].toObject();
    m_site->deliver(QByteArray());
    m_site->run();
    QVERIFY(QFile::remove(m_site->hrFile()));
    m_site->run();
    QString error;
    const auto status = GateStatus::read(m_site->inState("status.json"), error);
    QVERIFY2(status, qPrintable(error));
    QVERIFY(status->isRefused());
    QCOMPARE(status->reasons(), QStringList("There is no file '" + m_site->hrFile() + "'"));
    QCOMPARE(status->admittedLines(), std::make_optional(qint64(3)));
    QCOMPARE(m_site->status()["lastAdmitted"].toObject(), last);
    // A failure counts as a refusal.
    QVERIFY(QDir().mkpath(m_site->target() + "/x"));
    m_site->deliver(GatePeople::some(3));
    COMPARE_EXIT(m_site->run(), ExitStatus::Usage);
    QCOMPARE(m_site->status()["reasons"].toVariant().toStringList(),
             QStringList("'" + m_site->target() + "' cannot be replaced: Is a directory"));
    QCOMPARE(m_site->status()["lastAdmitted"].toObject(), last);
}

void TestGateFiles::aStatusFileThatIsNoneIsReplaced()
{
    m_site->admit(GatePeople::some(3));
    writeFile(m_site->inState("status.json"), "none");
    COMPARE_EXIT(m_site->run(), ExitStatus::Fine);
    QCOMPARE(m_site->status()["lastAdmitted"].toObject()["lines"].toInt(), 3);
}

void TestGateFiles::theFolderIsMadePrivate()
{
    const mode_t mask = ::umask(0);
    m_site->deliver(GatePeople::some(1));
    COMPARE_EXIT(m_site->run(), ExitStatus::GuardTripped);
    ::umask(mask);
    QCOMPARE(permissionsOf(m_site->state()), 0700U);
}

void TestGateFiles::theFolderHasANameOfItsOwnByDefault()
{
    m_site->deliver(GatePeople::some(1));
    const ToolRun run = runTool(
        {"gate", "--from", m_site->hrFile(), "--to", m_site->target(), "--accept", "--json"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(QFile::exists(m_site->target() + ".gate/status.json"));
    QVERIFY(QFile::exists(m_site->target() + ".gate/rejects.txt"));
}

void TestGateFiles::anUnusableFolderIsAFailure_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("path"); // in the site's folder
    QTest::addColumn<QString>("error");
    const QString noFolder = "'%1' cannot be opened as a folder: No such file or directory";
    QTest::newRow("the state below a missing folder")
        << "--state"
        << "no/state"
        << "'%1/state' cannot be created: No such file or directory";
    QTest::newRow("the state in the place of a file")
        << "--state"
        << "hr/export.txt"
        << "'%1' cannot be opened as a folder: Not a directory";
    QTest::newRow("no folder of the plugin") << "--to"
                                             << "no/ron.data" << noFolder;
    QTest::newRow("no folder for the rejects") << "--rejects"
                                               << "no/rejects.txt" << noFolder;
}

void TestGateFiles::anUnusableFolderIsAFailure()
{
    QFETCH(QString, option);
    QFETCH(QString, path);
    QFETCH(QString, error);
    m_site->deliver(GatePeople::some(1));
    const ToolRun run = m_site->run({"--accept", option, m_site->folder() + '/' + path});
    COMPARE_EXIT(run, ExitStatus::Usage);
    const QString named = m_site->folder() + (path.startsWith("no/") ? "/no" : '/' + path);
    QCOMPARE(run.err, "mirovahrctl: gate: " + error.arg(named) + ". Nothing was published.\n");
    QCOMPARE(run.failure(), error.arg(named) + ". Nothing was published.");
    QVERIFY(!m_site->isPublished());
}

void TestGateFiles::anUntrustworthyFolderIsAFailure_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isLink");
    QTest::addColumn<bool>("trusted");
    QTest::newRow("private") << 0700 << false << true;
    QTest::newRow("readable for all") << 0755 << false << true;
    QTest::newRow("writable for the group") << 0770 << false << true;
    QTest::newRow("writable for all") << 0777 << false << false;
    QTest::newRow("writable for all, sticky") << 01777 << false << false;
    QTest::newRow("a link") << 0700 << true << false;
}

void TestGateFiles::anUntrustworthyFolderIsAFailure()
{
    QFETCH(int, mode);
    QFETCH(bool, isLink);
    QFETCH(bool, trusted);
    const QString real = isLink ? m_site->folder() + "/real" : m_site->state();
    QVERIFY(QDir().mkdir(real));
    setPermissions(real, mode_t(mode));
    if (isLink)
        QVERIFY(QFile::link(real, m_site->state()));
    m_site->deliver(GatePeople::some(1));
    const ToolRun run = m_site->run({"--accept"});
    COMPARE_EXIT(run, trusted ? ExitStatus::Fine : ExitStatus::Usage);
    QCOMPARE(m_site->isPublished(), trusted);
    QCOMPARE(m_site->names(real).isEmpty(), !trusted);
    const QString error = isLink
        ? QString("'%1' cannot be opened as a folder: Not a directory")
        : QString("The folder '%1' belongs to somebody else, or everybody may write to it: the "
                  "gate could not trust its own files there");
    if (!trusted)
        QCOMPARE(run.err,
                 "mirovahrctl: gate: " + error.arg(m_site->state()) + ". Nothing was published.\n");
}

void TestGateFiles::aFolderOfAnotherUserIsAFailure()
{
    // Only root can create such a folder. Any other user finds one of root's, which is trusted
    // where root is known: the private view of an ordinary user shows it as that of an unknown one.
    const bool isRoot = ::geteuid() == 0;
    const QString stranger = isRoot ? m_site->state() : QString("/");
    if (isRoot) {
        QVERIFY(QDir().mkdir(stranger));
        giveTo(kNobody, {m_site->folder()});
        giveTo(1, {stranger});
    }
    const bool isTrusted = QFileInfo(stranger).ownerId() == 0;
    const OrdinaryUser user;
    GateFolder folder;
    QCOMPARE(folder.openPrivate(stranger), isTrusted);
    if (!isTrusted)
        QVERIFY(folder.errorString().startsWith("The folder '" + stranger
                                                + "' belongs to somebody else, or "));
}

void TestGateFiles::rootLeavesNothingInAFolderThatSomebodyElseMade_data()
{
    QTest::addColumn<QString>("folder"); // in the site's folder
    QTest::addColumn<int>("modeAbove");
    for (const int mode : {0755, 0777, 01777}) {
        QTest::addRow("the state, above it %o", mode) << "state" << mode;
        QTest::addRow("that of the plugin, above it %o", mode) << "plugin" << mode;
        QTest::addRow("that of the rejects, above it %o", mode) << "rejects" << mode;
    }
}

void TestGateFiles::rootLeavesNothingInAFolderThatSomebodyElseMade()
{
    QFETCH(QString, folder);
    QFETCH(int, modeAbove);
    const QString path = m_site->folder() + '/' + folder;
    const bool isRoot = ::geteuid() == 0;
    QDir().mkdir(path);
    setPermissions(m_site->folder(), mode_t(modeAbove));
    if (isRoot)
        giveTo(kNobody, {path});
    m_site->deliver(QByteArray("broken\n") + GatePeople::file(GatePeople::some(1)));
    QStringList options{"--accept"};
    if (folder == "rejects")
        options << "--rejects" << path + "/rejects.txt";
    const ToolRun run = m_site->run(options);
    // Anybody else has made the folder.
    COMPARE_EXIT(run, isRoot ? ExitStatus::Usage : ExitStatus::Fine);
    QCOMPARE(m_site->names(path).isEmpty(), isRoot);
    QCOMPARE(m_site->isPublished(), !isRoot);
    if (isRoot)
        QCOMPARE(
            run.err,
            QString("mirovahrctl: gate: The folder '%1' belongs neither to root nor to the owner "
                    "of its parent folder, so anybody may have created it. Run the gate as "
                    "its owner if that is right, or give the folder to root. Nothing was "
                    "published.\n")
                .arg(path));
}

void TestGateFiles::aFolderOfTheOwnerOfTheFolderAboveIsTrusted()
{
    const uid_t owner = ::geteuid() == 0 ? kNobody : ::geteuid();
    QVERIFY(QDir().mkdir(m_site->state()));
    giveTo(owner, {m_site->folder(), m_site->state(), QFileInfo(m_site->target()).path()});
    m_site->deliver(GatePeople::some(1));
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    COMPARE_EXIT(m_site->run(), ExitStatus::Fine);
    QCOMPARE(statusOf(m_site->inState("admitted.data")).st_uid, owner);
}

void TestGateFiles::aFolderIsMadeInOneThatEverybodyMayWriteTo()
{
    setPermissions(m_site->folder(), 01777);
    m_site->deliver(GatePeople::some(1));
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    COMPARE_EXIT(m_site->run(), ExitStatus::Fine);
    QCOMPARE(statusOf(m_site->state()).st_uid, ::geteuid());
}

void TestGateFiles::aFileOfRootUnderTheNameOfTheLockKeepsItsOwner()
{
    const uid_t owner = ::geteuid() == 0 ? kNobody : ::geteuid();
    const QString other = m_site->folder() + "/other";
    QVERIFY(QDir().mkdir(m_site->state()));
    writeFile(other, "another file");
    QCOMPARE(::link(QFile::encodeName(other).constData(),
                    QFile::encodeName(m_site->inState("lock")).constData()),
             0);
    giveTo(owner, {m_site->folder(), m_site->state(), QFileInfo(m_site->target()).path()});
    m_site->deliver(GatePeople::some(1));
    COMPARE_EXIT(m_site->run({"--accept"}), ExitStatus::Fine);
    QCOMPARE(statusOf(other).st_uid, ::geteuid());
    QCOMPARE(contentOf(other), QByteArray("another file"));
}

void TestGateFiles::theRejectsLieInTheFolderThatWasJudged()
{
    QVERIFY(QDir().mkdir(m_site->state()));
    GateFolder judged;
    QVERIFY(judged.openPrivate(m_site->state()));
    // A user who may write to the parent folder is faster.
    QVERIFY(QDir().rename(m_site->state(), m_site->folder() + "/moved"));
    QVERIFY(QDir().mkdir(m_site->state()));
    GateFolder same;
    QVERIFY(same.openAgain(judged));
    GateFile file(same, "rejects.txt", 0640);
    QVERIFY(file.create() && file.finish() && file.putInPlace());
    QCOMPARE(m_site->names(m_site->folder() + "/moved"), QStringList("rejects.txt"));
    QCOMPARE(m_site->names(m_site->state()), QStringList());
}

void TestGateFiles::aFolderThatCannotBeWrittenIsAFailure()
{
    m_site->admit(GatePeople::some(3));
    const uid_t owner = ::geteuid() == 0 ? kNobody : ::geteuid();
    giveTo(owner,
           {m_site->folder(), m_site->state(), m_site->inState("lock"),
            m_site->inState("status.json"), m_site->inState("admitted.data")});
    const OrdinaryUser user;
    setPermissions(m_site->state(), 0500);
    const ToolRun run = m_site->run();
    setPermissions(m_site->state(), 0700);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err,
             QString("mirovahrctl: gate: '%1' cannot be written: Permission denied. Nothing was "
                     "published.\n")
                 .arg(m_site->inState("admitted.data")));
    QVERIFY(!m_site->isPublished());
}

void TestGateFiles::aSecondGateIsRefused()
{
    m_site->admit(GatePeople::some(1));
    const QJsonObject before = m_site->status();
    const int other =
        ::open(QFile::encodeName(m_site->inState("lock")).constData(), O_RDWR | O_CLOEXEC);
    QCOMPARE(::flock(other, LOCK_EX), 0);
    const ToolRun run = m_site->run({"--accept"});
    ::close(other);
    COMPARE_EXIT(run, ExitStatus::GuardTripped);
    QCOMPARE(run.rules(), QStringList("busy"));
    QVERIFY(!m_site->isPublished());
    // The status is that of the other run.
    QCOMPARE(m_site->status(), before);
}

void TestGateFiles::aGateExcludesAnother()
{
    m_site->admit(GatePeople::some(1));
    GateFolder other;
    QVERIFY2(other.openPrivate(m_site->state()), qPrintable(other.errorString()));
    QVERIFY(other.lock("lock") == GateFolder::Lock::Taken);
    QCOMPARE(m_site->run().rules(), QStringList("busy"));
}

void TestGateFiles::theLockGoesWithTheRun()
{
    m_site->admit(GatePeople::some(1));
    for (int i = 0; i < 3; ++i) {
        const ToolRun run = m_site->run();
        COMPARE_EXIT(run, ExitStatus::Fine);
        QVERIFY(!run.rules().contains("busy"));
    }
}

void TestGateFiles::aFileThatIsWrittenMeanwhileHasChanged_data()
{
    QTest::addColumn<QString>("work");
    QTest::addColumn<bool>("changed");
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("appended") << "append" << true;
    QTest::newRow("the same length") << "overwrite" << true;
    QTest::newRow("replaced by the same") << "replace" << true;
    QTest::newRow("removed") << "remove" << true;
}

void TestGateFiles::aFileThatIsWrittenMeanwhileHasChanged()
{
    QFETCH(QString, work);
    QFETCH(bool, changed);
    const QByteArray content = GatePeople::file(GatePeople::some(3));
    const QString path = m_site->hrFile();
    m_site->deliver(content);
    // File times are coarse: the next one must differ.
    setModified(path, "2026-03-04T05:06:07.089Z");
    Meanwhile target([&] {
        QFile file(path);
        if (work == "append" && file.open(QIODevice::Append))
            file.write("x");
        else if (work == "overwrite" && file.open(QIODevice::ReadWrite))
            file.write("9");
        else if (work == "replace" || work == "remove")
            file.rename(path + ".old");
        if (work == "replace")
            writeFile(path, content);
    });
    GateSource source(path);
    QCOMPARE(source.open(), GateSource::Outcome::Done);
    QVERIFY(source.copyTo(target));
    QCOMPARE(source.hasChanged(), changed);
    QVERIFY(!source.hasReadError());
}

void TestGateFiles::aPipeInPlaceOfTheHrFileDoesNotBlockTheGate()
{
    m_site->admit(GatePeople::some(1));
    QVERIFY(QFile::remove(m_site->hrFile()));
    QCOMPARE(::mkfifo(QFile::encodeName(m_site->hrFile()).constData(), 0600), 0);
    const ToolRun run = m_site->run();
    COMPARE_EXIT(run, ExitStatus::GuardTripped);
    QCOMPARE(run.rules(), QStringList("missing"));
}

QTEST_GUILESS_MAIN(TestGateFiles)
#include "tst_gatefiles.moc"
