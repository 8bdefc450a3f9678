// The row of `people`: created, updated, or left alone.

#include "cli/text.h"
#include "mirovahrctl/comparison/rowfields.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/explain/recordexplanation.h"
#include "mirovahrctl/export/sqlhazards.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/rules/explainrules.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/site/payrollexports.h"
#include "worker/exportline.h"
#include "worker/recordcodes.h"
#include "worker/recordlog.h"

#include <algorithm>

namespace {

/// The terminals that fetch changes of a person: active ones that hold the person and handle
/// people.
constexpr char kSelectTerminals[] = "SELECT tid FROM people_term JOIN term USING(tid)"
                                    " WHERE status = 1 AND uid = %1 AND (flags & 2) ORDER BY tid";

Table fieldTable(const QVector<RowField> &fields)
{
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), Text::tr("Field")},
                 {QStringLiteral("export"), Text::tr("In the export")},
                 {QStringLiteral("database"), Text::tr("In the database")},
                 {QStringLiteral("differs"), Text::tr("Differs")}},
                {}};
    for (const RowField &field : fields) {
        table.rows.append({field.name, field.exported, field.held, field.differs});
    }
    return table;
}

template <typename Condition>
QStringList namesOf(const QVector<RowField> &fields, Condition condition)
{
    QStringList names;
    for (const RowField &field : fields) {
        if (condition(field))
            names += field.name;
    }
    return names;
}

/// Whether a text of the line may break its statement.
bool hasHarmfulText(const CheckedLine &line)
{
    static const QStringList fields = ExportLine::fieldNames();
    return std::any_of(line.findings.cbegin(), line.findings.cend(), [](const Finding &finding) {
        const int field = fields.indexOf(finding.field);
        return finding.severity == Severity::Error && field >= ExportLine::Titul
            && field <= ExportLine::Telefon;
    });
}

QStringList firstColumn(const QVector<QStringList> &rows)
{
    QStringList values;
    for (const QStringList &row : rows)
        values += row.first();
    return values;
}

/// "Surname (HR: Malá, here: Nováková)".
QString differenceText(const RowField &field)
{
    const auto shown = [](const QVariant &value) {
        const QString text = Wording::plain(value);
        return text.isEmpty() ? Text::tr("none", "value of a field") : text;
    };
    return Text::tr("%1 (HR: %2, here: %3)")
        .arg(field.name, shown(field.exported), shown(field.held));
}

} // namespace

void RecordExplanation::explainRow()
{
    section("row", Text::tr("Is the person created or updated?"));
    switch (RecordDecisions::personStep(m_person.known().has_value(), m_active)) {
    case RecordDecisions::PersonStep::Update:
        explainUpdate();
        break;
    case RecordDecisions::PersonStep::Create:
        explainCreation();
        break;
    case RecordDecisions::PersonStep::LeaveOut:
        explainLeaver();
        break;
    }
}

void RecordExplanation::explainLeaver()
{
    m_outcome.person =
        m_person.exists() ? QStringLiteral("unchanged") : QStringLiteral("never-created");
    if (m_person.isAdded()) {
        m_context.report.add(
            ExplainRules::kLeftAlready,
            Text::tr("An earlier line has created the person or made the row active. The "
                     "plugin looks people up once in a synchronisation, so it does not "
                     "write that the person has left."));
    } else if (m_person.exists()) {
        say(Text::tr("The person has left. The plugin does not see the row and leaves it alone."));
    } else {
        Finding finding = makeFinding(
            ExplainRules::kLeftAlready,
            Text::tr(
                "The person has left and has no row. The plugin never creates rows for leavers."),
            Text::tr("This is fine unless the person still works: then HR's export is wrong."));
        finding.severity = ExplainRules::kLeftAlready.otherSeverity;
        m_context.report.finding(finding);
    }
}

void RecordExplanation::explainHarmfulText(const QString &stateText)
{
    if (hasHarmfulText(m_line)) {
        say(Text::tr("But a text of the line, reported above, breaks the statement: it fails "
                     "or writes something else."));
    } else if (m_isHarmful) {
        m_context.report.add(
            ExplainRules::kStateBreaksStatement,
            Text::tr("The text of the relationship state, %1, breaks the statement: it "
                     "fails or writes something else.")
                .arg(Wording::quoted(stateText)));
    }
}

void RecordExplanation::explainUpdate()
{
    const MirovaRonRecord updated = m_context.view.worker().updateRs(m_record, *m_person.known());
    m_isHarmful = hasHarmfulText(m_line) || SqlHazards::breaksStatement(updated.rsText);
    explainRelationshipState();
    explainComparison(updated);
    explainWriting(updated);
}

void RecordExplanation::explainRelationshipState()
{
    const ushort code = m_record.evidencniStav;
    if (!m_context.view.worker().isRS(code)) {
        say(Text::tr("The register state %1 is not among the relationship states of the "
                     "configuration: a current one ends.")
                .arg(code));
        return;
    }
    say(Text::tr("The register state %1 is a relationship state of the configuration: \"%2\".")
            .arg(QString::number(code), m_context.view.worker().es2rsText(code)));
}

void RecordExplanation::explainComparison(const MirovaRonRecord &updated)
{
    const QVector<RowField> fields =
        compareRowFields(updated, *m_person.known(), m_context.backslash);
    const QStringList differing = namesOf(fields, [](const RowField &f) { return f.differs; });
    const QStringList rewritten =
        namesOf(fields, [](const RowField &f) { return f.differsInWriting(); });
    if (m_person.last()) {
        say(Text::tr("The plugin compares with the row as it was before the earlier lines "
                     "changed it."));
    }
    say(differing.isEmpty() ? Text::tr("No field differs from the row.")
                            : Text::tr("These fields differ from the row: %1.")
                                  .arg(differing.join(QStringLiteral(", "))));
    if (!rewritten.isEmpty()) {
        say(Text::tr("The plugin compares a text in the form that the statement needs, with "
                     "apostrophes and backslashes doubled. Only that makes the difference "
                     "here, and the same text is written again: %1.")
                .arg(rewritten.join(QStringLiteral(", "))));
    }
    m_context.report.table(fieldTable(fields));
    for (const RowField &field : fields) {
        if (field.differs && !field.differsInWriting())
            m_outcome.differences += differenceText(field);
    }
}

void RecordExplanation::explainWriting(const MirovaRonRecord &updated)
{
    const auto step = RecordDecisions::rowStep(updated, *m_person.known(), m_differences);
    if (step == RecordDecisions::RowStep::Keep) {
        m_outcome.person = QStringLiteral("unchanged");
        say(Text::tr("The row is not written."));
    } else if (m_context.configuration.testMode) {
        explainTestMode("dbUpdatePerson", "update");
    } else if (!m_person.row()) {
        m_outcome.person = QStringLiteral("missed");
        say(Text::tr("The plugin updates the row with the pid %1, but there is none: nothing "
                     "is written.")
                .arg(m_person.pid()));
    } else {
        explainWrittenRow(updated, step);
        explainTerminalsOfPerson();
        explainHarmfulText(updated.rsText);
    }
}

void RecordExplanation::explainWrittenRow(const MirovaRonRecord &updated,
                                          RecordDecisions::RowStep step)
{
    m_outcome.person = m_isHarmful ? QStringLiteral("uncertain") : QStringLiteral("updated");
    if (step == RecordDecisions::RowStep::WriteFields) {
        say(Text::tr("The row is updated."));
    } else if (m_person.last()) {
        say(Text::tr("The row is written all the same: the employment type or the register "
                     "state differs from the previous line."));
    } else {
        say(Text::tr("The row is written all the same: the plugin does not know yet which codes of "
                     "employment type and register state it was last written with."));
    }
    if (!m_active) {
        say(Text::tr("It stays active: the plugin never deactivates people, it only writes "
                     "their last day."));
    }
    if (m_differences.registerState && updated.rsFrom.isValid())
        explainStateBegin(updated.rsFrom);
}

void RecordExplanation::explainStateBegin(const QDate &day)
{
    if (m_isHarmful)
        return;
    const qint64 before = m_person.lastCalculation();
    m_person.setLastCalculation(day);
    if (before <= m_person.lastCalculation()) {
        say(Text::tr("The last calculation is set to the day before %1, where the "
                     "relationship state begins.")
                .arg(Moment::text(day)));
        return;
    }
    m_outcome.recalculation.add(day, QStringLiteral("state"));
    say(Text::tr("Attendance is calculated again from %1 on, where the relationship state "
                 "begins.")
            .arg(Moment::text(day)));
}

void RecordExplanation::explainTerminalsOfPerson()
{
    const QStringList tids = firstColumn(
        m_context.view.sql().rows(QString(QLatin1String(kSelectTerminals)).arg(m_person.uid())));
    say(Phrases::list(
        tids,
        Text::tr("No active terminal that handles people holds this person, so nothing is queued."),
        Text::tr("The change is queued for terminal %1."),
        Text::tr("The change is queued for the terminals %1.")));
}

void RecordExplanation::explainCreation()
{
    if (m_context.configuration.testMode)
        explainTestMode("dbAddPerson", "add");
    else
        explainAddition();
    if (!m_person.exists())
        say(Text::tr("The following steps find no row to write to, and warn."));
}

void RecordExplanation::explainAddition()
{
    const QString stateText = m_context.view.worker().updateRs(m_record, MirovaRonRecord()).rsText;
    m_isHarmful = hasHarmfulText(m_line) || SqlHazards::breaksStatement(stateText);
    m_mayNotAdd = m_person.isAddedAs(m_record);
    m_outcome.person = m_isHarmful ? QStringLiteral("uncertain")
        : m_person.exists()        ? QStringLiteral("merged")
                                   : QStringLiteral("created");
    if (m_person.isAdded()) {
        say(Text::tr("The line is merged into the row that an earlier line has written. The "
                     "department becomes 1."));
    } else if (m_person.row()) {
        say(Text::tr("The line is merged into the row with the uid %1, which becomes active. "
                     "Relationship state, calendar and branch of the row stay unchanged, the "
                     "department becomes 1.")
                .arg(m_person.uid()));
    } else {
        say(Text::tr("The person is created."));
    }
    say(Text::tr("If this fails, the log says why behind \"MHRWorker::dbAddPerson(%1) - SQL "
                 "ERROR:\", and the plugin does not try again until the line changes or a "
                 "synchronisation is forced.")
            .arg(m_record.getPamId()));
    explainPayroll();
    explainPayrollSettings();
    say(Text::tr("The vacation balance of a new person is corrected by a later synchronisation."));
    explainHarmfulText(stateText);
    if (m_isHarmful)
        return;
    m_person.add(m_record);
    if (isPerson("created"))
        explainRowsLeftBehind();
}

void RecordExplanation::explainRowsLeftBehind()
{
    const RowsLeftBehind &rows = m_person.leftBehind();
    if (rows.tables().isEmpty())
        return;
    m_context.report.add(
        ExplainRules::kRowsLeftBehind,
        Text::tr("The person gets the uid %1 or a later one. Under those uids there are rows "
                 "of %2, which somebody who was deleted has left behind. The person takes "
                 "over those of the own uid, and what follows may turn out differently.")
            .arg(QString::number(rows.nextUid()), rows.tables().join(QStringLiteral(", "))));
}

void RecordExplanation::explainPayroll()
{
    const QStringList exports = payrollExports(m_context.view.sql());
    if (exports.size() != 1 || m_record.getPid() == 0) {
        m_context.report.add(
            ExplainRules::kNoPayrollExport,
            (exports.size() == 1
                 ? Text::tr("The person joins no payroll export, because the pid is 0. The log "
                            "says: %1")
                 : Text::tr("The person joins no payroll export, because there are %Ln instead of "
                            "one. The log says: %1",
                            nullptr, exports.size()))
                .arg(QString::asprintf(RecordLog::kPayrollExportFailed,
                                       qUtf8Printable(m_record.getPamId()))));
        return;
    }
    const QString id = exports.first().section(QLatin1Char('.'), 1, 1);
    const bool isMember = m_person.isSelected(exports.first());
    m_outcome.payroll = isMember ? QStringLiteral("member")
        : m_isHarmful            ? QStringLiteral("uncertain")
                                 : QStringLiteral("joins");
    if (!m_isHarmful)
        m_person.select();
    say(isMember
            ? Text::tr("The person is in the selection of the payroll export %1 already.").arg(id)
            : Text::tr("The person joins the selection of the payroll export %1.").arg(id));
}

void RecordExplanation::explainPayrollSettings()
{
    const ushort type = m_record.typPracovnihoPomeru;
    const ushort settings = RecordCodes::pamSettingsIdFromTPP(type);
    if (settings == 0) {
        say(Text::tr("The employment type %1 has no settings of the payroll export.").arg(type));
        return;
    }
    say(Text::tr("The employment type %1 means the settings %2 of the payroll export.")
            .arg(type)
            .arg(settings));
    const bool isKept = m_person.payrollSettings() == settings;
    m_outcome.payrollSettings = isKept ? QStringLiteral("kept")
        : m_mayNotAdd || m_isHarmful   ? QStringLiteral("uncertain")
                                       : QStringLiteral("set");
    if (m_mayNotAdd) {
        say(Text::tr("An earlier line has written the same row. Within the same second the "
                     "statement changes nothing, which the plugin treats as a failure: it "
                     "then leaves the settings and the supervisor unchanged."));
        return;
    }
    if (!m_isHarmful)
        m_person.setPayrollSettings(settings);
    if (isKept)
        explainKeptSettings(settings);
}

void RecordExplanation::explainKeptSettings(ushort settings)
{
    m_context.report.add(
        ExplainRules::kPayrollSettingsKept,
        Text::tr(
            "The person has these settings already, which the plugin treats as a failure. The log "
            "says: %1")
            .arg(QString::asprintf(RecordLog::kPayrollSettingsFailed,
                                   qUtf8Printable(m_record.getString(false)), m_record.getPid(),
                                   uint(settings))));
}

void RecordExplanation::explainTestMode(const char *operation, const char *what)
{
    m_outcome.person = QStringLiteral("test-mode");
    const QString logged =
        QStringLiteral("MHRWorker::%1(%2) - Testing mode is active, person not really %3!")
            .arg(QLatin1String(operation), m_record.getPamId(), QLatin1String(what));
    say(Text::tr("In test mode nothing is written here. At debug level 1 and above the log says: "
                 "%1")
            .arg(logged));
}
