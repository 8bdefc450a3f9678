#include "mirovahrctl/program/console.h"

#include "cli/text.h"
#include "mirovahrctl/report/jsonreport.h"
#include "mirovahrctl/report/wording.h"

#include <QFileDevice>

Console::Console(QIODevice &out, QIODevice &err, const Terminal &terminal)
    : m_out(out)
    , m_err(err)
    , m_terminal(terminal)
{
}

Console::~Console() = default;

void Console::setSubcommand(const QString &name)
{
    m_subcommand = name;
}

void Console::startJson()
{
    m_json = std::make_unique<JsonReport>(m_out);
}

void Console::print(const QString &text)
{
    m_out.write((text + QLatin1Char('\n')).toUtf8());
}

bool Console::printNow(const QString &text)
{
    print(text);
    auto *const file = qobject_cast<QFileDevice *>(&m_out);
    return file == nullptr || file->flush();
}

ExitStatus Console::fail(ExitStatus status, const QString &sentence)
{
    const QString loss = m_loss ? m_loss() : QString();
    return loss.isEmpty() ? end(status, sentence) : end(ExitStatus::NoDatabase, loss);
}

ExitStatus Console::end(ExitStatus status, const QString &sentence)
{
    const QString reason = Wording::sentence(sentence);
    if (m_failure)
        return m_failure(status, reason);
    writeMessage(reason);
    if (m_json)
        m_json->fail(m_subcommand, status, reason);
    return status;
}

void Console::warn(const QString &sentence)
{
    writeMessage(Text::tr("Warning: %1").arg(Wording::sentence(sentence)));
}

void Console::writeMessage(const QString &sentence)
{
    QString line = QStringLiteral("mirovahrctl: ");
    if (!m_subcommand.isEmpty())
        line += m_subcommand + QStringLiteral(": ");
    m_err.write((line + sentence + QLatin1Char('\n')).toUtf8());
}
