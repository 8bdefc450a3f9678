#include "tools/rejectsfile.h"

#include "tools/linecheck.h"
#include "tools/plaintext.h"

#include <QDateTime>

RejectsFile::RejectsFile(const QString &path, const QString &exportName)
    : m_file(path)
    , m_exportName(exportName)
{
}

bool RejectsFile::open()
{
    if (!m_file.open(QIODevice::WriteOnly))
        return false;
    comment(QStringLiteral("Lines of the export %1 that do not arrive in the attendance system as "
                           "they should.")
                .arg(m_exportName));
    comment(QStringLiteral("Checked on %1. The reasons stand above each line.")
                .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm"))));
    return true;
}

void RejectsFile::add(const CheckedLine &line)
{
    ++m_count;
    m_file.write("\n");
    for (const Finding &finding : line.findings) {
        if (finding.severity != Severity::Error)
            continue;
        const QString field =
            finding.field.isEmpty() ? QString() : finding.field + QLatin1String(": ");
        comment(QStringLiteral("Line %1: %2%3 %4")
                    .arg(QString::number(line.number), field, finding.message, finding.advice));
    }
    if (!line.raw.isEmpty())
        m_file.write(line.raw + '\n');
}

bool RejectsFile::commit()
{
    m_file.write("\n");
    comment(QStringLiteral("%1.").arg(
        PlainText::counted(m_count, QStringLiteral("line"), QStringLiteral("lines"))));
    return m_file.commit();
}

void RejectsFile::comment(const QString &text)
{
    m_file.write((QStringLiteral("# ") + PlainText::visible(text) + QLatin1Char('\n')).toUtf8());
}
