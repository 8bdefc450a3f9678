#include "tests/plugin/randomconfiguration.h"

#include <QRegularExpression>
#include <QSettings>
#include <QVariant>

#include <limits>
#include <optional>

namespace {

const QStringList kFlags = {"enabled", "testMode", "deleteFile"};
const QStringList kNumbers = {"timerInterval", "syncInterval", "syncCommandRun", "departmentId"};
const QStringList kTexts = {"importFile", "syncCommand"};

/// The number of a text of decimal digits, blanks around them and a plus sign allowed; nothing for
/// any other text and for what exceeds the range.
std::optional<quint64> decimal(const QString &text, quint64 largest)
{
    QString digits = text.trimmed();
    if (digits.startsWith('+'))
        digits.remove(0, 1);
    if (digits.isEmpty())
        return std::nullopt;
    quint64 number = 0;
    for (const QChar c : qAsConst(digits)) {
        if (c < QChar('0') || c > QChar('9'))
            return std::nullopt;
        const quint64 digit = c.unicode() - u'0';
        if (number > (largest - digit) / 10)
            return std::nullopt;
        number = number * 10 + digit;
    }
    return number;
}

/// As a file writes a text: with quotes, unless it needs none.
QByteArray quoted(const QString &text)
{
    static const QRegularExpression plain("^[A-Za-z0-9/._+-]+$");
    if (plain.match(text).hasMatch())
        return text.toUtf8();
    QString escaped = text;
    escaped.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + escaped.toUtf8() + '"';
}

IniValue valueOf(const QVariant &value)
{
    switch (value.type()) {
    case QVariant::String:
    case QVariant::ByteArray:
        return {false, value.toString()};
    default:
        return {true, QString()};
    }
}

} // namespace

// ---- What a configuration says ------------------------------------------------------------------

bool PlainConfiguration::flag(const QString &key, bool fallback) const
{
    if (!keys.contains(key))
        return fallback;
    const IniValue value = keys.value(key);
    return !value.isList && !QStringList({"", "0", "false"}).contains(value.text.toLower());
}

quint32 PlainConfiguration::number(const QString &key, quint32 fallback) const
{
    if (!keys.contains(key))
        return fallback;
    const IniValue value = keys.value(key);
    if (value.isList)
        return 0;
    // A QVariant reads 64 bits and keeps 32 of them.
    const quint64 number = decimal(value.text, std::numeric_limits<quint64>::max()).value_or(0);
    return quint32(number & 0xFFFFFFFFU);
}

QString PlainConfiguration::text(const QString &key) const
{
    return keys.value(key).text;
}

QHash<ushort, QString> PlainConfiguration::messageTable() const
{
    QHash<ushort, QString> table;
    for (auto it = messages.cbegin(); it != messages.cend(); ++it) {
        const quint64 code = decimal(it.key(), 0xFFFFFFFFU).value_or(0);
        // By way of bytes, on which a byte order mark and a NUL have a meaning.
        table.insert(ushort(code & 0xFFFFU), QString::fromUtf8(it->text.toUtf8()));
    }
    return table;
}

quint32 PlainConfiguration::tickMilliseconds() const
{
    return quint32((quint64(number("timerInterval", 60)) * 1000) & 0xFFFFFFFFU);
}

int PlainConfiguration::timerPeriod() const
{
    return int(qBound<quint32>(1000, tickMilliseconds(), 0x7FFFFFFF));
}

PlainConfiguration PlainConfiguration::ofFile(const QString &path)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    PlainConfiguration content;
    for (const QString &key : settings.allKeys()) {
        if (key.startsWith("MES/"))
            content.messages.insert(key.mid(4), valueOf(settings.value(key)));
        else
            content.keys.insert(key, valueOf(settings.value(key)));
    }
    return content;
}

// ---- Random configurations ----------------------------------------------------------------------

RandomConfigurations::RandomConfigurations(quint32 seed, const QString &importFile)
    : m_random(seed)
    , m_importFile(importFile)
{
}

QString RandomConfigurations::number()
{
    static const QStringList numbers = {"0",
                                        "1",
                                        "2",
                                        "3",
                                        "60",
                                        "255",
                                        "256",
                                        "257",
                                        "65535",
                                        "65536",
                                        "2147483",
                                        "2147484",
                                        "4294967",
                                        "4294968",
                                        "2147483647",
                                        "2147483648",
                                        "4294967295",
                                        "4294967296",
                                        "4294967297",
                                        "9223372036854775808",
                                        "18446744073709551615",
                                        "18446744073709551616",
                                        "99999999999999999999999"};
    switch (below(4)) {
    case 0:
        return QString::number(m_random.generate() >> below(32));
    case 1:
        return QString::number(m_random.generate64() >> below(64));
    case 2:
        return pick({"-1", "+7", "007", "1.5", "1e3", "0x10", " 12 ", "12s", "1 000", "", "abc",
                     "true", "false", "٣", "-0", "+", "++1"});
    default:
        return pick(numbers);
    }
}

IniValue RandomConfigurations::value(const QString &key)
{
    if (oneIn(12))
        return {true, {}};
    if (oneIn(6))
        return {false, number()};
    if (kFlags.contains(key)) {
        return {false,
                pick({"true", "false", "TRUE", "False", "FALSE", "0", "1", "", "no", "off", "yes",
                      " false", "00", "f", "nepravda"})};
    }
    if (kNumbers.contains(key))
        return {false, number()};
    if (key == "importFile" && oneIn(2))
        return {false, m_importFile};
    return {false,
            pick({"/no/such/a", "/no/such/ž b", "/no/such/\\c", "/no/such/\"d\" e", "/no/such/a, b",
                  "/no/such/;x", "/no/such/%41", "/no/such/x=y", ""})};
}

/// The key with a value, which is then the one that holds.
QByteArray RandomConfigurations::line(const QString &key, QMap<QString, IniValue> &keys)
{
    const IniValue chosen = value(key);
    keys.insert(key, chosen);
    const QByteArray text = chosen.isList ? QByteArray("a, 2, b c") : quoted(chosen.text);
    return key.toUtf8() + (oneIn(3) ? " = " : "=") + text + '\n';
}

QByteArray RandomConfigurations::message(QMap<QString, IniValue> &messages)
{
    const QString code = oneIn(3)
        ? pick({"seven", "-1", "007", "7.0", "65543", "4294967303", "4294967295"})
        : QString::number(below(100));
    const IniValue text = oneIn(10)
        ? IniValue{true, {}}
        : IniValue{false,
                   pick({"rodičovská dovolenka", "at home, ill", "", "7", "žiaľ; \"nie\"", "a\\b",
                         "€", "👤", "false"})};
    messages.insert(code, text);
    return code.toUtf8() + '=' + (text.isList ? QByteArray("x, y") : quoted(text.text)) + '\n';
}

QByteArray RandomConfigurations::wellFormed(PlainConfiguration &content)
{
    const QStringList keys = kFlags + kNumbers + kTexts;
    QByteArray file = oneIn(4) ? "[General]\n" : "";
    const int mostlyOn = below(4);
    if (mostlyOn != 0) {
        file += "enabled=true\n";
        content.keys.insert("enabled", {false, "true"});
    }
    for (int count = below(14); count > 0; --count) {
        const QString key = pick(keys);
        if (key != "enabled" || mostlyOn == 0)
            file += line(key, content.keys);
        if (oneIn(8))
            file += pick({"; timerInterval=1\n", "\n", "Enabled=false\n", "unknown=1\n"}).toUtf8();
    }
    if (oneIn(3))
        file += "[Other]\nenabled=false\ntimerInterval=1\nimportFile=/no/such/other\n";
    if (oneIn(2)) {
        file += "[MES]\n";
        for (int count = below(8); count > 0; --count)
            file += message(content.messages);
    }
    if (oneIn(6))
        file.replace("\n", "\r\n");
    return file;
}

QByteArray RandomConfigurations::damaged()
{
    QByteArray file;
    if (oneIn(6)) {
        for (int length = below(400); length > 0; --length)
            file += char(below(256));
        return file;
    }
    PlainConfiguration ignored;
    file = wellFormed(ignored);
    for (int changes = 1 + below(8); changes > 0; --changes) {
        const int at = below(file.size() + 1);
        switch (below(5)) {
        case 0:
            file.truncate(at);
            break;
        case 1:
            file.remove(at, 1 + below(5));
            break;
        case 2:
            file.insert(at, char(below(256)));
            break;
        case 3:
            file.insert(at, file.mid(below(file.size() + 1), below(60)));
            break;
        default:
            file.insert(at,
                        pick({"\"",          "\\",       "\\x",        "[",
                              "]",           "=",        "\n",         "\r",
                              ";",           ",",        "%",          "%zz",
                              "@",           "@@",       "@Invalid()", "@ByteArray(7)",
                              "\\x263a",     "\uFEFF",   "/",          "[MES]\n",
                              "[General]\n", "\n[MES\n", "enabled\n"})
                            .toUtf8());
        }
    }
    return file;
}
