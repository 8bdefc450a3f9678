#include "cli/connectionfile.h"

#include "cli/inifile.h"
#include "cli/numberoption.h"
#include "cli/passwordfile.h"
#include "cli/text.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <iterator>

namespace {

struct TextKey {
    const char *name;
    QString DatabaseOptions::*option;
};

constexpr TextKey kTextKeys[] = {
    {"connect-options", &DatabaseOptions::connectOptions},
    {"database", &DatabaseOptions::name},
    {"host", &DatabaseOptions::host},
    {"socket", &DatabaseOptions::socket},
    {"user", &DatabaseOptions::user},
};

/// The key whose value ends at a semicolon outside quotation marks: QSettings takes the rest for a
/// comment, without an error. Empty when there is none.
QString keyOfCutValue(const QString &path)
{
    const QVector<IniLine> lines = readIniLines(path);
    const auto cut = std::find_if(lines.cbegin(), lines.cend(), [](const IniLine &line) {
        return line.key.startsWith(QLatin1String("client/"))
            && hasUnquoted(line.value, QLatin1Char(';'));
    });
    return cut == lines.cend() ? QString() : cut->key.section(QLatin1Char('/'), 1);
}

} // namespace

QString ConnectionFile::read(const QString &path)
{
    m_path = path;
    const QFileInfo info(path);
    if (!info.isFile())
        return Text::tr("There is no file '%1'").arg(path);
    if (!info.isReadable())
        return Text::tr("'%1' cannot be read").arg(path);
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const QString error = readKeys(settings);
    return error.isEmpty() ? QString() : QStringLiteral("'%1': %2").arg(path, error);
}

QString ConnectionFile::readPassword(QString &password, QString &warning) const
{
    if (!m_passwordFile.isEmpty())
        return readPasswordFile(m_passwordFile, password, warning);
    if (!m_password.isEmpty() && isReadableForAll(m_path)) {
        warning = Text::tr("Every user of the machine can read '%1': the password in it is "
                           "not used. Remove the permission (chmod o-r)")
                      .arg(m_path);
        return {};
    }
    password = m_password;
    return {};
}

QString ConnectionFile::readKeys(QSettings &settings)
{
    const QStringList strays = settings.childKeys();
    if (!strays.isEmpty()) {
        return Text::tr("the key '%1' belongs to no group; write [client] above it")
            .arg(strays.constFirst());
    }
    const QString cut = keyOfCutValue(m_path);
    if (!cut.isEmpty())
        return Text::tr("the value of '%1' has a semicolon; put it in quotation marks").arg(cut);
    settings.beginGroup(QStringLiteral("client"));
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        const QString error = take(key, settings.value(key));
        if (!error.isEmpty())
            return error;
    }
    if (settings.status() != QSettings::NoError) {
        return Text::tr("there are lines that are neither [group], nor key = value, nor a "
                        "comment that begins with a semicolon");
    }
    return check();
}

QString ConnectionFile::take(const QString &key, const QVariant &value)
{
    if (value.type() == QVariant::StringList)
        return Text::tr("the value of '%1' has a comma; put it in quotation marks").arg(key);
    const QString text = value.toString();
    if (key == QLatin1String("port")) {
        return readNumber(text, kLargestPort, m_options.port)
            ? QString()
            : Text::tr("the port is a number from 0 to %1").arg(kLargestPort);
    }
    if (key == QLatin1String("read-timeout")) {
        return readNumber(text, kLongestReadTimeout, m_options.readTimeout)
            ? QString()
            : Text::tr("the read timeout is a number of seconds from 0 to %1")
                  .arg(kLongestReadTimeout);
    }
    if (key == QLatin1String("password")) {
        m_password = text;
        return {};
    }
    if (key == QLatin1String("password-file")) {
        m_passwordFile = QFileInfo(m_path).dir().filePath(text);
        return {};
    }
    const auto *const found =
        std::find_if(std::begin(kTextKeys), std::end(kTextKeys),
                     [&key](const TextKey &known) { return key == QLatin1String(known.name); });
    if (found == std::end(kTextKeys))
        return Text::tr("the key '%1' is unknown").arg(key);
    m_options.*found->option = text;
    return {};
}

QString ConnectionFile::check() const
{
    if (!m_options.host.isEmpty() && !m_options.socket.isEmpty())
        return Text::tr("it names both a host and a socket");
    if (!m_password.isEmpty() && !m_passwordFile.isEmpty())
        return Text::tr("it names both a password and a password-file");
    return {};
}
