#include "mirovahrctl/export/namedexport.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/program/console.h"
#include "worker/importfile.h"

std::optional<ExitStatus> NamedExport::open(const QString &path, QFile &file, Console &console)
{
    QString error;
    switch (ImportFile::open(path, file, error)) {
    case ImportFile::Opening::Done:
        return std::nullopt;
    case ImportFile::Opening::NotFound:
        return console.fail(ExitStatus::Usage, Text::tr("There is no file '%1'").arg(path));
    case ImportFile::Opening::Failed:
        break;
    }
    return console.fail(ExitStatus::Usage,
                        Text::tr("'%1' cannot be opened: %2").arg(path, systemMessage(error)));
}

ExitStatus NamedExport::failReading(const QString &path, const QString &reason, Console &console)
{
    return console.fail(
        ExitStatus::Usage,
        Text::tr("'%1' cannot be read to its end: %2").arg(path, systemMessage(reason)));
}
