// The texts of a line: written for SQL and read again they are the same, and the plugin reads all
// else of the line as it was.

#include "fuzz/fuzztarget.h"
#include "mirovahrctl/export/sqltexts.h"
#include "worker/exportline.h"

#include <QList>

namespace {

void checkText(const QString &text, Backslash backslash)
{
    const QString written = SqlTexts::written(text, backslash);
    FuzzTarget::require(SqlTexts::meant(written, backslash) == text,
                        "Written, the text means another one: " + text);
    const auto meant = SqlTexts::meant(text, backslash);
    FuzzTarget::require(!meant || SqlTexts::written(*meant, backslash) == text,
                        "The text is taken for the written form of another one: " + text);
}

MirovaRonRecord recordOf(const QByteArray &line)
{
    const QString text = ExportLine::decode(line.constData());
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    FuzzTarget::require(parts.size() == ExportLine::kFieldCount, "Not all fields: " + text);
    return ExportLine::toRecord(parts);
}

/// A line with these texts; what separates them belongs to none.
QByteArray lineWith(const QByteArray &texts)
{
    QList<QByteArray> fields = texts.split('|').mid(0, 5);
    while (fields.size() < 5)
        fields.append(QByteArray());
    return "1234|1|" + fields.join('|') + "|||120|'%1|3||11|1|0|12.5|0\n";
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool settled = (FuzzTarget::settleZone(), true);
    Q_UNUSED(settled)
    QByteArray bytes = FuzzTarget::bytes(data, size);
    bytes.replace('\n', ' ').replace('\0', ' ');
    const QByteArray line = lineWith(bytes);
    for (const Backslash backslash : {Backslash::Escapes, Backslash::IsLiteral}) {
        checkText(QString::fromUtf8(bytes), backslash);
        const MirovaRonRecord read = recordOf(SqlTexts::writtenLine(line, backslash));
        FuzzTarget::require(SqlTexts::shown(read, backslash) == recordOf(line),
                            "The plugin reads another record: " + QString::fromUtf8(line));
    }
    return 0;
}
