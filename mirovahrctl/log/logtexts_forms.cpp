// What the texts of the other groups become in a line of the log.

#include "mirovahrctl/log/logtextgroups.h"

#include <iterator>

namespace {

constexpr LogText kForms[] = {
    {"%s [%s]: %s", "critical", Form::Part, "… - SQL ERROR, number, message."},
    {"%s [%s]: %s\\n SQL: %s", "critical", Form::Part,
     "The same, with the statement in a second line."},
    {"%s - ERROR[%i]: %s", "critical", Form::Part, "An error of the calendar plan."},
    {"%s %s", "critical", Form::Part, "A text that ends in ERROR:, and the message."},
    {" - ERROR:", "critical", Form::Part, "Behind the name of a branch operation."},
    {"%s() - prepare failed, SQL ERROR: %s", "critical", Form::Part, "addBAS, deleteBAS."},
    {"() - exec failed, SQL ERROR:", "critical", Form::Part, "The same, with one triple."},
    {"() - execBatch failed, SQL ERROR:", "critical", Form::Part, "The same, with several."},
    {"%s(%u)", "info 1", Form::Part, "A branch operation and its branch or person."},
    {"%s(%u, '%s')", "info 1", Form::Part, "The same with the ids concerned."},
    {"%s(%s)", "info 1 or debug 2", Form::Part,
     "addBAS, deleteBAS; GroupsPlanRepo::add, GroupsPlanRepo::del."},
};

} // namespace

LogTextGroup LogTextGroups::forms()
{
    return {"Forms", {std::begin(kForms), std::end(kForms)}};
}
