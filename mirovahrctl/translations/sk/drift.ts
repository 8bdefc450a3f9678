<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>A member of a branch is not with an administrator of that branch.</source>
        <translation>Člen pobočky nie je priradený niektorému z administrátorov tejto pobočky.</translation>
    </message>
    <message>
        <source>The plugin adds people only when they join. Use --sql, unless somebody removed the person.</source>
        <translation>Zásuvný modul pridáva osoby iba pri ich zaradení do pobočky. Použite --sql, ak osobu neodobral niekto ručne.</translation>
    </message>
    <message>
        <source>The vacation balance is not HR&apos;s, and nothing keeps the plugin from correcting it.</source>
        <translation>Zostatok dovolenky sa líši od údaja personálneho oddelenia a zásuvnému modulu nič nebráni v jeho oprave.</translation>
    </message>
    <message>
        <source>The next synchronisation corrects it if the last one could not, as for a new employee; otherwise a forced one does, or HR&apos;s next balance. Days that were taken last month count from this month on.</source>
        <translation>Opraví ho najbližšia synchronizácia, ak to posledná nemohla urobiť, napríklad pri novom zamestnancovi; inak vynútená synchronizácia alebo ďalší zostatok od personálneho oddelenia. Dni vyčerpané minulý mesiac sa započítavajú od tohto mesiaca.</translation>
    </message>
    <message>
        <source>The plugin is switched off, so nothing comes by itself.</source>
        <translation>Zásuvný modul je vypnutý, takže sa nič nedoplní samo.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation>Nastavte enabled na 1 a znova spustite dochádzkový server.</translation>
    </message>
    <message>
        <source>The employment type is not the one of HR&apos;s code, and no other field differs.</source>
        <translation>Druh pracovného pomeru nezodpovedá kódu od personálneho oddelenia a žiadne iné pole sa nelíši.</translation>
    </message>
    <message>
        <source>The plugin writes it when the line changes or the attendance server is started. Use --sql, unless somebody changed it by hand.</source>
        <translation>Zásuvný modul ho zapíše, keď sa zmení riadok alebo sa spustí dochádzkový server. Použite --sql, ak ho niekto nezmenil ručne.</translation>
    </message>
    <message>
        <source>The calendar group is not planned from the month on that the export names.</source>
        <translation>Kalendárová skupina nie je naplánovaná od mesiaca, ktorý uvádza export.</translation>
    </message>
    <message>
        <source>A forced synchronisation plans it, unless the plugin tries again by itself.</source>
        <translation>Naplánuje ju vynútená synchronizácia, ak to zásuvný modul neskúsi znova sám.</translation>
    </message>
    <message>
        <source>People were left out of the comparison: what the plugin makes of their lines is not certain.</source>
        <translation>Niektoré osoby sa neporovnali: nie je isté, ako zásuvný modul spracuje ich riadky.</translation>
    </message>
    <message>
        <source>Run check-file on the export, and explain for a person.</source>
        <translation>Spustite check-file pre tento export a explain pre konkrétnu osobu.</translation>
    </message>
    <message>
        <source>Months have another calendar group than the one that is planned for them.</source>
        <translation>Mesiace majú inú kalendárovú skupinu, než je pre ne naplánovaná.</translation>
    </message>
    <message>
        <source>The plugin fills the months only when it plans the group. Use --sql, which also has attendance calculated again, unless somebody changed the months.</source>
        <translation>Zásuvný modul vyplní mesiace len pri plánovaní skupiny. Použite --sql, ktoré nechá znova vypočítať aj dochádzku, ak mesiace nezmenil niekto ručne.</translation>
    </message>
    <message>
        <source>A person is not a member of the branch of the cost centre.</source>
        <translation>Osoba nie je členom pobočky, ktorá zodpovedá stredisku.</translation>
    </message>
    <message>
        <source>A forced synchronisation adds the person.</source>
        <translation>Osobu pridá vynútená synchronizácia.</translation>
    </message>
    <message>
        <source>A person has no settings of the payroll export.</source>
        <translation>Osoba nemá priradené nastavenie exportu pre mzdy.</translation>
    </message>
    <message>
        <source>The plugin binds only people whom it creates. Use --sql for those whom it should have bound; others were there before it, or got another employment type later.</source>
        <translation>Zásuvný modul priraďuje nastavenie len osobám, ktoré sám vytvorí. Použite --sql pre tie, ktorým ho mal priradiť; ostatné už boli v databáze predtým alebo sa im druh pracovného pomeru zmenil až potom.</translation>
    </message>
    <message>
        <source>A person is not in the selection of the payroll export.</source>
        <translation>Osoba nie je vo výbere exportu pre mzdy.</translation>
    </message>
    <message>
        <source>The plugin selects only people whom it creates. Use --sql for those whom it should have selected; others were there before it, or somebody removed them.</source>
        <translation>Zásuvný modul zaraďuje do výberu len osoby, ktoré sám vytvorí. Použite --sql pre tie, ktoré mal zaradiť; ostatné už boli v databáze predtým alebo ich niekto z výberu odobral.</translation>
    </message>
    <message>
        <source>Personal data are not those of the export.</source>
        <translation>Osobné údaje sa líšia od exportu.</translation>
    </message>
    <message>
        <source>A forced synchronisation writes them.</source>
        <translation>Zapíše ich vynútená synchronizácia.</translation>
    </message>
    <message>
        <source>An employee of the export has no active row.</source>
        <translation>Zamestnanec z exportu nemá aktívny riadok.</translation>
    </message>
    <message>
        <source>A forced synchronisation creates the person.</source>
        <translation>Osobu vytvorí vynútená synchronizácia.</translation>
    </message>
    <message>
        <source>Nobody receives the requests of a person, though the export names a supervisor.</source>
        <translation>Žiadosti osoby nikto nedostáva, hoci export uvádza nadriadeného.</translation>
    </message>
    <message>
        <source>A forced synchronisation does not help. Use --sql, or start the attendance server again: the plugin then assigns all supervisors anew.</source>
        <translation>Vynútená synchronizácia nepomôže. Použite --sql alebo znova spustite dochádzkový server: zásuvný modul potom priradí všetkých nadriadených nanovo.</translation>
    </message>
    <message>
        <source>Somebody else receives the requests of a person than the supervisor of the export.</source>
        <translation>Žiadosti osoby dostáva niekto iný ako nadriadený z exportu.</translation>
    </message>
    <message>
        <source>The former supervisor has stayed, or somebody chose another one by hand: the database does not say which. Remove the latter from the statements of --sql before running them. The next start of the attendance server assigns the one of the export in any case.</source>
        <translation>Zostal predchádzajúci nadriadený alebo niekto ručne vybral iného: z databázy sa to nedá rozlíšiť. Ručne vybraných nadriadených odstráňte z príkazov --sql pred ich spustením. Najbližšie spustenie dochádzkového servera v každom prípade priradí nadriadeného z exportu.</translation>
    </message>
    <message>
        <source>The plugin is about to synchronise, and may bring some of the differences.</source>
        <translation>Zásuvný modul sa chystá synchronizovať a niektoré rozdiely môže odstrániť.</translation>
    </message>
    <message>
        <source>Run drift again after the next tick.</source>
        <translation>Po najbližšom takte spustite drift znova.</translation>
    </message>
    <message>
        <source>A member of a branch is not on an active terminal of that branch.</source>
        <translation>Člen pobočky nie je na niektorom z aktívnych terminálov tejto pobočky.</translation>
    </message>
    <message>
        <source>People are queued for a terminal that is not marked as having people to fetch.</source>
        <translation>Vo fronte sú osoby pre terminál, ktorý nie je označený, že si má osoby načítať.</translation>
    </message>
    <message>
        <source>The next change of anybody on the terminal marks it. Use --sql if it stays so: it may be fetching right now.</source>
        <translation>Označí ho najbližšia zmena ktorejkoľvek osoby na termináli. Ak to tak zostane, použite --sql: terminál si môže osoby práve načítavať.</translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnutý skúšobný režim: osoby sa len zapisujú do protokolu, nie do databázy.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation>Nastavte testMode na 0 a znova spustite dochádzkový server.</translation>
    </message>
    <message>
        <source>Finds what the database lacks although the plugin counts it as done, after a deadlock, a conflict in a cluster or a lost connection: compares the export that was synchronised last with the database, and reports what a forced synchronisation brings, what the next start of the attendance server brings, and what never comes by itself. Changes nothing. FILE is the export; by default the one that the gate admitted last, or else importFile.</source>
        <translation>Nájde, čo v databáze chýba, hoci to zásuvný modul považuje za hotové, po vzájomnom zablokovaní (deadlock), konflikte v klastri alebo strate spojenia: porovná naposledy synchronizovaný export s databázou a uvedie, čo doplní vynútená synchronizácia, čo doplní najbližšie spustenie dochádzkového servera a čo sa nikdy nedoplní samo. Nič nemení. SÚBOR je export; predvolený je ten, ktorý naposledy prijala brána, inak importFile.</translation>
    </message>
    <message>
        <source>--since takes a day such as 2026-03-01</source>
        <translation>--since vyžaduje deň v tvare 2026-03-01</translation>
    </message>
    <message>
        <source>There is no export: name the file that was synchronised last</source>
        <translation>Žiadny export tu nie je: uveďte súbor, ktorý sa synchronizoval naposledy</translation>
    </message>
    <message>
        <source>Database and export %1</source>
        <translation>Databáza a export %1</translation>
    </message>
    <message>
        <source>People compared</source>
        <translation>Porovnané osoby</translation>
    </message>
    <message>
        <source>The database cannot be used: %1</source>
        <translation>Databáza sa nedá použiť: %1</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The export that was synchronised last.</source>
        <translation>Export, ktorý sa synchronizoval naposledy.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>priečinok</translation>
    </message>
    <message>
        <source>The gate&apos;s own folder, whose last admitted file is compared; by default that of the gate in syncCommand.</source>
        <translation>Vlastný priečinok brány, ktorej naposledy prijatý súbor sa porovná; predvolený je priečinok brány v syncCommand.</translation>
    </message>
    <message>
        <source>day</source>
        <translation>deň</translation>
    </message>
    <message>
        <source>Leave out what is done once for each person or member, and would have been done before this day: payroll export, terminals and administrators.</source>
        <translation>Vynechá to, čo sa pri každej osobe alebo členovi robí raz a bolo by sa urobilo pred týmto dňom: export pre mzdy, terminály a administrátorov.</translation>
    </message>
    <message>
        <source>Also write statements that mend what does not come by itself.</source>
        <translation>Zapíše aj príkazy, ktoré napravia to, čo sa nedoplní samo.</translation>
    </message>
    <message>
        <source>Reading the export</source>
        <translation>Čítanie exportu</translation>
    </message>
    <message>
        <source>What the next synchronisation may bring</source>
        <translation>Čo môže doplniť najbližšia synchronizácia</translation>
    </message>
    <message>
        <source>The plugin does not say which balances it will compare again by itself.</source>
        <translation>Zásuvný modul neuvádza, ktoré zostatky znova porovná sám.</translation>
    </message>
    <message>
        <source>%1 by the next or a forced synchronisation</source>
        <translation>%1 najbližšou alebo vynútenou synchronizáciou</translation>
    </message>
    <message>
        <source>What a forced synchronisation brings</source>
        <translation>Čo doplní vynútená synchronizácia</translation>
    </message>
    <message>
        <source>Run mirovahrctl force with the same export, and drift again afterwards. The next export brings these only for people whose lines change.</source>
        <translation>Spustite mirovahrctl force s tým istým exportom a potom znova drift. Ďalší export to doplní len osobám, ktorých riadky sa zmenia.</translation>
    </message>
    <message>
        <source>%1 by a forced synchronisation</source>
        <translation>%1 vynútenou synchronizáciou</translation>
    </message>
    <message>
        <source>What the next start of the attendance server brings</source>
        <translation>Čo doplní najbližšie spustenie dochádzkového servera</translation>
    </message>
    <message>
        <source>A forced synchronisation does not bring these. The statements of --sql mend them at once.</source>
        <translation>Vynútená synchronizácia to nedoplní. Príkazy z --sql to napravia ihneď.</translation>
    </message>
    <message>
        <source>%1 by the next start of the attendance server or --sql</source>
        <translation>%1 najbližším spustením dochádzkového servera alebo pomocou --sql</translation>
    </message>
    <message>
        <source>What never comes by itself</source>
        <translation>Čo sa nikdy nedoplní samo</translation>
    </message>
    <message>
        <source>The plugin does this only once. The statements of --sql mend it.</source>
        <translation>Zásuvný modul to robí iba raz. Napravia to príkazy z --sql.</translation>
    </message>
    <message>
        <source>%1 only by --sql</source>
        <translation>%1 len pomocou --sql</translation>
    </message>
    <message>
        <source>What is left out</source>
        <translation>Čo sa neporovnáva</translation>
    </message>
    <message>
        <source>The export is %1.</source>
        <translation>Export je %1.</translation>
    </message>
    <message>
        <source>The plugin is disabled in the configuration.</source>
        <translation>Zásuvný modul je v konfigurácii vypnutý.</translation>
    </message>
    <message numerus="yes">
        <source>The database lacks the branch or calendar group of %Ln person(s). The plugin tries again at every synchronisation in which their lines are the same.</source>
        <translation>
            <numerusform>V databáze chýba pobočka alebo kalendárová skupina %Ln osoby. Zásuvný modul to skúsi znova pri každej synchronizácii, v ktorej je jej riadok rovnaký.</numerusform>
            <numerusform>V databáze chýba pobočka alebo kalendárová skupina %Ln osôb. Zásuvný modul to skúsi znova pri každej synchronizácii, v ktorej sú ich riadky rovnaké.</numerusform>
            <numerusform>V databáze chýba pobočka alebo kalendárová skupina %Ln osôb. Zásuvný modul to skúsi znova pri každej synchronizácii, v ktorej sú ich riadky rovnaké.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database does not say who changed it: what somebody removed or changed by hand looks like what the plugin has lost. Of people who have left, only personal data are compared; of people who are not in the export, nothing is.</source>
        <translation>Z databázy nie je zrejmé, kto ju zmenil: čo niekto ručne odobral alebo zmenil, vyzerá rovnako ako to, čo stratil zásuvný modul. Pri osobách, ktoré odišli, sa porovnávajú iba osobné údaje; pri osobách, ktoré nie sú v exporte, nič.</translation>
    </message>
    <message>
        <source>Not visible in the database are: changes of people that were not queued for their terminals, days of attendance that were not marked to be calculated again, and, in the selection of the payroll export, people who are not in the export.</source>
        <translation>V databáze nevidno: zmeny osôb, ktoré sa nezaradili do frontu ich terminálov, dni dochádzky, ktoré sa neoznačili na opätovný výpočet, a vo výbere exportu pre mzdy osoby, ktoré nie sú v exporte.</translation>
    </message>
    <message>
        <source>A forced synchronisation is pending.</source>
        <translation>Vynútená synchronizácia čaká na vykonanie.</translation>
    </message>
    <message>
        <source>The plugin has not read the export %1 yet.</source>
        <translation>Zásuvný modul export %1 ešte neprečítal.</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %Ln person(s) whose line has an error, who have several lines, or whose payroll id and pid do not belong together.</source>
        <translation>
            <numerusform>Neporovnáva sa %Ln osoba, ktorej riadok obsahuje chybu, ktorá má viac riadkov alebo ktorej identifikátor pre mzdy a pid k sebe nepatria.</numerusform>
            <numerusform>Neporovnávajú sa %Ln osoby, ktorých riadok obsahuje chybu, ktoré majú viac riadkov alebo ktorých identifikátor pre mzdy a pid k sebe nepatria.</numerusform>
            <numerusform>Neporovnáva sa %Ln osôb, ktorých riadok obsahuje chybu, ktoré majú viac riadkov alebo ktorých identifikátor pre mzdy a pid k sebe nepatria.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database holds what the export says of the people that were compared.</source>
        <translation>Databáza obsahuje to, čo export uvádza o porovnaných osobách.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln difference(s), to be mended: %1.</source>
        <translation>
            <numerusform>%Ln rozdiel; dá sa odstrániť takto: %1.</numerusform>
            <numerusform>%Ln rozdiely; dajú sa odstrániť takto: %1.</numerusform>
            <numerusform>%Ln rozdielov; dajú sa odstrániť takto: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing</source>
        <comment>value of a field</comment>
        <translation>(prázdne)</translation>
    </message>
    <message>
        <source>The database does not have the person.</source>
        <translation>Osoba v databáze nie je.</translation>
    </message>
    <message>
        <source>The person&apos;s row is not active.</source>
        <translation>Riadok osoby nie je aktívny.</translation>
    </message>
    <message>
        <source>terminal %1</source>
        <translation>terminál %1</translation>
    </message>
    <message>
        <source>People are queued for terminal %1, which is not marked as having people to fetch.</source>
        <translation>Vo fronte sú osoby pre terminál %1, ktorý nie je označený, že si má osoby načítať.</translation>
    </message>
    <message>
        <source>In the database and by the export: %1.</source>
        <translation>V databáze a podľa exportu: %1.</translation>
    </message>
    <message>
        <source>%1 %2 and %3</source>
        <translation>%1 %2 a %3</translation>
    </message>
    <message>
        <source>The employment type is %1, by the export it is %2.</source>
        <translation>Druh pracovného pomeru je %1, podľa exportu je to %2.</translation>
    </message>
    <message>
        <source>The balance is %1 days, by the export it is %2.</source>
        <translation>Zostatok je %1 dňa, podľa exportu je to %2.</translation>
    </message>
    <message>
        <source>Nobody receives the person&apos;s requests; the export names %1, administrator %2.</source>
        <translation>Žiadosti osoby nikto nedostáva; export uvádza osobné číslo %1, teda administrátora %2.</translation>
    </message>
    <message>
        <source>The person&apos;s requests go to administrator %1; the export names %2, administrator %3.</source>
        <translation>Žiadosti osoby dostáva administrátor %1; export uvádza osobné číslo %2, teda administrátora %3.</translation>
    </message>
    <message>
        <source>The person is not in %1.</source>
        <translation>Osoba nie je v %1.</translation>
    </message>
    <message>
        <source>The person is not bound to settings %1 of the payroll export.</source>
        <translation>Osobe nie je priradené nastavenie %1 exportu pre mzdy.</translation>
    </message>
    <message>
        <source>The person is not a member of branch %1, cost centre %2.</source>
        <translation>Osoba nie je členom pobočky %1, stredisko %2.</translation>
    </message>
    <message>
        <source>The person is not on terminal %1 of branch %2.</source>
        <translation>Osoba nie je na termináli %1 pobočky %2.</translation>
    </message>
    <message>
        <source>The person is not with administrator %1 of branch %2.</source>
        <translation>Osoba nie je priradená administrátorovi %1 pobočky %2.</translation>
    </message>
    <message>
        <source>Group %1 of calendar %2 is not planned from %3 on.</source>
        <translation>Skupina %1 kalendára %2 nie je naplánovaná od mesiaca %3.</translation>
    </message>
    <message>
        <source>%1 has group %2 instead of %3</source>
        <translation>%1 má skupinu %2 namiesto %3</translation>
    </message>
    <message>
        <source>Month %1.</source>
        <translation>Mesiac %1.</translation>
    </message>
</context>
</TS>
