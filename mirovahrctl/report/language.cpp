#include "mirovahrctl/report/language.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <clocale>
#include <iterator>
#include <limits>

namespace {

struct Known {
    const char *code;
    const char *locale; ///< of the system's own messages, such as that of a file that is missing
};

/// The first is that of any other locale.
constexpr Known kKnown[] = {{"en", "C"}, {"cs", "cs_CZ.UTF-8"}, {"sk", "sk_SK.UTF-8"}};

const Known &known(const QString &code)
{
    const auto *const found =
        std::find_if(std::begin(kKnown), std::end(kKnown), [&code](const Known &language) {
            return code == QLatin1String(language.code);
        });
    return found == std::end(kKnown) ? kKnown[0] : *found;
}

/// In use.
const Known *current = &kKnown[0];

/// One for all languages, so that another translator stays before or behind it.
QTranslator &translator()
{
    static QTranslator translator;
    return translator;
}

void use(const Known &language)
{
    current = &language;
    // English has its file as well, for the plural forms.
    const QString file = QStringLiteral(":/translations/%1.qm").arg(Language::code());
    if (!translator().load(file))
        qFatal("%s cannot be loaded", qUtf8Printable(file));
    // The numbers of English reports are those of JSON: without separators.
    QLocale::setDefault(Language::isEnglish() ? QLocale::c() : QLocale(Language::code()));
    if (std::setlocale(LC_MESSAGES, language.locale) == nullptr)
        std::setlocale(LC_MESSAGES, "C");
}

} // namespace

// Outside of the namespace: the macro declares a function of the resource.
static void startTranslating()
{
    Q_INIT_RESOURCE(translations);
    use(kKnown[0]);
    QCoreApplication::installTranslator(&translator());
}
Q_COREAPP_STARTUP_FUNCTION(startTranslating)

QStringList Language::codes()
{
    QStringList codes;
    for (const Known &language : kKnown)
        codes += QLatin1String(language.code);
    codes.sort();
    return codes;
}

QString Language::ofLocale()
{
    for (const char *const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty())
            return QLatin1String(
                known(QLocale(locale).name().section(QLatin1Char('_'), 0, 0)).code);
    }
    return QLatin1String(kKnown[0].code);
}

void Language::use(const QString &code)
{
    ::use(known(code));
}

QString Language::code()
{
    return QLatin1String(current->code);
}

bool Language::isEnglish()
{
    return current == &kKnown[0];
}

int Language::count(qint64 number)
{
    return static_cast<int>(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

QString Language::number(qint64 number)
{
    return QLocale().toString(number);
}

QString Language::number(double number, int digits)
{
    return QLocale().toString(number, 'f', digits);
}
