#include "tests/mirovahrctl/gate/gatesite.h"

#include <QFile>
#include <QJsonDocument>

GateSite::GateSite()
{
    const QDir folder(m_folder.path());
    if (!m_folder.isValid() || !folder.mkdir("hr") || !folder.mkdir("plugin"))
        qFatal("No folder for the gate: %s", qPrintable(m_folder.errorString()));
}

void GateSite::deliver(const QVector<ExportRow> &people)
{
    deliver(GatePeople::file(people));
}

void GateSite::deliver(const QByteArray &content)
{
    writeFile(hrFile(), content);
}

QStringList GateSite::arguments(const QStringList &more) const
{
    return QStringList{"gate", "--from", hrFile(), "--to", target(), "--state", state()} + more;
}

ToolRun GateSite::run(const QStringList &more) const
{
    return runTool(arguments(QStringList("--json") + more));
}

void GateSite::admit(const QVector<ExportRow> &people)
{
    admit(GatePeople::file(people));
}

void GateSite::admit(const QByteArray &content)
{
    deliver(content);
    const ToolRun run = this->run({"--accept"});
    if (run.status != ExitStatus::Fine)
        qFatal("The first file was not admitted: %s", run.report().constData());
    takePublished();
}

bool GateSite::isPublished() const
{
    return QFile::exists(target());
}

QByteArray GateSite::published() const
{
    return isPublished() ? contentOf(target()) : QByteArray();
}

void GateSite::takePublished()
{
    if (!QFile::remove(target()))
        qFatal("%s cannot be removed", qPrintable(target()));
}

QJsonObject GateSite::status() const
{
    return QJsonDocument::fromJson(contentOf(inState("status.json"))).object();
}

QStringList GateSite::copies() const
{
    return QDir(state()).entryList({"admitted-*.data"}, QDir::Files, QDir::Name);
}

QStringList GateSite::names(const QString &folder) const
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QVector<ExportRow> GatePeople::some(int count)
{
    QVector<ExportRow> people;
    for (int i = 0; i < count; ++i)
        people << ExportRow().with(&ExportRow::osobniCislo, 1000 + i);
    return people;
}

QByteArray GatePeople::file(const QVector<ExportRow> &people)
{
    QByteArray content;
    for (const ExportRow &person : people)
        content += person.text().toUtf8() + '\n';
    return content;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}
