// A log: every text of the plugin is found and nothing else, and the history made of it adds up.

#include "fuzz/fuzztarget.h"
#include "mirovahrctl/log/loghistorybuilder.h"
#include "mirovahrctl/log/missingticks.h"
#include "mirovahrctl/pluginside/linecutter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cctype>
#include <numeric>

namespace {

/// A text of the plugin as it stands in a line, to its end.
struct PlainText {
    const LogText *text;
    QByteArray head; ///< up to its first value
    QRegularExpression line;
};

/// The forms in which a text appears, with printf()'s placeholders.
QStringList plainForms(const LogText &text)
{
    const QString name = QString::fromUtf8(text.text);
    const QString level = QString::fromUtf8(text.level);
    QStringList calls{name};
    QStringList problems{name};
    switch (text.form) {
    case Form::Part:
        return {};
    case Form::Whole:
        break;
    case Form::MessageFollows:
        problems = QStringList{name + " %s"};
        break;
    case Form::SqlError:
        problems = QStringList{name + " [%s]: %s"};
        break;
    case Form::PlanOperation:
        calls = QStringList{name + "(%s)"};
        problems = QStringList{name + " - ERROR[%i]: %s"};
        break;
    case Form::BranchOperation:
        calls = QStringList{name + "(%u)", name + "(%u, '%s')"};
        problems = QStringList{name + " - ERROR: %s"};
        break;
    case Form::TripleOperation:
        calls = QStringList{name + "(%s)"};
        problems = QStringList{name + "() - prepare failed, SQL ERROR: %s",
                               name + "() - exec failed, SQL ERROR: %s",
                               name + "() - execBatch failed, SQL ERROR: %s"};
        break;
    case Form::Statement:
        calls = QStringList{"MHRWorker - query '%s' - affected rows: %i"};
        break;
    case Form::StatementName:
        calls = QStringList{name + " - query '%s' - affected rows: %i"};
        break;
    }
    QStringList forms;
    if (level.contains("debug") || level.contains("info"))
        forms += calls;
    if (level.contains("warning") || level.contains("critical"))
        forms += problems;
    return forms;
}

/// A text in the middle ends where what follows it comes first; the last one is as long as it can
/// be.
QRegularExpression plainLine(const QString &form)
{
    QString expression;
    QString rest = form;
    for (int place = rest.indexOf('%'); place >= 0; place = rest.indexOf('%')) {
        expression += QRegularExpression::escape(rest.left(place));
        const QChar kind = rest.at(place + 1);
        rest = rest.mid(place + 2);
        const int next = rest.indexOf('%');
        if (kind != 's')
            expression += kind == 'i' ? "-?[0-9]++" : "[0-9]++";
        else if (next < 0)
            expression += ".*";
        else
            expression += "(?>.*?" + QRegularExpression::escape(rest.left(next)) + ")";
        if (kind == 's' && next >= 0)
            rest = rest.mid(next);
    }
    expression += QRegularExpression::escape(rest) + "\\z";
    return QRegularExpression(expression, QRegularExpression::DotMatchesEverythingOption);
}

QVector<PlainText> plainTexts()
{
    QVector<PlainText> texts;
    for (const LogTextGroup &group : logTextGroups()) {
        for (const LogText &text : group.texts) {
            for (const QString &form : plainForms(text))
                texts.append({&text, form.section('%', 0, 0).toUtf8(), plainLine(form)});
        }
    }
    return texts;
}

bool isWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool beginsWith(const QByteArray &line, int place, const QByteArray &head)
{
    return line.size() - place >= head.size()
        && std::equal(head.cbegin(), head.cend(), line.cbegin() + place);
}

bool matches(const PlainText &plain, const QString &line, int place,
             QRegularExpression::MatchType type = QRegularExpression::NormalMatch)
{
    const auto match = plain.line.match(line, place, type, QRegularExpression::AnchoredMatchOption);
    return match.hasMatch() || match.hasPartialMatch();
}

class LineCheck {
public:
    void check(std::string_view bytes) const
    {
        QByteArray line(bytes.data(), int(bytes.size()));
        while (!line.isEmpty() && std::isspace(static_cast<unsigned char>(line.back())) != 0)
            line.chop(1);
        LoggedText found;
        const LogMatcher::Outcome outcome = m_matcher.find(bytes, found);
        const QString text =
            QString::fromLatin1(line.constData(), line.size()); // also behind a NUL
        const int place = firstPlace(text, line);
        if (place >= 0) {
            FuzzTarget::require(outcome != LogMatcher::Outcome::Foreign
                                    && int(found.prefix.size()) <= place,
                                "A text is not found: " + text);
            FuzzTarget::require(int(found.prefix.size()) < place
                                    || outcome == LogMatcher::Outcome::Found,
                                "A text is not known: " + text);
        }
        if (outcome == LogMatcher::Outcome::Found)
            checkFound(found, text);
    }

private:
    /// Where the first text of the plugin begins in the line; -1 when there is none.
    int firstPlace(const QString &text, const QByteArray &line) const
    {
        for (int place = 0; place < line.size(); ++place) {
            if (place > 0 && isWordCharacter(line.at(place - 1)))
                continue;
            for (const PlainText &plain : m_texts) {
                if (beginsWith(line, place, plain.head) && matches(plain, text, place))
                    return place;
            }
        }
        return -1;
    }

    void checkFound(const LoggedText &found, const QString &line) const
    {
        const int place = int(found.prefix.size());
        FuzzTarget::require(place + int(found.text.size()) == line.size(),
                            "The text does not end with the line: " + line);
        const bool isThatText =
            std::any_of(m_texts.cbegin(), m_texts.cend(), [&](const PlainText &plain) {
                return plain.text == &found.pattern->text()
                    && matches(plain, line, place, QRegularExpression::PartialPreferCompleteMatch);
            });
        FuzzTarget::require(isThatText, "Another text stands there: " + line);
    }

    const LogMatcher m_matcher;
    const QVector<PlainText> m_texts = plainTexts();
};

class Counter : public LogListener {
public:
    void synchronisationOver(const LoggedSynchronisation &) override { ++over; }
    void problemLogged(const LoggedProblem &, const LogHistory &) override { ++problems; }
    void unknownLogged(const LoggedText &) override { ++unknown; }

    qint64 over = 0;
    qint64 problems = 0;
    qint64 unknown = 0;
};

void checkSynchronisation(const LoggedSynchronisation &one)
{
    FuzzTarget::require(one.created >= 0 && one.updated >= 0 && one.joined >= 0,
                        "People are counted below zero.");
    FuzzTarget::require(one.hasBegun || one.hasEnded, "A synchronisation comes from nothing.");
    FuzzTarget::require(one.seconds().value_or(0) >= 0, "A synchronisation ends before it begins.");
}

void checkHistory(const LogHistory &history, const Counter &counter, int lines)
{
    FuzzTarget::require(history.lines == lines, "Not all lines are counted.");
    FuzzTarget::require(history.pluginLines + history.unknownLines <= lines,
                        "More lines are the plugin's than there are.");
    FuzzTarget::require(history.unknownLines == counter.unknown,
                        "Not all unknown lines are told of.");
    qint64 over = 0;
    for (const LoggedSynchronisation &one : history.synchronisations) {
        checkSynchronisation(one);
        over += one.isLast ? 0 : 1;
    }
    FuzzTarget::require(over == counter.over, "Not every end of a synchronisation is told of.");
    const LoggedProblems problems = history.problems();
    const qint64 count =
        std::accumulate(problems.cbegin(), problems.cend(), qint64(0),
                        [](qint64 sum, const LoggedProblem &one) { return sum + one.count; });
    FuzzTarget::require(count == counter.problems, "Problems are lost.");
    for (const MissingTick &tick : missingTicks(history))
        FuzzTarget::require(tick.period > 0 && tick.next > tick.last, "No time is missing.");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool settled = (FuzzTarget::settleZone(), true);
    Q_UNUSED(settled)
    static const LineCheck check;
    const QByteArray log = FuzzTarget::bytes(data, size);
    QList<QByteArray> plain = log.split('\n');
    if (plain.constLast().isEmpty())
        plain.removeLast();

    Counter counter;
    LogHistoryBuilder builder(QDateTime(QDate(2026, 11, 22), QTime(12, 0)), &counter);
    int lines = 0;
    LineCutter cutter([&](std::string_view line) {
        FuzzTarget::require(plain.value(lines) == QByteArray(line.data(), int(line.size())),
                            "The line is cut elsewhere: " + QString::fromLatin1(log));
        ++lines;
        check.check(line);
        builder.take(line);
        return true;
    });
    const int block = size > 0 ? data[0] % 64 + 1 : 1;
    for (int place = 0; place < log.size(); place += block) {
        const QByteArray part = log.mid(place, block);
        cutter.take({part.constData(), size_t(part.size())});
    }
    cutter.finish();
    FuzzTarget::require(lines == plain.size(), "Lines are lost.");
    checkHistory(builder.finish(), counter, lines);
    return 0;
}
