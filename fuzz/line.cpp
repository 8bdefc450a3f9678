// One line: its text, its parts and its record are those of the plain reading.

#include "fuzz/fuzztarget.h"
#include "tests/worker/input/parttexts.h"
#include "tests/worker/input/plainreading.h"
#include "worker/exportline.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool settled = (FuzzTarget::settleZone(), true);
    Q_UNUSED(settled)
    QByteArray line = FuzzTarget::bytes(data, size);
    line.replace('\n', ' ');

    const QString text = ExportLine::decode(line.constData());
    const QStringList texts = PlainReading::lines(line);
    FuzzTarget::require(texts == (text.isEmpty() ? QStringList() : QStringList(text)),
                        "The text of the line is not what stands there: " + text);

    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    const QStringList plainParts = PlainReading::parts(text);
    FuzzTarget::require(textsOf(parts) == plainParts, "The parts differ: " + text);
    if (parts.size() != ExportLine::fieldNames().size())
        return 0;

    const MirovaRonRecord record = ExportLine::toRecord(parts);
    FuzzTarget::require(PlainReading::areSame(record, PlainReading::record(plainParts)),
                        "The record is not what the fields say: " + text);
    FuzzTarget::require(ExportLine::isUsable(record) == PlainReading::isKept(record),
                        "The record is not kept, or kept, by mistake: " + text);
    return 0;
}
