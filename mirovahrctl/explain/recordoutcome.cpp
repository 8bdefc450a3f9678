#include "mirovahrctl/explain/recordoutcome.h"

#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/report/moment.h"

#include <algorithm>

namespace {

using Word = QString RecordOutcome::*;

/// The words of one fact. Of several records, the word that comes first here counts.
struct Weight {
    Word word;
    QStringList words;
};

const QVector<Weight> &weights()
{
    static const QVector<Weight> all{
        {&RecordOutcome::person,
         {QStringLiteral("test-mode"), QStringLiteral("uncertain"), QStringLiteral("created"),
          QStringLiteral("merged"), QStringLiteral("updated"), QStringLiteral("missed"),
          QStringLiteral("unchanged"), QStringLiteral("never-created")}},
        {&RecordOutcome::payroll,
         {QStringLiteral("uncertain"), QStringLiteral("joins"), QStringLiteral("member")}},
        {&RecordOutcome::payrollSettings,
         {QStringLiteral("uncertain"), QStringLiteral("set"), QStringLiteral("kept")}},
        {&RecordOutcome::balance,
         {QStringLiteral("corrected"), QStringLiteral("impossible"), QStringLiteral("later"),
          QStringLiteral("equal"), QStringLiteral("kept"), QStringLiteral("no-fund")}},
        {&RecordOutcome::supervisor,
         {QStringLiteral("uncertain"), QStringLiteral("set"), QStringLiteral("unknown"),
          QStringLiteral("kept")}},
        {&RecordOutcome::branch,
         {QStringLiteral("uncertain"), QStringLiteral("joins"), QStringLiteral("unknown"),
          QStringLiteral("member")}},
        {&RecordOutcome::calendar,
         {QStringLiteral("uncertain"), QStringLiteral("planned"), QStringLiteral("unknown"),
          QStringLiteral("kept")}},
    };
    return all;
}

bool isNone(const QString &word)
{
    return word == QLatin1String("none");
}

QString weightier(const Weight &weight, const QString &a, const QString &b)
{
    if (isNone(a) || isNone(b))
        return isNone(a) ? b : a;
    return weight.words.indexOf(a) < weight.words.indexOf(b) ? a : b;
}

void addTo(RecordOutcome &sum, const RecordOutcome &outcome)
{
    for (const Weight &weight : weights())
        sum.*weight.word = weightier(weight, sum.*weight.word, outcome.*weight.word);
    if (outcome.recalculation.from) {
        for (const QString &cause : outcome.recalculation.causes)
            sum.recalculation.add(*outcome.recalculation.from, cause);
    }
    sum.recalculation.isUncertain |= outcome.recalculation.isUncertain;
    for (const QString &difference : outcome.differences) {
        if (!sum.differences.contains(difference))
            sum.differences += difference;
    }
    sum.waits = sum.waits || outcome.waits;
}

} // namespace

void Recalculation::add(const QDate &day, const QString &cause)
{
    // An invalid date compares as earlier than any other one; it does so for the plugin, too.
    from = from ? std::min(*from, day) : day;
    if (!causes.contains(cause))
        causes += cause;
}

QString Recalculation::text() const
{
    constexpr char kMeaning[] = "recalculation";
    if (!from)
        return Phrases::word(QStringLiteral("none"), kMeaning);
    if (isUncertain)
        return Phrases::word(QStringLiteral("uncertain"), kMeaning);
    return from->isValid() ? Moment::text(*from) : Phrases::word(QStringLiteral("all"), kMeaning);
}

RecordOutcome RecordOutcome::none()
{
    RecordOutcome outcome;
    for (const Weight &weight : weights())
        outcome.*weight.word = QStringLiteral("none");
    return outcome;
}

RecordOutcome RecordOutcome::combined(const QVector<RecordOutcome> &outcomes)
{
    RecordOutcome sum = none();
    for (const RecordOutcome &outcome : outcomes)
        addTo(sum, outcome);
    return sum;
}
