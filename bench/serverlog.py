"""A made-up log of an attendance server: synchronisations at debug level 3, among lines of others."""

import datetime
import itertools

import data

#: One of so many people is updated, and of these every second one waits for a branch.
CHANGED = 50

#: People of one synchronisation.
PEOPLE = 10_000

#: One of so many lines is not the plugin's.
OTHERS = 10


def record(person):
    """The person as the plugin's texts have it."""
    return (f"{person.personal_number}.1 {person.surname} {person.name} (S: {person.cost_centre}, "
            f"K: {person.calendar} from {person.calendar_since:%d.%m.%Y}) N-V: "
            f"{person.begin:%d.%m.%Y} - ")


def texts_of_person(person):
    yield f"MHRWorker::doSyncRecord({record(person)})"
    yield f"MHRWorker::dbCheckFundMove(pid: {person.pid})"
    yield f"MHRWorker::dbCheckFundMove(pid: {person.pid}): OK - non exists"
    yield f"MHRWorker::loadFundStatusAndMove3(pid: {person.pid})"
    yield f"MHRWorker::loadFundStatusAndMove3(pid: {person.pid}): 1250, load OK: YES"
    if person.uid % CHANGED == 0:
        yield f"MHRWorker::dbUpdatePerson({person.personal_number}.1)"
        yield f"MHRWorker::addTermSyncPerson({person.uid}, people, uid)"
    if person.uid % (2 * CHANGED) == 0:
        yield (f"MHRWorker: Branch '{person.cost_centre}' NOT FOUND for employee: "
               f"'{record(person)}'")


def texts_of_synchronisation(number, everybody):
    yield f"MHRWorker::checkSync(): #{number}"
    yield f"MHRWorker: BEGIN synchronization #{number} (force: NO)"
    for person in everybody:
        yield f"MHRWorker::parseLine('{person.line()}')"
    yield f"MHRWorker::doSync() - stack count: {len(everybody)}"
    yield "MHRWorker::checkDovolenkaFond(): fid=2"
    for person in everybody:
        yield from texts_of_person(person)
    yield f"MHRWorker: END synchronization #{number} (waiting records: {PEOPLE // (2 * CHANGED)})"


def texts():
    everybody = data.people(PEOPLE)
    for number in itertools.count(1):
        yield from texts_of_synchronisation(number, everybody)


def write(path, lines):
    """Writes so many lines, a thousand a second."""
    time = datetime.datetime(2026, 11, 22)
    plugin = texts()
    with open(path, "w", encoding="utf-8") as file:
        for nth in range(lines):
            if nth % 1000 == 0:
                time += datetime.timedelta(seconds=1)
            if nth % OTHERS == 0:
                text = "other[4]: A job of another program has ended"
            else:
                text = "yav[12]: " + next(plugin)
            file.write(f"{time:%b %d %H:%M:%S} host {text}\n")
