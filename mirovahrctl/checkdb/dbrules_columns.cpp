// Columns: they can hold what the plugin writes.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/columnrange.h"
#include "mirovahrctl/site/dbschema.h"

#include <QDateTime>
#include <QStringList>

namespace {

using TepDbContract::Kind;

QString shown(double number)
{
    return Language::number(number, 0);
}

QString shown(const ColumnRange &range)
{
    return range.from == range.to ? shown(range.from)
                                  : Text::tr("%1 to %2").arg(shown(range.from), shown(range.to));
}

QString day(double seconds)
{
    return Moment::text(QDateTime::fromSecsSinceEpoch(qint64(seconds)).date());
}

bool isText(const DbColumn &column)
{
    return column.type.endsWith(QLatin1String("char"))
        || column.type.endsWith(QLatin1String("text"));
}

/// Checks a column that the plugin writes and the site has.
class ColumnCheck {
public:
    ColumnCheck(DbAssessment &check, const DbSchema &schema, const TepDbContract::Column &need,
                const DbColumn &column)
        : m_check(check)
        , m_schema(schema)
        , m_written(need.written)
        , m_label(Text::tr(need.label))
        , m_column(column)
        , m_field(need.fullName())
    {
    }

    /// The values of the INI file are known, and checked elsewhere.
    void leaveOutConfiguration()
    {
        if (!isConfigured())
            return;
        // For people whom it merges, the plugin writes the department 1 all the same.
        m_written.to = m_written.from;
        m_written.null = false;
    }

    void run()
    {
        switch (m_written.kind) {
        case Kind::Nothing:
            break;
        case Kind::Number:
        case Kind::Time:
            checkNumbers({m_written.from, m_written.to}, m_label);
            break;
        case Kind::Id:
            checkIds(QString::fromLatin1(m_written.owner));
            break;
        case Kind::Text:
            checkText();
            break;
        }
        if (m_written.null)
            checkNull();
    }

private:
    bool isConfigured() const { return *m_written.key != '\0'; }

    void checkIds(const QString &owner)
    {
        const DbColumn *const column = m_schema.column(owner.section(QLatin1Char('.'), 0, 0),
                                                       owner.section(QLatin1Char('.'), 1));
        const auto held = column == nullptr ? std::nullopt : ColumnRange::of(*column);
        checkNumbers({0, held.value_or(ColumnRange()).to}, Text::tr("what %1 holds").arg(owner));
    }

    void checkNumbers(const ColumnRange &written, const QString &meaning)
    {
        const auto held = ColumnRange::of(m_column);
        if (!held)
            reportWrongKind(Text::tr("The column %1 is %2; the plugin writes numbers into it"));
        else if (!held->holds(written) && m_written.kind == Kind::Time)
            reportNarrowTimes(*held, written);
        else if (!held->holds(written))
            reportTooNarrow(Text::tr("The column %1 is %2; the plugin writes %3 into it (%4).")
                                .arg(m_field, m_column.fullType, shown(written), meaning));
    }

    void checkText()
    {
        if (!isText(m_column)) {
            reportWrongKind(Text::tr("The column %1 is %2; the plugin writes texts into it"));
            return;
        }
        if (m_column.length < m_written.length) {
            reportTooNarrow(
                Text::tr("The column %1 is %2; the plugin writes up to %Ln character(s) into it.",
                         nullptr, m_written.length)
                    .arg(m_field, m_column.fullType));
        }
        checkCharset();
    }

    void checkCharset()
    {
        if (m_column.charset.startsWith(QLatin1String("utf8")))
            return;
        m_check.report(CheckDbRules::kColumnCharset, m_field,
                       Text::tr("The column %1 has the character set %2: letters that it "
                                "lacks are refused, or stored as question marks where no "
                                "strict SQL mode is on")
                           .arg(m_field, m_column.charset));
    }

    void checkNull()
    {
        if (m_column.nullable)
            return;
        const QString message =
            Text::tr("The column %1 (%2) does not allow NULL, which the plugin writes for "
                     "people who have none")
                .arg(m_field, m_label);
        // The INI file may say that everybody has one.
        if (isConfigured())
            m_check.report(CheckDbRules::kColumnNotNull, m_field, message);
        else
            m_check.reportViolation(CheckDbRules::kColumnNotNull, m_field, message);
    }

    /// \a message has places for the column and its type.
    void reportWrongKind(const QString &message)
    {
        m_check.reportViolation(CheckDbRules::kColumnKind, m_field,
                                message.arg(m_field, m_column.fullType));
    }

    /// Names the bound that is too narrow.
    void reportNarrowTimes(const ColumnRange &held, const ColumnRange &written)
    {
        const bool startsLate = held.from > written.from;
        const bool endsEarly = held.to < written.to;
        if (startsLate && endsEarly) {
            reportTooNarrow(
                Text::tr("The column %1 is %2; it holds only times from %3 to %4, and "
                         "the plugin may write others into it (%5).")
                    .arg(m_field, m_column.fullType, day(held.from), day(held.to), m_label));
        } else if (startsLate) {
            reportTooNarrow(Text::tr("The column %1 is %2; it holds only times from %3 on, and the "
                                     "plugin may write others into it (%4).")
                                .arg(m_field, m_column.fullType, day(held.from), m_label));
        } else {
            reportTooNarrow(Text::tr("The column %1 is %2; it holds only times up to %3, and the "
                                     "plugin may write others into it (%4).")
                                .arg(m_field, m_column.fullType, day(held.to), m_label));
        }
    }

    /// \a need is a whole sentence.
    void reportTooNarrow(const QString &need)
    {
        const QString effect = Text::tr("Values that do not fit are refused, or altered where no "
                                        "strict SQL mode is on");
        m_check.report(CheckDbRules::kColumnTooNarrow, m_field, need + QLatin1Char(' ') + effect,
                       isConfigured()
                           ? Text::tr("Give the column the type of reference-db/schema.sql, or "
                                      "name the plugin's INI file with --config, if its own value "
                                      "fits.")
                           : QString());
    }

    DbAssessment &m_check;
    const DbSchema &m_schema;
    TepDbContract::Written m_written;
    const QString m_label;
    const DbColumn &m_column;
    const QString m_field;
};

void reportWidths(DbAssessment &check, const DbSchema &schema)
{
    Table table{QStringLiteral("texts"),
                {{QStringLiteral("column"), Text::tr("Text column")},
                 {QStringLiteral("length"), Text::tr("Characters")},
                 {QStringLiteral("charset"), Text::tr("Character set")}},
                {}};
    for (const TepDbContract::Column &need : TepDbContract::kColumns) {
        const DbColumn *const column = schema.column(need);
        if (need.written.kind == Kind::Text && column != nullptr && isText(*column))
            table.rows.append({need.fullName(), column->length, column->charset});
    }
    check.writer().table(table);
}

} // namespace

void DbRules::checkColumns(DbAssessment &check, const DbSchema &schema, bool configurationIsKnown)
{
    check.begin("columns", Text::tr("Columns"));
    for (const TepDbContract::Column &need : TepDbContract::kColumns) {
        const DbColumn *const column = schema.column(need);
        if (column == nullptr)
            continue;
        ColumnCheck columnCheck(check, schema, need, *column);
        if (configurationIsKnown)
            columnCheck.leaveOutConfiguration();
        columnCheck.run();
    }
    check.end(configurationIsKnown
                  ? Text::tr("The columns can hold what the plugin writes, except for HR's "
                             "texts, which check-file checks.")
                  : Text::tr("The columns can hold what the plugin writes, except for texts: "
                             "check-file checks HR's, and --config lets this check those of "
                             "the INI file."));
    reportWidths(check, schema);
}
