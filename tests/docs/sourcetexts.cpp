#include "tests/docs/sourcetexts.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

namespace {

/// One or more string literals in a row.
const QString kLiterals = QStringLiteral(R"RX((?:"(?:[^"\\\n]|\\.)*"\s*)+)RX");

QString plainText(const QString &literals)
{
    static const QRegularExpression literal(QStringLiteral(R"RX("((?:[^"\\\n]|\\.)*)")RX"));
    QString text;
    auto matches = literal.globalMatch(literals);
    while (matches.hasNext())
        text += matches.next().captured(1);
    return text;
}

QString readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QStringList sources()
{
    QStringList sources;
    for (const char *folder : {"plugin", "worker", "db"}) {
        QDirIterator files(QStringLiteral(PROJECT_FOLDER "/") + folder, {"*.cpp", "*.h"},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            sources << readFile(files.next());
    }
    return sources;
}

/// The texts that worker/recordlog.h has names for, by their names.
QMap<QString, QString> namedTexts()
{
    static const QRegularExpression constant(
        QStringLiteral(R"RX(constexpr char (k\w+)\[\] =\s*()RX") + kLiterals + ")");
    QMap<QString, QString> texts;
    auto matches = constant.globalMatch(readFile(PROJECT_FOLDER "/worker/recordlog.h"));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        texts[match.captured(1)] = plainText(match.captured(2));
    }
    return texts;
}

QString level(const QRegularExpressionMatch &call)
{
    const QString name = call.captured("level").toLower();
    const QString comparison = call.captured("comparison");
    if (comparison.isEmpty())
        return name;
    const int operand = call.captured("operand").toInt();
    const int least = comparison == ">=" ? operand : operand + 1;
    return QStringLiteral("%1 %2").arg(name).arg(least);
}

} // namespace

QMap<QString, QSet<QString>> SourceTexts::loggedDirectly()
{
    static const QRegularExpression call(
        R"RX((?:if \((?:m_)?debugLevel (?<comparison>!=|>=|>) (?<operand>\d)\)\s*(?:\{\s*)?)?)RX"
        R"RX(\bq(?<level>Debug|Info|Warning|Critical)\((?:\)\s*<<)?\s*(?:RecordLog::(?<name>k\w+)|(?<text>)RX"
        + kLiterals + "))");
    const QMap<QString, QString> named = namedTexts();
    QMap<QString, QSet<QString>> texts;
    for (const QString &source : sources()) {
        auto matches = call.globalMatch(source);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const QString name = match.captured("name");
            texts[name.isEmpty() ? plainText(match.captured("text")) : named[name]] << level(match);
        }
    }
    return texts;
}

QSet<QString> SourceTexts::handedOn()
{
    static const QRegularExpression candidate(R"RX((QByteArray\(operation\) \+ )?()RX" + kLiterals
                                              + ")");
    QSet<QString> texts;
    for (const QString &source : sources()) {
        auto matches = candidate.globalMatch(source);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const QString text = plainText(match.captured(2));
            if (!match.captured(1).isEmpty() || text.contains("::"))
                texts << text;
        }
    }
    const QStringList direct = loggedDirectly().keys();
    return texts - QSet<QString>(direct.cbegin(), direct.cend());
}
