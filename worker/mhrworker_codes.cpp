// Codes and dates of a record as the database's values.

#include "worker/mhrworker.h"

#include "worker/recordcodes.h"
#include "worker/recorddates.h"
#include "worker/relationshipstate.h"

QString MHRWorker::personBeginForSql(const QDate &date) const
{
    return RecordDates::personBeginForSql(date);
}

QString MHRWorker::personEndForSql(const QDate &date, bool endOfDay) const
{
    return RecordDates::personEndForSql(date, endOfDay);
}

QDate MHRWorker::datNastFromTimestamp(uint timestamp) const
{
    return RecordDates::datNastFromTimestamp(timestamp);
}

QDate MHRWorker::datVystFromTimestamp(uint timestamp) const
{
    return RecordDates::datVystFromTimestamp(timestamp);
}

ushort MHRWorker::employmentTypeFromTPP(ushort code) const
{
    return RecordCodes::employmentTypeFromTPP(code);
}

ushort MHRWorker::pamSettingsIdFromTPP(ushort code) const
{
    return RecordCodes::pamSettingsIdFromTPP(code);
}

bool MHRWorker::isRS(ushort es) const
{
    return m_mes.contains(es);
}

QString MHRWorker::es2rsText(ushort es) const
{
    const auto configured = m_mes.constFind(es);
    if (configured != m_mes.constEnd())
        return *configured;
    const char *text = RelationshipState::builtInText(es);
    return text ? tr(text) : QString();
}

QString MHRWorker::es2rsText(const MirovaRonRecord &rec) const
{
    return es2rsText(rec.evidencniStav);
}

void MHRWorker::updateRs(MirovaRonRecord &rec, const MirovaRonRecord &last) const
{
    const QDate today = QDate::currentDate();
    if (isRS(rec.evidencniStav))
        RelationshipState::carryOn(rec, last, es2rsText(rec), today);
    else
        RelationshipState::close(rec, last, today);
}

MirovaRonRecord MHRWorker::updateRs(const MirovaRonRecord &rec, const MirovaRonRecord &last) const
{
    MirovaRonRecord updated = rec;
    updateRs(updated, last);
    return updated;
}
