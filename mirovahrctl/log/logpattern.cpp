#include "mirovahrctl/log/logpattern.h"

#include <QString>
#include <QStringList>

namespace {

using Level = LogPattern::Level;

constexpr struct {
    const char *word;
    Level level;
} kLevels[] = {
    {"debug", Level::Debug},
    {"info", Level::Info},
    {"warning", Level::Warning},
    {"critical", Level::Critical},
};

/// The statement's text behind the name of an operation.
constexpr char kStatement[] = " - query '%s' - affected rows: %i";

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), size_t(bytes.size())};
}

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

size_t lengthOfNumber(std::string_view text, bool isSigned)
{
    const size_t sign = isSigned && startsWith(text, "-") ? 1 : 0;
    size_t end = sign;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end > sign ? end : 0;
}

/// What a call of the text's operation looks like.
QVector<QByteArray> callFormats(const LogText &text)
{
    const QByteArray name(text.text);
    switch (text.form) {
    case Form::PlanOperation:
    case Form::TripleOperation:
        return {name + "(%s)"};
    case Form::BranchOperation:
        return {name + "(%u)", name + "(%u, '%s')"};
    case Form::Statement:
        return {QByteArray("MHRWorker") + kStatement};
    case Form::StatementName:
        return {name + kStatement};
    default:
        return {name};
    }
}

QVector<QByteArray> problemFormats(const LogText &text)
{
    const QByteArray name(text.text);
    switch (text.form) {
    case Form::MessageFollows:
        return {name + " %s"};
    case Form::SqlError:
        return {name + " [%s]: %s"};
    case Form::PlanOperation:
        return {name + " - ERROR[%i]: %s"};
    case Form::BranchOperation:
        return {name + " - ERROR: %s"};
    case Form::TripleOperation:
        return {name + "() - prepare failed, SQL ERROR: %s",
                name + "() - exec failed, SQL ERROR: %s",
                name + "() - execBatch failed, SQL ERROR: %s"};
    default:
        return {name};
    }
}

Level levelOf(const QString &word)
{
    for (const auto &level : kLevels) {
        if (word == QLatin1String(level.word))
            return level.level;
    }
    qFatal("%s is no level", qPrintable(word));
}

} // namespace

std::vector<LogPattern> LogPattern::of(const LogText &text)
{
    std::vector<LogPattern> patterns;
    if (text.form == Form::Part)
        return patterns;
    const QStringList levels = QString::fromLatin1(text.level).split(QStringLiteral(", "));
    for (const QString &words : levels) {
        const Level level = levelOf(words.section(QLatin1Char(' '), 0, 0));
        const int debugLevel = words.section(QLatin1Char(' '), 1, 1).toInt();
        const auto formats = level >= Level::Warning ? problemFormats(text) : callFormats(text);
        for (const QByteArray &format : formats) {
            LogPattern pattern(text, format, level);
            pattern.m_debugLevel = debugLevel;
            patterns.push_back(pattern);
        }
    }
    return patterns;
}

LogPattern::LogPattern(const LogText &text, const QByteArray &format, Level level)
    : m_text(&text)
    , m_level(level)
    , m_ownValues(QByteArray(text.text).count('%'))
{
    Piece piece;
    for (int i = 0; i < format.size(); ++i) {
        if (format.at(i) != '%') {
            piece.literal += format.at(i);
            continue;
        }
        piece.value = format.at(++i);
        m_pieces.push_back(piece);
        piece = Piece();
    }
    m_pieces.push_back(piece);
    for (const Piece &one : m_pieces)
        m_weight += one.literal.size();
}

LogPattern::Fit LogPattern::match(std::string_view line, LogValues &values) const
{
    for (size_t i = 0; i < m_pieces.size(); ++i) {
        const std::string_view literal = view(m_pieces[i].literal);
        if (!startsWith(line, literal))
            return startsWith(literal, line) ? Fit::Cut : Fit::None;
        line.remove_prefix(literal.size());
        if (m_pieces[i].value == 0)
            break;
        const Fit fit = findValue(i, line, values[i]);
        if (fit != Fit::Whole)
            return fit;
        line.remove_prefix(values[i].size());
    }
    return line.empty() ? Fit::Whole : Fit::None;
}

LogPattern::Fit LogPattern::findValue(size_t piece, std::string_view rest,
                                      std::string_view &value) const
{
    const char kind = m_pieces[piece].value;
    if (kind != 's') {
        const bool isSigned = kind == 'i';
        value = rest.substr(0, lengthOfNumber(rest, isSigned));
        if (!value.empty())
            return Fit::Whole;
        return rest.empty() || (isSigned && rest == "-") ? Fit::Cut : Fit::None;
    }
    const Piece &next = m_pieces[piece + 1];
    const std::string_view literal = view(next.literal);
    // The last text may itself hold what follows it.
    const size_t end = next.value != 0 ? rest.find(literal)
        : endsWith(rest, literal)      ? rest.size() - literal.size()
                                       : std::string_view::npos;
    if (end == std::string_view::npos)
        return Fit::Cut;
    value = rest.substr(0, end);
    return Fit::Whole;
}
