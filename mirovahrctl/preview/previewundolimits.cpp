#include "mirovahrctl/preview/previewundolimits.h"

#include "cli/text.h"
#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/preview/previewundoplan.h"

namespace {

QString joined(const QStringList &names)
{
    return names.join(QStringLiteral(", "));
}

void addTerminals(const PreviewUndoPlan &plan, QStringList &sentences)
{
    if (plan.find("term_sync")) {
        sentences += Text::tr(
            "What a terminal has fetched from its queue. The statements name the rows that are no "
            "longer in the queue: send these people to the terminals again.");
    }
}

void addPeople(const PreviewUndoPlan &plan, QStringList &sentences)
{
    if (!plan.newPeople().isEmpty()) {
        sentences += Text::tr("The uids of new people: they are used up, and the next "
                              "person gets another one.");
        sentences += Text::tr("What others have written for new people, such as days of "
                              "attendance.");
    }
    if (plan.find("atten") || plan.find("people")) {
        sentences += Text::tr("Attendance that was calculated with what the synchronisation "
                              "has written. The statements name these people: let it be "
                              "calculated again.");
    }
    if (plan.find("people_pam") || plan.find("vars"))
        sentences += Text::tr("A payroll export that was made in between.");
}

void addPrograms(const PreviewSchema &schema, const PreviewUndoPlan &plan, QStringList &sentences)
{
    if (!plan.rowsOfOthers().isEmpty()) {
        sentences += Text::tr("What triggers and routines of the site have changed in %1.")
                         .arg(joined(plan.rowsOfOthers().keys()));
    }
    QStringList triggers;
    for (const PreviewProgram &trigger : schema.triggers)
        triggers += trigger.name;
    if (!triggers.isEmpty()) {
        sentences += Text::tr("What the site's triggers do when the rows are taken back: "
                              "they fire again (%1).")
                         .arg(joined(triggers));
    }
    if (!schema.tablesWithHiddenTriggers.isEmpty()) {
        sentences += Text::tr("What triggers do that this account is not allowed to see, of "
                              "these tables: %1.")
                         .arg(joined(schema.tablesWithHiddenTriggers));
    }
}

} // namespace

QStringList undoLimits(const PreviewSchema &schema, const PreviewUndoPlan &plan)
{
    QStringList sentences;
    addTerminals(plan, sentences);
    addPeople(plan, sentences);
    addPrograms(schema, plan, sentences);
    if (plan.hasForceFlag()) {
        sentences += Text::tr("The flag that forces a synchronisation: it would force "
                              "another one.");
    }
    if (!plan.tablesWithoutTransactions().isEmpty()) {
        sentences += Text::tr("A failure in the middle: these tables have no transactions, "
                              "and what is written by then stays: %1. They are locked "
                              "meanwhile, and written only when all rows have been checked.")
                         .arg(joined(plan.tablesWithoutTransactions()));
    }
    return sentences;
}
