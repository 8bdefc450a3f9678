// The row of `people`: created, updated, or left alone.

#include "tools/explaincontext.h"
#include "tools/explaintext.h"
#include "tools/payrollexports.h"
#include "tools/recordexplanation.h"
#include "tools/rowfields.h"
#include "worker/exportline.h"
#include "worker/recordcodes.h"
#include "worker/recordcomparison.h"

#include <algorithm>

namespace {

/// The terminals that fetch a change of a person: the active ones that hold the person and handle
/// people.
constexpr char kSelectTerminals[] = "SELECT tid FROM people_term JOIN term USING(tid)"
                                    " WHERE status = 1 AND uid = %1 AND (flags & 2) ORDER BY tid";

constexpr char kSelectPayrollSettings[] = "SELECT id FROM people_pam WHERE uid = %1";

Table fieldTable(const QVector<RowField> &fields)
{
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), QStringLiteral("Field")},
                 {QStringLiteral("export"), QStringLiteral("In the export")},
                 {QStringLiteral("database"), QStringLiteral("In the database")},
                 {QStringLiteral("differs"), QStringLiteral("Differs")}},
                {}};
    for (const RowField &field : fields) {
        table.rows.append({field.name, field.exported, field.held, field.differs});
    }
    return table;
}

/// Whether a text of the line may keep its statement from doing what it shall.
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

} // namespace

void RecordExplanation::explainRow()
{
    section("row", "Is the person created or updated?");
    if (m_context.known) {
        explainUpdate();
        explainHarmfulText();
    } else if (m_active) {
        explainCreation();
        explainHarmfulText();
        if (!hasUid())
            say(QStringLiteral("The steps that follow find nobody to write to, and warn."));
    } else {
        m_outcome.person = QStringLiteral("never-created");
        ExplainText::tell(m_context.report, Severity::Warning, "left-already",
                          QStringLiteral("The plugin does not find the person in the database, and "
                                         "who has left is never created. It ends here."),
                          QStringLiteral("Fine, unless the person still works: then HR's export "
                                         "is wrong."));
    }
}

void RecordExplanation::explainHarmfulText()
{
    const bool writes = m_outcome.person != QLatin1String("unchanged")
        && m_outcome.person != QLatin1String("test-mode");
    if (!writes || !hasHarmfulText(m_line))
        return;
    m_outcome.person = QStringLiteral("uncertain");
    say(QStringLiteral("But a text of the line, named above, makes the statement fail or write "
                       "something else."));
}

void RecordExplanation::explainUpdate()
{
    const MirovaRonRecord updated = m_context.view.worker().updateRs(m_record, *m_context.known);
    explainRelationshipState();
    explainComparison(updated);
    explainWriting(updated,
                   RecordComparison::rowFields(updated)
                       == RecordComparison::rowFields(*m_context.known));
}

void RecordExplanation::explainRelationshipState()
{
    const ushort code = m_record.evidencniStav;
    if (!m_context.view.worker().isRS(code)) {
        say(QStringLiteral("The register state %1 is not one of the relationship states of the "
                           "configuration: a running one ends.")
                .arg(code));
        return;
    }
    say(QStringLiteral(
            "The register state %1 is a relationship state of the configuration: \"%2\".")
            .arg(QString::number(code), m_context.view.worker().es2rsText(code)));
}

void RecordExplanation::explainComparison(const MirovaRonRecord &updated)
{
    const QVector<RowField> fields = compareRowFields(updated, *m_context.known);
    QStringList differing;
    for (const RowField &field : fields) {
        if (field.differs)
            differing += field.name;
    }
    say(differing.isEmpty() ? QStringLiteral("No field differs from the row.")
                            : QStringLiteral("These fields differ from the row: %1.")
                                  .arg(differing.join(QStringLiteral(", "))));
    m_context.report.table(fieldTable(fields));
}

void RecordExplanation::explainWriting(const MirovaRonRecord &updated, bool sameRow)
{
    const bool esChanged = isFirstLook() || m_record.evidencniStav != m_previous->evidencniStav;
    const bool tppChanged =
        isFirstLook() || m_record.typPracovnihoPomeru != m_previous->typPracovnihoPomeru;
    if (sameRow && !esChanged && !tppChanged) {
        m_outcome.person = QStringLiteral("unchanged");
        say(QStringLiteral("The row is left alone."));
        return;
    }
    if (m_context.configuration.testMode) {
        explainTestMode("dbUpdatePerson", "update");
        return;
    }
    m_outcome.person = QStringLiteral("updated");
    say(sameRow ? QStringLiteral("The row is written all the same: the plugin does not know yet "
                                 "with which codes of employment type and register state it was "
                                 "written last.")
                : QStringLiteral("The row is updated."));
    if (!m_active) {
        say(QStringLiteral("It stays active: the plugin never ends people, it only writes their "
                           "last day."));
    }
    if (esChanged && updated.rsFrom.isValid()) {
        say(QStringLiteral("Attendance is calculated again from %1 on, where the relationship "
                           "state begins.")
                .arg(ExplainText::day(updated.rsFrom)));
    }
    explainTerminalsOfPerson();
}

void RecordExplanation::explainTerminalsOfPerson()
{
    const QStringList tids = firstColumn(
        m_context.view.sql().rows(QString(QLatin1String(kSelectTerminals)).arg(m_context.uid())));
    say(ExplainText::list(QStringLiteral("The change is queued for terminal"),
                          QStringLiteral("The change is queued for the terminals"), tids,
                          QStringLiteral("No active terminal that handles people holds this "
                                         "person: none is told"))
        + QLatin1Char('.'));
}

void RecordExplanation::explainCreation()
{
    if (m_context.configuration.testMode) {
        explainTestMode("dbAddPerson", "add");
        return;
    }
    m_outcome.person =
        m_context.row || isMadeBefore() ? QStringLiteral("merged") : QStringLiteral("created");
    if (m_context.row) {
        say(QStringLiteral("The line is merged into the row with the uid %1, which becomes active. "
                           "Relationship state, calendar and branch of the row stay as they are, "
                           "the department becomes 1.")
                .arg(m_context.uid()));
    } else if (isMadeBefore()) {
        say(QStringLiteral("The line is merged into the row that the line before has made."));
    } else {
        say(QStringLiteral("The person is created."));
    }
    say(QStringLiteral("If this fails, the log says why behind \"MHRWorker::dbAddPerson(%1) - SQL "
                       "ERROR:\", and the plugin does not try again until the line changes or a "
                       "synchronisation is forced.")
            .arg(m_record.getPamId()));
    explainPayroll();
    say(QStringLiteral("The vacation balance of a new person follows at a later synchronisation."));
}

void RecordExplanation::explainPayroll()
{
    const QStringList exports = payrollExports(m_context.view.database());
    if (exports.size() == 1 && m_record.getPid() != 0) {
        say(QStringLiteral("The person joins the selection of the payroll export %1.")
                .arg(exports.first().section(QLatin1Char('.'), 1, 1)));
    } else {
        ExplainText::tell(
            m_context.report, Severity::Warning, "no-payroll-export",
            QStringLiteral("The person joins no payroll export, since %1. The log says: "
                           "MHRWorker::dbAddPerson(%2) - addPersonIntoPam() FAILED!")
                .arg(exports.size() == 1
                         ? QStringLiteral("the pid is 0")
                         : QStringLiteral("there is not exactly one, but %1").arg(exports.size()),
                     m_record.getPamId()),
            QStringLiteral("Add the person by hand where it is wanted."));
    }
    explainPayrollSettings();
}

void RecordExplanation::explainPayrollSettings()
{
    const ushort type = m_record.typPracovnihoPomeru;
    const ushort settings = RecordCodes::pamSettingsIdFromTPP(type);
    if (settings == 0) {
        say(QStringLiteral("The employment type %1 has no settings of the payroll export.")
                .arg(type));
        return;
    }
    say(QStringLiteral("The employment type %1 gives the settings %2 of the payroll export.")
            .arg(type)
            .arg(settings));
    if (!hasPayrollSettings(settings))
        return;
    ExplainText::tell(m_context.report, Severity::Note, "payroll-settings-kept",
                      QStringLiteral("The person has these settings already, which the plugin "
                                     "takes for a failure. The log says: "
                                     "MHRWorker::doSyncRecord(%1) - dbAddPersonIntoPam(%2, %3) "
                                     "FAILED!")
                          .arg(m_record.getString(false), QString::number(m_record.getPid()),
                               QString::number(settings)),
                      QStringLiteral("Nothing is wrong with that."));
}

bool RecordExplanation::hasPayrollSettings(ushort settings)
{
    if (!m_context.row)
        return isMadeBefore()
            && RecordCodes::pamSettingsIdFromTPP(m_previous->typPracovnihoPomeru) == settings;
    const QString select = QString(QLatin1String(kSelectPayrollSettings)).arg(m_context.uid());
    return m_context.view.sql().value(select) == QString::number(settings);
}

/// Whether a line before this one has created the person.
bool RecordExplanation::isMadeBefore() const
{
    return m_previous && RecordCodes::isActive(*m_previous, QDate::currentDate());
}

void RecordExplanation::explainTestMode(const char *operation, const char *what)
{
    m_outcome.person = QStringLiteral("test-mode");
    say(QStringLiteral("In test mode nothing is written here. From debug level 1 on the log says: "
                       "MHRWorker::%1(%2) - Testing mode is active, person not really %3!")
            .arg(QLatin1String(operation), m_record.getPamId(), QLatin1String(what)));
}
