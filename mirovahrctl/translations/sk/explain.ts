<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>No valid correction leads to the balance of the export, so the balance stays.</source>
        <translation>K zostatku z exportu nevedie žiadna platná oprava, takže zostatok sa nemení.</translation>
    </message>
    <message>
        <source>One of the two balances is wrong.</source>
        <translation>Jeden z oboch zostatkov je nesprávny.</translation>
    </message>
    <message>
        <source>The id of the branch exceeds 16 bits; the person joins another branch, or none.</source>
        <translation>Identifikátor pobočky presahuje 16 bitov; osoba sa zaradí do inej pobočky alebo do žiadnej.</translation>
    </message>
    <message>
        <source>Give the branch a smaller id.</source>
        <translation>Prideľte pobočke menší identifikátor.</translation>
    </message>
    <message>
        <source>No branch has the number of the cost centre, so the person joins none.</source>
        <translation>Žiadna pobočka nemá číslo tohto strediska, takže osoba sa nezaradí do žiadnej.</translation>
    </message>
    <message>
        <source>Give the branch this number, or ask HR to correct the cost centre.</source>
        <translation>Prideľte pobočke toto číslo alebo požiadajte personálne oddelenie o opravu strediska.</translation>
    </message>
    <message>
        <source>The last calculation moves forward; days in between may stay uncalculated.</source>
        <translation>Dátum posledného výpočtu sa posunie dopredu; dni medzi tým môžu zostať nevypočítané.</translation>
    </message>
    <message>
        <source>Recalculate the person&apos;s attendance by hand if there are such days.</source>
        <translation>Ak také dni sú, prepočítajte dochádzku osoby ručne.</translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for the calendar.</source>
        <translation>Hlavná skupina pobočky nemá skupinu pre tento kalendár.</translation>
    </message>
    <message>
        <source>Create a group for this calendar in the master group of the branch, or ask HR to correct the calendar.</source>
        <translation>Vytvorte skupinu pre tento kalendár v hlavnej skupine pobočky alebo požiadajte personálne oddelenie o opravu kalendára.</translation>
    </message>
    <message>
        <source>The plugin is switched off, so nobody is synchronised.</source>
        <translation>Zásuvný modul je vypnutý, takže sa nikto nesynchronizuje.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation>Nastavte enabled na 1 a znova spustite dochádzkový server.</translation>
    </message>
    <message>
        <source>The gate has refused a newer file than the one that is explained.</source>
        <translation>Brána odmietla novší súbor, než je ten, ktorý sa vysvetľuje.</translation>
    </message>
    <message>
        <source>Check whether that file has another line for the person.</source>
        <translation>Overte, či v ňom má osoba iný riadok.</translation>
    </message>
    <message>
        <source>The person has left, so the plugin creates no row, or does not write the end.</source>
        <translation>Osoba odišla, takže zásuvný modul nevytvorí riadok alebo nezapíše koniec.</translation>
    </message>
    <message>
        <source>Ask HR to export each employment relationship once.</source>
        <translation>Požiadajte personálne oddelenie, aby každý pracovný pomer exportovalo iba raz.</translation>
    </message>
    <message>
        <source>There are more lines about the person than are explained.</source>
        <translation>O osobe je v exporte viac riadkov, než sa vysvetľuje.</translation>
    </message>
    <message>
        <source>The new person joins no payroll export.</source>
        <translation>Nová osoba sa nezaradí do žiadneho exportu pre mzdy.</translation>
    </message>
    <message>
        <source>Add the person by hand where needed.</source>
        <translation>Podľa potreby pridajte osobu ručne.</translation>
    </message>
    <message>
        <source>Nobody in the export or in the database matches the search.</source>
        <translation>Hľadaniu nezodpovedá nikto v exporte ani v databáze.</translation>
    </message>
    <message>
        <source>Check the spelling, and whether HR has ever exported the person.</source>
        <translation>Overte pravopis a to, či personálne oddelenie osobu niekedy exportovalo.</translation>
    </message>
    <message>
        <source>The person is neither in the export nor in the database.</source>
        <translation>Osoba nie je v exporte ani v databáze.</translation>
    </message>
    <message>
        <source>Check the number, and whether HR has ever exported the person.</source>
        <translation>Overte číslo a to, či personálne oddelenie osobu niekedy exportovalo.</translation>
    </message>
    <message>
        <source>No line of the export is about the person.</source>
        <translation>Osoby sa netýka žiadny riadok exportu.</translation>
    </message>
    <message>
        <source>Ask HR why the person is missing from the export.</source>
        <translation>Opýtajte sa personálneho oddelenia, prečo osoba v exporte chýba.</translation>
    </message>
    <message>
        <source>The payroll id of an active row belongs to another pid.</source>
        <translation>Identifikátor pre mzdy v aktívnom riadku patrí inému pid.</translation>
    </message>
    <message>
        <source>Correct pid and pamId of the row.</source>
        <translation>Opravte v riadku pid a pamId.</translation>
    </message>
    <message>
        <source>The person has the settings of the payroll export already, which the plugin logs as a failure.</source>
        <translation>Osoba už má nastavenie exportu pre mzdy, čo zásuvný modul zapíše do protokolu ako zlyhanie.</translation>
    </message>
    <message>
        <source>This is harmless.</source>
        <translation>Nie je to na škodu.</translation>
    </message>
    <message>
        <source>The search does not name exactly one person.</source>
        <translation>Hľadanie neurčuje práve jednu osobu.</translation>
    </message>
    <message>
        <source>Name one by the first column of the table. Where it is empty, the line has no numbers, and the plugin drops it.</source>
        <translation>Určte jednu osobu podľa prvého stĺpca tabuľky. Kde je prázdny, riadok nemá čísla a zásuvný modul ho vynechá.</translation>
    </message>
    <message>
        <source>The person has no row to which a step could apply.</source>
        <translation>Osoba nemá riadok, na ktorom by sa dal krok vykonať.</translation>
    </message>
    <message>
        <source>See above why the person has no row with this pid.</source>
        <translation>Pozrite vyššie, prečo osoba nemá riadok s týmto pid.</translation>
    </message>
    <message>
        <source>Rows of somebody who was deleted lie under a uid that the new person may get.</source>
        <translation>Pod uid, ktoré môže dostať nová osoba, sú riadky niekoho, kto bol vymazaný.</translation>
    </message>
    <message>
        <source>Delete them, or raise AUTO_INCREMENT of people above their uids.</source>
        <translation>Vymažte ich alebo zvýšte AUTO_INCREMENT tabuľky people nad ich uid.</translation>
    </message>
    <message>
        <source>The text of the relationship state breaks the statement that writes the row.</source>
        <translation>Text stavu pomeru naruší príkaz, ktorý zapisuje riadok.</translation>
    </message>
    <message>
        <source>Change the text in the group MES of the configuration, or rsText of the row.</source>
        <translation>Zmeňte text v skupine MES konfigurácie alebo rsText v riadku.</translation>
    </message>
    <message>
        <source>No administrator has the personal number of the supervisor.</source>
        <translation>Žiadny administrátor nemá osobné číslo nadriadeného.</translation>
    </message>
    <message>
        <source>Give the supervisor an administrator&apos;s account with this personal number.</source>
        <translation>Vytvorte nadriadenému účet administrátora s týmto osobným číslom.</translation>
    </message>
    <message>
        <source>Test mode is on: rows of people are not written.</source>
        <translation>Je zapnutý skúšobný režim: riadky osôb sa nezapisujú.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation>Nastavte testMode na 0 a znova spustite dochádzkový server.</translation>
    </message>
    <message>
        <source>Explains why a person did not arrive, or not as expected: how the plugin reads the person&apos;s line in the export, what the database holds, and what each step of a synchronisation does with the two, in the order of the plugin&apos;s decisions. Changes nothing.

PERSON is a payroll id such as 1234.1, a personal number, a pid, or a name, such as novakova, whose capitals and accents do not matter. Several matches are listed.</source>
        <translation>Vysvetlí, prečo osoba neprišla do dochádzky alebo neprišla podľa očakávania: ako zásuvný modul číta riadok osoby v exporte, čo je v databáze a čo s tým urobí každý krok synchronizácie v poradí, v akom zásuvný modul rozhoduje. Nič nemení.

OSOBA je identifikátor pre mzdy, napríklad 1234.1, osobné číslo, pid alebo meno, napríklad novakova; na veľkých písmenách a diakritike nezáleží. Ak zodpovedá viac osôb, vypíše ich zoznam.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a payroll id such as 1234.1, nor a number, nor a name</source>
        <translation>„%1“ nie je identifikátor pre mzdy (napríklad 1234.1) ani číslo, ani meno</translation>
    </message>
    <message>
        <source>Who is %1?</source>
        <translation>Kto je %1?</translation>
    </message>
    <message>
        <source>The database cannot be used: %1</source>
        <translation>Databáza sa nedá použiť: %1</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <translation>Čo sa deje s osobou %1</translation>
    </message>
    <message>
        <source>person</source>
        <translation>osoba</translation>
    </message>
    <message>
        <source>A payroll id such as 1234.1, a personal number, a pid, or a name.</source>
        <translation>Identifikátor pre mzdy, napríklad 1234.1, osobné číslo, pid alebo meno.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The export; importFile of the INI file by default.</source>
        <translation>Export; predvolený je importFile z INI súboru.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>priečinok</translation>
    </message>
    <message>
        <source>The gate&apos;s own folder, whose last admitted file is used when importFile is gone; by default that of the gate in syncCommand.</source>
        <translation>Vlastný priečinok brány, ktorej naposledy prijatý súbor sa použije, keď importFile už neexistuje; predvolený je priečinok brány v syncCommand.</translation>
    </message>
    <message>
        <source>Searching the export</source>
        <translation>Prehľadávanie exportu</translation>
    </message>
    <message>
        <source>active</source>
        <comment>row of a person</comment>
        <translation>aktívna</translation>
    </message>
    <message>
        <source>not active</source>
        <comment>row of a person</comment>
        <translation>neaktívna</translation>
    </message>
    <message>
        <source>Nobody in the export or in the database has this name, personal number or pid: %1.</source>
        <translation>Nikto v exporte ani v databáze nemá toto meno, osobné číslo alebo pid: %1.</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>Osoba</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a person</comment>
        <translation>Meno</translation>
    </message>
    <message>
        <source>Line of the export</source>
        <translation>Riadok exportu</translation>
    </message>
    <message>
        <source>In the database</source>
        <translation>V databáze</translation>
    </message>
    <message>
        <source>There are more; these are the first %1.</source>
        <translation>Je ich viac; toto je prvých %1.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Osoby</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) of the export are too broken to tell whom they are about, and the plugin drops them: see check-file.</source>
        <translation>
            <numerusform>%Ln riadok exportu je natoľko poškodený, že sa nedá zistiť, koho sa týka, a zásuvný modul ho vynechá: pozri check-file.</numerusform>
            <numerusform>%Ln riadky exportu sú natoľko poškodené, že sa nedá zistiť, koho sa týkajú, a zásuvný modul ich vynechá: pozri check-file.</numerusform>
            <numerusform>%Ln riadkov exportu je natoľko poškodených, že sa nedá zistiť, koho sa týkajú, a zásuvný modul ich vynechá: pozri check-file.</numerusform>
        </translation>
    </message>
    <message>
        <source>People found</source>
        <translation>Nájdené osoby</translation>
    </message>
    <message>
        <source>Nobody is known as %1.</source>
        <translation>Nikto taký sa nenašiel: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) match: name one of them.</source>
        <translation>
            <numerusform>Zodpovedá %Ln osoba: uveďte ju presne.</numerusform>
            <numerusform>Zodpovedajú %Ln osoby: uveďte jednu z nich.</numerusform>
            <numerusform>Zodpovedá %Ln osôb: uveďte jednu z nich.</numerusform>
        </translation>
    </message>
    <message>
        <source>A synchronisation creates %1.</source>
        <translation>Synchronizácia vytvorí osobu %1.</translation>
    </message>
    <message>
        <source>A synchronisation brings the row of %1 up to date and makes it active.</source>
        <translation>Synchronizácia aktualizuje riadok osoby %1 a aktivuje ho.</translation>
    </message>
    <message>
        <source>A synchronisation writes the row of %1.</source>
        <translation>Synchronizácia zapíše riadok osoby %1.</translation>
    </message>
    <message>
        <source>A synchronisation leaves the row of %1 alone.</source>
        <translation>Synchronizácia riadok osoby %1 nezmení.</translation>
    </message>
    <message>
        <source>%1 has left and is not in the database: the plugin never creates a row for leavers.</source>
        <translation>Osoba %1 odišla a nie je v databáze: pre osoby, ktoré odišli, zásuvný modul nikdy nevytvorí riadok.</translation>
    </message>
    <message>
        <source>A text in the line of %1 prevents the row from being written correctly.</source>
        <translation>Text v riadku exportu osoby %1 bráni správnemu zápisu do databázy.</translation>
    </message>
    <message>
        <source>The plugin recognises somebody as %1, but finds no row to write.</source>
        <translation>Zásuvný modul niekoho rozpozná ako osobu %1, ale nenájde riadok, ktorý by zapísal.</translation>
    </message>
    <message>
        <source>Test mode is on: the plugin does not write the row of %1.</source>
        <translation>Je zapnutý skúšobný režim: zásuvný modul riadok osoby %1 nezapíše.</translation>
    </message>
    <message>
        <source>Payroll selection</source>
        <translation>Výber pre mzdy</translation>
    </message>
    <message>
        <source>Payroll settings</source>
        <translation>Nastavenie pre mzdy</translation>
    </message>
    <message>
        <source>Vacation balance</source>
        <translation>Zostatok dovolenky</translation>
    </message>
    <message>
        <source>Supervisor</source>
        <translation>Nadriadený</translation>
    </message>
    <message>
        <source>Branch</source>
        <translation>Pobočka</translation>
    </message>
    <message>
        <source>Calendar group</source>
        <translation>Kalendárová skupina</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Riadok</translation>
    </message>
    <message>
        <source>Recalculation from</source>
        <translation>Prepočet od</translation>
    </message>
    <message>
        <source>Waits afterwards</source>
        <translation>Záznam potom čaká</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate of syncCommand admitted last.</source>
        <translation>Ďalej sa vychádza zo súboru, ktorý naposledy prijala brána zo syncCommand.</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate admitted last.</source>
        <translation>Ďalej sa vychádza zo súboru, ktorý naposledy prijala brána.</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate of syncCommand admitted last, on %1.</source>
        <translation>Ďalej sa vychádza zo súboru, ktorý naposledy prijala brána zo syncCommand, a to %1.</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate admitted last, on %1.</source>
        <translation>Ďalej sa vychádza zo súboru, ktorý naposledy prijala brána, a to %1.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>The next synchronisation is a forced one: the plugin handles every line, changed or not.</source>
        <translation>Najbližšia synchronizácia je vynútená: zásuvný modul spracuje každý riadok bez ohľadu na to, či sa zmenil.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurácia</translation>
    </message>
    <message>
        <source>The plugin is disabled: nobody is synchronised. What follows applies once it is enabled.</source>
        <translation>Zásuvný modul je vypnutý: nikto sa nesynchronizuje. Ďalej uvedené platí po jeho zapnutí.</translation>
    </message>
    <message>
        <source>Test mode is on: rows of people are not written, only what depends on them.</source>
        <translation>Je zapnutý skúšobný režim: riadky osôb sa nezapisujú, iba to, čo od nich závisí.</translation>
    </message>
    <message>
        <source>There is no export %1: the plugin removes it after it has read it.</source>
        <translation>Export %1 neexistuje: zásuvný modul ho po prečítaní odstráni.</translation>
    </message>
    <message>
        <source>There is no export %1.</source>
        <translation>Export %1 neexistuje.</translation>
    </message>
    <message>
        <source>What follows uses the database only.</source>
        <translation>Ďalej sa vychádza iba z databázy.</translation>
    </message>
    <message>
        <source>The gate has refused a newer file: %1.</source>
        <translation>Brána odmietla novší súbor: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) more about the same person are not explained: the facts are those of the first %1 lines.</source>
        <translation>
            <numerusform>Ešte %Ln riadok o tej istej osobe sa nevysvetľuje: údaje platia pre prvých %1 riadkov.</numerusform>
            <numerusform>Ešte %Ln riadky o tej istej osobe sa nevysvetľujú: údaje platia pre prvých %1 riadkov.</numerusform>
            <numerusform>Ešte %Ln riadkov o tej istej osobe sa nevysvetľuje: údaje platia pre prvých %1 riadkov.</numerusform>
        </translation>
    </message>
    <message>
        <source>The plugin runs its export command first, and may then find another file than this.</source>
        <translation>Zásuvný modul najprv spustí príkaz exportu a potom môže nájsť iný súbor, než je tento.</translation>
    </message>
    <message>
        <source>A forced synchronisation runs the export command first, and may then find another file than this.</source>
        <translation>Vynútená synchronizácia najprv spustí príkaz exportu a potom môže nájsť iný súbor, než je tento.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %Ln line(s) of %1 is about %2.</source>
        <translation>
            <numerusform>Súbor %1 má %Ln riadok a ten sa netýka osoby %2.</numerusform>
            <numerusform>Súbor %1 má %Ln riadky a žiadny sa netýka osoby %2.</numerusform>
            <numerusform>Súbor %1 má %Ln riadkov a žiadny sa netýka osoby %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is fine unless the person still works: according to the database the person has left.</source>
        <translation>Ak osoba už nepracuje, je to v poriadku: podľa databázy odišla.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) are too broken to tell whom they are about, and the plugin drops them: see check-file.</source>
        <translation>
            <numerusform>%Ln riadok je natoľko poškodený, že sa nedá zistiť, koho sa týka, a zásuvný modul ho vynechá: pozri check-file.</numerusform>
            <numerusform>%Ln riadky sú natoľko poškodené, že sa nedá zistiť, koho sa týkajú, a zásuvný modul ich vynechá: pozri check-file.</numerusform>
            <numerusform>%Ln riadkov je natoľko poškodených, že sa nedá zistiť, koho sa týkajú, a zásuvný modul ich vynechá: pozri check-file.</numerusform>
        </translation>
    </message>
    <message>
        <source>Personal number %1 also appears as %2.</source>
        <translation>Osobné číslo %1 je v exporte aj ako %2.</translation>
    </message>
    <message>
        <source>Line %1 of %2 is about %3, pid %4.</source>
        <translation>Riadok %1 súboru %2 sa týka osoby %3, pid %4.</translation>
    </message>
    <message>
        <source>Line %1 of %2 is about the person, but the plugin drops it.</source>
        <translation>Riadok %1 súboru %2 sa týka tejto osoby, ale zásuvný modul ho vynechá.</translation>
    </message>
    <message>
        <source>The person is not in the database either.</source>
        <translation>Osoba nie je ani v databáze.</translation>
    </message>
    <message>
        <source>The plugin leaves people alone who are missing from the export: it never ends or removes them.</source>
        <translation>Osoby, ktoré v exporte chýbajú, zásuvný modul nemení: nikdy ich neukončí ani neodstráni.</translation>
    </message>
    <message>
        <source>What only the running plugin knows</source>
        <translation>Čo vie iba bežiaci zásuvný modul</translation>
    </message>
    <message>
        <source>This is what a plugin does with its first export after it was started. Later it skips people whose line has not changed since the previous synchronisation, unless the synchronisation is forced, the record waits for its branch, or the balance could not be corrected.</source>
        <translation>Takto zásuvný modul spracuje prvý export po svojom spustení. Neskôr preskakuje osoby, ktorých riadok sa od predchádzajúcej synchronizácie nezmenil, ak synchronizácia nie je vynútená, záznam nečaká na svoju pobočku a zostatok sa podarilo opraviť.</translation>
    </message>
    <message>
        <source>Only its memory knows which lines it has seen. If it has seen this very line and a step failed, nothing happens until the line changes; mirovahrctl force makes it handle every line again.</source>
        <translation>Len v jeho pamäti je, ktoré riadky už videl. Ak videl práve tento riadok a niektorý krok zlyhal, nič sa nestane, kým sa riadok nezmení; mirovahrctl force ho prinúti znova spracovať každý riadok.</translation>
    </message>
    <message>
        <source>Statements that fail, for lack of rights or otherwise, are not predicted here: see preview and check-db.</source>
        <translation>Príkazy, ktoré zlyhajú pre chýbajúce oprávnenia alebo inak, sa tu nedajú predpovedať: pozri preview a check-db.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Súhrn</translation>
    </message>
    <message>
        <source>Export is</source>
        <translation>Pôvod exportu</translation>
    </message>
    <message>
        <source>Recalculation because of</source>
        <translation>Dôvod prepočtu</translation>
    </message>
    <message>
        <source>Days of attendance to mark</source>
        <translation>Dni dochádzky označené na prepočet</translation>
    </message>
    <message>
        <source>The last calculation moves forward from %1 to %2. Days in between that are not calculated yet stay uncalculated.</source>
        <translation>Dátum posledného výpočtu sa posunie dopredu z %1 na %2. Dni medzi tým, ktoré ešte nie sú vypočítané, zostanú nevypočítané.</translation>
    </message>
    <message>
        <source>Last calculation is set</source>
        <translation>Dátum posledného výpočtu</translation>
    </message>
    <message>
        <source>There are findings.</source>
        <translation>Správa obsahuje nálezy.</translation>
    </message>
    <message>
        <source>The plugin drops the line of %1, who is in the database.</source>
        <translation>Zásuvný modul vynechá riadok osoby %1, ktorá je v databáze.</translation>
    </message>
    <message>
        <source>The plugin drops the line of %1, who is not in the database.</source>
        <translation>Zásuvný modul vynechá riadok osoby %1, ktorá v databáze nie je.</translation>
    </message>
    <message>
        <source>There is no export; %1 is in the database.</source>
        <translation>Export neexistuje; osoba %1 je v databáze.</translation>
    </message>
    <message>
        <source>There is no export; %1 is not in the database.</source>
        <translation>Export neexistuje; osoba %1 v databáze nie je.</translation>
    </message>
    <message>
        <source>%1 is in the database, but not in the export.</source>
        <translation>Osoba %1 je v databáze, ale nie je v exporte.</translation>
    </message>
    <message>
        <source>%1 is neither in the export nor in the database.</source>
        <translation>Osoba %1 nie je v exporte ani v databáze.</translation>
    </message>
    <message>
        <source>the selection for the payroll export</source>
        <translation>výber exportu pre mzdy</translation>
    </message>
    <message>
        <source>the settings of the payroll export</source>
        <translation>nastavenie exportu pre mzdy</translation>
    </message>
    <message>
        <source>the vacation balance</source>
        <translation>zostatok dovolenky</translation>
    </message>
    <message>
        <source>who receives the requests</source>
        <translation>kto dostáva žiadosti</translation>
    </message>
    <message>
        <source>the branch</source>
        <translation>pobočka</translation>
    </message>
    <message>
        <source>the calendar group</source>
        <translation>kalendárová skupina</translation>
    </message>
    <message>
        <source>Administrator: see the finding %1.</source>
        <translation>Správca: pozri nález %1.</translation>
    </message>
    <message>
        <source>HR: %1</source>
        <translation>Personálne oddelenie: %1</translation>
    </message>
    <message>
        <source>Administrator: %1</source>
        <translation>Správca: %1</translation>
    </message>
    <message>
        <source>In short</source>
        <translation>Stručne</translation>
    </message>
    <message>
        <source>%1 has not arrived in the attendance database.</source>
        <translation>Osoba %1 v dochádzkovej databáze nie je.</translation>
    </message>
    <message>
        <source>%1 has arrived: the attendance database has the person as %2, active.</source>
        <translation>Osoba %1 je v dochádzkovej databáze ako %2 a je aktívna.</translation>
    </message>
    <message>
        <source>%1 is in the attendance database as %2, but not active.</source>
        <translation>Osoba %1 je v dochádzkovej databáze ako %2, ale nie je aktívna.</translation>
    </message>
    <message>
        <source>Without an export nobody knows what is different from HR.</source>
        <translation>Bez exportu sa nedá zistiť, čo sa líši od údajov personálneho oddelenia.</translation>
    </message>
    <message>
        <source>HR&apos;s export has no line of the person.</source>
        <translation>Export personálneho oddelenia nemá riadok tejto osoby.</translation>
    </message>
    <message>
        <source>HR&apos;s line is broken, so nothing of it is compared.</source>
        <translation>Riadok od personálneho oddelenia je poškodený, preto sa z neho nič neporovnáva.</translation>
    </message>
    <message>
        <source>Nothing was found that is different from HR&apos;s line.</source>
        <translation>Nenašlo sa nič, čo by sa líšilo od riadka personálneho oddelenia.</translation>
    </message>
    <message>
        <source>Different from HR&apos;s line: %1.</source>
        <translation>Od riadka personálneho oddelenia sa líši: %1.</translation>
    </message>
    <message>
        <source>Nobody has to do anything: the next synchronisation writes the person, or mirovahrctl force if the plugin has seen this very line before.</source>
        <translation>Nikto nemusí nič robiť: osobu zapíše najbližšia synchronizácia alebo mirovahrctl force, ak zásuvný modul práve tento riadok už videl.</translation>
    </message>
    <message>
        <source>Nobody has to do anything.</source>
        <translation>Nikto nemusí nič robiť.</translation>
    </message>
    <message>
        <source>Member of branches</source>
        <translation>Člen pobočiek</translation>
    </message>
    <message>
        <source>Calendar groups and their first months</source>
        <translation>Kalendárové skupiny a ich prvé mesiace</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 od %2</translation>
    </message>
    <message>
        <source>Administrators who receive the requests</source>
        <translation>Administrátori, ktorí dostávajú žiadosti</translation>
    </message>
    <message>
        <source>%1 (personal number %2)</source>
        <translation>%1 (osobné číslo %2)</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminály</translation>
    </message>
    <message>
        <source>Settings of the payroll export</source>
        <translation>Nastavenie exportu pre mzdy</translation>
    </message>
    <message>
        <source>The database has the person as uid %1: %2 %3, active.</source>
        <translation>V databáze má osoba uid %1: %2 %3, aktívna.</translation>
    </message>
    <message>
        <source>The database has the person as uid %1: %2 %3, not active.</source>
        <translation>V databáze má osoba uid %1: %2 %3, neaktívna.</translation>
    </message>
    <message>
        <source>It is not known when the row was created.</source>
        <translation>Nie je známe, kedy bol riadok vytvorený.</translation>
    </message>
    <message>
        <source>The row was created on %1.</source>
        <translation>Riadok bol vytvorený %1.</translation>
    </message>
    <message>
        <source>The plugin changed it last, on %1.</source>
        <translation>Naposledy ho zmenil zásuvný modul, a to %1.</translation>
    </message>
    <message>
        <source>An administrator changed it last, on %1.</source>
        <translation>Naposledy ho zmenil administrátor, a to %1.</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Čo</translation>
    </message>
    <message>
        <source>An active row with another pid has the payroll id %1. The plugin recognises it as this person, but writes by pid: it changes nobody, or somebody else.</source>
        <translation>Identifikátor pre mzdy %1 má aktívny riadok s iným pid. Zásuvný modul ho rozpozná ako túto osobu, ale zapisuje podľa pid: nezmení nikoho alebo zmení niekoho iného.</translation>
    </message>
    <message>
        <source>Correct pid and pamId of that row.</source>
        <translation>Opravte pid a pamId v tomto riadku.</translation>
    </message>
    <message>
        <source>The payroll id of the row belongs to another pid: the plugin does not recognise the person in it.</source>
        <translation>Identifikátor pre mzdy v riadku patrí inému pid: zásuvný modul v ňom osobu nerozpozná.</translation>
    </message>
    <message>
        <source>Correct pamId of the row.</source>
        <translation>Opravte v riadku pamId.</translation>
    </message>
    <message>
        <source>The plugin sees active people only, so it does not see this row.</source>
        <translation>Zásuvný modul vidí iba aktívne osoby, takže tento riadok nevidí.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databáza</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1.</source>
        <translation>V databáze nie je nikto s pid %1.</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Reading the export</source>
        <translation>Čítanie exportu</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (riadok %2)</translation>
    </message>
    <message>
        <source>created</source>
        <comment>outcome</comment>
        <translation>vytvorí sa</translation>
    </message>
    <message>
        <source>merged</source>
        <comment>outcome</comment>
        <translation>aktualizuje a aktivuje sa</translation>
    </message>
    <message>
        <source>updated</source>
        <comment>outcome</comment>
        <translation>aktualizuje sa</translation>
    </message>
    <message>
        <source>unchanged</source>
        <comment>outcome</comment>
        <translation>nezmení sa</translation>
    </message>
    <message>
        <source>never-created</source>
        <comment>outcome</comment>
        <translation>nevytvorí sa</translation>
    </message>
    <message>
        <source>missed</source>
        <comment>outcome</comment>
        <translation>riadok sa nenájde</translation>
    </message>
    <message>
        <source>test-mode</source>
        <comment>outcome</comment>
        <translation>skúšobný režim</translation>
    </message>
    <message>
        <source>uncertain</source>
        <comment>outcome</comment>
        <translation>neisté</translation>
    </message>
    <message>
        <source>joins</source>
        <comment>outcome</comment>
        <translation>zaradí sa</translation>
    </message>
    <message>
        <source>member</source>
        <comment>outcome</comment>
        <translation>už zaradená</translation>
    </message>
    <message>
        <source>set</source>
        <comment>outcome</comment>
        <translation>nastaví sa</translation>
    </message>
    <message>
        <source>kept</source>
        <comment>outcome</comment>
        <translation>zostáva</translation>
    </message>
    <message>
        <source>corrected</source>
        <comment>outcome</comment>
        <translation>opraví sa</translation>
    </message>
    <message>
        <source>equal</source>
        <comment>outcome</comment>
        <translation>zhoduje sa</translation>
    </message>
    <message>
        <source>later</source>
        <comment>outcome</comment>
        <translation>neskôr</translation>
    </message>
    <message>
        <source>impossible</source>
        <comment>outcome</comment>
        <translation>nedá sa opraviť</translation>
    </message>
    <message>
        <source>no-fund</source>
        <comment>outcome</comment>
        <translation>fond neexistuje</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>outcome</comment>
        <translation>nenájde sa</translation>
    </message>
    <message>
        <source>planned</source>
        <comment>outcome</comment>
        <translation>naplánuje sa</translation>
    </message>
    <message>
        <source>none</source>
        <comment>outcome</comment>
        <translation>bez zmeny</translation>
    </message>
    <message>
        <source>all</source>
        <comment>recalculation</comment>
        <translation>celá dochádzka</translation>
    </message>
    <message>
        <source>uncertain</source>
        <comment>recalculation</comment>
        <translation>neisté</translation>
    </message>
    <message>
        <source>none</source>
        <comment>recalculation</comment>
        <translation>bez prepočtu</translation>
    </message>
    <message>
        <source>state</source>
        <comment>cause</comment>
        <translation>stav pomeru</translation>
    </message>
    <message>
        <source>calendar</source>
        <comment>cause</comment>
        <translation>kalendár</translation>
    </message>
    <message>
        <source>moved</source>
        <comment>cause</comment>
        <translation>zmena zaradenia</translation>
    </message>
    <message>
        <source>balance</source>
        <comment>cause</comment>
        <translation>zostatok dovolenky</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cause</comment>
        <translation>žiadny</translation>
    </message>
    <message>
        <source>kept</source>
        <comment>last calculation</comment>
        <translation>zostáva</translation>
    </message>
    <message>
        <source>back</source>
        <comment>last calculation</comment>
        <translation>posunie sa dozadu</translation>
    </message>
    <message>
        <source>forward</source>
        <comment>last calculation</comment>
        <translation>posunie sa dopredu</translation>
    </message>
    <message>
        <source>named</source>
        <comment>export</comment>
        <translation>uvedený súbor</translation>
    </message>
    <message>
        <source>importFile</source>
        <comment>export</comment>
        <translation>importFile</translation>
    </message>
    <message>
        <source>gate</source>
        <comment>export</comment>
        <translation>brána</translation>
    </message>
    <message>
        <source>none</source>
        <comment>export</comment>
        <translation>žiadny export</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dňa</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>To isté znova</translation>
    </message>
    <message>
        <source>The line equals the previous one, so the plugin leaves the person alone.</source>
        <translation>Riadok je rovnaký ako predchádzajúci, takže zásuvný modul osobu nezmení.</translation>
    </message>
    <message>
        <source>Does the person work?</source>
        <translation>Pracuje osoba?</translation>
    </message>
    <message>
        <source>Yes: the employment state %1 is below 4, and the last day, %2, is not over.</source>
        <translation>Áno: stav pracovného pomeru %1 je menší ako 4 a posledný deň, %2, ešte neuplynul.</translation>
    </message>
    <message>
        <source>Yes: the employment state %1 is below 4, and there is no last day.</source>
        <translation>Áno: stav pracovného pomeru %1 je menší ako 4 a posledný deň nie je uvedený.</translation>
    </message>
    <message>
        <source>No: the last day, %1, is over.</source>
        <translation>Nie: posledný deň, %1, už uplynul.</translation>
    </message>
    <message>
        <source>No: the employment state %1 means that it has ended, as every state from 4 on.</source>
        <translation>Nie: stav pracovného pomeru %1 znamená, že sa skončil, tak ako každý stav od 4.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riadok %1: %2</translation>
    </message>
    <message>
        <source>the relationship state begins</source>
        <translation>začína sa stav pomeru</translation>
    </message>
    <message>
        <source>the calendar group is planned from a day on that is over</source>
        <translation>kalendárová skupina sa plánuje odo dňa, ktorý už uplynul</translation>
    </message>
    <message>
        <source>calendar, its start or the cost centre differ from what the plugin remembers (it does not know the start at first)</source>
        <translation>kalendár, začiatok jeho platnosti alebo stredisko sa líši od toho, čo si zásuvný modul pamätá (začiatok platnosti na začiatku nepozná)</translation>
    </message>
    <message>
        <source>the balance is corrected</source>
        <translation>opraví sa zostatok</translation>
    </message>
    <message>
        <source>Which branch and calendar?</source>
        <translation>Ktorá pobočka a kalendár?</translation>
    </message>
    <message>
        <source>The line names no cost centre: neither branch nor calendar is set.</source>
        <translation>Riadok neuvádza stredisko: nenastaví sa pobočka ani kalendár.</translation>
    </message>
    <message>
        <source>No branch has the number %1 of the cost centre. The log says: %2</source>
        <translation>Žiadna pobočka nemá číslo strediska %1. V protokole je: %2</translation>
    </message>
    <message>
        <source>The cost centre %1 is branch %2, %3.</source>
        <translation>Stredisku %1 zodpovedá pobočka %2, %3.</translation>
    </message>
    <message>
        <source>The person is already a member.</source>
        <translation>Osoba už je jej členom.</translation>
    </message>
    <message>
        <source>The id of the branch is above 65535: the person joins no branch.</source>
        <translation>Identifikátor pobočky je väčší ako 65535: osoba sa nezaradí do žiadnej pobočky.</translation>
    </message>
    <message>
        <source>The id of the branch is above 65535: the person joins branch %1 instead.</source>
        <translation>Identifikátor pobočky je väčší ako 65535: osoba sa namiesto toho zaradí do pobočky %1.</translation>
    </message>
    <message>
        <source>The person joins it at the end of the synchronisation, and stays in every other branch.</source>
        <translation>Osoba sa do nej zaradí na konci synchronizácie a zostane aj vo všetkých ostatných pobočkách.</translation>
    </message>
    <message>
        <source>This adds no terminals.</source>
        <translation>Tým sa nepridajú žiadne terminály.</translation>
    </message>
    <message>
        <source>This adds the terminal %1.</source>
        <translation>Tým sa pridá terminál %1.</translation>
    </message>
    <message>
        <source>This adds the terminals %1.</source>
        <translation>Tým sa pridajú terminály %1.</translation>
    </message>
    <message>
        <source>It has no administrators.</source>
        <translation>Pobočka nemá administrátorov.</translation>
    </message>
    <message>
        <source>It has the administrator %1.</source>
        <translation>Pobočka má administrátora %1.</translation>
    </message>
    <message>
        <source>It has the administrators %1.</source>
        <translation>Pobočka má administrátorov %1.</translation>
    </message>
    <message>
        <source>The line names no calendar.</source>
        <translation>Riadok neuvádza kalendár.</translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for the calendar %1. The log says: %2</source>
        <translation>Hlavná skupina pobočky nemá skupinu pre kalendár %1. V protokole je: %2</translation>
    </message>
    <message>
        <source>The calendar %1 is group %2 there.</source>
        <translation>Kalendáru %1 v nej zodpovedá skupina %2.</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1 for whom the group could be planned. The log says: %2</source>
        <translation>V databáze nie je nikto s pid %1, komu by sa skupina dala naplánovať. V protokole je: %2</translation>
    </message>
    <message>
        <source>It is already planned from month %1 on.</source>
        <translation>Už je naplánovaná od mesiaca %1.</translation>
    </message>
    <message>
        <source>It is planned from month %1 on.</source>
        <translation>Naplánuje sa od mesiaca %1.</translation>
    </message>
    <message>
        <source>Attendance is calculated again from %1 on.</source>
        <translation>Dochádzka sa znova vypočíta od %1.</translation>
    </message>
    <message>
        <source>All attendance is calculated again, because the start of the calendar is no date.</source>
        <translation>Znova sa vypočíta celá dochádzka, lebo začiatok platnosti kalendára nie je dátum.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, but the plugin counts the record as waiting all the same.</source>
        <translation>Netreba nič urobiť, ale zásuvný modul záznam aj tak považuje za čakajúci.</translation>
    </message>
    <message>
        <source>The record waits: the plugin tries it again as long as exactly this line arrives.</source>
        <translation>Záznam čaká: zásuvný modul to skúša znova, kým prichádza presne tento riadok.</translation>
    </message>
    <message>
        <source>Is attendance calculated again?</source>
        <translation>Vypočíta sa dochádzka znova?</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nie.</translation>
    </message>
    <message>
        <source>Yes, from %1 on, because %2.</source>
        <translation>Áno, od %1. Dôvod: %2.</translation>
    </message>
    <message>
        <source>Yes, all of it, because %1.</source>
        <translation>Áno, celá. Dôvod: %1.</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1 whose attendance could be calculated again. The log says: %2</source>
        <translation>V databáze nie je nikto s pid %1, komu by sa dochádzka dala znova vypočítať. V protokole je: %2</translation>
    </message>
    <message>
        <source>In the export</source>
        <translation>V exporte</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Líši sa</translation>
    </message>
    <message>
        <source>none</source>
        <comment>value of a field</comment>
        <translation>prázdne</translation>
    </message>
    <message>
        <source>%1 (HR: %2, here: %3)</source>
        <translation>%1 (personálne oddelenie: %2, tu: %3)</translation>
    </message>
    <message>
        <source>Is the person created or updated?</source>
        <translation>Vytvorí alebo aktualizuje sa osoba?</translation>
    </message>
    <message>
        <source>An earlier line has created the person or made the row active. The plugin looks people up once in a synchronisation, so it does not write that the person has left.</source>
        <translation>Skorší riadok osobu vytvoril alebo aktivoval jej riadok v databáze. Zásuvný modul vyhľadáva osoby raz za synchronizáciu, preto nezapíše, že osoba odišla.</translation>
    </message>
    <message>
        <source>The person has left. The plugin does not see the row and leaves it alone.</source>
        <translation>Osoba odišla. Zásuvný modul jej riadok nevidí a nezmení ho.</translation>
    </message>
    <message>
        <source>The person has left and has no row. The plugin never creates rows for leavers.</source>
        <translation>Osoba odišla a nemá riadok v databáze. Pre osoby, ktoré odišli, zásuvný modul nikdy nevytvára riadky.</translation>
    </message>
    <message>
        <source>This is fine unless the person still works: then HR&apos;s export is wrong.</source>
        <translation>Ak osoba už nepracuje, je to v poriadku; ak ešte pracuje, je export personálneho oddelenia nesprávny.</translation>
    </message>
    <message>
        <source>But a text of the line, reported above, breaks the statement: it fails or writes something else.</source>
        <translation>Text v riadku exportu, uvedený vyššie, však naruší príkaz: zlyhá alebo zapíše niečo iné.</translation>
    </message>
    <message>
        <source>The text of the relationship state, %1, breaks the statement: it fails or writes something else.</source>
        <translation>Text stavu pomeru, %1, naruší príkaz: zlyhá alebo zapíše niečo iné.</translation>
    </message>
    <message>
        <source>The register state %1 is not among the relationship states of the configuration: a current one ends.</source>
        <translation>Evidenčný stav %1 nie je medzi stavmi pomeru v konfigurácii: prípadný súčasný stav pomeru sa skončí.</translation>
    </message>
    <message>
        <source>The register state %1 is a relationship state of the configuration: &quot;%2&quot;.</source>
        <translation>Evidenčný stav %1 je v konfigurácii stavom pomeru: „%2“.</translation>
    </message>
    <message>
        <source>The plugin compares with the row as it was before the earlier lines changed it.</source>
        <translation>Zásuvný modul porovnáva s riadkom v databáze, aký bol predtým, než ho zmenili skoršie riadky exportu.</translation>
    </message>
    <message>
        <source>No field differs from the row.</source>
        <translation>Žiadne pole sa nelíši od riadka v databáze.</translation>
    </message>
    <message>
        <source>These fields differ from the row: %1.</source>
        <translation>Od riadka v databáze sa líšia tieto polia: %1.</translation>
    </message>
    <message>
        <source>The plugin compares a text in the form that the statement needs, with apostrophes and backslashes doubled. Only that makes the difference here, and the same text is written again: %1.</source>
        <translation>Zásuvný modul porovnáva text v tvare, ktorý vyžaduje príkaz, so zdvojenými apostrofmi a opačnými lomkami. Rozdiel je tu iba v tom a znova sa zapíše ten istý text: %1.</translation>
    </message>
    <message>
        <source>The row is not written.</source>
        <translation>Riadok sa nezapíše.</translation>
    </message>
    <message>
        <source>The plugin updates the row with the pid %1, but there is none: nothing is written.</source>
        <translation>Zásuvný modul aktualizuje riadok s pid %1, ale taký neexistuje: nič sa nezapíše.</translation>
    </message>
    <message>
        <source>The row is updated.</source>
        <translation>Riadok sa aktualizuje.</translation>
    </message>
    <message>
        <source>The row is written all the same: the employment type or the register state differs from the previous line.</source>
        <translation>Riadok sa aj tak zapíše: druh pracovného pomeru alebo evidenčný stav sa líši od predchádzajúceho riadka exportu.</translation>
    </message>
    <message>
        <source>The row is written all the same: the plugin does not know yet which codes of employment type and register state it was last written with.</source>
        <translation>Riadok sa aj tak zapíše: zásuvný modul ešte nevie, s akým kódom druhu pracovného pomeru a evidenčného stavu bol zapísaný naposledy.</translation>
    </message>
    <message>
        <source>It stays active: the plugin never deactivates people, it only writes their last day.</source>
        <translation>Zostane aktívny: zásuvný modul osoby nikdy nedeaktivuje, iba zapíše ich posledný deň.</translation>
    </message>
    <message>
        <source>The last calculation is set to the day before %1, where the relationship state begins.</source>
        <translation>Dátum posledného výpočtu sa nastaví na deň pred %1, keď sa začína stav pomeru.</translation>
    </message>
    <message>
        <source>Attendance is calculated again from %1 on, where the relationship state begins.</source>
        <translation>Dochádzka sa znova vypočíta od %1, keď sa začína stav pomeru.</translation>
    </message>
    <message>
        <source>No active terminal that handles people holds this person, so nothing is queued.</source>
        <translation>Túto osobu nemá žiadny aktívny terminál, ktorý pracuje s osobami, takže sa do frontu nič nezaradí.</translation>
    </message>
    <message>
        <source>The change is queued for terminal %1.</source>
        <translation>Zmena sa zaradí do frontu pre terminál %1.</translation>
    </message>
    <message>
        <source>The change is queued for the terminals %1.</source>
        <translation>Zmena sa zaradí do frontu pre terminály %1.</translation>
    </message>
    <message>
        <source>The following steps find no row to write to, and warn.</source>
        <translation>Nasledujúce kroky nenájdu riadok, do ktorého by zapisovali, a vypíšu upozornenie.</translation>
    </message>
    <message>
        <source>The line is merged into the row that an earlier line has written. The department becomes 1.</source>
        <translation>Riadok exportu sa zlúči s riadkom v databáze, ktorý zapísal skorší riadok exportu. Oddelenie sa nastaví na 1.</translation>
    </message>
    <message>
        <source>The line is merged into the row with the uid %1, which becomes active. Relationship state, calendar and branch of the row stay unchanged, the department becomes 1.</source>
        <translation>Riadok exportu sa zlúči s riadkom v databáze s uid %1, ktorý sa aktivuje. Stav pomeru, kalendár a pobočka riadka sa nezmenia, oddelenie sa nastaví na 1.</translation>
    </message>
    <message>
        <source>The person is created.</source>
        <translation>Osoba sa vytvorí.</translation>
    </message>
    <message>
        <source>If this fails, the log says why behind &quot;MHRWorker::dbAddPerson(%1) - SQL ERROR:&quot;, and the plugin does not try again until the line changes or a synchronisation is forced.</source>
        <translation>Ak to zlyhá, dôvod je v protokole za textom „MHRWorker::dbAddPerson(%1) - SQL ERROR:“ a zásuvný modul to neskúsi znova, kým sa riadok nezmení alebo sa synchronizácia nevynúti.</translation>
    </message>
    <message>
        <source>The vacation balance of a new person is corrected by a later synchronisation.</source>
        <translation>Zostatok dovolenky novej osoby opraví až niektorá z ďalších synchronizácií.</translation>
    </message>
    <message>
        <source>The person gets the uid %1 or a later one. Under those uids there are rows of %2, which somebody who was deleted has left behind. The person takes over those of the own uid, and what follows may turn out differently.</source>
        <translation>Osoba dostane uid %1 alebo vyššie. Pod týmito uid sú v tabuľkách %2 riadky, ktoré zostali po niekom, kto bol vymazaný. Osoba prevezme riadky svojho uid a ďalší priebeh môže byť iný.</translation>
    </message>
    <message>
        <source>The person joins no payroll export, because the pid is 0. The log says: %1</source>
        <translation>Osoba sa nezaradí do žiadneho exportu pre mzdy, lebo pid je 0. V protokole je: %1</translation>
    </message>
    <message numerus="yes">
        <source>The person joins no payroll export, because there are %Ln instead of one. The log says: %1</source>
        <translation>
            <numerusform>Osoba sa nezaradí do žiadneho exportu pre mzdy, lebo ich je %Ln namiesto jedného. V protokole je: %1</numerusform>
            <numerusform>Osoba sa nezaradí do žiadneho exportu pre mzdy, lebo sú %Ln namiesto jedného. V protokole je: %1</numerusform>
            <numerusform>Osoba sa nezaradí do žiadneho exportu pre mzdy, lebo ich je %Ln namiesto jedného. V protokole je: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The person is in the selection of the payroll export %1 already.</source>
        <translation>Osoba už je zaradená do výberu exportu pre mzdy %1.</translation>
    </message>
    <message>
        <source>The person joins the selection of the payroll export %1.</source>
        <translation>Osoba sa zaradí do výberu exportu pre mzdy %1.</translation>
    </message>
    <message>
        <source>The employment type %1 has no settings of the payroll export.</source>
        <translation>Druh pracovného pomeru %1 nemá nastavenie exportu pre mzdy.</translation>
    </message>
    <message>
        <source>The employment type %1 means the settings %2 of the payroll export.</source>
        <translation>Druhu pracovného pomeru %1 zodpovedá nastavenie %2 exportu pre mzdy.</translation>
    </message>
    <message>
        <source>An earlier line has written the same row. Within the same second the statement changes nothing, which the plugin treats as a failure: it then leaves the settings and the supervisor unchanged.</source>
        <translation>Ten istý riadok v databáze už zapísal skorší riadok exportu. V tej istej sekunde príkaz nič nezmení, čo zásuvný modul považuje za zlyhanie: nastavenie a nadriadeného potom nezmení.</translation>
    </message>
    <message>
        <source>The person has these settings already, which the plugin treats as a failure. The log says: %1</source>
        <translation>Osoba už toto nastavenie má, čo zásuvný modul považuje za zlyhanie. V protokole je: %1</translation>
    </message>
    <message>
        <source>In test mode nothing is written here. At debug level 1 and above the log says: %1</source>
        <translation>V skúšobnom režime sa tu nič nezapíše. Na úrovni ladenia 1 a vyššej je v protokole: %1</translation>
    </message>
    <message>
        <source>Is the vacation balance corrected?</source>
        <translation>Opraví sa zostatok dovolenky?</translation>
    </message>
    <message>
        <source>No: there is no vacation fund.</source>
        <translation>Nie: fond dovolenky neexistuje.</translation>
    </message>
    <message>
        <source>Not today: today&apos;s correction exists already. The plugin tries again tomorrow.</source>
        <translation>Dnes nie: dnešná oprava už existuje. Zásuvný modul to skúsi znova zajtra.</translation>
    </message>
    <message>
        <source>Not today: line %1 has corrected it, and the plugin corrects a balance once a day.</source>
        <translation>Dnes nie: opravil ho riadok %1 a zásuvný modul opravuje zostatok raz za deň.</translation>
    </message>
    <message>
        <source>Not now: the person&apos;s attendance is being calculated, or has days that are not calculated yet. The plugin tries again at the next synchronisation that contains the person.</source>
        <translation>Teraz nie: dochádzka osoby sa práve počíta alebo má dni, ktoré ešte nie sú vypočítané. Zásuvný modul to skúsi znova pri najbližšej synchronizácii, ktorá osobu obsahuje.</translation>
    </message>
    <message>
        <source>No: the balance is that of the previous line.</source>
        <translation>Nie: zostatok je rovnaký ako v predchádzajúcom riadku.</translation>
    </message>
    <message>
        <source>The fund holds %1, and no valid correction leads from there to %2 days. The balance stays, and the log says: %3</source>
        <translation>Vo fonde je %1 a žiadna platná oprava z neho nevedie na %2 dňa. Zostatok sa nemení a v protokole je: %3</translation>
    </message>
    <message>
        <source>No: the fund holds %1, as the export says.</source>
        <translation>Nie: vo fonde je %1, tak ako uvádza export.</translation>
    </message>
    <message>
        <source>Yes: the fund holds %1, and the correction of today is %2.</source>
        <translation>Áno: vo fonde je %1 a dnešná oprava je %2.</translation>
    </message>
    <message>
        <source>Who receives the person&apos;s requests?</source>
        <translation>Kto dostáva žiadosti osoby?</translation>
    </message>
    <message>
        <source>The line names no supervisor: nothing changes.</source>
        <translation>Riadok neuvádza nadriadeného: nič sa nezmení.</translation>
    </message>
    <message>
        <source>The employment type %1 is not one for which the plugin sets a supervisor: nothing changes.</source>
        <translation>Pri druhu pracovného pomeru %1 zásuvný modul nadriadeného nenastavuje: nič sa nezmení.</translation>
    </message>
    <message>
        <source>The supervisor is that of the previous line: nothing changes.</source>
        <translation>Nadriadený je rovnaký ako v predchádzajúcom riadku: nič sa nezmení.</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1 who could be given a supervisor. The log says: %2</source>
        <translation>V databáze nie je nikto s pid %1, komu by sa dal nastaviť nadriadený. V protokole je: %2</translation>
    </message>
    <message>
        <source>Administrator %1, who has the personal number %2, as before.</source>
        <translation>Administrátor %1, ktorý má osobné číslo %2, ako doteraz.</translation>
    </message>
    <message>
        <source>Administrator %1, who has the personal number %2, unless the plugin handles the line within the same second as the earlier one.</source>
        <translation>Administrátor %1, ktorý má osobné číslo %2, ak zásuvný modul nespracuje riadok v tej istej sekunde ako skorší.</translation>
    </message>
    <message>
        <source>Administrator %1, who has the personal number %2, and nobody else.</source>
        <translation>Administrátor %1, ktorý má osobné číslo %2, a nikto iný.</translation>
    </message>
    <message>
        <source>No administrator has the personal number %1 of the supervisor: nothing changes.</source>
        <translation>Žiadny administrátor nemá osobné číslo nadriadeného %1: nič sa nezmení.</translation>
    </message>
    <message>
        <source>The log says: %1</source>
        <translation>V protokole je: %1</translation>
    </message>
</context>
</TS>
