#include "worker/relationshipstate.h"

namespace RelationshipState {

const char *builtInText(ushort es)
{
    switch (es) {
    case 0:
        return "aktívny právny vzťah";
    case 1:
        return "v skúšobnej dobe";
    case 2:
        return "vo výpovednej dobe";
    case 3:
        return "skončený právny vzťah";
    case 21:
        return "materská dovolenka";
    case 22:
        return "rodičovská dovolenka";
    case 24:
        return "rodičovská dovolenka (nad 3r)";
    case 53:
        return "výkon trestu";
    case 71:
        return "neplatené voľno";
    case 560:
        return "dlhodobé platené voľno";
    default:
        return nullptr;
    }
}

void carryOn(MirovaRonRecord &record, const MirovaRonRecord &last, const QString &text,
             const QDate &today)
{
    const bool running =
        last.rsFrom.isValid() && last.rsFrom < today && (!last.rsTo.isValid() || last.rsTo > today);
    record.rsFrom = running ? last.rsFrom : today;
    record.rsTo = last.rsTo.isValid() && last.rsTo > today ? last.rsTo : QDate();
    record.rsText = text;
}

void close(MirovaRonRecord &record, const MirovaRonRecord &last, const QDate &today)
{
    const bool closed = last.rsTo.isValid() && last.rsTo >= last.rsFrom;
    record.rsFrom = last.rsFrom;
    if (!last.rsFrom.isValid())
        record.rsTo = QDate();
    else
        record.rsTo = closed ? last.rsTo : today;
    record.rsText = last.rsText;
}

} // namespace RelationshipState
