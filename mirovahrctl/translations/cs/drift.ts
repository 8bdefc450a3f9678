<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>A member of a branch is not with an administrator of that branch.</source>
        <translation>Člen pobočky není přiřazen některému z administrátorů této pobočky.</translation>
    </message>
    <message>
        <source>The plugin adds people only when they join. Use --sql, unless somebody removed the person.</source>
        <translation>Zásuvný modul přidává osoby jen při jejich zařazení do pobočky. Použijte --sql, pokud osobu neodebral někdo ručně.</translation>
    </message>
    <message>
        <source>The vacation balance is not HR&apos;s, and nothing keeps the plugin from correcting it.</source>
        <translation>Zůstatek dovolené se liší od údaje personálního oddělení a zásuvnému modulu nic nebrání v jeho opravě.</translation>
    </message>
    <message>
        <source>The next synchronisation corrects it if the last one could not, as for a new employee; otherwise a forced one does, or HR&apos;s next balance. Days that were taken last month count from this month on.</source>
        <translation>Opraví ho nejbližší synchronizace, pokud to poslední nemohla udělat, například u nového zaměstnance; jinak vynucená synchronizace nebo další zůstatek od personálního oddělení. Dny vyčerpané minulý měsíc se započítávají od tohoto měsíce.</translation>
    </message>
    <message>
        <source>The plugin is switched off, so nothing comes by itself.</source>
        <translation>Zásuvný modul je vypnutý, takže se nic nedoplní samo.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation>Nastavte enabled na 1 a znovu spusťte docházkový server.</translation>
    </message>
    <message>
        <source>The employment type is not the one of HR&apos;s code, and no other field differs.</source>
        <translation>Druh pracovního poměru neodpovídá kódu od personálního oddělení a žádné jiné pole se neliší.</translation>
    </message>
    <message>
        <source>The plugin writes it when the line changes or the attendance server is started. Use --sql, unless somebody changed it by hand.</source>
        <translation>Zásuvný modul ho zapíše, až se změní řádek nebo se spustí docházkový server. Použijte --sql, pokud ho někdo nezměnil ručně.</translation>
    </message>
    <message>
        <source>The calendar group is not planned from the month on that the export names.</source>
        <translation>Kalendářová skupina není naplánována od měsíce, který uvádí export.</translation>
    </message>
    <message>
        <source>A forced synchronisation plans it, unless the plugin tries again by itself.</source>
        <translation>Naplánuje ji vynucená synchronizace, pokud to zásuvný modul nezkusí znovu sám.</translation>
    </message>
    <message>
        <source>People were left out of the comparison: what the plugin makes of their lines is not certain.</source>
        <translation>Některé osoby se neporovnaly: není jisté, jak zásuvný modul zpracuje jejich řádky.</translation>
    </message>
    <message>
        <source>Run check-file on the export, and explain for a person.</source>
        <translation>Spusťte check-file pro tento export a explain pro konkrétní osobu.</translation>
    </message>
    <message>
        <source>Months have another calendar group than the one that is planned for them.</source>
        <translation>Měsíce mají jinou kalendářovou skupinu, než je pro ně naplánována.</translation>
    </message>
    <message>
        <source>The plugin fills the months only when it plans the group. Use --sql, which also has attendance calculated again, unless somebody changed the months.</source>
        <translation>Zásuvný modul vyplní měsíce jen při plánování skupiny. Použijte --sql, které nechá znovu vypočítat i docházku, pokud měsíce nezměnil někdo ručně.</translation>
    </message>
    <message>
        <source>A person is not a member of the branch of the cost centre.</source>
        <translation>Osoba není členem pobočky, která odpovídá středisku.</translation>
    </message>
    <message>
        <source>A forced synchronisation adds the person.</source>
        <translation>Osobu přidá vynucená synchronizace.</translation>
    </message>
    <message>
        <source>A person has no settings of the payroll export.</source>
        <translation>Osoba nemá přiřazeno nastavení exportu pro mzdy.</translation>
    </message>
    <message>
        <source>The plugin binds only people whom it creates. Use --sql for those whom it should have bound; others were there before it, or got another employment type later.</source>
        <translation>Zásuvný modul přiřazuje nastavení jen osobám, které sám vytvoří. Použijte --sql pro ty, kterým ho měl přiřadit; ostatní už byly v databázi předtím nebo se jim druh pracovního poměru změnil až potom.</translation>
    </message>
    <message>
        <source>A person is not in the selection of the payroll export.</source>
        <translation>Osoba není ve výběru exportu pro mzdy.</translation>
    </message>
    <message>
        <source>The plugin selects only people whom it creates. Use --sql for those whom it should have selected; others were there before it, or somebody removed them.</source>
        <translation>Zásuvný modul zařazuje do výběru jen osoby, které sám vytvoří. Použijte --sql pro ty, které měl zařadit; ostatní už byly v databázi předtím nebo je někdo z výběru odebral.</translation>
    </message>
    <message>
        <source>Personal data are not those of the export.</source>
        <translation>Osobní údaje se liší od exportu.</translation>
    </message>
    <message>
        <source>A forced synchronisation writes them.</source>
        <translation>Zapíše je vynucená synchronizace.</translation>
    </message>
    <message>
        <source>An employee of the export has no active row.</source>
        <translation>Zaměstnanec z exportu nemá aktivní řádek.</translation>
    </message>
    <message>
        <source>A forced synchronisation creates the person.</source>
        <translation>Osobu vytvoří vynucená synchronizace.</translation>
    </message>
    <message>
        <source>Nobody receives the requests of a person, though the export names a supervisor.</source>
        <translation>Žádosti osoby nikdo nedostává, ačkoli export uvádí nadřízeného.</translation>
    </message>
    <message>
        <source>A forced synchronisation does not help. Use --sql, or start the attendance server again: the plugin then assigns all supervisors anew.</source>
        <translation>Vynucená synchronizace nepomůže. Použijte --sql nebo znovu spusťte docházkový server: zásuvný modul potom přiřadí všechny nadřízené nanovo.</translation>
    </message>
    <message>
        <source>Somebody else receives the requests of a person than the supervisor of the export.</source>
        <translation>Žádosti osoby dostává někdo jiný než nadřízený z exportu.</translation>
    </message>
    <message>
        <source>The former supervisor has stayed, or somebody chose another one by hand: the database does not say which. Remove the latter from the statements of --sql before running them. The next start of the attendance server assigns the one of the export in any case.</source>
        <translation>Zůstal předchozí nadřízený nebo někdo ručně vybral jiného: z databáze to nelze rozlišit. Ručně vybrané nadřízené odstraňte z příkazů --sql před jejich spuštěním. Nejbližší spuštění docházkového serveru v každém případě přiřadí nadřízeného z exportu.</translation>
    </message>
    <message>
        <source>The plugin is about to synchronise, and may bring some of the differences.</source>
        <translation>Zásuvný modul se chystá synchronizovat a některé rozdíly může odstranit.</translation>
    </message>
    <message>
        <source>Run drift again after the next tick.</source>
        <translation>Po nejbližším taktu spusťte drift znovu.</translation>
    </message>
    <message>
        <source>A member of a branch is not on an active terminal of that branch.</source>
        <translation>Člen pobočky není na některém z aktivních terminálů této pobočky.</translation>
    </message>
    <message>
        <source>People are queued for a terminal that is not marked as having people to fetch.</source>
        <translation>Ve frontě jsou osoby pro terminál, který není označen, že si má osoby načíst.</translation>
    </message>
    <message>
        <source>The next change of anybody on the terminal marks it. Use --sql if it stays so: it may be fetching right now.</source>
        <translation>Označí ho nejbližší změna kterékoli osoby na terminálu. Pokud to tak zůstane, použijte --sql: terminál si může osoby právě načítat.</translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnut zkušební režim: osoby se jen zapisují do protokolu, ne do databáze.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation>Nastavte testMode na 0 a znovu spusťte docházkový server.</translation>
    </message>
    <message>
        <source>Finds what the database lacks although the plugin counts it as done, after a deadlock, a conflict in a cluster or a lost connection: compares the export that was synchronised last with the database, and reports what a forced synchronisation brings, what the next start of the attendance server brings, and what never comes by itself. Changes nothing. FILE is the export; by default the one that the gate admitted last, or else importFile.</source>
        <translation>Najde, co v databázi chybí, ačkoli to zásuvný modul považuje za hotové, po vzájemném zablokování (deadlock), konfliktu v clusteru nebo ztrátě spojení: porovná naposledy synchronizovaný export s databází a uvede, co doplní vynucená synchronizace, co doplní nejbližší spuštění docházkového serveru a co se nikdy nedoplní samo. Nic nemění. SOUBOR je export; výchozí je ten, který naposledy přijala brána, jinak importFile.</translation>
    </message>
    <message>
        <source>--since takes a day such as 2026-03-01</source>
        <translation>--since vyžaduje den ve tvaru 2026-03-01</translation>
    </message>
    <message>
        <source>There is no export: name the file that was synchronised last</source>
        <translation>Žádný export zde není: uveďte soubor, který se synchronizoval naposledy</translation>
    </message>
    <message>
        <source>Database and export %1</source>
        <translation>Databáze a export %1</translation>
    </message>
    <message>
        <source>People compared</source>
        <translation>Porovnané osoby</translation>
    </message>
    <message>
        <source>The database cannot be used: %1</source>
        <translation>Databázi nelze použít: %1</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The export that was synchronised last.</source>
        <translation>Export, který se synchronizoval naposledy.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>The gate&apos;s own folder, whose last admitted file is compared; by default that of the gate in syncCommand.</source>
        <translation>Vlastní složka brány, jejíž naposledy přijatý soubor se porovná; výchozí je složka brány v syncCommand.</translation>
    </message>
    <message>
        <source>day</source>
        <translation>den</translation>
    </message>
    <message>
        <source>Leave out what is done once for each person or member, and would have been done before this day: payroll export, terminals and administrators.</source>
        <translation>Vynechá to, co se u každé osoby nebo člena dělá jednou a bylo by se udělalo před tímto dnem: export pro mzdy, terminály a administrátory.</translation>
    </message>
    <message>
        <source>Also write statements that mend what does not come by itself.</source>
        <translation>Zapíše také příkazy, které napraví to, co se nedoplní samo.</translation>
    </message>
    <message>
        <source>Reading the export</source>
        <translation>Čtení exportu</translation>
    </message>
    <message>
        <source>What the next synchronisation may bring</source>
        <translation>Co může doplnit nejbližší synchronizace</translation>
    </message>
    <message>
        <source>The plugin does not say which balances it will compare again by itself.</source>
        <translation>Zásuvný modul neuvádí, které zůstatky znovu porovná sám.</translation>
    </message>
    <message>
        <source>%1 by the next or a forced synchronisation</source>
        <translation>%1 nejbližší nebo vynucenou synchronizací</translation>
    </message>
    <message>
        <source>What a forced synchronisation brings</source>
        <translation>Co doplní vynucená synchronizace</translation>
    </message>
    <message>
        <source>Run mirovahrctl force with the same export, and drift again afterwards. The next export brings these only for people whose lines change.</source>
        <translation>Spusťte mirovahrctl force s týmž exportem a potom znovu drift. Další export to doplní jen osobám, jejichž řádky se změní.</translation>
    </message>
    <message>
        <source>%1 by a forced synchronisation</source>
        <translation>%1 vynucenou synchronizací</translation>
    </message>
    <message>
        <source>What the next start of the attendance server brings</source>
        <translation>Co doplní nejbližší spuštění docházkového serveru</translation>
    </message>
    <message>
        <source>A forced synchronisation does not bring these. The statements of --sql mend them at once.</source>
        <translation>Vynucená synchronizace to nedoplní. Příkazy z --sql to napraví ihned.</translation>
    </message>
    <message>
        <source>%1 by the next start of the attendance server or --sql</source>
        <translation>%1 nejbližším spuštěním docházkového serveru nebo pomocí --sql</translation>
    </message>
    <message>
        <source>What never comes by itself</source>
        <translation>Co se nikdy nedoplní samo</translation>
    </message>
    <message>
        <source>The plugin does this only once. The statements of --sql mend it.</source>
        <translation>Zásuvný modul to dělá jen jednou. Napraví to příkazy z --sql.</translation>
    </message>
    <message>
        <source>%1 only by --sql</source>
        <translation>%1 jen pomocí --sql</translation>
    </message>
    <message>
        <source>What is left out</source>
        <translation>Co se neporovnává</translation>
    </message>
    <message>
        <source>The export is %1.</source>
        <translation>Export je %1.</translation>
    </message>
    <message>
        <source>The plugin is disabled in the configuration.</source>
        <translation>Zásuvný modul je v konfiguraci vypnutý.</translation>
    </message>
    <message numerus="yes">
        <source>The database lacks the branch or calendar group of %Ln person(s). The plugin tries again at every synchronisation in which their lines are the same.</source>
        <translation>
            <numerusform>V databázi chybí pobočka nebo kalendářová skupina %Ln osoby. Zásuvný modul to zkusí znovu při každé synchronizaci, ve které je její řádek stejný.</numerusform>
            <numerusform>V databázi chybí pobočka nebo kalendářová skupina %Ln osob. Zásuvný modul to zkusí znovu při každé synchronizaci, ve které jsou jejich řádky stejné.</numerusform>
            <numerusform>V databázi chybí pobočka nebo kalendářová skupina %Ln osob. Zásuvný modul to zkusí znovu při každé synchronizaci, ve které jsou jejich řádky stejné.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database does not say who changed it: what somebody removed or changed by hand looks like what the plugin has lost. Of people who have left, only personal data are compared; of people who are not in the export, nothing is.</source>
        <translation>Z databáze není zřejmé, kdo ji změnil: co někdo ručně odebral nebo změnil, vypadá stejně jako to, co ztratil zásuvný modul. U osob, které odešly, se porovnávají jen osobní údaje; u osob, které nejsou v exportu, nic.</translation>
    </message>
    <message>
        <source>Not visible in the database are: changes of people that were not queued for their terminals, days of attendance that were not marked to be calculated again, and, in the selection of the payroll export, people who are not in the export.</source>
        <translation>V databázi není vidět: změny osob, které se nezařadily do fronty jejich terminálů, dny docházky, které se neoznačily k opětovnému výpočtu, a ve výběru exportu pro mzdy osoby, které nejsou v exportu.</translation>
    </message>
    <message>
        <source>A forced synchronisation is pending.</source>
        <translation>Vynucená synchronizace čeká na provedení.</translation>
    </message>
    <message>
        <source>The plugin has not read the export %1 yet.</source>
        <translation>Zásuvný modul export %1 ještě nepřečetl.</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %Ln person(s) whose line has an error, who have several lines, or whose payroll id and pid do not belong together.</source>
        <translation>
            <numerusform>Neporovnává se %Ln osoba, jejíž řádek obsahuje chybu, která má více řádků nebo jejíž identifikátor pro mzdy a pid k sobě nepatří.</numerusform>
            <numerusform>Neporovnávají se %Ln osoby, jejichž řádek obsahuje chybu, které mají více řádků nebo jejichž identifikátor pro mzdy a pid k sobě nepatří.</numerusform>
            <numerusform>Neporovnává se %Ln osob, jejichž řádek obsahuje chybu, které mají více řádků nebo jejichž identifikátor pro mzdy a pid k sobě nepatří.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database holds what the export says of the people that were compared.</source>
        <translation>Databáze obsahuje to, co export uvádí o porovnaných osobách.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln difference(s), to be mended: %1.</source>
        <translation>
            <numerusform>%Ln rozdíl; lze jej odstranit takto: %1.</numerusform>
            <numerusform>%Ln rozdíly; lze je odstranit takto: %1.</numerusform>
            <numerusform>%Ln rozdílů; lze je odstranit takto: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing</source>
        <comment>value of a field</comment>
        <translation>(prázdné)</translation>
    </message>
    <message>
        <source>The database does not have the person.</source>
        <translation>Osoba v databázi není.</translation>
    </message>
    <message>
        <source>The person&apos;s row is not active.</source>
        <translation>Řádek osoby není aktivní.</translation>
    </message>
    <message>
        <source>terminal %1</source>
        <translation>terminál %1</translation>
    </message>
    <message>
        <source>People are queued for terminal %1, which is not marked as having people to fetch.</source>
        <translation>Ve frontě jsou osoby pro terminál %1, který není označen, že si má osoby načíst.</translation>
    </message>
    <message>
        <source>In the database and by the export: %1.</source>
        <translation>V databázi a podle exportu: %1.</translation>
    </message>
    <message>
        <source>%1 %2 and %3</source>
        <translation>%1 %2 a %3</translation>
    </message>
    <message>
        <source>The employment type is %1, by the export it is %2.</source>
        <translation>Druh pracovního poměru je %1, podle exportu je to %2.</translation>
    </message>
    <message>
        <source>The balance is %1 days, by the export it is %2.</source>
        <translation>Zůstatek je %1 dne, podle exportu je to %2.</translation>
    </message>
    <message>
        <source>Nobody receives the person&apos;s requests; the export names %1, administrator %2.</source>
        <translation>Žádosti osoby nikdo nedostává; export uvádí osobní číslo %1, tedy administrátora %2.</translation>
    </message>
    <message>
        <source>The person&apos;s requests go to administrator %1; the export names %2, administrator %3.</source>
        <translation>Žádosti osoby dostává administrátor %1; export uvádí osobní číslo %2, tedy administrátora %3.</translation>
    </message>
    <message>
        <source>The person is not in %1.</source>
        <translation>Osoba není v %1.</translation>
    </message>
    <message>
        <source>The person is not bound to settings %1 of the payroll export.</source>
        <translation>Osobě není přiřazeno nastavení %1 exportu pro mzdy.</translation>
    </message>
    <message>
        <source>The person is not a member of branch %1, cost centre %2.</source>
        <translation>Osoba není členem pobočky %1, středisko %2.</translation>
    </message>
    <message>
        <source>The person is not on terminal %1 of branch %2.</source>
        <translation>Osoba není na terminálu %1 pobočky %2.</translation>
    </message>
    <message>
        <source>The person is not with administrator %1 of branch %2.</source>
        <translation>Osoba není přiřazena administrátorovi %1 pobočky %2.</translation>
    </message>
    <message>
        <source>Group %1 of calendar %2 is not planned from %3 on.</source>
        <translation>Skupina %1 kalendáře %2 není naplánována od měsíce %3.</translation>
    </message>
    <message>
        <source>%1 has group %2 instead of %3</source>
        <translation>%1 má skupinu %2 místo %3</translation>
    </message>
    <message>
        <source>Month %1.</source>
        <translation>Měsíc %1.</translation>
    </message>
</context>
</TS>
