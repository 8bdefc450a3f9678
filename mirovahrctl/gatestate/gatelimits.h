#pragma once

#include <QtGlobal>

#include <array>

/// How much may change from one file to the next.
struct GateLimit {
    /// A count that limits nothing: more than any file has.
    static constexpr qint64 kAny = 1000000000;

    qint64 count = 0;
    double percent = 0;
};

/// What the gate allows. The defaults suit firms of ten to ten thousand people.
struct GateLimits {
    /// So many are no reason for a refusal, whatever percentage they are: in a firm of ten, one
    /// person who leaves is 10 percent.
    qint64 few = 2;

    GateLimit lostLines{50, 5}; ///< of the lines that the plugin reads as people
    GateLimit repeatedLines{50, 5}; ///< of the same lines
    GateLimit leaving{50, 5}; ///< of the employed people
    GateLimit moving{100, 10}; ///< of the employed people
    GateLimit added{500, 10}; ///< of the people of the last admitted file
    GateLimit returning{50, 2}; ///< of the employed people
    GateLimit supervisors{100, 10}; ///< of the people with a supervisor
    /// Of the people with a balance other than 0, for each kind of suspicious change.
    GateLimit balances{GateLimit::kAny, 25};
    // Each for every single field, but for those that have a limit of their own.
    GateLimit changed{1000, 20}; ///< of the people who stay in the file
    GateLimit emptied{100, 5}; ///< of those of them who had a value
    GateLimit misread{100, 5}; ///< of the people with a value

    /// True when \a number exceeds the limit's count, or its percentage of \a whole and few.
    bool isExceeded(const GateLimit &limit, qint64 number, qint64 whole) const
    {
        return number > limit.count
            || (number > few && double(number) * 100 > limit.percent * double(whole));
    }
};

/// A limit on the command line: two options, NAME and NAME-percent.
struct GateLimitOption {
    const char *name;
    GateLimit GateLimits::*limit;
    const char *refuses; ///< what the number is for, with a place for the default
    const char *percentage; ///< what the percentage is of, likewise
};

/// All of them, in the order of the help text.
inline constexpr std::array kGateLimitOptions{
    GateLimitOption{
        "max-lost-lines", &GateLimits::lostLines,
        QT_TRANSLATE_NOOP("Text", "Refuse a file that has lost more lines than this; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the lines; default: %1.")},
    GateLimitOption{"max-repeated-lines", &GateLimits::repeatedLines,
                    QT_TRANSLATE_NOOP("Text",
                                      "Refuse a file that has more lines than this about people of "
                                      "earlier lines; default: %1."),
                    QT_TRANSLATE_NOOP("Text", "The same in percent of the lines; default: %1.")},
    GateLimitOption{
        "max-leaving", &GateLimits::leaving,
        QT_TRANSLATE_NOOP("Text",
                          "Refuse a file that lets more people leave than this; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the employed people; default: %1.")},
    GateLimitOption{
        "max-moving", &GateLimits::moving,
        QT_TRANSLATE_NOOP(
            "Text",
            "Refuse a file that gives more people than this another cost centre; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the employed people; default: %1.")},
    GateLimitOption{
        "max-new", &GateLimits::added,
        QT_TRANSLATE_NOOP("Text", "Refuse a file that has more new people than this; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the people; default: %1.")},
    GateLimitOption{
        "max-returning", &GateLimits::returning,
        QT_TRANSLATE_NOOP(
            "Text",
            "Refuse a file that lets more people than this return who had left; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the employed people; default: %1.")},
    GateLimitOption{
        "max-supervisors", &GateLimits::supervisors,
        QT_TRANSLATE_NOOP("Text",
                          "Refuse a file that gives more people than this another supervisor "
                          "without a visible reason; default: %1."),
        QT_TRANSLATE_NOOP("Text",
                          "The same in percent of the people with a supervisor; default: %1.")},
    GateLimitOption{
        "max-balances", &GateLimits::balances,
        QT_TRANSLATE_NOOP("Text",
                          "Refuse a file that sets more vacation balances than this to 0, beyond "
                          "what is plausible, or to the same multiple; default: %1."),
        QT_TRANSLATE_NOOP("Text",
                          "The same in percent of the people with a balance; default: %1.")},
    GateLimitOption{
        "max-changed", &GateLimits::changed,
        QT_TRANSLATE_NOOP(
            "Text",
            "Refuse a file that changes more values than this of any other field; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the people; default: %1.")},
    GateLimitOption{
        "max-emptied", &GateLimits::emptied,
        QT_TRANSLATE_NOOP(
            "Text", "Refuse a file that empties more values than this of any field; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the people with a value; default: %1.")},
    GateLimitOption{
        "max-misread", &GateLimits::misread,
        QT_TRANSLATE_NOOP("Text",
                          "Refuse a file that has more values than this of any field that the "
                          "plugin misreads; default: %1."),
        QT_TRANSLATE_NOOP("Text", "The same in percent of the people with a value; default: %1.")},
};
