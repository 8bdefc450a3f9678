#include "tests/mirovahrctl/gate/firm.h"
#include "tests/mirovahrctl/gate/gatesite.h"

#include <QTest>
#include <QTextCodec>

#include <map>
#include <memory>

namespace {

using Row = ExportRow;
using Rows = QVector<ExportRow>;

/// A way in which a program of HR's damages the whole export.
struct Damage {
    const char *name;
    const char *rule; ///< that refuses the export
    QByteArray (*damaged)(const Rows &people);
    /// So few people cannot be told from the life of a firm: nothing is refused.
    bool isLifeInAFirmOfTwelve = false;
};

/// The export after a change of every line.
template <typename Change> QByteArray each(Rows people, const Change &change)
{
    for (Row &person : people)
        change(person);
    return GatePeople::file(people);
}

template <QString Row::*field> QByteArray emptied(const Rows &people)
{
    return each(people, [](Row &person) { person.with(field, ""); });
}

/// Every balance after a change of its number of days.
template <typename Change> QByteArray balances(const Rows &people, const Change &change)
{
    return each(people, [&change](Row &person) {
        person.with(&Row::dovolenaZustatek,
                    QString::number(change(person.dovolenaZustatek.toDouble())));
    });
}

QString inCzech(const QString &date)
{
    const QDate day = QDate::fromString(date.left(10), Qt::ISODate);
    return day.isValid() ? day.toString("d.M.yyyy") : QString();
}

QByteArray encodedTwice(const Rows &people, const char *encoding)
{
    const QByteArray once = GatePeople::file(people);
    return QTextCodec::codecForName(encoding)->toUnicode(once).toUtf8();
}

const Damage kDamages[] = {
    {"decimal commas", "values-misread",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.dovolenaZustatek.replace('.', ','); });
     }},
    {"dates in Czech", "values-misread",
     [](const Rows &people) {
         return each(people, [](Row &person) {
             for (auto field : {&Row::datumNastupu, &Row::datumVystupu, &Row::kalendarPlatnostOd})
                 person.with(field, inCzech(person.*field));
         });
     }},
    {"dates without a time", "values-misread",
     [](const Rows &people) {
         return each(people, [](Row &person) {
             for (auto field : {&Row::datumNastupu, &Row::datumVystupu, &Row::kalendarPlatnostOd})
                 person.with(field, (person.*field).left(10));
         });
     }},
    {"windows-1250", "values-misread",
     [](const Rows &people) {
         return QTextCodec::codecForName("windows-1250")
             ->fromUnicode(QString::fromUtf8(GatePeople::file(people)));
     }},
    {"encoded twice", "values-misread",
     [](const Rows &people) {
         return encodedTwice(people, "ISO-8859-1");
     }},
    {"encoded twice by way of windows-1250", "values-misread",
     [](const Rows &people) {
         return encodedTwice(people, "windows-1250");
     }},
    {"calendars with a letter", "values-misread",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.kalendar.prepend('K'); });
     }},

    {"no calendars", "values-emptied", emptied<&Row::kalendar>},
    {"no starts of calendars", "values-emptied", emptied<&Row::kalendarPlatnostOd>},
    {"no types", "values-emptied", emptied<&Row::typPracovnihoPomeru>},
    {"no states", "values-emptied", emptied<&Row::stavPracovnihoPomeru>},
    {"no balances", "values-emptied", emptied<&Row::dovolenaZustatek>},
    {"no cost centres", "values-emptied", emptied<&Row::stredisko>},
    {"no telephone numbers", "values-emptied", emptied<&Row::telefon>},
    {"no first days", "values-emptied", emptied<&Row::datumNastupu>},
    {"no last days", "values-emptied", emptied<&Row::datumVystupu>, true},
    {"calendar 0", "values-emptied",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.with(&Row::kalendar, "0"); });
     }},

    {"names swapped", "values-changed",
     [](const Rows &people) {
         return each(people, [](Row &person) { std::swap(person.jmeno, person.prijmeni); });
     }},
    {"one surname for all", "values-changed",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.with(&Row::prijmeni, "Test"); });
     }},
    {"apostrophes in all surnames", "values-changed",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.prijmeni.insert(1, '\''); });
     }},
    {"state 0", "values-changed",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.with(&Row::stavPracovnihoPomeru, "0"); });
     }},
    {"one calendar for all", "values-changed",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.with(&Row::kalendar, "77"); });
     }},

    {"balances of 0", "balances-zero",
     [](const Rows &people) {
         return balances(people, [](double) { return 0; });
     }},
    {"hours instead of days", "balances-multiplied",
     [](const Rows &people) {
         return balances(people, [](double days) { return days * 8; });
     }},
    {"the other sign", "balances-multiplied",
     [](const Rows &people) {
         return balances(people, [](double days) { return -days; });
     }},
    {"minutes instead of days", "balances-implausible",
     [](const Rows &people) {
         return balances(people, [](double days) { return days * 480; });
     }},
    {"lost decimal points", "balances-implausible",
     [](const Rows &people) {
         return each(people, [](Row &person) {
             person.with(&Row::dovolenaZustatek,
                         QString::number(person.dovolenaZustatek.toDouble(), 'f', 2).remove('.'));
         });
     }},

    {"one supervisor for all", "supervisors-changed",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.with(&Row::nadrizenyOsobniCislo, 1005); });
     }},
    {"no supervisors", "supervisors-changed", emptied<&Row::nadrizenyOsobniCislo>},

    {"everybody once more", "people-new",
     [](const Rows &people) {
         return GatePeople::file(people)
             + each(people, [](Row &person) { person.with(&Row::poradoveCisloPP, 2); });
     }},
    {"ten times as many people", "people-new",
     [](const Rows &people) {
         QByteArray content = GatePeople::file(people);
         for (int i = 1; i < 10; ++i) {
             content += each(people, [i](Row &person) {
                 person.with(&Row::osobniCislo, person.osobniCislo.toInt() + i * 100000);
             });
         }
         return content;
     }},
    {"the damaged lines above the good ones", "lines-repeated",
     [](const Rows &people) {
         return emptied<&Row::dovolenaZustatek>(people) + GatePeople::file(people);
     }},
    {"another cost centre for all", "people-moving",
     [](const Rows &people) {
         return each(people, [](Row &person) { person.with(&Row::stredisko, 999); });
     }},
    {"everybody works again", "people-returning",
     [](const Rows &people) {
         return each(people, [](Row &person) {
             person.with(&Row::stavPracovnihoPomeru, 1).with(&Row::datumVystupu, "");
         });
     },
     true},
    {"everybody leaves", "people-leaving",
     [](const Rows &people) {
         return each(people,
                     [](Row &person) { person.with(&Row::datumVystupu, QDate::currentDate()); });
     }},
};

/// What a firm of this size exports, and a site whose gate has admitted it.
struct Site {
    explicit Site(int size)
        : people(Firm(size, 1, QDate::currentDate()).people())
    {
        gate.admit(people);
    }

    Rows people;
    GateSite gate;
};

/// One for all damages: a refused file leaves it as it is.
Site &siteOf(int size)
{
    static std::map<int, std::unique_ptr<Site>> sites;
    std::unique_ptr<Site> &site = sites[size];
    if (site == nullptr || site->gate.isPublished())
        site = std::make_unique<Site>(size);
    return *site;
}

} // namespace

/// Exports that a program of HR's has damaged as a whole, against the gate's default limits.
class TestGateDamage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theDamageIsRefused_data();
    void theDamageIsRefused();
    void theSmallestFirmIsGuarded();
};

void TestGateDamage::theDamageIsRefused_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("damage");
    for (const int size : {12, 400, peopleOfALargeFirm()}) {
        for (int i = 0; i < int(std::size(kDamages)); ++i)
            QTest::addRow("%d people: %s", size, kDamages[i].name) << size << i;
    }
}

void TestGateDamage::theDamageIsRefused()
{
    QFETCH(int, size);
    QFETCH(int, damage);
    const Damage &kind = kDamages[damage];
    Site &site = siteOf(size);
    site.gate.deliver(kind.damaged(site.people));
    const ToolRun run = site.gate.run();
    const bool isRefused = size != 12 || !kind.isLifeInAFirmOfTwelve;
    QVERIFY2(run.rules().contains(kind.rule) == isRefused, qPrintable(run.rules().join(' ')));
    COMPARE_EXIT(run, isRefused ? ExitStatus::GuardTripped : ExitStatus::Fine);
    QCOMPARE(site.gate.isPublished(), !isRefused);
}

/// Three people, of whom two may do anything.
void TestGateDamage::theSmallestFirmIsGuarded()
{
    GateSite site;
    const Rows people = Firm(3, 1, QDate::currentDate()).people();
    site.admit(people);
    site.deliver(emptied<&Row::kalendar>(people));
    COMPARE_EXIT(site.run(), ExitStatus::GuardTripped);
    site.deliver(emptied<&Row::kalendar>(people.mid(0, 2)) + GatePeople::file(people.mid(2)));
    COMPARE_EXIT(site.run(), ExitStatus::Fine);
}

QTEST_GUILESS_MAIN(TestGateDamage)
#include "tst_gatedamage.moc"
