#include "mirovahrctl/export/linecheck.h"

#include "cli/text.h"
#include "mirovahrctl/export/fieldrules.h"
#include "mirovahrctl/export/likelyperson.h"
#include "mirovahrctl/export/personname.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/checkfilerules.h"
#include "worker/boundedlinereader.h"
#include "worker/exportline.h"

#include <algorithm>

namespace {

/// A usual line is shorter.
constexpr int kMostShown = 300;

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr char kReplacementCharacter[] = "\xEF\xBF\xBD";

/// The bytes without this at their end.
QByteArray without(char end, QByteArray bytes)
{
    if (bytes.endsWith(end))
        bytes.chop(1);
    return bytes;
}

bool isUtf16(const QByteArray &raw)
{
    return raw.startsWith("\xFF\xFE") || raw.startsWith("\xFE\xFF");
}

/// Whether decoding replaced bytes that are not UTF-8. A replacement character in the export itself
/// comes from HR's program and does not count.
bool isDamaged(const QString &text, const QByteArray &raw)
{
    return text.count(QChar::ReplacementCharacter) > raw.count(kReplacementCharacter);
}

void checkBytes(const QString &text, CheckedLine &line)
{
    if (line.number == 1 && isUtf16(line.raw)) {
        line.add(CheckFileRules::kUtf16,
                 Text::tr("The file is encoded in UTF-16; the plugin reads UTF-8 only."));
    }
    if (line.raw.startsWith(kByteOrderMark)) {
        line.add(CheckFileRules::kByteOrderMark,
                 Text::tr("The line begins with a byte order mark, which the plugin skips."));
    }
    if (line.raw.contains('\0')) {
        line.add(CheckFileRules::kNulByte,
                 Text::tr("The line contains a NUL byte; the plugin reads nothing after it."));
    }
    if (isDamaged(text, line.raw)) {
        line.add(CheckFileRules::kNotUtf8,
                 Text::tr("Some bytes are not UTF-8; each is read as the character \uFFFD."));
    }
}

void addTooLong(CheckedLine &line)
{
    line.add(CheckFileRules::kLineTooLong,
             Text::tr("The line is longer than %1 bytes; the plugin skips it.")
                 .arg(Language::number(BoundedLineReader::kLongestLine)));
}

QString fieldCountAdvice(const ExportLine::Parts &parts, int expected)
{
    const QStringRef &text = parts.constFirst();
    if (parts.size() == 1
        && (text.count(QLatin1Char(';')) > 1 || text.count(QLatin1Char('\t')) > 1))
        return Text::tr("Separate fields with the character |, nothing else.");
    if (parts.size() == expected + 1 && parts.constLast().isEmpty())
        return Text::tr("There must be no | after the last field.");
    if (parts.size() > expected)
        return Text::tr("No text may contain the character |.");
    return Text::tr("Write empty fields too, each with its |.");
}

bool hasFindings(const QVector<Finding> &findings, Severity severity)
{
    return std::any_of(findings.cbegin(), findings.cend(),
                       [severity](const Finding &finding) { return finding.severity == severity; });
}

bool isHeader(const ExportLine::Parts &parts, const QStringList &fieldNames)
{
    return parts.constFirst().trimmed().compare(fieldNames.constFirst(), Qt::CaseInsensitive) == 0;
}

} // namespace

bool CheckedLine::isRejected() const
{
    return hasFindings(findings, Severity::Error);
}

bool CheckedLine::hasWarnings() const
{
    return hasFindings(findings, Severity::Warning);
}

void CheckedLine::identify()
{
    const QString text = QString::fromUtf8(raw).trimmed();
    const QString likely = isDropped() ? LikelyPerson::of(text) : QString();
    const QString shown = text.size() > kMostShown ? text.left(kMostShown) + QChar(0x2026) : text;
    for (Finding &finding : findings) {
        if (finding.severity == Severity::Note)
            continue;
        finding.likely = likely;
        finding.lineText = shown;
    }
}

Finding &CheckedLine::add(const Rule &rule, const QString &message, const QString &advice)
{
    Finding finding = makeFinding(rule, message, advice);
    finding.forHr = true;
    finding.line = number;
    findings.append(finding);
    return findings.last();
}

LineCheck::LineCheck(const ColumnWidths &widths, const SqlTexts::Route &route)
    : m_fieldNames(ExportLine::fieldNames())
    , m_widths(widths)
    , m_route(route)
{
}

CheckedLine LineCheck::check(const BoundedLineReader &reader) const
{
    CheckedLine line;
    line.number = reader.lineNumber();
    const QByteArray bytes = without('\n', QByteArray(reader.line(), reader.length()));
    line.raw = without('\r', bytes);
    checkBytes(ExportLine::decode(reader.line()), line);
    checkArriving(m_route.atPlugin(bytes), line);
    for (Finding &finding : line.findings)
        finding.dropped = line.isDropped();
    return line;
}

CheckedLine LineCheck::tooLong(qint64 number)
{
    CheckedLine line;
    line.number = number;
    addTooLong(line);
    line.findings.last().dropped = true;
    return line;
}

QString LineCheck::personOf(const MirovaRonRecord &record) const
{
    return personName(SqlTexts::shown(record, m_route.server));
}

/// \a arriving: the line without its line feed, as the plugin gets it.
void LineCheck::checkArriving(const QByteArray &arriving, CheckedLine &line) const
{
    if (arriving.size() > BoundedLineReader::kLongestLine)
        addTooLong(line);
    else
        checkText(ExportLine::decode(arriving.constData()), line);
}

void LineCheck::checkText(const QString &text, CheckedLine &line) const
{
    if (text.isEmpty()) {
        // Text after a NUL byte is lost, so a line that has one is not blank.
        line.isBlank = !line.raw.contains('\0');
        return;
    }
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    if (parts.size() == m_fieldNames.size()) {
        checkParts(parts, line);
        return;
    }
    line.add(CheckFileRules::kFieldCount,
             Text::tr("The line has %Ln field(s) instead of %1.", nullptr, parts.size())
                 .arg(Language::number(m_fieldNames.size())),
             fieldCountAdvice(parts, m_fieldNames.size()));
}

void LineCheck::checkParts(const ExportLine::Parts &parts, CheckedLine &line) const
{
    const MirovaRonRecord record = ExportLine::toRecord(parts);
    if (ExportLine::isUsable(record))
        line.record = record;
    if (!line.record && isHeader(parts, m_fieldNames)) {
        line.add(
            CheckFileRules::kHeaderLine,
            Text::tr("This is a header line; the plugin reads it as a person without a number."));
        return;
    }
    FieldRules(parts, record, m_widths, m_route.server, line).check();
    for (Finding &finding : line.findings)
        finding.subject = personOf(record);
}
