// A date field: the short way through it ends where Qt's own parser does.

#include "fuzz/fuzztarget.h"
#include "worker/exportline.h"

#include <QDateTime>

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool settled = (FuzzTarget::settleZone(), true);
    Q_UNUSED(settled)
    const QString format = QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz");
    const QString text = QString::fromUtf8(FuzzTarget::bytes(data, size));
    FuzzTarget::require(ExportLine::parseDate(text, format)
                            == QDateTime::fromString(text, format).date(),
                        "The date is not what Qt reads: " + text);
    return 0;
}
