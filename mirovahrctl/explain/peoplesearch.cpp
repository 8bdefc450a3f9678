#include "mirovahrctl/explain/peoplesearch.h"

#include "cli/text.h"
#include "mirovahrctl/export/personname.h"
#include "mirovahrctl/program/progress.h"
#include "mirovahrctl/site/sqlsession.h"
#include "worker/boundedlinereader.h"
#include "worker/exportline.h"
#include "worker/mirovaronrecord.h"

#include <QFile>

#include <algorithm>
#include <tuple>

namespace {

constexpr char kSelectAll[] =
    "SELECT pid, pamId, CONCAT_WS(' ', title, name, surname, title2), status FROM people";
constexpr char kWithNumber[] = " WHERE pid = %1 OR SUBSTRING_INDEX(pamId, '.', 1) = '%1'";

/// Personal number and relationship of a payroll id, when they make the pid.
void readPayrollId(const QString &payrollId, FoundPerson &found)
{
    const auto person = PersonId::parse(payrollId);
    if (!person || person->personalNumber() == 0 || person->pid() != found.pid)
        return;
    found.osobniCislo = person->personalNumber();
    found.poradoveCisloPP = ExportLine::toNumber(payrollId.section(QLatin1Char('.'), 1));
}

auto order(const FoundPerson &person)
{
    return std::tie(person.osobniCislo, person.poradoveCisloPP, person.pid, person.line);
}

} // namespace

std::optional<PersonId> FoundPerson::person() const
{
    if (osobniCislo != 0 && poradoveCisloPP != 0)
        return PersonId::ofPayrollId(osobniCislo, poradoveCisloPP);
    return pid != 0 ? std::make_optional(PersonId::ofPid(pid)) : std::nullopt;
}

std::optional<PeopleSearch> PeopleSearch::parse(const QString &text)
{
    PeopleSearch search;
    search.m_text = text.simplified();
    search.m_number = ExportLine::toNumber(search.m_text);
    search.m_words = nameWords(search.m_text);
    const bool hasLetter = std::any_of(search.m_text.cbegin(), search.m_text.cend(),
                                       [](QChar c) { return c.isLetter(); });
    if (search.m_number == 0 && !hasLetter)
        return std::nullopt;
    return search;
}

bool PeopleSearch::searchExport(QFile &file, const SqlTexts::Route &route, Console &console)
{
    Progress progress(console, Text::tr("Searching the export"));
    BoundedLineReader reader(file);
    while (reader.next()) {
        const QByteArray line = route.atPlugin(QByteArray(reader.line(), reader.length()));
        examine(ExportLine::decode(line.constData()), reader.lineNumber(), route.server);
        progress.update(file.pos(), file.size());
    }
    m_error = reader.errorString();
    if (!reader.hasFailed() && !file.seek(0))
        m_error = file.errorString();
    return m_error.isEmpty();
}

void PeopleSearch::examine(const QString &line, qint64 number, Backslash backslash)
{
    const ExportLine::Parts parts = ExportLine::split(line, ExportLine::kSeparator);
    MirovaRonRecord record;
    record.osobniCislo = ExportLine::toNumber(parts.value(ExportLine::OsobniCislo));
    record.poradoveCisloPP = ExportLine::toNumber(parts.value(ExportLine::PoradoveCisloPP));
    const bool hasNumbers = record.osobniCislo != 0 && record.poradoveCisloPP != 0;
    const bool isReadable = m_number != 0 ? hasNumbers : parts.size() > ExportLine::Prijmeni;
    if (!isReadable) {
        m_unreadableLines += line.isEmpty() ? 0 : 1;
        return;
    }
    FoundPerson found;
    if (hasNumbers) {
        found.osobniCislo = record.osobniCislo;
        found.poradoveCisloPP = record.poradoveCisloPP;
        found.pid = record.getPid();
    }
    QStringList names;
    for (int field = ExportLine::Titul; field <= ExportLine::TitulZa; ++field)
        names += SqlTexts::shown(parts.value(field).toString(), backslash);
    found.name = names.join(QLatin1Char(' ')).simplified();
    found.line = number;
    if (matches(found))
        add(found);
}

void PeopleSearch::searchDatabase(SqlSession &site)
{
    QString select = QString::fromLatin1(kSelectAll);
    if (m_number != 0)
        select += QString(QLatin1String(kWithNumber)).arg(m_number);
    site.forEachRow(select, [this](const QStringList &row) {
        examineRow(row);
        return true;
    });
}

void PeopleSearch::examineRow(const QStringList &row)
{
    FoundPerson found;
    found.pid = row.at(0).toUInt();
    readPayrollId(row.at(1), found);
    found.name = row.at(2).simplified();
    found.active = row.at(3).toInt() != 0;
    // The query has compared numbers, also with a payroll id that does not make the pid.
    if (m_number != 0 || matches(found))
        add(found);
}

bool PeopleSearch::matches(const FoundPerson &person) const
{
    if (m_number != 0)
        return person.osobniCislo == m_number || person.pid == m_number;
    const QStringList words = nameWords(person.name);
    return std::all_of(m_words.cbegin(), m_words.cend(),
                       [&words](const QString &word) { return words.contains(word); });
}

/// The plugin knows people by their pid, so that a line and a row with the same pid are one person.
void PeopleSearch::add(const FoundPerson &person)
{
    const auto known =
        std::find_if(m_people.begin(), m_people.end(), [&person](const FoundPerson &other) {
            return person.pid != 0 ? other.pid == person.pid
                                   : std::tie(other.osobniCislo, other.poradoveCisloPP, other.pid)
                        == std::tie(person.osobniCislo, person.poradoveCisloPP, person.pid)
                    && person.osobniCislo != 0;
        });
    if (known != m_people.end())
        known->active = person.active ? person.active : known->active;
    else if (m_people.size() < kMost)
        m_people += person;
    else
        m_hasMore = true;
}

QVector<FoundPerson> PeopleSearch::people() const
{
    QVector<FoundPerson> people = m_people;
    std::sort(people.begin(), people.end(),
              [](const FoundPerson &a, const FoundPerson &b) { return order(a) < order(b); });
    return people;
}
