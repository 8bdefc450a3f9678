#include "mirovahrctl/gate/gatecomparison.h"

#include "worker/mirovaronrecord.h"
#include "worker/recordcodes.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

constexpr qint32 kOpenEnd = std::numeric_limits<qint32>::max();
constexpr int kBitsOfNumber = 32;

quint64 key(const MirovaRonRecord &record)
{
    return quint64(record.osobniCislo) << kBitsOfNumber | record.poradoveCisloPP;
}

qint32 endOf(const MirovaRonRecord &record)
{
    return record.datumVystupu.isValid() ? qint32(record.datumVystupu.toJulianDay()) : kOpenEnd;
}

/// The state alone, without the last day.
bool continues(MirovaRonRecord record, const QDate &today)
{
    record.datumVystupu = QDate();
    return RecordCodes::isActive(record, today);
}

void sort(QVector<GateComparison::Change> &changes)
{
    std::sort(changes.begin(), changes.end(),
              [](const GateComparison::Change &a, const GateComparison::Change &b) {
                  return std::tie(a.osobniCislo, a.poradoveCisloPP)
                      < std::tie(b.osobniCislo, b.poradoveCisloPP);
              });
}

} // namespace

QString GateComparison::Change::person() const
{
    return QStringLiteral("%1.%2").arg(osobniCislo).arg(poradoveCisloPP);
}

GateComparison::GateComparison(const QDate &today)
    : m_today(today)
{
}

void GateComparison::addOld(const MirovaRonRecord &record)
{
    ++m_oldLines;
    Relationship &relationship = m_relationships[key(record)];
    relationship.oldEnd = endOf(record);
    relationship.oldCostCentre = record.stredisko;
    relationship.wasActive = RecordCodes::isActive(record, m_today);
}

void GateComparison::addNew(const MirovaRonRecord &record)
{
    ++m_newLines;
    Relationship &relationship = m_relationships[key(record)];
    relationship.newEnd = endOf(record);
    relationship.newCostCentre = record.stredisko;
    relationship.continues = continues(record, m_today);
}

GateComparison::Result GateComparison::result() const
{
    Result result;
    result.oldLines = m_oldLines;
    result.newLines = m_newLines;
    for (auto it = m_relationships.cbegin(); it != m_relationships.cend(); ++it) {
        if (!it->wasActive)
            continue;
        ++result.working;
        const Change change{quint32(it.key() >> kBitsOfNumber), quint32(it.key()),
                            it->oldCostCentre, it->newCostCentre};
        if (it->leaves())
            result.leaving.append(change);
        else if (it->newCostCentre != it->oldCostCentre)
            result.moving.append(change);
    }
    sort(result.leaving);
    sort(result.moving);
    return result;
}
