#include "tests/support/programrun.h"

#include "tests/support/patience.h"

#include <QEventLoop>
#include <QProcessEnvironment>
#include <QTimer>

#include <csignal>

ProgramRun::ProgramRun()
{
    m_process.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput,
                     [this] { m_output += m_process.readAllStandardOutput(); });
    QObject::connect(&m_process, &QProcess::readyReadStandardError,
                     [this] { m_errors += m_process.readAllStandardError(); });
}

ProgramRun::~ProgramRun()
{
    if (isRunning()) {
        m_process.kill();
        if (!m_process.waitForFinished(kPatienceMs))
            qFatal("A killed program does not end.");
    }
}

void ProgramRun::setVariable(const QString &name, const QString &value)
{
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.insert(name, value);
    m_process.setProcessEnvironment(environment);
}

void ProgramRun::start(const QString &program, const QStringList &arguments)
{
    m_process.start(program, arguments);
}

bool ProgramRun::run(const QString &program, const QStringList &arguments)
{
    start(program, arguments);
    return waitForEnd();
}

bool ProgramRun::waitForText(const QString &text, int count)
{
    const QByteArray bytes = text.toUtf8();
    return waitUntil(
        [&] { return m_output.count(bytes) >= count || m_errors.count(bytes) >= count; });
}

bool ProgramRun::waitForEnd()
{
    return waitUntil([this] { return !isRunning(); });
}

void ProgramRun::sendSignal(int signalNumber)
{
    ::kill(static_cast<pid_t>(m_process.processId()), signalNumber);
}

int ProgramRun::status() const
{
    // QProcess reports the signal's number as the exit code of a program that it ended.
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode()
                                                          : 128 + m_process.exitCode();
}

QByteArray ProgramRun::report() const
{
    // QtTest cuts long messages: what matters most comes first.
    return QStringLiteral("status %1 (%2)\n--- standard error:\n%3\n--- standard output:\n%4")
        .arg(status())
        .arg(m_process.errorString())
        .arg(errors())
        .arg(output())
        .toUtf8();
}

// Each signal of the process may have fulfilled the condition.
bool ProgramRun::waitUntil(const std::function<bool()> &reached)
{
    QEventLoop loop;
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &loop, &QEventLoop::quit);
    QObject::connect(&m_process, &QProcess::readyReadStandardError, &loop, &QEventLoop::quit);
    QObject::connect(&m_process, &QProcess::stateChanged, &loop, &QEventLoop::quit);
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
    patience.start(kPatienceMs);
    while (!reached() && isRunning() && patience.isActive())
        loop.exec();
    return reached();
}
