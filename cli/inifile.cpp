#include "cli/inifile.h"

#include <QFile>

namespace {

/// The part of a section header between the brackets. "[General]" holds the keys without a
/// group.
QString sectionName(const QString &line)
{
    const QString name = line.mid(1, line.indexOf(QLatin1Char(']')) - 1).trimmed();
    return name.compare(QLatin1String("General"), Qt::CaseInsensitive) == 0 ? QString() : name;
}

QString fullKey(const QString &section, const QString &key)
{
    return section.isEmpty() ? key : section + QLatin1Char('/') + key;
}

} // namespace

QVector<IniLine> readIniLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};

    QVector<IniLine> lines;
    QString section;
    for (qint64 number = 1; !file.atEnd(); ++number) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const int equals = line.indexOf(QLatin1Char('='));
        if (line.startsWith(QLatin1Char('[')))
            section = sectionName(line);
        else if (equals > 0 && !line.startsWith(QLatin1Char(';')))
            lines.append({number, fullKey(section, line.left(equals).trimmed()),
                          line.mid(equals + 1).trimmed()});
    }
    return lines;
}

bool hasUnquoted(const QString &value, QChar c)
{
    bool quoted = false;
    for (int i = 0; i < value.size(); ++i) {
        if (value.at(i) == QLatin1Char('\\'))
            ++i;
        else if (value.at(i) == QLatin1Char('"'))
            quoted = !quoted;
        else if (value.at(i) == c && !quoted)
            return true;
    }
    return false;
}
