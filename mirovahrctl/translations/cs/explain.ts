<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>No valid correction leads to the balance of the export, so the balance stays.</source>
        <translation>K zůstatku z exportu nevede žádná platná oprava, takže zůstatek se nemění.</translation>
    </message>
    <message>
        <source>One of the two balances is wrong.</source>
        <translation>Jeden z obou zůstatků je nesprávný.</translation>
    </message>
    <message>
        <source>The id of the branch exceeds 16 bits; the person joins another branch, or none.</source>
        <translation>Identifikátor pobočky přesahuje 16 bitů; osoba se zařadí do jiné pobočky nebo do žádné.</translation>
    </message>
    <message>
        <source>Give the branch a smaller id.</source>
        <translation>Přidělte pobočce menší identifikátor.</translation>
    </message>
    <message>
        <source>No branch has the number of the cost centre, so the person joins none.</source>
        <translation>Žádná pobočka nemá číslo tohoto střediska, takže osoba se nezařadí do žádné.</translation>
    </message>
    <message>
        <source>Give the branch this number, or ask HR to correct the cost centre.</source>
        <translation>Přidělte pobočce toto číslo nebo požádejte personální oddělení o opravu střediska.</translation>
    </message>
    <message>
        <source>The last calculation moves forward; days in between may stay uncalculated.</source>
        <translation>Datum posledního výpočtu se posune dopředu; dny mezi tím mohou zůstat nevypočítané.</translation>
    </message>
    <message>
        <source>Recalculate the person&apos;s attendance by hand if there are such days.</source>
        <translation>Pokud takové dny jsou, přepočítejte docházku osoby ručně.</translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for the calendar.</source>
        <translation>Hlavní skupina pobočky nemá skupinu pro tento kalendář.</translation>
    </message>
    <message>
        <source>Create a group for this calendar in the master group of the branch, or ask HR to correct the calendar.</source>
        <translation>Vytvořte skupinu pro tento kalendář v hlavní skupině pobočky nebo požádejte personální oddělení o opravu kalendáře.</translation>
    </message>
    <message>
        <source>The plugin is switched off, so nobody is synchronised.</source>
        <translation>Zásuvný modul je vypnutý, takže se nikdo nesynchronizuje.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation>Nastavte enabled na 1 a znovu spusťte docházkový server.</translation>
    </message>
    <message>
        <source>The gate has refused a newer file than the one that is explained.</source>
        <translation>Brána odmítla novější soubor, než je ten, který se vysvětluje.</translation>
    </message>
    <message>
        <source>Check whether that file has another line for the person.</source>
        <translation>Ověřte, zda v něm má osoba jiný řádek.</translation>
    </message>
    <message>
        <source>The person has left, so the plugin creates no row, or does not write the end.</source>
        <translation>Osoba odešla, takže zásuvný modul nevytvoří řádek nebo nezapíše konec.</translation>
    </message>
    <message>
        <source>Ask HR to export each employment relationship once.</source>
        <translation>Požádejte personální oddělení, aby každý pracovní poměr exportovalo jen jednou.</translation>
    </message>
    <message>
        <source>There are more lines about the person than are explained.</source>
        <translation>O osobě je v exportu více řádků, než se vysvětluje.</translation>
    </message>
    <message>
        <source>The new person joins no payroll export.</source>
        <translation>Nová osoba se nezařadí do žádného exportu pro mzdy.</translation>
    </message>
    <message>
        <source>Add the person by hand where needed.</source>
        <translation>Podle potřeby přidejte osobu ručně.</translation>
    </message>
    <message>
        <source>Nobody in the export or in the database matches the search.</source>
        <translation>Hledání neodpovídá nikdo v exportu ani v databázi.</translation>
    </message>
    <message>
        <source>Check the spelling, and whether HR has ever exported the person.</source>
        <translation>Ověřte pravopis a to, zda personální oddělení osobu někdy exportovalo.</translation>
    </message>
    <message>
        <source>The person is neither in the export nor in the database.</source>
        <translation>Osoba není v exportu ani v databázi.</translation>
    </message>
    <message>
        <source>Check the number, and whether HR has ever exported the person.</source>
        <translation>Ověřte číslo a to, zda personální oddělení osobu někdy exportovalo.</translation>
    </message>
    <message>
        <source>No line of the export is about the person.</source>
        <translation>Osoby se netýká žádný řádek exportu.</translation>
    </message>
    <message>
        <source>Ask HR why the person is missing from the export.</source>
        <translation>Zeptejte se personálního oddělení, proč osoba v exportu chybí.</translation>
    </message>
    <message>
        <source>The payroll id of an active row belongs to another pid.</source>
        <translation>Identifikátor pro mzdy v aktivním řádku patří jinému pid.</translation>
    </message>
    <message>
        <source>Correct pid and pamId of the row.</source>
        <translation>Opravte v řádku pid a pamId.</translation>
    </message>
    <message>
        <source>The person has the settings of the payroll export already, which the plugin logs as a failure.</source>
        <translation>Osoba už má nastavení exportu pro mzdy, což zásuvný modul zapíše do protokolu jako selhání.</translation>
    </message>
    <message>
        <source>This is harmless.</source>
        <translation>Není to na škodu.</translation>
    </message>
    <message>
        <source>The search does not name exactly one person.</source>
        <translation>Hledání neurčuje právě jednu osobu.</translation>
    </message>
    <message>
        <source>Name one by the first column of the table. Where it is empty, the line has no numbers, and the plugin drops it.</source>
        <translation>Určete jednu osobu podle prvního sloupce tabulky. Kde je prázdný, řádek nemá čísla a zásuvný modul ho vynechá.</translation>
    </message>
    <message>
        <source>The person has no row to which a step could apply.</source>
        <translation>Osoba nemá řádek, na kterém by bylo možné krok provést.</translation>
    </message>
    <message>
        <source>See above why the person has no row with this pid.</source>
        <translation>Podívejte se výše, proč osoba nemá řádek s tímto pid.</translation>
    </message>
    <message>
        <source>Rows of somebody who was deleted lie under a uid that the new person may get.</source>
        <translation>Pod uid, které může dostat nová osoba, jsou řádky někoho, kdo byl smazán.</translation>
    </message>
    <message>
        <source>Delete them, or raise AUTO_INCREMENT of people above their uids.</source>
        <translation>Smažte je nebo zvyšte AUTO_INCREMENT tabulky people nad jejich uid.</translation>
    </message>
    <message>
        <source>The text of the relationship state breaks the statement that writes the row.</source>
        <translation>Text stavu poměru naruší příkaz, který zapisuje řádek.</translation>
    </message>
    <message>
        <source>Change the text in the group MES of the configuration, or rsText of the row.</source>
        <translation>Změňte text ve skupině MES konfigurace nebo rsText v řádku.</translation>
    </message>
    <message>
        <source>No administrator has the personal number of the supervisor.</source>
        <translation>Žádný administrátor nemá osobní číslo nadřízeného.</translation>
    </message>
    <message>
        <source>Give the supervisor an administrator&apos;s account with this personal number.</source>
        <translation>Vytvořte nadřízenému účet administrátora s tímto osobním číslem.</translation>
    </message>
    <message>
        <source>Test mode is on: rows of people are not written.</source>
        <translation>Je zapnut zkušební režim: řádky osob se nezapisují.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation>Nastavte testMode na 0 a znovu spusťte docházkový server.</translation>
    </message>
    <message>
        <source>Explains why a person did not arrive, or not as expected: how the plugin reads the person&apos;s line in the export, what the database holds, and what each step of a synchronisation does with the two, in the order of the plugin&apos;s decisions. Changes nothing.

PERSON is a payroll id such as 1234.1, a personal number, a pid, or a name, such as novakova, whose capitals and accents do not matter. Several matches are listed.</source>
        <translation>Vysvětlí, proč se osoba nedostala do docházky nebo se nedostala podle očekávání: jak zásuvný modul čte řádek osoby v exportu, co je v databázi a co s tím udělá každý krok synchronizace v pořadí, v jakém zásuvný modul rozhoduje. Nic nemění.

OSOBA je identifikátor pro mzdy, například 1234.1, osobní číslo, pid nebo jméno, například novakova; na velkých písmenech a diakritice nezáleží. Odpovídá-li více osob, vypíše jejich seznam.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a payroll id such as 1234.1, nor a number, nor a name</source>
        <translation>„%1“ není identifikátor pro mzdy (například 1234.1) ani číslo, ani jméno</translation>
    </message>
    <message>
        <source>Who is %1?</source>
        <translation>Kdo je %1?</translation>
    </message>
    <message>
        <source>The database cannot be used: %1</source>
        <translation>Databázi nelze použít: %1</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <translation>Co se děje s osobou %1</translation>
    </message>
    <message>
        <source>person</source>
        <translation>osoba</translation>
    </message>
    <message>
        <source>A payroll id such as 1234.1, a personal number, a pid, or a name.</source>
        <translation>Identifikátor pro mzdy, například 1234.1, osobní číslo, pid nebo jméno.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The export; importFile of the INI file by default.</source>
        <translation>Export; výchozí je importFile z INI souboru.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>The gate&apos;s own folder, whose last admitted file is used when importFile is gone; by default that of the gate in syncCommand.</source>
        <translation>Vlastní složka brány, jejíž naposledy přijatý soubor se použije, když importFile už neexistuje; výchozí je složka brány v syncCommand.</translation>
    </message>
    <message>
        <source>Searching the export</source>
        <translation>Prohledávání exportu</translation>
    </message>
    <message>
        <source>active</source>
        <comment>row of a person</comment>
        <translation>aktivní</translation>
    </message>
    <message>
        <source>not active</source>
        <comment>row of a person</comment>
        <translation>neaktivní</translation>
    </message>
    <message>
        <source>Nobody in the export or in the database has this name, personal number or pid: %1.</source>
        <translation>Nikdo v exportu ani v databázi nemá toto jméno, osobní číslo nebo pid: %1.</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>Osoba</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a person</comment>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Line of the export</source>
        <translation>Řádek exportu</translation>
    </message>
    <message>
        <source>In the database</source>
        <translation>V databázi</translation>
    </message>
    <message>
        <source>There are more; these are the first %1.</source>
        <translation>Je jich více; toto je prvních %1.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Osoby</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) of the export are too broken to tell whom they are about, and the plugin drops them: see check-file.</source>
        <translation>
            <numerusform>%Ln řádek exportu je natolik poškozený, že nelze zjistit, koho se týká, a zásuvný modul ho vynechá: viz check-file.</numerusform>
            <numerusform>%Ln řádky exportu jsou natolik poškozené, že nelze zjistit, koho se týkají, a zásuvný modul je vynechá: viz check-file.</numerusform>
            <numerusform>%Ln řádků exportu je natolik poškozených, že nelze zjistit, koho se týkají, a zásuvný modul je vynechá: viz check-file.</numerusform>
        </translation>
    </message>
    <message>
        <source>People found</source>
        <translation>Nalezené osoby</translation>
    </message>
    <message>
        <source>Nobody is known as %1.</source>
        <translation>Nikdo takový nebyl nalezen: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) match: name one of them.</source>
        <translation>
            <numerusform>Odpovídá %Ln osoba: uveďte ji přesně.</numerusform>
            <numerusform>Odpovídají %Ln osoby: uveďte jednu z nich.</numerusform>
            <numerusform>Odpovídá %Ln osob: uveďte jednu z nich.</numerusform>
        </translation>
    </message>
    <message>
        <source>A synchronisation creates %1.</source>
        <translation>Synchronizace vytvoří osobu %1.</translation>
    </message>
    <message>
        <source>A synchronisation brings the row of %1 up to date and makes it active.</source>
        <translation>Synchronizace aktualizuje řádek osoby %1 a aktivuje ho.</translation>
    </message>
    <message>
        <source>A synchronisation writes the row of %1.</source>
        <translation>Synchronizace zapíše řádek osoby %1.</translation>
    </message>
    <message>
        <source>A synchronisation leaves the row of %1 alone.</source>
        <translation>Synchronizace řádek osoby %1 nezmění.</translation>
    </message>
    <message>
        <source>%1 has left and is not in the database: the plugin never creates a row for leavers.</source>
        <translation>Osoba %1 odešla a není v databázi: pro osoby, které odešly, zásuvný modul nikdy nevytvoří řádek.</translation>
    </message>
    <message>
        <source>A text in the line of %1 prevents the row from being written correctly.</source>
        <translation>Text v řádku exportu osoby %1 brání správnému zápisu do databáze.</translation>
    </message>
    <message>
        <source>The plugin recognises somebody as %1, but finds no row to write.</source>
        <translation>Zásuvný modul někoho rozpozná jako osobu %1, ale nenajde řádek, který by zapsal.</translation>
    </message>
    <message>
        <source>Test mode is on: the plugin does not write the row of %1.</source>
        <translation>Je zapnut zkušební režim: zásuvný modul řádek osoby %1 nezapíše.</translation>
    </message>
    <message>
        <source>Payroll selection</source>
        <translation>Výběr pro mzdy</translation>
    </message>
    <message>
        <source>Payroll settings</source>
        <translation>Nastavení pro mzdy</translation>
    </message>
    <message>
        <source>Vacation balance</source>
        <translation>Zůstatek dovolené</translation>
    </message>
    <message>
        <source>Supervisor</source>
        <translation>Nadřízený</translation>
    </message>
    <message>
        <source>Branch</source>
        <translation>Pobočka</translation>
    </message>
    <message>
        <source>Calendar group</source>
        <translation>Kalendářová skupina</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Recalculation from</source>
        <translation>Přepočet od</translation>
    </message>
    <message>
        <source>Waits afterwards</source>
        <translation>Záznam potom čeká</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate of syncCommand admitted last.</source>
        <translation>Dále se vychází ze souboru, který naposledy přijala brána ze syncCommand.</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate admitted last.</source>
        <translation>Dále se vychází ze souboru, který naposledy přijala brána.</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate of syncCommand admitted last, on %1.</source>
        <translation>Dále se vychází ze souboru, který naposledy přijala brána ze syncCommand, a to %1.</translation>
    </message>
    <message>
        <source>What follows uses the file that the gate admitted last, on %1.</source>
        <translation>Dále se vychází ze souboru, který naposledy přijala brána, a to %1.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>The next synchronisation is a forced one: the plugin handles every line, changed or not.</source>
        <translation>Nejbližší synchronizace je vynucená: zásuvný modul zpracuje každý řádek bez ohledu na to, zda se změnil.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurace</translation>
    </message>
    <message>
        <source>The plugin is disabled: nobody is synchronised. What follows applies once it is enabled.</source>
        <translation>Zásuvný modul je vypnutý: nikdo se nesynchronizuje. Dále uvedené platí po jeho zapnutí.</translation>
    </message>
    <message>
        <source>Test mode is on: rows of people are not written, only what depends on them.</source>
        <translation>Je zapnut zkušební režim: řádky osob se nezapisují, jen to, co na nich závisí.</translation>
    </message>
    <message>
        <source>There is no export %1: the plugin removes it after it has read it.</source>
        <translation>Export %1 neexistuje: zásuvný modul ho po přečtení odstraní.</translation>
    </message>
    <message>
        <source>There is no export %1.</source>
        <translation>Export %1 neexistuje.</translation>
    </message>
    <message>
        <source>What follows uses the database only.</source>
        <translation>Dále se vychází jen z databáze.</translation>
    </message>
    <message>
        <source>The gate has refused a newer file: %1.</source>
        <translation>Brána odmítla novější soubor: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) more about the same person are not explained: the facts are those of the first %1 lines.</source>
        <translation>
            <numerusform>Ještě %Ln řádek o téže osobě se nevysvětluje: údaje platí pro prvních %1 řádků.</numerusform>
            <numerusform>Ještě %Ln řádky o téže osobě se nevysvětlují: údaje platí pro prvních %1 řádků.</numerusform>
            <numerusform>Ještě %Ln řádků o téže osobě se nevysvětluje: údaje platí pro prvních %1 řádků.</numerusform>
        </translation>
    </message>
    <message>
        <source>The plugin runs its export command first, and may then find another file than this.</source>
        <translation>Zásuvný modul nejprve spustí příkaz exportu a potom může najít jiný soubor, než je tento.</translation>
    </message>
    <message>
        <source>A forced synchronisation runs the export command first, and may then find another file than this.</source>
        <translation>Vynucená synchronizace nejprve spustí příkaz exportu a potom může najít jiný soubor, než je tento.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %Ln line(s) of %1 is about %2.</source>
        <translation>
            <numerusform>Soubor %1 má %Ln řádek a ten se netýká osoby %2.</numerusform>
            <numerusform>Soubor %1 má %Ln řádky a žádný se netýká osoby %2.</numerusform>
            <numerusform>Soubor %1 má %Ln řádků a žádný se netýká osoby %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is fine unless the person still works: according to the database the person has left.</source>
        <translation>Pokud osoba už nepracuje, je to v pořádku: podle databáze odešla.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) are too broken to tell whom they are about, and the plugin drops them: see check-file.</source>
        <translation>
            <numerusform>%Ln řádek je natolik poškozený, že nelze zjistit, koho se týká, a zásuvný modul ho vynechá: viz check-file.</numerusform>
            <numerusform>%Ln řádky jsou natolik poškozené, že nelze zjistit, koho se týkají, a zásuvný modul je vynechá: viz check-file.</numerusform>
            <numerusform>%Ln řádků je natolik poškozených, že nelze zjistit, koho se týkají, a zásuvný modul je vynechá: viz check-file.</numerusform>
        </translation>
    </message>
    <message>
        <source>Personal number %1 also appears as %2.</source>
        <translation>Osobní číslo %1 je v exportu také jako %2.</translation>
    </message>
    <message>
        <source>Line %1 of %2 is about %3, pid %4.</source>
        <translation>Řádek %1 souboru %2 se týká osoby %3, pid %4.</translation>
    </message>
    <message>
        <source>Line %1 of %2 is about the person, but the plugin drops it.</source>
        <translation>Řádek %1 souboru %2 se týká této osoby, ale zásuvný modul ho vynechá.</translation>
    </message>
    <message>
        <source>The person is not in the database either.</source>
        <translation>Osoba není ani v databázi.</translation>
    </message>
    <message>
        <source>The plugin leaves people alone who are missing from the export: it never ends or removes them.</source>
        <translation>Osoby, které v exportu chybějí, zásuvný modul nemění: nikdy je neukončí ani neodstraní.</translation>
    </message>
    <message>
        <source>What only the running plugin knows</source>
        <translation>Co ví jen běžící zásuvný modul</translation>
    </message>
    <message>
        <source>This is what a plugin does with its first export after it was started. Later it skips people whose line has not changed since the previous synchronisation, unless the synchronisation is forced, the record waits for its branch, or the balance could not be corrected.</source>
        <translation>Takto zásuvný modul zpracuje první export po svém spuštění. Později přeskakuje osoby, jejichž řádek se od předchozí synchronizace nezměnil, pokud synchronizace není vynucená, záznam nečeká na svou pobočku a zůstatek se podařilo opravit.</translation>
    </message>
    <message>
        <source>Only its memory knows which lines it has seen. If it has seen this very line and a step failed, nothing happens until the line changes; mirovahrctl force makes it handle every line again.</source>
        <translation>Jen v jeho paměti je, které řádky už viděl. Pokud viděl právě tento řádek a některý krok selhal, nic se nestane, dokud se řádek nezmění; mirovahrctl force ho přiměje znovu zpracovat každý řádek.</translation>
    </message>
    <message>
        <source>Statements that fail, for lack of rights or otherwise, are not predicted here: see preview and check-db.</source>
        <translation>Příkazy, které selžou kvůli chybějícím oprávněním nebo jinak, zde nelze předpovědět: viz preview a check-db.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Export is</source>
        <translation>Původ exportu</translation>
    </message>
    <message>
        <source>Recalculation because of</source>
        <translation>Důvod přepočtu</translation>
    </message>
    <message>
        <source>Days of attendance to mark</source>
        <translation>Dny docházky označené k přepočtu</translation>
    </message>
    <message>
        <source>The last calculation moves forward from %1 to %2. Days in between that are not calculated yet stay uncalculated.</source>
        <translation>Datum posledního výpočtu se posune dopředu z %1 na %2. Dny mezi tím, které ještě nejsou vypočítané, zůstanou nevypočítané.</translation>
    </message>
    <message>
        <source>Last calculation is set</source>
        <translation>Datum posledního výpočtu</translation>
    </message>
    <message>
        <source>There are findings.</source>
        <translation>Zpráva obsahuje nálezy.</translation>
    </message>
    <message>
        <source>The plugin drops the line of %1, who is in the database.</source>
        <translation>Zásuvný modul vynechá řádek osoby %1, která je v databázi.</translation>
    </message>
    <message>
        <source>The plugin drops the line of %1, who is not in the database.</source>
        <translation>Zásuvný modul vynechá řádek osoby %1, která v databázi není.</translation>
    </message>
    <message>
        <source>There is no export; %1 is in the database.</source>
        <translation>Export neexistuje; osoba %1 je v databázi.</translation>
    </message>
    <message>
        <source>There is no export; %1 is not in the database.</source>
        <translation>Export neexistuje; osoba %1 v databázi není.</translation>
    </message>
    <message>
        <source>%1 is in the database, but not in the export.</source>
        <translation>Osoba %1 je v databázi, ale není v exportu.</translation>
    </message>
    <message>
        <source>%1 is neither in the export nor in the database.</source>
        <translation>Osoba %1 není v exportu ani v databázi.</translation>
    </message>
    <message>
        <source>the selection for the payroll export</source>
        <translation>výběr exportu pro mzdy</translation>
    </message>
    <message>
        <source>the settings of the payroll export</source>
        <translation>nastavení exportu pro mzdy</translation>
    </message>
    <message>
        <source>the vacation balance</source>
        <translation>zůstatek dovolené</translation>
    </message>
    <message>
        <source>who receives the requests</source>
        <translation>kdo dostává žádosti</translation>
    </message>
    <message>
        <source>the branch</source>
        <translation>pobočka</translation>
    </message>
    <message>
        <source>the calendar group</source>
        <translation>kalendářová skupina</translation>
    </message>
    <message>
        <source>Administrator: see the finding %1.</source>
        <translation>Správce: viz nález %1.</translation>
    </message>
    <message>
        <source>HR: %1</source>
        <translation>Personální oddělení: %1</translation>
    </message>
    <message>
        <source>Administrator: %1</source>
        <translation>Správce: %1</translation>
    </message>
    <message>
        <source>In short</source>
        <translation>Stručně</translation>
    </message>
    <message>
        <source>%1 has not arrived in the attendance database.</source>
        <translation>Osoba %1 v docházkové databázi není.</translation>
    </message>
    <message>
        <source>%1 has arrived: the attendance database has the person as %2, active.</source>
        <translation>Osoba %1 je v docházkové databázi jako %2 a je aktivní.</translation>
    </message>
    <message>
        <source>%1 is in the attendance database as %2, but not active.</source>
        <translation>Osoba %1 je v docházkové databázi jako %2, ale není aktivní.</translation>
    </message>
    <message>
        <source>Without an export nobody knows what is different from HR.</source>
        <translation>Bez exportu nelze zjistit, co se liší od údajů personálního oddělení.</translation>
    </message>
    <message>
        <source>HR&apos;s export has no line of the person.</source>
        <translation>Export personálního oddělení nemá řádek této osoby.</translation>
    </message>
    <message>
        <source>HR&apos;s line is broken, so nothing of it is compared.</source>
        <translation>Řádek od personálního oddělení je poškozený, proto se z něj nic neporovnává.</translation>
    </message>
    <message>
        <source>Nothing was found that is different from HR&apos;s line.</source>
        <translation>Nenašlo se nic, co by se lišilo od řádku personálního oddělení.</translation>
    </message>
    <message>
        <source>Different from HR&apos;s line: %1.</source>
        <translation>Od řádku personálního oddělení se liší: %1.</translation>
    </message>
    <message>
        <source>Nobody has to do anything: the next synchronisation writes the person, or mirovahrctl force if the plugin has seen this very line before.</source>
        <translation>Nikdo nemusí nic dělat: osobu zapíše nejbližší synchronizace nebo mirovahrctl force, pokud zásuvný modul právě tento řádek už viděl.</translation>
    </message>
    <message>
        <source>Nobody has to do anything.</source>
        <translation>Nikdo nemusí nic dělat.</translation>
    </message>
    <message>
        <source>Member of branches</source>
        <translation>Člen poboček</translation>
    </message>
    <message>
        <source>Calendar groups and their first months</source>
        <translation>Kalendářové skupiny a jejich první měsíce</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 od %2</translation>
    </message>
    <message>
        <source>Administrators who receive the requests</source>
        <translation>Administrátoři, kteří dostávají žádosti</translation>
    </message>
    <message>
        <source>%1 (personal number %2)</source>
        <translation>%1 (osobní číslo %2)</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminály</translation>
    </message>
    <message>
        <source>Settings of the payroll export</source>
        <translation>Nastavení exportu pro mzdy</translation>
    </message>
    <message>
        <source>The database has the person as uid %1: %2 %3, active.</source>
        <translation>V databázi má osoba uid %1: %2 %3, aktivní.</translation>
    </message>
    <message>
        <source>The database has the person as uid %1: %2 %3, not active.</source>
        <translation>V databázi má osoba uid %1: %2 %3, neaktivní.</translation>
    </message>
    <message>
        <source>It is not known when the row was created.</source>
        <translation>Není známo, kdy byl řádek vytvořen.</translation>
    </message>
    <message>
        <source>The row was created on %1.</source>
        <translation>Řádek byl vytvořen %1.</translation>
    </message>
    <message>
        <source>The plugin changed it last, on %1.</source>
        <translation>Naposledy ho změnil zásuvný modul, a to %1.</translation>
    </message>
    <message>
        <source>An administrator changed it last, on %1.</source>
        <translation>Naposledy ho změnil administrátor, a to %1.</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>An active row with another pid has the payroll id %1. The plugin recognises it as this person, but writes by pid: it changes nobody, or somebody else.</source>
        <translation>Identifikátor pro mzdy %1 má aktivní řádek s jiným pid. Zásuvný modul ho rozpozná jako tuto osobu, ale zapisuje podle pid: nezmění nikoho nebo změní někoho jiného.</translation>
    </message>
    <message>
        <source>Correct pid and pamId of that row.</source>
        <translation>Opravte pid a pamId v tomto řádku.</translation>
    </message>
    <message>
        <source>The payroll id of the row belongs to another pid: the plugin does not recognise the person in it.</source>
        <translation>Identifikátor pro mzdy v řádku patří jinému pid: zásuvný modul v něm osobu nerozpozná.</translation>
    </message>
    <message>
        <source>Correct pamId of the row.</source>
        <translation>Opravte v řádku pamId.</translation>
    </message>
    <message>
        <source>The plugin sees active people only, so it does not see this row.</source>
        <translation>Zásuvný modul vidí jen aktivní osoby, takže tento řádek nevidí.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databáze</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1.</source>
        <translation>V databázi není nikdo s pid %1.</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Reading the export</source>
        <translation>Čtení exportu</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (řádek %2)</translation>
    </message>
    <message>
        <source>created</source>
        <comment>outcome</comment>
        <translation>vytvoří se</translation>
    </message>
    <message>
        <source>merged</source>
        <comment>outcome</comment>
        <translation>aktualizuje a aktivuje se</translation>
    </message>
    <message>
        <source>updated</source>
        <comment>outcome</comment>
        <translation>aktualizuje se</translation>
    </message>
    <message>
        <source>unchanged</source>
        <comment>outcome</comment>
        <translation>nezmění se</translation>
    </message>
    <message>
        <source>never-created</source>
        <comment>outcome</comment>
        <translation>nevytvoří se</translation>
    </message>
    <message>
        <source>missed</source>
        <comment>outcome</comment>
        <translation>řádek se nenajde</translation>
    </message>
    <message>
        <source>test-mode</source>
        <comment>outcome</comment>
        <translation>zkušební režim</translation>
    </message>
    <message>
        <source>uncertain</source>
        <comment>outcome</comment>
        <translation>nejisté</translation>
    </message>
    <message>
        <source>joins</source>
        <comment>outcome</comment>
        <translation>zařadí se</translation>
    </message>
    <message>
        <source>member</source>
        <comment>outcome</comment>
        <translation>už zařazena</translation>
    </message>
    <message>
        <source>set</source>
        <comment>outcome</comment>
        <translation>nastaví se</translation>
    </message>
    <message>
        <source>kept</source>
        <comment>outcome</comment>
        <translation>zůstává</translation>
    </message>
    <message>
        <source>corrected</source>
        <comment>outcome</comment>
        <translation>opraví se</translation>
    </message>
    <message>
        <source>equal</source>
        <comment>outcome</comment>
        <translation>shoduje se</translation>
    </message>
    <message>
        <source>later</source>
        <comment>outcome</comment>
        <translation>později</translation>
    </message>
    <message>
        <source>impossible</source>
        <comment>outcome</comment>
        <translation>nelze opravit</translation>
    </message>
    <message>
        <source>no-fund</source>
        <comment>outcome</comment>
        <translation>fond neexistuje</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>outcome</comment>
        <translation>nenajde se</translation>
    </message>
    <message>
        <source>planned</source>
        <comment>outcome</comment>
        <translation>naplánuje se</translation>
    </message>
    <message>
        <source>none</source>
        <comment>outcome</comment>
        <translation>beze změny</translation>
    </message>
    <message>
        <source>all</source>
        <comment>recalculation</comment>
        <translation>celá docházka</translation>
    </message>
    <message>
        <source>uncertain</source>
        <comment>recalculation</comment>
        <translation>nejisté</translation>
    </message>
    <message>
        <source>none</source>
        <comment>recalculation</comment>
        <translation>bez přepočtu</translation>
    </message>
    <message>
        <source>state</source>
        <comment>cause</comment>
        <translation>stav poměru</translation>
    </message>
    <message>
        <source>calendar</source>
        <comment>cause</comment>
        <translation>kalendář</translation>
    </message>
    <message>
        <source>moved</source>
        <comment>cause</comment>
        <translation>změna zařazení</translation>
    </message>
    <message>
        <source>balance</source>
        <comment>cause</comment>
        <translation>zůstatek dovolené</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cause</comment>
        <translation>žádný</translation>
    </message>
    <message>
        <source>kept</source>
        <comment>last calculation</comment>
        <translation>zůstává</translation>
    </message>
    <message>
        <source>back</source>
        <comment>last calculation</comment>
        <translation>posune se zpět</translation>
    </message>
    <message>
        <source>forward</source>
        <comment>last calculation</comment>
        <translation>posune se dopředu</translation>
    </message>
    <message>
        <source>named</source>
        <comment>export</comment>
        <translation>uvedený soubor</translation>
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
        <translation>žádný export</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dne</translation>
    </message>
    <message>
        <source>The same again</source>
        <translation>Totéž znovu</translation>
    </message>
    <message>
        <source>The line equals the previous one, so the plugin leaves the person alone.</source>
        <translation>Řádek je stejný jako předchozí, takže zásuvný modul osobu nezmění.</translation>
    </message>
    <message>
        <source>Does the person work?</source>
        <translation>Pracuje osoba?</translation>
    </message>
    <message>
        <source>Yes: the employment state %1 is below 4, and the last day, %2, is not over.</source>
        <translation>Ano: stav pracovního poměru %1 je menší než 4 a poslední den, %2, ještě neuplynul.</translation>
    </message>
    <message>
        <source>Yes: the employment state %1 is below 4, and there is no last day.</source>
        <translation>Ano: stav pracovního poměru %1 je menší než 4 a poslední den není uveden.</translation>
    </message>
    <message>
        <source>No: the last day, %1, is over.</source>
        <translation>Ne: poslední den, %1, už uplynul.</translation>
    </message>
    <message>
        <source>No: the employment state %1 means that it has ended, as every state from 4 on.</source>
        <translation>Ne: stav pracovního poměru %1 znamená, že skončil, stejně jako každý stav od 4.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>the relationship state begins</source>
        <translation>začíná stav poměru</translation>
    </message>
    <message>
        <source>the calendar group is planned from a day on that is over</source>
        <translation>kalendářová skupina se plánuje ode dne, který už uplynul</translation>
    </message>
    <message>
        <source>calendar, its start or the cost centre differ from what the plugin remembers (it does not know the start at first)</source>
        <translation>kalendář, začátek jeho platnosti nebo středisko se liší od toho, co si zásuvný modul pamatuje (začátek platnosti zpočátku nezná)</translation>
    </message>
    <message>
        <source>the balance is corrected</source>
        <translation>opraví se zůstatek</translation>
    </message>
    <message>
        <source>Which branch and calendar?</source>
        <translation>Která pobočka a kalendář?</translation>
    </message>
    <message>
        <source>The line names no cost centre: neither branch nor calendar is set.</source>
        <translation>Řádek neuvádí středisko: nenastaví se pobočka ani kalendář.</translation>
    </message>
    <message>
        <source>No branch has the number %1 of the cost centre. The log says: %2</source>
        <translation>Žádná pobočka nemá číslo střediska %1. V protokolu je: %2</translation>
    </message>
    <message>
        <source>The cost centre %1 is branch %2, %3.</source>
        <translation>Středisku %1 odpovídá pobočka %2, %3.</translation>
    </message>
    <message>
        <source>The person is already a member.</source>
        <translation>Osoba už je jejím členem.</translation>
    </message>
    <message>
        <source>The id of the branch is above 65535: the person joins no branch.</source>
        <translation>Identifikátor pobočky je větší než 65535: osoba se nezařadí do žádné pobočky.</translation>
    </message>
    <message>
        <source>The id of the branch is above 65535: the person joins branch %1 instead.</source>
        <translation>Identifikátor pobočky je větší než 65535: osoba se místo toho zařadí do pobočky %1.</translation>
    </message>
    <message>
        <source>The person joins it at the end of the synchronisation, and stays in every other branch.</source>
        <translation>Osoba se do ní zařadí na konci synchronizace a zůstane i ve všech ostatních pobočkách.</translation>
    </message>
    <message>
        <source>This adds no terminals.</source>
        <translation>Tím se nepřidají žádné terminály.</translation>
    </message>
    <message>
        <source>This adds the terminal %1.</source>
        <translation>Tím se přidá terminál %1.</translation>
    </message>
    <message>
        <source>This adds the terminals %1.</source>
        <translation>Tím se přidají terminály %1.</translation>
    </message>
    <message>
        <source>It has no administrators.</source>
        <translation>Pobočka nemá administrátory.</translation>
    </message>
    <message>
        <source>It has the administrator %1.</source>
        <translation>Pobočka má administrátora %1.</translation>
    </message>
    <message>
        <source>It has the administrators %1.</source>
        <translation>Pobočka má administrátory %1.</translation>
    </message>
    <message>
        <source>The line names no calendar.</source>
        <translation>Řádek neuvádí kalendář.</translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for the calendar %1. The log says: %2</source>
        <translation>Hlavní skupina pobočky nemá skupinu pro kalendář %1. V protokolu je: %2</translation>
    </message>
    <message>
        <source>The calendar %1 is group %2 there.</source>
        <translation>Kalendáři %1 v ní odpovídá skupina %2.</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1 for whom the group could be planned. The log says: %2</source>
        <translation>V databázi není nikdo s pid %1, komu by bylo možné skupinu naplánovat. V protokolu je: %2</translation>
    </message>
    <message>
        <source>It is already planned from month %1 on.</source>
        <translation>Už je naplánována od měsíce %1.</translation>
    </message>
    <message>
        <source>It is planned from month %1 on.</source>
        <translation>Naplánuje se od měsíce %1.</translation>
    </message>
    <message>
        <source>Attendance is calculated again from %1 on.</source>
        <translation>Docházka se znovu vypočítá od %1.</translation>
    </message>
    <message>
        <source>All attendance is calculated again, because the start of the calendar is no date.</source>
        <translation>Znovu se vypočítá celá docházka, protože začátek platnosti kalendáře není datum.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, but the plugin counts the record as waiting all the same.</source>
        <translation>Není třeba nic dělat, ale zásuvný modul záznam přesto považuje za čekající.</translation>
    </message>
    <message>
        <source>The record waits: the plugin tries it again as long as exactly this line arrives.</source>
        <translation>Záznam čeká: zásuvný modul to zkouší znovu, dokud přichází přesně tento řádek.</translation>
    </message>
    <message>
        <source>Is attendance calculated again?</source>
        <translation>Vypočítá se docházka znovu?</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Ne.</translation>
    </message>
    <message>
        <source>Yes, from %1 on, because %2.</source>
        <translation>Ano, od %1. Důvod: %2.</translation>
    </message>
    <message>
        <source>Yes, all of it, because %1.</source>
        <translation>Ano, celá. Důvod: %1.</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1 whose attendance could be calculated again. The log says: %2</source>
        <translation>V databázi není nikdo s pid %1, komu by bylo možné docházku znovu vypočítat. V protokolu je: %2</translation>
    </message>
    <message>
        <source>In the export</source>
        <translation>V exportu</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Liší se</translation>
    </message>
    <message>
        <source>none</source>
        <comment>value of a field</comment>
        <translation>prázdné</translation>
    </message>
    <message>
        <source>%1 (HR: %2, here: %3)</source>
        <translation>%1 (personální oddělení: %2, zde: %3)</translation>
    </message>
    <message>
        <source>Is the person created or updated?</source>
        <translation>Vytvoří nebo aktualizuje se osoba?</translation>
    </message>
    <message>
        <source>An earlier line has created the person or made the row active. The plugin looks people up once in a synchronisation, so it does not write that the person has left.</source>
        <translation>Dřívější řádek osobu vytvořil nebo aktivoval její řádek v databázi. Zásuvný modul vyhledává osoby jednou za synchronizaci, proto nezapíše, že osoba odešla.</translation>
    </message>
    <message>
        <source>The person has left. The plugin does not see the row and leaves it alone.</source>
        <translation>Osoba odešla. Zásuvný modul její řádek nevidí a nezmění ho.</translation>
    </message>
    <message>
        <source>The person has left and has no row. The plugin never creates rows for leavers.</source>
        <translation>Osoba odešla a nemá řádek v databázi. Pro osoby, které odešly, zásuvný modul nikdy nevytváří řádky.</translation>
    </message>
    <message>
        <source>This is fine unless the person still works: then HR&apos;s export is wrong.</source>
        <translation>Pokud osoba už nepracuje, je to v pořádku; pokud ještě pracuje, je export personálního oddělení nesprávný.</translation>
    </message>
    <message>
        <source>But a text of the line, reported above, breaks the statement: it fails or writes something else.</source>
        <translation>Text v řádku exportu, uvedený výše, však naruší příkaz: selže nebo zapíše něco jiného.</translation>
    </message>
    <message>
        <source>The text of the relationship state, %1, breaks the statement: it fails or writes something else.</source>
        <translation>Text stavu poměru, %1, naruší příkaz: selže nebo zapíše něco jiného.</translation>
    </message>
    <message>
        <source>The register state %1 is not among the relationship states of the configuration: a current one ends.</source>
        <translation>Evidenční stav %1 není mezi stavy poměru v konfiguraci: případný současný stav poměru skončí.</translation>
    </message>
    <message>
        <source>The register state %1 is a relationship state of the configuration: &quot;%2&quot;.</source>
        <translation>Evidenční stav %1 je v konfiguraci stavem poměru: „%2“.</translation>
    </message>
    <message>
        <source>The plugin compares with the row as it was before the earlier lines changed it.</source>
        <translation>Zásuvný modul porovnává s řádkem v databázi, jaký byl předtím, než ho změnily dřívější řádky exportu.</translation>
    </message>
    <message>
        <source>No field differs from the row.</source>
        <translation>Žádné pole se neliší od řádku v databázi.</translation>
    </message>
    <message>
        <source>These fields differ from the row: %1.</source>
        <translation>Od řádku v databázi se liší tato pole: %1.</translation>
    </message>
    <message>
        <source>The plugin compares a text in the form that the statement needs, with apostrophes and backslashes doubled. Only that makes the difference here, and the same text is written again: %1.</source>
        <translation>Zásuvný modul porovnává text v podobě, kterou vyžaduje příkaz, se zdvojenými apostrofy a zpětnými lomítky. Rozdíl je zde jen v tom a znovu se zapíše tentýž text: %1.</translation>
    </message>
    <message>
        <source>The row is not written.</source>
        <translation>Řádek se nezapíše.</translation>
    </message>
    <message>
        <source>The plugin updates the row with the pid %1, but there is none: nothing is written.</source>
        <translation>Zásuvný modul aktualizuje řádek s pid %1, ale takový neexistuje: nic se nezapíše.</translation>
    </message>
    <message>
        <source>The row is updated.</source>
        <translation>Řádek se aktualizuje.</translation>
    </message>
    <message>
        <source>The row is written all the same: the employment type or the register state differs from the previous line.</source>
        <translation>Řádek se přesto zapíše: druh pracovního poměru nebo evidenční stav se liší od předchozího řádku exportu.</translation>
    </message>
    <message>
        <source>The row is written all the same: the plugin does not know yet which codes of employment type and register state it was last written with.</source>
        <translation>Řádek se přesto zapíše: zásuvný modul ještě neví, s jakým kódem druhu pracovního poměru a evidenčního stavu byl zapsán naposledy.</translation>
    </message>
    <message>
        <source>It stays active: the plugin never deactivates people, it only writes their last day.</source>
        <translation>Zůstane aktivní: zásuvný modul osoby nikdy nedeaktivuje, jen zapíše jejich poslední den.</translation>
    </message>
    <message>
        <source>The last calculation is set to the day before %1, where the relationship state begins.</source>
        <translation>Datum posledního výpočtu se nastaví na den před %1, kdy začíná stav poměru.</translation>
    </message>
    <message>
        <source>Attendance is calculated again from %1 on, where the relationship state begins.</source>
        <translation>Docházka se znovu vypočítá od %1, kdy začíná stav poměru.</translation>
    </message>
    <message>
        <source>No active terminal that handles people holds this person, so nothing is queued.</source>
        <translation>Tuto osobu nemá žádný aktivní terminál, který pracuje s osobami, takže se do fronty nic nezařadí.</translation>
    </message>
    <message>
        <source>The change is queued for terminal %1.</source>
        <translation>Změna se zařadí do fronty pro terminál %1.</translation>
    </message>
    <message>
        <source>The change is queued for the terminals %1.</source>
        <translation>Změna se zařadí do fronty pro terminály %1.</translation>
    </message>
    <message>
        <source>The following steps find no row to write to, and warn.</source>
        <translation>Následující kroky nenajdou řádek, do kterého by zapisovaly, a vypíšou upozornění.</translation>
    </message>
    <message>
        <source>The line is merged into the row that an earlier line has written. The department becomes 1.</source>
        <translation>Řádek exportu se sloučí s řádkem v databázi, který zapsal dřívější řádek exportu. Oddělení se nastaví na 1.</translation>
    </message>
    <message>
        <source>The line is merged into the row with the uid %1, which becomes active. Relationship state, calendar and branch of the row stay unchanged, the department becomes 1.</source>
        <translation>Řádek exportu se sloučí s řádkem v databázi s uid %1, který se aktivuje. Stav poměru, kalendář a pobočka řádku se nezmění, oddělení se nastaví na 1.</translation>
    </message>
    <message>
        <source>The person is created.</source>
        <translation>Osoba se vytvoří.</translation>
    </message>
    <message>
        <source>If this fails, the log says why behind &quot;MHRWorker::dbAddPerson(%1) - SQL ERROR:&quot;, and the plugin does not try again until the line changes or a synchronisation is forced.</source>
        <translation>Pokud to selže, důvod je v protokolu za textem „MHRWorker::dbAddPerson(%1) - SQL ERROR:“ a zásuvný modul to nezkusí znovu, dokud se řádek nezmění nebo se synchronizace nevynutí.</translation>
    </message>
    <message>
        <source>The vacation balance of a new person is corrected by a later synchronisation.</source>
        <translation>Zůstatek dovolené nové osoby opraví až některá z dalších synchronizací.</translation>
    </message>
    <message>
        <source>The person gets the uid %1 or a later one. Under those uids there are rows of %2, which somebody who was deleted has left behind. The person takes over those of the own uid, and what follows may turn out differently.</source>
        <translation>Osoba dostane uid %1 nebo vyšší. Pod těmito uid jsou v tabulkách %2 řádky, které zůstaly po někom, kdo byl smazán. Osoba převezme řádky svého uid a další průběh může být jiný.</translation>
    </message>
    <message>
        <source>The person joins no payroll export, because the pid is 0. The log says: %1</source>
        <translation>Osoba se nezařadí do žádného exportu pro mzdy, protože pid je 0. V protokolu je: %1</translation>
    </message>
    <message numerus="yes">
        <source>The person joins no payroll export, because there are %Ln instead of one. The log says: %1</source>
        <translation>
            <numerusform>Osoba se nezařadí do žádného exportu pro mzdy, protože je jich %Ln místo jednoho. V protokolu je: %1</numerusform>
            <numerusform>Osoba se nezařadí do žádného exportu pro mzdy, protože jsou %Ln místo jednoho. V protokolu je: %1</numerusform>
            <numerusform>Osoba se nezařadí do žádného exportu pro mzdy, protože je jich %Ln místo jednoho. V protokolu je: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The person is in the selection of the payroll export %1 already.</source>
        <translation>Osoba už je zařazena do výběru exportu pro mzdy %1.</translation>
    </message>
    <message>
        <source>The person joins the selection of the payroll export %1.</source>
        <translation>Osoba se zařadí do výběru exportu pro mzdy %1.</translation>
    </message>
    <message>
        <source>The employment type %1 has no settings of the payroll export.</source>
        <translation>Druh pracovního poměru %1 nemá nastavení exportu pro mzdy.</translation>
    </message>
    <message>
        <source>The employment type %1 means the settings %2 of the payroll export.</source>
        <translation>Druhu pracovního poměru %1 odpovídá nastavení %2 exportu pro mzdy.</translation>
    </message>
    <message>
        <source>An earlier line has written the same row. Within the same second the statement changes nothing, which the plugin treats as a failure: it then leaves the settings and the supervisor unchanged.</source>
        <translation>Týž řádek v databázi už zapsal dřívější řádek exportu. V téže sekundě příkaz nic nezmění, což zásuvný modul považuje za selhání: nastavení a nadřízeného potom nezmění.</translation>
    </message>
    <message>
        <source>The person has these settings already, which the plugin treats as a failure. The log says: %1</source>
        <translation>Osoba už toto nastavení má, což zásuvný modul považuje za selhání. V protokolu je: %1</translation>
    </message>
    <message>
        <source>In test mode nothing is written here. At debug level 1 and above the log says: %1</source>
        <translation>Ve zkušebním režimu se zde nic nezapíše. Na úrovni ladění 1 a vyšší je v protokolu: %1</translation>
    </message>
    <message>
        <source>Is the vacation balance corrected?</source>
        <translation>Opraví se zůstatek dovolené?</translation>
    </message>
    <message>
        <source>No: there is no vacation fund.</source>
        <translation>Ne: fond dovolené neexistuje.</translation>
    </message>
    <message>
        <source>Not today: today&apos;s correction exists already. The plugin tries again tomorrow.</source>
        <translation>Dnes ne: dnešní oprava už existuje. Zásuvný modul to zkusí znovu zítra.</translation>
    </message>
    <message>
        <source>Not today: line %1 has corrected it, and the plugin corrects a balance once a day.</source>
        <translation>Dnes ne: opravil ho řádek %1 a zásuvný modul opravuje zůstatek jednou za den.</translation>
    </message>
    <message>
        <source>Not now: the person&apos;s attendance is being calculated, or has days that are not calculated yet. The plugin tries again at the next synchronisation that contains the person.</source>
        <translation>Nyní ne: docházka osoby se právě počítá nebo má dny, které ještě nejsou vypočítané. Zásuvný modul to zkusí znovu při nejbližší synchronizaci, která osobu obsahuje.</translation>
    </message>
    <message>
        <source>No: the balance is that of the previous line.</source>
        <translation>Ne: zůstatek je stejný jako v předchozím řádku.</translation>
    </message>
    <message>
        <source>The fund holds %1, and no valid correction leads from there to %2 days. The balance stays, and the log says: %3</source>
        <translation>Ve fondu je %1 a žádná platná oprava z něj nevede na %2 dne. Zůstatek se nemění a v protokolu je: %3</translation>
    </message>
    <message>
        <source>No: the fund holds %1, as the export says.</source>
        <translation>Ne: ve fondu je %1, jak uvádí export.</translation>
    </message>
    <message>
        <source>Yes: the fund holds %1, and the correction of today is %2.</source>
        <translation>Ano: ve fondu je %1 a dnešní oprava je %2.</translation>
    </message>
    <message>
        <source>Who receives the person&apos;s requests?</source>
        <translation>Kdo dostává žádosti osoby?</translation>
    </message>
    <message>
        <source>The line names no supervisor: nothing changes.</source>
        <translation>Řádek neuvádí nadřízeného: nic se nezmění.</translation>
    </message>
    <message>
        <source>The employment type %1 is not one for which the plugin sets a supervisor: nothing changes.</source>
        <translation>U druhu pracovního poměru %1 zásuvný modul nadřízeného nenastavuje: nic se nezmění.</translation>
    </message>
    <message>
        <source>The supervisor is that of the previous line: nothing changes.</source>
        <translation>Nadřízený je stejný jako v předchozím řádku: nic se nezmění.</translation>
    </message>
    <message>
        <source>The database has nobody with the pid %1 who could be given a supervisor. The log says: %2</source>
        <translation>V databázi není nikdo s pid %1, komu by bylo možné nastavit nadřízeného. V protokolu je: %2</translation>
    </message>
    <message>
        <source>Administrator %1, who has the personal number %2, as before.</source>
        <translation>Administrátor %1, který má osobní číslo %2, jako dosud.</translation>
    </message>
    <message>
        <source>Administrator %1, who has the personal number %2, unless the plugin handles the line within the same second as the earlier one.</source>
        <translation>Administrátor %1, který má osobní číslo %2, pokud zásuvný modul nezpracuje řádek v téže sekundě jako dřívější.</translation>
    </message>
    <message>
        <source>Administrator %1, who has the personal number %2, and nobody else.</source>
        <translation>Administrátor %1, který má osobní číslo %2, a nikdo jiný.</translation>
    </message>
    <message>
        <source>No administrator has the personal number %1 of the supervisor: nothing changes.</source>
        <translation>Žádný administrátor nemá osobní číslo nadřízeného %1: nic se nezmění.</translation>
    </message>
    <message>
        <source>The log says: %1</source>
        <translation>V protokolu je: %1</translation>
    </message>
</context>
</TS>
