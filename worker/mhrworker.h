#pragma once

#include "worker/mirovaronrecord.h"
#include "worker/peoplecache.h"

#include <QHash>
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QProcess>
#include <QSet>
#include <QSqlDatabase>
#include <QStringList>
#include <QVector>

#include <optional>

class BranchesRepository;
class GroupsPlanRepo;
class QIODevice;
class QTimer;
class TepDbSettings;

/// Keeps the attendance database in step with the HR export.
///
/// The worker lives in a thread of its own. Its timer ticks there; each tick decides whether to
/// synchronise. The setters are for the time before that thread starts; start() and stop() may be
/// called from any thread; everything else belongs to the worker's thread.
///
/// A pid is the HR side's key of a person (`people.pid`), a uid the attendance database's own
/// (`people.uid`), a bid a branch (`branches.bid`), an aid an administrator (`admins.aid`).
class MHRWorker : public QObject {
    Q_OBJECT

public:
    explicit MHRWorker(QObject *parent = nullptr);

    /// The named connection stays registered, for the next worker of the same database.
    ~MHRWorker() override;

    // ---- Settings -----------------------------------------------------------------------------

    /// 0 no debug lines, 1 normal, 2 and above verbose.
    void setDebugLevel(const unsigned char &level);

    /// The tick period in milliseconds, raised to 1000 when lower. INI key `timerInterval`.
    void setInterval(const unsigned int &ms);

    /// Every how many ticks a regular synchronisation runs; 0 counts as 1. INI key `syncInterval`.
    void setSyncInterval(const unsigned int &ticks);

    /// In test mode people are not written, only logged. INI key `testMode`.
    void setTestMode(bool on);

    /// Path of the HR export; empty means "/tmp/ron.data". INI key `importFile`.
    void setImportFile(const QString &path);

    /// Whether the export is removed after it was read to its end. INI key `deleteFile`.
    void setDeleteFileAfterImport(bool on);

    /// The command line that produces the export. INI key `syncCommand`.
    void setSyncCommand(const QString &command);

    /// When the command runs: 0 never, 1 on a forced synchronisation, 2 and above on every one.
    /// INI key `syncCommandRun`.
    void setSyncCommandRunCondition(const unsigned char &condition);

    /// The department of new and updated people (`people.did`); 0 for none. INI key `departmentId`.
    void setDepartmentId(const unsigned int &id);

    /// The configured relationship states: register state code to text. INI group `MES`.
    void setMes(const QHash<unsigned short, QString> &mes);

    /// Makes the worker's own connection from that of the server, or takes up the one that an
    /// earlier worker made for the same database.
    void setTepDb(const QSqlDatabase &db);

    // ---- Life cycle and tick ------------------------------------------------------------------

    /// Creates the timer, the settings store and the repositories. Always true.
    bool init();

    /// Runs the export command, if there is one, and waits for its end.
    void runCommand();

    // ---- Export file --------------------------------------------------------------------------

    /// Appends the records of the export file to the records that wait to be synchronised. A file
    /// that cannot be read to its end gives those of its complete lines, and is kept.
    void loadAndParseData();

    /// Appends the record of one trimmed line, if the line makes a usable record. With fewer names
    /// than the 18 in \a fields no line does.
    void parseLine(const QString &line, const QStringList &fields, QChar separator);

    /// The date part of a text in the given format, invalid when the text has another form.
    QDate parseDate(const QString &text, const QString &format);

    // ---- Record codes -------------------------------------------------------------------------

    /// `people.begin` of a date: Unix seconds of local midnight; 1 January 2000 for an invalid one.
    QString personBeginForSql(const QDate &date) const;

    /// `people.end`, `rsBegin` or `rsEnd` of a date: Unix seconds of local midnight, or of the
    /// day's last second with `endOfDay`; "NULL" for an invalid date.
    QString personEndForSql(const QDate &date, bool endOfDay) const;

    /// The local date of Unix seconds; 0 gives 1 January 2000.
    QDate datNastFromTimestamp(uint timestamp) const;

    /// The local date of Unix seconds; 0 gives an invalid date.
    QDate datVystFromTimestamp(uint timestamp) const;

    /// `people.type` of an employment type code, 0 for a code without one.
    ushort employmentTypeFromTPP(ushort code) const;

    /// `people_pam.id` of an employment type code; 0: not registered for the payroll export.
    ushort pamSettingsIdFromTPP(ushort code) const;

    /// True when the code is one of the configured relationship states.
    bool isRS(ushort es) const;

    /// The text of a register state code: the configured one, else the built-in one, else empty.
    QString es2rsText(ushort es) const;
    QString es2rsText(const MirovaRonRecord &rec) const;

    /// Derives the relationship state of `rec` from the last record of the same person.
    void updateRs(MirovaRonRecord &rec, const MirovaRonRecord &last) const;
    MirovaRonRecord updateRs(const MirovaRonRecord &rec, const MirovaRonRecord &last) const;

    // ---- Driver -------------------------------------------------------------------------------

    /// Reconciles the loaded records with the database, in file order, each once.
    void doSync();

    /// Reconciles one record.
    void doSyncRecord(const MirovaRonRecord &rec);

    // ---- Connection and people ----------------------------------------------------------------

    /// Opens the worker's connection if it is closed; false when that fails.
    bool dbCheckOpen();

    /// Closes the worker's connection if it is open.
    void dbClose();

    /// Reloads the people cache; false, and the cache unchanged, when the query fails.
    bool dbLoadPeople();

    /// The uid of a pid from the database; 0 when there is none or the query fails.
    uint dbGetUidByPid(uint pid) const;

    /// The uid of a pid through the cache of the process; 0 when unknown.
    uint getUidByPid(uint pid) const;

    /// True when the person's pid exists in `people`; false also when the query fails.
    bool dbCheckPerson(const MirovaRonRecord &rec);

    /// Creates the person, or merges it into the row of the same pid; false when nothing was
    /// written.
    bool dbAddPerson(const MirovaRonRecord &rec);

    /// Updates the person's row and queues the change for the terminals; false on failure.
    /// `esChanged`: the register state changed, attendance from its first day is recalculated.
    bool dbUpdatePerson(const MirovaRonRecord &rec, bool esChanged);

    /// The database's view of a person (pid) as dbLoadPeople() found it; nothing when there is no
    /// such active person.
    std::optional<MirovaRonRecord> knownPerson(quint32 pid);

    // ---- Branch and calendar ------------------------------------------------------------------

    /// Reloads the map of branch numbers to bids; true when it holds any.
    bool dbLoadBranches();

    /// The bid of a branch number as dbLoadBranches() found it; 0 when there is none.
    quint32 bidOfBranch(quint32 number) const;

    /// Puts the person into the branch of the cost centre and the group of the calendar. False when
    /// the branch is unknown, or nothing needed doing and no group applies.
    bool doSyncBranchAndCalendar(const MirovaRonRecord &rec);

    /// True when the person (pid) is a member of the branch; false also when the query fails.
    bool dbCheckPersonInBranch(unsigned int pid, unsigned int bid);

    /// The gid of a branch's group for a calendar, 0 when there is none or the query fails.
    unsigned int dbGetGroupIdByCalendar(unsigned int bid, unsigned int calendar) const;

    /// True when exactly this assignment is in `groups_plan`; `since` is yyyyMM.
    bool dbCheckGroupsPlan(unsigned int gid, unsigned int uid, unsigned int since) const;

    /// Marks the person's attendance from the date on for recalculation; false on failure.
    bool dbChangeLastCalc(unsigned int uid, const QDate &date);

    // ---- Vacation fund ------------------------------------------------------------------------

    /// The interval type (`funds.iid`) of the vacation fund.
    static constexpr unsigned short kVacationIid = 3;

    /// Looks up the vacation fund (`funds.fid` of the interval type `iid`); keeps the known one
    /// when there is none.
    void dbCheckDovolenkaFond(unsigned short iid);

    /// The vacation fund (`funds.fid`) that was last found; 0: none, balances are left alone.
    quint16 vacationFundId() const;

    /// True when no correction of today exists for the person; false also when the query fails.
    bool dbCheckFundMove(unsigned int pid);

    /// True when the person's attendance is calculated, so that the balance may be corrected; also
    /// finds the uid.
    bool dbCheckAttendance(unsigned int pid, unsigned int &uid);

    /// The person's balance in hundredths of a day, saturated to 32 bits; `ok` is false when a
    /// query failed.
    int loadFundStatusAndMove3(unsigned int pid, bool &ok);

    /// Writes today's correction in hundredths of a day; false when nothing was written.
    bool writeFundMove3(unsigned int uid, int value);

    // ---- Supervisor ---------------------------------------------------------------------------

    /// Makes the record's supervisor the one administrator who handles the person's requests.
    void processNadOsCis(const MirovaRonRecord &rec);

    /// The aid of a personal number, 0 when there is none or the query fails.
    unsigned int dbGetAidByOsCis(unsigned int personalNumber);

    /// Takes the person's requests from all other administrators. Changed rows, −1 on failure.
    int dbResetAdminPeopleRequest(unsigned int aid, unsigned int uid);

    /// Gives the person's requests to the administrator. Changed rows, −1 on failure.
    int dbSetAdminPeopleRequest(unsigned int aid, unsigned int uid);

    // ---- Payroll export and terminals ---------------------------------------------------------

    /// Adds the pid to the person selection of the one payroll export (`vars`); false when there is
    /// not exactly one, or writing fails.
    bool addPersonIntoPam(unsigned int pid);

    /// Binds the person to a payroll settings id (`people_pam.id`); false when nothing was written.
    bool dbAddPersonIntoPam(unsigned int pid, unsigned int pamSettingsID);

    /// Queues a change of the person for every active terminal that holds the person.
    void addTermSyncPerson(unsigned int pid, QChar type, const QString &ref);

public Q_SLOTS:
    /// Runs init() and starts the new timer; the first tick comes one interval later.
    void start();

    /// Stops the newest timer.
    void stop();

    /// One tick: decides whether to synchronise, and does.
    void checkSync();

    /// Logs an error of the export process. Connected to nothing.
    void isqlProcessErrorOccurred(QProcess::ProcessError error);

private:
    // Invoked by name across threads: then nothing but Qt's own event passes between them.
    Q_INVOKABLE void startTicking();
    Q_INVOKABLE void stopTicking();
    void applyInterval();
    void createSettingsStore();
    void createRepositories();

    bool isSyncDue() const;
    void synchronise();
    void reconcileRecords();

    /// False when the file cannot be read to its end.
    bool parseLines(QIODevice &file, const QStringList &fields);
    void shareTexts(MirovaRonRecord &record);
    bool isAsLastSeen(const MirovaRonRecord &record) const;

    struct Reconciliation;
    void checkFund(Reconciliation &work);
    void noteFundRetry(const Reconciliation &work);
    bool reconcile(const MirovaRonRecord &rec, Reconciliation &work);
    bool createPerson(const MirovaRonRecord &rec, const Reconciliation &work);
    bool updateKnownPerson(const MirovaRonRecord &rec, MirovaRonRecord &known,
                           Reconciliation &work);
    bool correctVacation(const MirovaRonRecord &rec, const Reconciliation &work);
    void assignSupervisor(const MirovaRonRecord &rec, bool isNew, const Reconciliation &work);
    void placeOrWait(const MirovaRonRecord &rec, const Reconciliation &work);
    void requestRecalculation(const MirovaRonRecord &rec);
    void flushBranchMembers();

    QString updateStatement(const MirovaRonRecord &rec, bool esChanged) const;
    QString departmentIdForSql() const;
    QString branchIdForSql(quint32 number) const;

    bool queueBranchMember(quint32 pid, quint32 uid, quint32 bid);
    bool joinCalendarGroup(const MirovaRonRecord &rec, quint32 uid, quint32 bid);

    bool isCalculated(quint32 pid, quint32 &uid);
    bool hasOpenDays(quint32 uid);
    qint64 loadFundBalance(quint32 pid, bool &ok);

    int changeRequest(const QString &sql, const char *operation, const char *label);

    unsigned char m_debugLevel = 0;
    bool m_initialized = false;
    bool m_testMode = false;
    bool m_syncInProgress = false;
    /// The worker's own connection. It is made in the server's thread and used in the worker's;
    /// the handle is kept, because Qt hands out a connection by name only to the thread that made
    /// it.
    QSqlDatabase m_db;
    QTimer *m_timer = nullptr;
    quint32 m_interval = 60000; ///< tick period in milliseconds
    quint32 m_tickCounter = 0;
    quint32 m_syncInterval = 60; ///< in ticks
    quint32 m_syncCounter = 0;
    QString m_importFile;
    bool m_deleteFileAfterImport = false;
    bool m_force = false; ///< the force flag as read at the start of the tick
    PeopleCache m_people; ///< the database's view, for one cycle
    QMultiHash<quint32, MirovaRonRecord> m_waiting; ///< pid to records that wait for their branch
    TepDbSettings *m_settings = nullptr;
    BranchesRepository *m_branches = nullptr;
    QVector<MirovaRonRecord> m_records; ///< parsed, still to be synchronised
    QSet<quint32> m_changedPids; ///< of those records that are not as last seen in the export
    QHash<quint32, quint32> m_branchIds; ///< `branches.number` to bid
    QMap<quint32, QStringList> m_pendingMembers; ///< bid to uids that must join the branch
    GroupsPlanRepo *m_groupsPlan = nullptr;
    QString m_syncCommand;
    unsigned char m_syncCommandRun = 0;
    QHash<quint32, MirovaRonRecord> m_lastRecords; ///< pid to the record as last seen in the export
    QMutex m_dbMutex; ///< held while the connection is checked, opened or closed
    quint32 m_departmentId = 1;
    quint16 m_vacationFundId = 0; ///< `funds.fid`; 0: no fund, balances are left alone
    QHash<unsigned short, QString> m_mes; ///< register state code to text
    QSet<quint32> m_fundRetry; ///< pids whose balance the last cycle could not correct
    QSet<QString> m_sharedTexts; ///< the texts that the records of the file being read share
};
