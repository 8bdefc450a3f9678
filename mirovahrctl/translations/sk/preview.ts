<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Shows what a forced synchronisation with an export would change in the attendance database, by doing it: copies the rows and routines that the plugin reaches into a private database server, lets the plugin&apos;s own code synchronise the copy, and reports what happens to each person. Only reads the site&apos;s database, keeps the export, and removes the copy afterwards. Needs MariaDB&apos;s server programs on this machine, and twice the room of these rows in the folder for temporary files.</source>
        <translation>Ukáže, čo by vynútená synchronizácia s exportom zmenila v dochádzkovej databáze, a to tak, že ju vykoná: skopíruje riadky a uložené procedúry, s ktorými zásuvný modul pracuje, do súkromného databázového servera, nechá kópiu synchronizovať vlastným kódom zásuvného modulu a oznámi, čo sa deje s každou osobou. Databázu len číta, export ponechá a kópiu nakoniec odstráni. Vyžaduje serverové programy MariaDB na tomto počítači a v priečinku pre dočasné súbory dvojnásobok miesta, ktoré tieto riadky zaberajú.</translation>
    </message>
    <message>
        <source>--details shows everything, --html a page, --person one person</source>
        <translation>--details ukáže všetko, --html stránku, --person jednu osobu</translation>
    </message>
    <message>
        <source>What %1 does not take back</source>
        <translation>Čo %1 nevráti späť</translation>
    </message>
    <message>
        <source>Neither the database nor the export has a person &apos;%1&apos;</source>
        <translation>Osoba „%1“ nie je v databáze ani v exporte</translation>
    </message>
    <message>
        <source>Preview of HR export %1 for person %2</source>
        <translation>Náhľad exportu personálneho oddelenia %1 pre osobu %2</translation>
    </message>
    <message>
        <source>Preview of HR export %1</source>
        <translation>Náhľad exportu personálneho oddelenia %1</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Súbor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read</source>
        <translation>„%1“ sa nedá prečítať</translation>
    </message>
    <message>
        <source>--partial belongs to --undo</source>
        <translation>--partial patrí k --undo</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The export.</source>
        <translation>Export.</translation>
    </message>
    <message>
        <source>Show only the verdict, the findings and the totals.</source>
        <translation>Ukáže iba záver, nálezy a súčty.</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>Show only what happens to one person: a payroll id such as 1234.1, a personal number or a pid.</source>
        <translation>Ukáže iba to, čo sa deje s jednou osobou: identifikátor pre mzdy, napríklad 1234.1, osobné číslo alebo pid.</translation>
    </message>
    <message>
        <source>Show everybody, not only the first, and the bookkeeping.</source>
        <translation>Ukáže všetky osoby, nielen prvé, a aj vedľajšie zmeny.</translation>
    </message>
    <message>
        <source>Also write the differences as SQL statements.</source>
        <translation>Zapíše rozdiely aj ako príkazy SQL.</translation>
    </message>
    <message>
        <source>Also write SQL statements that take the differences back after the synchronisation.</source>
        <translation>Zapíše aj príkazy SQL, ktoré po synchronizácii vrátia rozdiely späť.</translation>
    </message>
    <message>
        <source>Let these statements take back all other rows when somebody has changed one, not none.</source>
        <translation>Ak niekto niektorý riadok zmenil, tieto príkazy vrátia späť všetky ostatné riadky, nie žiadny.</translation>
    </message>
    <message>
        <source>Also write the plugin&apos;s whole log of the synchronisation.</source>
        <translation>Zapíše aj celý protokol zásuvného modulu zo synchronizácie.</translation>
    </message>
    <message>
        <source>Also copy the rows that a synchronisation does not reach.</source>
        <translation>Skopíruje aj riadky, s ktorými synchronizácia nepracuje.</translation>
    </message>
    <message>
        <source>none</source>
        <comment>value of a field</comment>
        <translation>prázdne</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 a %Ln ďalší</numerusform>
            <numerusform>%1 a %Ln ďalšie</numerusform>
            <numerusform>%1 a %Ln ďalších</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each of these %Ln people</source>
        <translation>
            <numerusform>Každá z týchto %Ln osôb</numerusform>
            <numerusform>Každá z týchto %Ln osôb</numerusform>
            <numerusform>Každá z týchto %Ln osôb</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy cannot be created</source>
        <translation>Kópia sa nedá vytvoriť</translation>
    </message>
    <message>
        <source>The table %1 cannot be created in the copy</source>
        <translation>Tabuľka %1 sa v kópii nedá vytvoriť</translation>
    </message>
    <message>
        <source>The table %1 cannot be copied</source>
        <translation>Tabuľka %1 sa nedá skopírovať</translation>
    </message>
    <message>
        <source>The table %1 cannot be kept for comparison</source>
        <translation>Tabuľka %1 sa nedá uchovať na porovnanie</translation>
    </message>
    <message>
        <source>%1 cannot be created in the copy</source>
        <translation>%1 sa v kópii nedá vytvoriť</translation>
    </message>
    <message>
        <source>the person with the uid %1</source>
        <translation>osoba s uid %1</translation>
    </message>
    <message>
        <source>the person with the pid %1</source>
        <translation>osoba s pid %1</translation>
    </message>
    <message>
        <source>branch %1</source>
        <translation>pobočka %1</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>skupina %1</translation>
    </message>
    <message>
        <source>group %1 (calendar %2)</source>
        <translation>skupina %1 (kalendár %2)</translation>
    </message>
    <message>
        <source>administrator %1 (%2)</source>
        <translation>administrátor %1 (%2)</translation>
    </message>
    <message>
        <source>administrator %1</source>
        <translation>administrátor %1</translation>
    </message>
    <message>
        <source>administrator %1 (personal number %2)</source>
        <translation>administrátor %1 (osobné číslo %2)</translation>
    </message>
    <message>
        <source>terminal %1</source>
        <translation>terminál %1</translation>
    </message>
    <message>
        <source>terminal %1 (%2)</source>
        <translation>terminál %1 (%2)</translation>
    </message>
    <message>
        <source>The plugin cannot open the copy. It logs &quot;%1&quot;</source>
        <translation>Zásuvný modul nemôže otvoriť kópiu. Do protokolu zapisuje „%1“</translation>
    </message>
    <message>
        <source>The plugin cannot load the people of this database and would synchronise nobody. It logs &quot;%1&quot;. Run check-db for details</source>
        <translation>Zásuvný modul nemôže načítať osoby z tejto databázy a nesynchronizoval by nikoho. Do protokolu zapisuje „%1“. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>The plugin cannot load the branches of this database; everybody whom it writes would lose the branch. It logs &quot;%1&quot;. Run check-db for details</source>
        <translation>Zásuvný modul nemôže načítať pobočky z tejto databázy; každá osoba, ktorú zapíše, by prišla o pobočku. Do protokolu zapisuje „%1“. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read to its end: the plugin would log &quot;%2&quot;</source>
        <translation>„%1“ sa nedá prečítať do konca: zásuvný modul by do protokolu zapísal „%2“</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s)</source>
        <translation>
            <numerusform>%Ln osoba</numerusform>
            <numerusform>%Ln osoby</numerusform>
            <numerusform>%Ln osôb</numerusform>
        </translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Kto</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Čo</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>Afterwards</source>
        <translation>Potom</translation>
    </message>
    <message>
        <source>Bookkeeping</source>
        <translation>Vedľajšia zmena</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s)</source>
        <comment>whom a synchronisation would create or change</comment>
        <translation>
            <numerusform>%Ln osobu</numerusform>
            <numerusform>%Ln osoby</numerusform>
            <numerusform>%Ln osôb</numerusform>
        </translation>
    </message>
    <message>
        <source>A synchronisation would create %1 and change %2.</source>
        <translation>Synchronizácia by vytvorila %1 a zmenila %2.</translation>
    </message>
    <message>
        <source>A synchronisation would create %1.</source>
        <translation>Synchronizácia by vytvorila %1.</translation>
    </message>
    <message>
        <source>A synchronisation would change %1.</source>
        <translation>Synchronizácia by zmenila %1.</translation>
    </message>
    <message>
        <source>A synchronisation would change nothing.</source>
        <translation>Synchronizácia by nezmenila nič.</translation>
    </message>
    <message numerus="yes">
        <source>A synchronisation would change nobody, only %Ln row(s) besides.</source>
        <translation>
            <numerusform>Synchronizácia by nezmenila žiadnu osobu, iba %Ln iný riadok.</numerusform>
            <numerusform>Synchronizácia by nezmenila žiadnu osobu, iba %Ln iné riadky.</numerusform>
            <numerusform>Synchronizácia by nezmenila žiadnu osobu, iba %Ln iných riadkov.</numerusform>
        </translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>The plugin is disabled in the configuration: it would not synchronise at all.</source>
        <translation>Zásuvný modul je v konfigurácii vypnutý: vôbec by nesynchronizoval.</translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnutý skúšobný režim: osoby sa len zapisujú do protokolu, nie do databázy.</translation>
    </message>
    <message>
        <source>This account is not allowed to see the triggers of these tables: %1. The preview lacks whatever triggers do there.</source>
        <translation>Tento účet nesmie vidieť triggery týchto tabuliek: %1. V náhľade chýba všetko, čo tam triggery robia.</translation>
    </message>
    <message>
        <source>The engine of these tables does not support snapshots; they were copied one after the other: %1.</source>
        <translation>Úložisko týchto tabuliek nepodporuje snímky; kopírovali sa jedna po druhej: %1.</translation>
    </message>
    <message>
        <source>Routines or triggers seem to use views, which are not copied: %1.</source>
        <translation>Uložené procedúry alebo triggery zrejme používajú pohľady, ktoré sa nekopírujú: %1.</translation>
    </message>
    <message>
        <source>The site&apos;s server is version %1, the copy was on version %2.</source>
        <translation>Databázový server má verziu %1, kópia bola na verzii %2.</translation>
    </message>
    <message>
        <source>People with bookkeeping only</source>
        <translation>Osoby, u ktorých sú iba vedľajšie zmeny</translation>
    </message>
    <message>
        <source>Rows that would change</source>
        <translation>Riadky, ktoré by sa zmenili</translation>
    </message>
    <message>
        <source>The plugin&apos;s warnings</source>
        <translation>Upozornenia zásuvného modulu</translation>
    </message>
    <message>
        <source>What is left out</source>
        <translation>Čo sa neporovnáva</translation>
    </message>
    <message>
        <source>%1 This is the forced synchronisation of a plugin that was just started: an ordinary one skips people whose line has not changed, and a running plugin remembers more than the database holds. It is valid for today, %2, and for the database as it was when it was copied; moments of writing are shown as &quot;now&quot;. The plugin&apos;s warnings are those of its log: check-file reports lines that it drops silently, check-db rights that its account lacks.</source>
        <translation>%1 Toto je vynútená synchronizácia práve spusteného zásuvného modulu: bežná synchronizácia preskakuje osoby, ktorých riadok sa nezmenil, a bežiaci zásuvný modul si pamätá viac, než obsahuje databáza. Platí pre dnešný deň, %2, a pre databázu v stave, v akom sa skopírovala; čas zápisu sa zobrazuje ako „teraz“. Upozornenia zásuvného modulu pochádzajú z jeho protokolu: riadky, ktoré bez oznámenia vynecháva, uvádza check-file, oprávnenia, ktoré jeho účtu chýbajú, check-db.</translation>
    </message>
    <message>
        <source>The plugin would run its export command first. It was not run: this is the preview of the file as it is.</source>
        <translation>Zásuvný modul by najprv spustil svoj príkaz exportu. Ten sa nespustil: toto je náhľad súboru v jeho súčasnej podobe.</translation>
    </message>
    <message>
        <source>The plugin would remove the export after reading it. It was not removed.</source>
        <translation>Zásuvný modul by export po prečítaní odstránil. Export sa neodstránil.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin would warn %Ln time(s).</source>
        <translation>
            <numerusform>Zásuvný modul by zapísal %Ln upozornenie.</numerusform>
            <numerusform>Zásuvný modul by zapísal %Ln upozornenia.</numerusform>
            <numerusform>Zásuvný modul by zapísal %Ln upozornení.</numerusform>
        </translation>
    </message>
    <message>
        <source>The plugin already has a connection to another database</source>
        <translation>Zásuvný modul už má spojenie s inou databázou</translation>
    </message>
    <message>
        <source>This account is not allowed to read the text of the trigger %1: it lacks TRIGGER on its table</source>
        <translation>Tento účet nesmie čítať text triggera %1: chýba mu oprávnenie TRIGGER na jeho tabuľku</translation>
    </message>
    <message>
        <source>This account is not allowed to read the text of the function %1: it lacks SELECT on mysql.proc</source>
        <translation>Tento účet nesmie čítať text funkcie %1: chýba mu oprávnenie SELECT na mysql.proc</translation>
    </message>
    <message>
        <source>This account is not allowed to read the text of the procedure %1: it lacks SELECT on mysql.proc</source>
        <translation>Tento účet nesmie čítať text procedúry %1: chýba mu oprávnenie SELECT na mysql.proc</translation>
    </message>
    <message>
        <source>The site&apos;s database cannot be read: %1</source>
        <translation>Databáza sa nedá čítať: %1</translation>
    </message>
    <message>
        <source>There is no table %1, or this account is not allowed to see it: it needs SELECT on %1. Run check-db for details</source>
        <translation>Tabuľka %1 neexistuje alebo ju tento účet nesmie vidieť: potrebuje oprávnenie SELECT na %1. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>There is no routine %1, or this account is not allowed to see it: it needs SELECT on mysql.proc. Run check-db for details</source>
        <translation>Uložená procedúra %1 neexistuje alebo ju tento účet nesmie vidieť: potrebuje oprávnenie SELECT na mysql.proc. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>%1 is not a table but a %2, which cannot be copied</source>
        <translation>%1 nie je tabuľka (ale %2), preto sa nedá skopírovať</translation>
    </message>
    <message>
        <source>This account is not allowed to read the table %1: it lacks SELECT on the whole table</source>
        <translation>Tento účet nesmie čítať tabuľku %1: chýba mu oprávnenie SELECT na celú tabuľku</translation>
    </message>
    <message>
        <source>The table %1 refers to the database %2, which is not copied</source>
        <translation>Tabuľka %1 odkazuje na databázu %2, ktorá sa nekopíruje</translation>
    </message>
    <message>
        <source>There is no table that %1 refers to, %2, or this account is not allowed to see it: it needs SELECT on %2. Run check-db for details</source>
        <translation>Tabuľka, na ktorú odkazuje %1 (%2), neexistuje alebo ju tento účet nesmie vidieť: potrebuje oprávnenie SELECT na %2. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because a text in line %1 of the export changes the plugin&apos;s statements</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo text v riadku %1 exportu mení príkazy zásuvného modulu</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because a relationship state of the configuration changes the plugin&apos;s statements</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo stav pomeru v konfigurácii mení príkazy zásuvného modulu</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because the site has triggers, such as %1</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo databáza má triggery, napríklad %1</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because the routine %1 runs statements that it makes</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo uložená procedúra %1 spúšťa príkazy, ktoré sama zostavuje</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because the routine %2 uses it</source>
        <translation>Skopírovali sa všetky riadky tabuľky %1, lebo ju používa uložená procedúra %2</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because %1.%2 is not a number</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo %1.%2 nie je číslo</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because the server does not count people.uid</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo people.uid nečísluje server</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because it has the unique key %2</source>
        <translation>Skopírovali sa všetky riadky tabuľky %1, lebo má jedinečný kľúč %2</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because %2 refers to it</source>
        <translation>Skopírovali sa všetky riadky tabuľky %1, lebo na ňu odkazuje %2</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because it refers to %2</source>
        <translation>Skopírovali sa všetky riadky tabuľky %1, lebo odkazuje na %2</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because there are ids that are no whole numbers of 32 bits</source>
        <translation>Skopírovali sa všetky riadky všetkých tabuliek, lebo niektoré identifikátory nie sú celé čísla s 32 bitmi</translation>
    </message>
    <message>
        <source>--undo writes statements of MariaDB, and the site&apos;s server is version %1</source>
        <translation>--undo zapisuje príkazy pre MariaDB, ale databázový server má verziu %1</translation>
    </message>
    <message>
        <source>The differences cannot be taken back, since no key identifies the rows of %1. Run check-db for details</source>
        <translation>Rozdiely sa nedajú vrátiť späť, lebo riadky %1 neurčuje žiadny kľúč. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>What a terminal has fetched from its queue. The statements name the rows that are no longer in the queue: send these people to the terminals again.</source>
        <translation>To, čo si terminál už načítal zo svojho frontu. Príkazy uvedú riadky, ktoré už vo fronte nie sú: pošlite tieto osoby do terminálov znova.</translation>
    </message>
    <message>
        <source>The uids of new people: they are used up, and the next person gets another one.</source>
        <translation>Hodnoty uid nových osôb: sú už použité a ďalšia osoba dostane iné.</translation>
    </message>
    <message>
        <source>What others have written for new people, such as days of attendance.</source>
        <translation>To, čo pre nové osoby zapísali iní, napríklad dni dochádzky.</translation>
    </message>
    <message>
        <source>Attendance that was calculated with what the synchronisation has written. The statements name these people: let it be calculated again.</source>
        <translation>Dochádzka, ktorá sa vypočítala s tým, čo zapísala synchronizácia. Príkazy tieto osoby uvedú: nechajte ich dochádzku vypočítať znova.</translation>
    </message>
    <message>
        <source>A payroll export that was made in between.</source>
        <translation>Export pre mzdy, ktorý sa medzitým vytvoril.</translation>
    </message>
    <message>
        <source>What triggers and routines of the site have changed in %1.</source>
        <translation>To, čo triggery a uložené procedúry databázy zmenili v týchto tabuľkách: %1.</translation>
    </message>
    <message>
        <source>What the site&apos;s triggers do when the rows are taken back: they fire again (%1).</source>
        <translation>To, čo triggery databázy urobia, keď sa riadky vracajú späť: spustia sa znova (%1).</translation>
    </message>
    <message>
        <source>What triggers do that this account is not allowed to see, of these tables: %1.</source>
        <translation>To, čo robia triggery, ktoré tento účet nesmie vidieť, v týchto tabuľkách: %1.</translation>
    </message>
    <message>
        <source>The flag that forces a synchronisation: it would force another one.</source>
        <translation>Príznak, ktorý vynucuje synchronizáciu: vynútil by ďalšiu.</translation>
    </message>
    <message>
        <source>A failure in the middle: these tables have no transactions, and what is written by then stays: %1. They are locked meanwhile, and written only when all rows have been checked.</source>
        <translation>Zlyhanie uprostred: tieto tabuľky nemajú transakcie a to, čo je dovtedy zapísané, v nich zostane: %1. Medzitým sú uzamknuté a zapisuje sa do nich až po kontrole všetkých riadkov.</translation>
    </message>
    <message>
        <source>interval types</source>
        <translation>druhy intervalov</translation>
    </message>
    <message>
        <source>people</source>
        <translation>osoby</translation>
    </message>
    <message>
        <source>time zones</source>
        <translation>časové pásma</translation>
    </message>
    <message>
        <source>colour groups</source>
        <translation>farebné skupiny</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>áno</translation>
    </message>
    <message>
        <source>the beginning</source>
        <translation>začiatok</translation>
    </message>
    <message numerus="yes">
        <source>%Ln day(s)</source>
        <translation>
            <numerusform>%Ln deň</numerusform>
            <numerusform>%Ln dni</numerusform>
            <numerusform>%Ln dní</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dňa</translation>
    </message>
    <message>
        <source>nothing</source>
        <comment>kinds of data</comment>
        <translation>nič</translation>
    </message>
    <message>
        <source>now</source>
        <translation>teraz</translation>
    </message>
    <message>
        <source>%1-%2</source>
        <comment>a year and a month</comment>
        <translation>%2/%1</translation>
    </message>
    <message>
        <source>HR</source>
        <translation>personálne oddelenie</translation>
    </message>
    <message>
        <source>due</source>
        <translation>treba vykonať</translation>
    </message>
    <message>
        <source>to be calculated</source>
        <translation>treba vypočítať</translation>
    </message>
    <message>
        <source>calculated</source>
        <translation>vypočítaná</translation>
    </message>
    <message>
        <source>New people</source>
        <translation>Nové osoby</translation>
    </message>
    <message>
        <source>Changed people</source>
        <translation>Zmenené osoby</translation>
    </message>
    <message>
        <source>Attendance to be calculated again</source>
        <translation>Dochádzka na opätovný výpočet</translation>
    </message>
    <message>
        <source>Members of branches</source>
        <translation>Členovia pobočiek</translation>
    </message>
    <message>
        <source>Calendar groups</source>
        <translation>Kalendárové skupiny</translation>
    </message>
    <message>
        <source>Vacation balances</source>
        <translation>Zostatky dovolenky</translation>
    </message>
    <message>
        <source>Supervisors and administrators</source>
        <translation>Nadriadení a administrátori</translation>
    </message>
    <message>
        <source>Payroll export</source>
        <translation>Export pre mzdy</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminály</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Other tables</source>
        <translation>Iné tabuľky</translation>
    </message>
    <message>
        <source>is no longer shown to %1, who got the requests</source>
        <translation>osobu prestane vidieť a jej žiadosti dostávať %1</translation>
    </message>
    <message>
        <source>is no longer shown to %1</source>
        <translation>osobu prestane vidieť %1</translation>
    </message>
    <message>
        <source>requests go to %1</source>
        <translation>žiadosti bude dostávať %1</translation>
    </message>
    <message>
        <source>is shown to %1</source>
        <translation>osobu uvidí %1</translation>
    </message>
    <message>
        <source>requests no longer go to %1</source>
        <translation>žiadosti prestane dostávať %1</translation>
    </message>
    <message>
        <source>vacation balance corrected on %1 by</source>
        <translation>zostatok dovolenky opravený %1 o</translation>
    </message>
    <message>
        <source>vacation balance corrected on %1 by %2</source>
        <translation>zostatok dovolenky opravený %1 o %2</translation>
    </message>
    <message>
        <source>vacation balance moved on %1 by</source>
        <translation>zostatok dovolenky zmenený pohybom %1 o</translation>
    </message>
    <message>
        <source>vacation balance moved on %1 by %2</source>
        <translation>zostatok dovolenky zmenený pohybom %1 o %2</translation>
    </message>
    <message>
        <source>fund %3 balance corrected on %1 by</source>
        <translation>zostatok fondu %3 opravený %1 o</translation>
    </message>
    <message>
        <source>fund %3 balance corrected on %1 by %2</source>
        <translation>zostatok fondu %3 opravený %1 o %2</translation>
    </message>
    <message>
        <source>fund %3 balance moved on %1 by</source>
        <translation>zostatok fondu %3 zmenený pohybom %1 o</translation>
    </message>
    <message>
        <source>fund %3 balance moved on %1 by %2</source>
        <translation>zostatok fondu %3 zmenený pohybom %1 o %2</translation>
    </message>
    <message>
        <source>is created</source>
        <translation>vytvorí sa</translation>
    </message>
    <message>
        <source>attendance of %1</source>
        <translation>dochádzka %1</translation>
    </message>
    <message>
        <source>joins the branch %1</source>
        <translation>pribudne v pobočke %1</translation>
    </message>
    <message>
        <source>is in the branch %1 since</source>
        <translation>v pobočke %1 od</translation>
    </message>
    <message>
        <source>joins the branch %1, since</source>
        <translation>pribudne v pobočke %1, od</translation>
    </message>
    <message>
        <source>joins the branch %1, since %2</source>
        <translation>pribudne v pobočke %1, od %2</translation>
    </message>
    <message>
        <source>leaves the branch %1, in it since</source>
        <translation>opustí pobočku %1, v nej od</translation>
    </message>
    <message>
        <source>leaves the branch %1, in it since %2</source>
        <translation>opustí pobočku %1, v nej od %2</translation>
    </message>
    <message>
        <source>calendar group from the beginning on</source>
        <translation>kalendárová skupina od začiatku</translation>
    </message>
    <message>
        <source>calendar group from %1 on</source>
        <translation>kalendárová skupina od %1</translation>
    </message>
    <message>
        <source>calendar group in %1</source>
        <translation>kalendárová skupina v mesiaci %1</translation>
    </message>
    <message>
        <source>settings of the payroll export</source>
        <translation>nastavenie exportu pre mzdy</translation>
    </message>
    <message>
        <source>has to fetch</source>
        <translation>má si načítať</translation>
    </message>
    <message>
        <source>is forgotten by %1</source>
        <translation>osobu prestane poznať %1</translation>
    </message>
    <message>
        <source>is known to %1</source>
        <translation>osobu bude poznať %1</translation>
    </message>
    <message>
        <source>is no longer queued for %1</source>
        <translation>vo fronte už nie je pre %1</translation>
    </message>
    <message>
        <source>is queued for %1</source>
        <translation>zaradí sa do frontu pre %1</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 v %3</translation>
    </message>
    <message>
        <source>value</source>
        <comment>of a setting</comment>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>is selected for %1</source>
        <translation>pribudne vo výbere %1</translation>
    </message>
    <message>
        <source>is no longer selected for %1</source>
        <translation>ubudne z výberu %1</translation>
    </message>
    <message>
        <source>new row: %1</source>
        <translation>nový riadok: %1</translation>
    </message>
    <message>
        <source>removed row: %1</source>
        <translation>odstránený riadok: %1</translation>
    </message>
    <message>
        <source>The copy cannot be synchronised: %1. Run check-db for details</source>
        <translation>Kópia sa nedá synchronizovať: %1. Podrobnosti zistí check-db</translation>
    </message>
    <message>
        <source>Copying the database</source>
        <translation>Kopíruje sa databáza</translation>
    </message>
    <message>
        <source>Synchronising the copy</source>
        <translation>Synchronizuje sa kópia</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was changed meanwhile. Run preview again</source>
        <translation>„%1“ sa medzitým zmenil. Spustite preview znova</translation>
    </message>
    <message>
        <source>The changes in the copy cannot be read: %1</source>
        <translation>Zmeny v kópii sa nedajú prečítať: %1</translation>
    </message>
    <message>
        <source>The plugin is switched off, so it would not synchronise at all.</source>
        <translation>Zásuvný modul je vypnutý, preto by vôbec nesynchronizoval.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation>Nastavte enabled na 1 a znova spustite dochádzkový server.</translation>
    </message>
    <message>
        <source>A table&apos;s engine does not support snapshots, so it was not copied at the same moment.</source>
        <translation>Úložisko tabuľky nepodporuje snímky, preto sa neskopírovala v tom istom okamihu.</translation>
    </message>
    <message>
        <source>Run the preview while nobody works with the attendance server.</source>
        <translation>Spustite náhľad vtedy, keď s dochádzkovým serverom nikto nepracuje.</translation>
    </message>
    <message>
        <source>The copy was on a server of another version than the site&apos;s.</source>
        <translation>Kópia bola na serveri inej verzie, než je databázový server.</translation>
    </message>
    <message>
        <source>The plugin logged an error during the synchronisation.</source>
        <translation>Zásuvný modul zapísal pri synchronizácii do protokolu chybu.</translation>
    </message>
    <message>
        <source>The text is that of the plugin&apos;s log: docs/operations.md says what it means and what to do.</source>
        <translation>Text pochádza z protokolu zásuvného modulu: čo znamená a čo urobiť, uvádza docs/operations.md.</translation>
    </message>
    <message>
        <source>The plugin logged a warning during the synchronisation.</source>
        <translation>Zásuvný modul zapísal pri synchronizácii do protokolu upozornenie.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation>Nastavte testMode na 0 a znova spustite dochádzkový server.</translation>
    </message>
    <message>
        <source>The account may not see the triggers of a table, so the preview lacks their effects.</source>
        <translation>Účet nesmie vidieť triggery tabuľky, preto v náhľade chýbajú ich účinky.</translation>
    </message>
    <message>
        <source>Run one preview with an account that has TRIGGER on the database.</source>
        <translation>Spustite jeden náhľad s účtom, ktorý má na databázu oprávnenie TRIGGER.</translation>
    </message>
    <message>
        <source>A routine or trigger seems to use a view, which is not copied.</source>
        <translation>Uložená procedúra alebo trigger zrejme používa pohľad, ktorý sa nekopíruje.</translation>
    </message>
    <message>
        <source>Check whether the plugin&apos;s warnings above mention them.</source>
        <translation>Skontrolujte, či ich spomínajú upozornenia zásuvného modulu uvedené vyššie.</translation>
    </message>
    <message>
        <source>Something may let the plugin reach more rows than by itself, so all were copied: it took longer.</source>
        <translation>Zásuvný modul môže z nejakého dôvodu pracovať s viac riadkami než sám od seba, preto sa skopírovali všetky: trvalo to dlhšie.</translation>
    </message>
    <message>
        <source>The names in the copy cannot be read: %1. Run check-db for details</source>
        <translation>Mená a názvy v kópii sa nedajú prečítať: %1. Podrobnosti zistí check-db</translation>
    </message>
</context>
</TS>
