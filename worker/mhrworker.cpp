#include "worker/mhrworker.h"

#include "db/branchesrepository.h"
#include "db/groupsplanrepo.h"
#include "db/tepdbsettings.h"
#include "worker/schedule.h"

#include <QDebug>
#include <QThread>
#include <QTimer>

MHRWorker::MHRWorker(QObject *parent)
    : QObject(parent)
{
}

MHRWorker::~MHRWorker()
{
    delete m_settings;
}

void MHRWorker::setDebugLevel(const unsigned char &level)
{
    m_debugLevel = level;
}

void MHRWorker::setInterval(const unsigned int &ms)
{
    m_interval = Schedule::tickPeriod(ms);
    if (m_timer)
        applyInterval();
}

void MHRWorker::setSyncInterval(const unsigned int &ticks)
{
    m_syncInterval = ticks;
}

void MHRWorker::setTestMode(bool on)
{
    m_testMode = on;
}

void MHRWorker::setImportFile(const QString &path)
{
    m_importFile = path;
}

void MHRWorker::setDeleteFileAfterImport(bool on)
{
    m_deleteFileAfterImport = on;
}

void MHRWorker::setSyncCommand(const QString &command)
{
    m_syncCommand = command;
}

void MHRWorker::setSyncCommandRunCondition(const unsigned char &condition)
{
    m_syncCommandRun = condition;
}

void MHRWorker::setDepartmentId(const unsigned int &id)
{
    m_departmentId = id;
}

void MHRWorker::setMes(const QHash<unsigned short, QString> &mes)
{
    if (m_debugLevel != 0)
        qDebug("MHRWorker::setMes() count: %i)", mes.size());
    m_mes = mes;
}

void MHRWorker::setTepDb(const QSqlDatabase &db)
{
    const QString name = QStringLiteral("YAV.%1.MirovaHR").arg(db.databaseName());
    if (m_debugLevel != 0)
        qDebug("MHRWorker::setTepDb(%s)", qUtf8Printable(name));

    m_db = QSqlDatabase::database(name, true);
    if (!m_db.isValid())
        m_db = QSqlDatabase::cloneDatabase(db, name);

    if (m_settings)
        m_settings->setDB(m_db);
    if (m_branches)
        m_branches->setDB(m_db);
}

bool MHRWorker::init()
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (m_debugLevel != 0)
        qDebug("MHRWorker::init()");

    m_timer = new QTimer(this);
    applyInterval();
    connect(m_timer, &QTimer::timeout, this, &MHRWorker::checkSync);
    createSettingsStore();
    createRepositories();
    return true;
}

void MHRWorker::applyInterval()
{
    m_timer->setInterval(Schedule::timerInterval(m_interval));
}

void MHRWorker::createSettingsStore()
{
    // The store of an earlier start is dropped, not deleted: every start sets up the worker anew
    // and leaves what the earlier ones made alone.
    m_settings = new TepDbSettings(m_db);
}

void MHRWorker::createRepositories()
{
    // Adding to a branch propagates, taking away does not.
    m_branches = new BranchesRepository(this, true, false);
    m_branches->debugLevel = m_debugLevel;
    m_branches->setDB(m_db);

    m_groupsPlan = new GroupsPlanRepo(this);
    m_groupsPlan->debugLevel = m_debugLevel;
    m_groupsPlan->setAutoUpdateGroupsMonth(true);
    m_groupsPlan->setDB(m_db);
}

void MHRWorker::start()
{
    if (m_debugLevel != 0)
        qDebug("MHRWorker::start()");
    // The server calls from its own thread and must not wait for a running synchronisation, and
    // the timer has to live here: queued then, direct when the call comes from this thread.
    QMetaObject::invokeMethod(this, "startTicking", Qt::AutoConnection);
}

void MHRWorker::stop()
{
    // Logs the text of init(), not one of its own: the text is fixed.
    if (m_debugLevel != 0)
        qDebug("MHRWorker::init()");
    QMetaObject::invokeMethod(this, "stopTicking", Qt::AutoConnection);
}

void MHRWorker::startTicking()
{
    // Never set to true: every start runs init() again and ticks with one more timer. A second
    // start without a stop ticks twice as often, and one stop then ends the newest timer only.
    if (!m_initialized && !init()) {
        qCritical("MHRWorker NOT initialized properly - START was terminated!");
        return;
    }
    m_timer->start();
}

void MHRWorker::stopTicking()
{
    if (m_timer)
        m_timer->stop();
}
