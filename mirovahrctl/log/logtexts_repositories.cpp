// The texts of the repositories, which other components of the server log, too.

#include "mirovahrctl/log/logtextgroups.h"

#include <iterator>

namespace {

constexpr LogText kSettings[] = {
    {"variableSet ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text",
                       "A setting (force flag, selection) was not written. The force flag stays: "
                       "the next tick is forced again."),
     QT_TRANSLATE_NOOP(
         "Text",
         "Mend the cause; a new person who is not in the selection is to be entered by hand.")},
    {"TepDbSettings::variableGet - SQL ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "A setting was not read; the force flag counts as not set."),
     QT_TRANSLATE_NOOP("Text", "If it goes on, mend the cause.")},
    {"TepDbSettings::variableGetMultiple - SQL ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The payroll exports were not read: new people join none."),
     QT_TRANSLATE_NOOP("Text", "Mend it with mirovahrctl drift.")},
    {"TepDbSettings::variableDel - SQL ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "A setting was not deleted (other components)."),
     QT_TRANSLATE_NOOP("Text", "Repeat what deleted it.")},
    {"TepDbSettings Database Error:", "critical", Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "The connection of the settings could not be opened (other components)."),
     QT_TRANSLATE_NOOP("Text", "If it goes on: is the database server up, the password right?")},
};

constexpr LogText kBranchMembersTerminalsAdministrators[] = {
    {"BranchesRepository::addPeopleToBranch",
     "info 1, critical",
     Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text", "People (uids) join a branch; with an error, they did not."),
     QT_TRANSLATE_NOOP("Text", "After an error: provide the export again, and force."),
     {},
     Event::RecordsOver},
    {"BranchesRepository::slotAddedPeopleToBranch",
     "info 1",
     Form::BranchOperation,
     "People have joined a branch; its terminals and administrators follow.",
     "",
     {},
     Event::Joined},
    {"BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToTerms() FAILED!", "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "Not all terminals of the branch got its new people. Also after a removal."),
     QT_TRANSLATE_NOOP("Text", "See the error above, and add them with mirovahrctl drift.")},
    {"BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToAdmins() FAILED!", "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP(
         "Text", "Not all administrators of the branch got its new people. Also after a removal."),
     QT_TRANSLATE_NOOP("Text", "See the error above, and add them with mirovahrctl drift.")},
    {"BranchesRepository::getTids4Branch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "The terminals of a branch; with an error, they could not be looked up, and "
                       "people are not added to them."),
     QT_TRANSLATE_NOOP("Text", "After an error: add them with mirovahrctl drift.")},
    {"BranchesRepository::getAids4Branch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP(
         "Text",
         "The administrators of a branch; with an error, they could not be looked up, and people "
         "are not given to them. An error may come from those of a person as well."),
     QT_TRANSLATE_NOOP("Text", "After an error: add them with mirovahrctl drift.")},
    {"BranchesRepository::getUids4Branch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP(
         "Text",
         "The people of a branch; with an error, they could not be looked up (other components)."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::getAids4Uid", "info 1", Form::BranchOperation,
     "The administrators of a person."},
    {"BranchesRepository::AddPeopleToTerm", "critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text", "People were not added to a terminal."),
     QT_TRANSLATE_NOOP("Text", "Add them with mirovahrctl drift.")},
    {"BranchesRepository::AddPeopleToAdmins", "critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text", "People were not given to administrators."),
     QT_TRANSLATE_NOOP("Text", "Add them with mirovahrctl drift.")},
    {"BranchesRepository::delPeopleFromBranch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "People leave a branch (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::slotDeletedPeopleFromBranch", "info 1", Form::BranchOperation,
     "People have left a branch, and leave its terminals and administrators."},
    {"BranchesRepository::deletePeopleFromTerms", "info 1", Form::BranchOperation,
     "People leave the terminals of a branch."},
    {"BranchesRepository::deletePeopleFromTerm", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "People leave a terminal (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::deletePeopleFromAdmins", "info 1", Form::BranchOperation,
     "People are taken from the administrators of a branch."},
    {"BranchesRepository::deletePeopleFromAdmin", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP(
         "Text",
         "People are taken from an administrator (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::deletePeopleFromAdmin(aid: %u, uid: %u)", "info 1", Form::Whole,
     "One person is taken from one administrator."},
    {"BranchesRepository::addBranchToTerms", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "Terminals join a branch (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::slotAddedBranchToTerms", "info 1", Form::BranchOperation,
     "Terminals have joined a branch, and get its people."},
    {"BranchesRepository::delBranchFromTerms", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "Terminals leave a branch (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::slotDeletedBranchFromTerms", "info 1", Form::BranchOperation,
     "Terminals have left a branch, and lose its people."},
    {"BranchesRepository::addAdminsToBranch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP(
         "Text", "Administrators join a branch (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::slotAddedAdminsToBranch", "info 1", Form::BranchOperation,
     "Administrators have joined a branch, and get its people."},
    {"BranchesRepository::delAdminsFromBranch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP(
         "Text", "Administrators leave a branch (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::slotDeletedAdminsFromBranch", "info 1", Form::BranchOperation,
     "Administrators have left a branch, and lose its people."},
    {"BranchesRepository::addSectionsToBranch", "info 1, critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "Sections join a branch (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::delSectionsFromBranch", "info 1", Form::BranchOperation,
     "Sections leave a branch."},
    {"BranchesRepository::delSectionsFromBranch [bas]", "critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text",
                       "The attributes of sections that leave a branch stayed (other components)."),
     QT_TRANSLATE_NOOP("Text", "Repeat the operation.")},
    {"BranchesRepository::delSectionsFromBranch [sec_branch]", "critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text", "Sections stayed in a branch (other components)."),
     QT_TRANSLATE_NOOP("Text", "Repeat the operation.")},
    {"BranchesRepository::addBranch", "critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text", "A branch was not created (other components)."),
     QT_TRANSLATE_NOOP("Text", "Repeat the operation.")},
    {"BranchesRepository::addBranch() -  branch name can not be empty!", "warning", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "A branch without a name was not created (other components)."),
     QT_TRANSLATE_NOOP("Text", "Give it a name.")},
    {"BranchesRepository::updateBranch", "critical", Form::BranchOperation,
     QT_TRANSLATE_NOOP("Text", "A branch was not changed (other components)."),
     QT_TRANSLATE_NOOP("Text", "Repeat the operation.")},
    {"BranchesRepository::addBAS", "info 1, critical", Form::TripleOperation,
     QT_TRANSLATE_NOOP(
         "Text", "Attributes of sections are set (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
    {"BranchesRepository::deleteBAS", "info 1, critical", Form::TripleOperation,
     QT_TRANSLATE_NOOP(
         "Text",
         "Attributes of sections are removed (other components); with an error, that failed."),
     QT_TRANSLATE_NOOP("Text", "After an error: repeat the operation.")},
};

constexpr LogText kTerminalQueue[] = {
    {"TermSyncRepository::addTermSyncPeople() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "People, or interval types, were not queued for a terminal."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::setTermSyn() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The change is queued, but the terminal was not notified."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncPerson() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "A person was not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncPerson() - updateTermsSync() FAILED! ERROR:", "critical",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The change is queued, but the terminals were not notified."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncInter() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "An interval type was not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncInter() - updateTermsSync() FAILED! ERROR:", "critical",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The change is queued, but the terminals were not notified."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncTimezone() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "A time zone of a terminal was not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncTimezone() - update terminals FAILED! ERROR:", "critical",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The change is queued, but the terminals were not notified."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncPZT() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "A person's time zone was not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addTermSyncPZT() - update terminals FAILED! ERROR:", "critical",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The change is queued, but the terminal was not notified."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addColorGroup() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "A person's colour group was not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addColorGroup() - INSERT INTO `term_sync` FAILED! ERROR:", "critical",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The colour groups of several people were not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addColorGroupsToTermSync() - INSERT INTO `term_sync` FAILED! ERROR:",
     "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The colour groups were not queued."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
    {"TermSyncRepository::addColorGroupsToTermSync() - Update `term` FAILED! ERROR:", "critical",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The terminals were not notified of the colour groups."),
     QT_TRANSLATE_NOOP("Text", "Let the attendance system send the change again.")},
};

} // namespace

LogTextGroup LogTextGroups::settings()
{
    return {"Settings", {std::begin(kSettings), std::end(kSettings)}};
}

LogTextGroup LogTextGroups::branchMembersTerminalsAdministrators()
{
    return {"Branch members, terminals, administrators",
            {std::begin(kBranchMembersTerminalsAdministrators),
             std::end(kBranchMembersTerminalsAdministrators)}};
}

LogTextGroup LogTextGroups::terminalQueue()
{
    return {"Terminal queue", {std::begin(kTerminalQueue), std::end(kTerminalQueue)}};
}
