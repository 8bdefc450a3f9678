<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>its folder cannot be watched</source>
        <translation>jeho priečinok nemožno sledovať</translation>
    </message>
    <message>
        <source>The log &apos;%1&apos; is not there yet.</source>
        <translation>Protokol „%1“ zatiaľ neexistuje.</translation>
    </message>
    <message>
        <source>it is no file; give what comes from it on standard input</source>
        <translation>nie je to súbor; jeho výstup odovzdajte na štandardnom vstupe</translation>
    </message>
    <message>
        <source>The log &apos;%1&apos; cannot be read: %2</source>
        <translation>Protokol „%1“ sa nedá prečítať: %2</translation>
    </message>
    <message>
        <source>Synchronisation #%1. %2</source>
        <translation>Synchronizácia #%1. %2</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>This line begins like the plugin&apos;s and is none that is known: %1.</source>
        <translation>Tento riadok sa začína ako riadky zásuvného modulu, ale nie je známy: %1.</translation>
    </message>
    <message>
        <source>Shows what the log of the attendance server says of the plugin&apos;s work: for each synchronisation when it ran, how long, and what it did; then every warning and error with what it means, whom it concerns, what was lost and what to do; and what is missing. Whatever stands before the plugin&apos;s texts is allowed, and so are lines of others. Reads files, also those that gzip, xz or zstd has compressed, and without one standard input.

With --follow it goes on while the log is written, also when the file is rotated: each synchronisation that is over, each warning and each error is one line. With --json each line is an object.</source>
        <translation>Ukáže, čo protokol dochádzkového servera hovorí o práci zásuvného modulu: pri každej synchronizácii, kedy prebehla, ako dlho trvala a čo urobila; potom každé upozornenie a každú chybu s tým, čo znamená, koho sa týka, čo sa stratilo a čo treba urobiť; a čo v protokole chýba. Pred textami zásuvného modulu môže byť čokoľvek a medzi nimi aj cudzie riadky. Číta súbory, aj skomprimované programom gzip, xz alebo zstd, a ak nie je uvedený žiadny, štandardný vstup.

S voľbou --follow pokračuje, kým sa protokol zapisuje, aj keď sa súbor rotuje: každá skončená synchronizácia, každé upozornenie a každá chyba je jeden riadok. S voľbou --json je každý riadok objekt.</translation>
    </message>
    <message>
        <source>What the log says of the plugin&apos;s work</source>
        <translation>Čo hovorí protokol o práci zásuvného modulu</translation>
    </message>
    <message>
        <source>--follow takes one log</source>
        <translation>--follow prijíma jeden protokol</translation>
    </message>
    <message>
        <source>--follow writes no page</source>
        <translation>--follow nezapisuje stránku</translation>
    </message>
    <message>
        <source>--follow begins with what standard input gives; --last needs a file</source>
        <translation>--follow sa začína tým, čo príde na štandardnom vstupe; --last vyžaduje súbor</translation>
    </message>
    <message>
        <source>--since takes a time such as 2026-11-22, 2026-11-22T18:00, 90min, 12h or 7d</source>
        <translation>--since vyžaduje čas v tvare 2026-11-22, 2026-11-22T18:00, 90min, 12h alebo 7d</translation>
    </message>
    <message>
        <source>--last takes a number above 0</source>
        <translation>--last vyžaduje číslo väčšie ako 0</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The logs; - is standard input, which is read without one, too.</source>
        <translation>Protokoly; - je štandardný vstup, ktorý sa číta aj vtedy, keď nie je uvedený žiadny.</translation>
    </message>
    <message>
        <source>time</source>
        <translation>čas</translation>
    </message>
    <message>
        <source>Leave out what was logged before: 2026-11-22, 2026-11-22T18:00, or so long ago as 90min, 12h or 7d.</source>
        <translation>Vynechá, čo bolo zaznamenané skôr: 2026-11-22, 2026-11-22T18:00 alebo pred takou dobou ako 90min, 12h či 7d.</translation>
    </message>
    <message>
        <source>count</source>
        <translation>počet</translation>
    </message>
    <message>
        <source>Leave out all but the last synchronisations.</source>
        <translation>Vynechá všetky okrem posledných synchronizácií.</translation>
    </message>
    <message>
        <source>Go on while the log is written; begins with the last synchronisation, or with what --since or --last says.</source>
        <translation>Pokračuje, kým sa protokol zapisuje; začína sa poslednou synchronizáciou alebo tým, čo určuje --since alebo --last.</translation>
    </message>
    <message>
        <source>Logged once at %1: &quot;%2&quot;.</source>
        <translation>Zaznamenané raz, %1: „%2“.</translation>
    </message>
    <message>
        <source>Logged once: &quot;%1&quot;.</source>
        <translation>Zaznamenané raz: „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>Logged %Ln time(s): &quot;%1&quot;.</source>
        <translation>
            <numerusform>Zaznamenané %Ln-krát: „%1“.</numerusform>
            <numerusform>Zaznamenané %Ln-krát: „%1“.</numerusform>
            <numerusform>Zaznamenané %Ln-krát: „%1“.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Logged %Ln time(s) from %1 to %2: &quot;%3&quot;.</source>
        <translation>
            <numerusform>Zaznamenané %Ln-krát od %1 do %2: „%3“.</numerusform>
            <numerusform>Zaznamenané %Ln-krát od %1 do %2: „%3“.</numerusform>
            <numerusform>Zaznamenané %Ln-krát od %1 do %2: „%3“.</numerusform>
        </translation>
    </message>
    <message>
        <source>It concerns %1.</source>
        <translation>Týka sa týchto osôb: %1.</translation>
    </message>
    <message numerus="yes">
        <source>It concerns %Ln person(s), among them %1.</source>
        <translation>
            <numerusform>Týka sa %Ln osoby, medzi nimi: %1.</numerusform>
            <numerusform>Týka sa %Ln osôb, medzi nimi: %1.</numerusform>
            <numerusform>Týka sa %Ln osôb, medzi nimi: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>branch %1</source>
        <translation>pobočka %1</translation>
    </message>
    <message>
        <source>calendar %1</source>
        <translation>kalendár %1</translation>
    </message>
    <message>
        <source>supervisor %1</source>
        <translation>nadriadený %1</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>súbor %1</translation>
    </message>
    <message>
        <source>command %1</source>
        <translation>príkaz %1</translation>
    </message>
    <message>
        <source>code %1</source>
        <translation>kód %1</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>chyba %1</translation>
    </message>
    <message>
        <source>It is about %1.</source>
        <translation>Ide o toto: %1.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a synchronisation</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Synchronisation %1 did not end.</source>
        <translation>Synchronizácia %1 sa neskončila.</translation>
    </message>
    <message>
        <source>The plugin&apos;s lines have no times, which --since needs</source>
        <translation>Riadky zásuvného modulu neobsahujú čas, ktorý vyžaduje --since</translation>
    </message>
    <message>
        <source>Synchronisation %1 has not ended where the log does: it may still be running.</source>
        <translation>Synchronizácia %1 sa do konca protokolu neskončila: možno ešte prebieha.</translation>
    </message>
    <message>
        <source>Look again later.</source>
        <translation>Pozrite sa znova neskôr.</translation>
    </message>
    <message>
        <source>Synchronisation %1 began before the log does.</source>
        <translation>Synchronizácia %1 sa začala pred začiatkom protokolu.</translation>
    </message>
    <message>
        <source>Standard input cannot be read: %1</source>
        <translation>Štandardný vstup sa nedá prečítať: %1</translation>
    </message>
    <message>
        <source>A compressed log does not grow; read it without --follow</source>
        <translation>Skomprimovaný protokol nerastie; čítajte ho bez --follow</translation>
    </message>
    <message numerus="yes">
        <source>No synchronisation came between %1 and %2, although one usually comes every %Ln second(s); the log ends then.</source>
        <translation>
            <numerusform>Medzi %1 a %2 neprebehla žiadna synchronizácia, hoci zvyčajne prebieha každú %Ln sekundu; potom sa protokol končí.</numerusform>
            <numerusform>Medzi %1 a %2 neprebehla žiadna synchronizácia, hoci zvyčajne prebieha každé %Ln sekundy; potom sa protokol končí.</numerusform>
            <numerusform>Medzi %1 a %2 neprebehla žiadna synchronizácia, hoci zvyčajne prebieha každých %Ln sekúnd; potom sa protokol končí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No synchronisation came between %1 and %2, although one usually comes every %Ln second(s).</source>
        <translation>
            <numerusform>Medzi %1 a %2 neprebehla žiadna synchronizácia, hoci zvyčajne prebieha každú %Ln sekundu.</numerusform>
            <numerusform>Medzi %1 a %2 neprebehla žiadna synchronizácia, hoci zvyčajne prebieha každé %Ln sekundy.</numerusform>
            <numerusform>Medzi %1 a %2 neprebehla žiadna synchronizácia, hoci zvyčajne prebieha každých %Ln sekúnd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No tick came between %1 and %2, although one usually comes every %Ln second(s); the log ends then.</source>
        <translation>
            <numerusform>Medzi %1 a %2 nenastal žiadny takt, hoci zvyčajne nastáva každú %Ln sekundu; potom sa protokol končí.</numerusform>
            <numerusform>Medzi %1 a %2 nenastal žiadny takt, hoci zvyčajne nastáva každé %Ln sekundy; potom sa protokol končí.</numerusform>
            <numerusform>Medzi %1 a %2 nenastal žiadny takt, hoci zvyčajne nastáva každých %Ln sekúnd; potom sa protokol končí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No tick came between %1 and %2, although one usually comes every %Ln second(s).</source>
        <translation>
            <numerusform>Medzi %1 a %2 nenastal žiadny takt, hoci zvyčajne nastáva každú %Ln sekundu.</numerusform>
            <numerusform>Medzi %1 a %2 nenastal žiadny takt, hoci zvyčajne nastáva každé %Ln sekundy.</numerusform>
            <numerusform>Medzi %1 a %2 nenastal žiadny takt, hoci zvyčajne nastáva každých %Ln sekúnd.</numerusform>
        </translation>
    </message>
    <message>
        <source>The log shows %1, %2 and %3.</source>
        <translation>Obsah protokolu: %1, %2 a %3.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln synchronisation(s)</source>
        <translation>
            <numerusform>%Ln synchronizácia</numerusform>
            <numerusform>%Ln synchronizácie</numerusform>
            <numerusform>%Ln synchronizácií</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln error(s)</source>
        <translation>
            <numerusform>%Ln chyba</numerusform>
            <numerusform>%Ln chyby</numerusform>
            <numerusform>%Ln chýb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warning(s)</source>
        <translation>
            <numerusform>%Ln upozornenie</numerusform>
            <numerusform>%Ln upozornenia</numerusform>
            <numerusform>%Ln upozornení</numerusform>
        </translation>
    </message>
    <message>
        <source>Synchronisations</source>
        <translation>Synchronizácie</translation>
    </message>
    <message>
        <source>The log shows none.</source>
        <translation>V protokole nie je žiadna.</translation>
    </message>
    <message>
        <source>These are the last %1 of %2; --last shows more.</source>
        <translation>Zobrazené sú len posledné (%1 z %2); ďalšie ukáže --last.</translation>
    </message>
    <message>
        <source>These are the changes. Created are also people who return; moved in are new members of a branch; balances are those of the vacation.</source>
        <translation>Toto sú zmeny. K vytvoreným patria aj osoby, ktoré sa vracajú; zaradení sú noví členovia pobočky; zostatky sú zostatky dovolenky.</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Upozornenia a chyby</translation>
    </message>
    <message>
        <source>The plugin logged none.</source>
        <translation>Zásuvný modul nezaznamenal žiadne.</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>Čo chýba</translation>
    </message>
    <message>
        <source>The lines have no times: ticks that did not come cannot be noticed.</source>
        <translation>Riadky neobsahujú čas: chýbajúce takty sa nedajú zistiť.</translation>
    </message>
    <message>
        <source>The log shows no synchronisation.</source>
        <translation>V protokole nie je žiadna synchronizácia.</translation>
    </message>
    <message>
        <source>The log has no line of the plugin.</source>
        <translation>V protokole nie je žiadny riadok zásuvného modulu.</translation>
    </message>
    <message>
        <source>The log has no line of debug level 1 or above. At debug level 0 the plugin logs problems only: nobody can tell whether it synchronised.</source>
        <translation>V protokole nie je žiadny riadok z úrovne ladenia 1 alebo vyššej. Na úrovni ladenia 0 zásuvný modul zaznamenáva len problémy: nedá sa povedať, či synchronizoval.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) begin like the plugin&apos;s and none that is known, the first of them %1.</source>
        <translation>
            <numerusform>%Ln riadok sa začína ako riadky zásuvného modulu, ale nie je známy; prvý z nich: %1.</numerusform>
            <numerusform>%Ln riadky sa začínajú ako riadky zásuvného modulu, ale nie sú známe; prvý z nich: %1.</numerusform>
            <numerusform>%Ln riadkov sa začína ako riadky zásuvného modulu, ale nie sú známe; prvý z nich: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>What this log can tell</source>
        <translation>Čo sa dá z tohto protokolu zistiť</translation>
    </message>
    <message>
        <source>Its lines are those of debug level %1.</source>
        <translation>Jeho riadky zodpovedajú úrovni ladenia %1.</translation>
    </message>
    <message>
        <source>From debug level 1 on it would tell when the plugin synchronised, and whom it created and updated.</source>
        <translation>Od úrovne ladenia 1 by bolo vidieť, kedy zásuvný modul synchronizoval a koho vytvoril a aktualizoval.</translation>
    </message>
    <message>
        <source>From debug level 2 on it would tell how many people are read at a site without a vacation fund, when an export was missing, and when the plugin ticked.</source>
        <translation>Od úrovne ladenia 2 by bolo vidieť, koľko osôb sa prečíta na pracovisku bez fondu dovolenky, kedy export chýbal a kedy nastali takty.</translation>
    </message>
    <message>
        <source>From debug level 3 on it would tell which lines of the export were dropped, and whom an error concerns that names nobody.</source>
        <translation>Od úrovne ladenia 3 by bolo vidieť, ktoré riadky exportu boli vynechané a koho sa týka chyba, ktorá nikoho neuvádza.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Súhrn</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Riadky</translation>
    </message>
    <message>
        <source>Lines of the plugin</source>
        <translation>Riadky zásuvného modulu</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Debug level</source>
        <translation>Úroveň ladenia</translation>
    </message>
    <message>
        <source>People created</source>
        <translation>Vytvorené osoby</translation>
    </message>
    <message>
        <source>People updated</source>
        <translation>Aktualizované osoby</translation>
    </message>
    <message>
        <source>Memberships of branches</source>
        <translation>Členstvá v pobočkách</translation>
    </message>
    <message>
        <source>Vacation balances corrected</source>
        <translation>Opravené zostatky dovolenky</translation>
    </message>
    <message>
        <source>Supervisors set</source>
        <translation>Nastavení nadriadení</translation>
    </message>
    <message>
        <source>The INI file is not at this path: the defaults are in force, with /tmp/ron.data.</source>
        <translation>INI súbor na tejto ceste nie je: platia predvolené hodnoty so súborom /tmp/ron.data.</translation>
    </message>
    <message>
        <source>Install the INI file, and start the server again.</source>
        <translation>Nainštalujte INI súbor a znova spustite server.</translation>
    </message>
    <message>
        <source>enabled is false: nothing is synchronised.</source>
        <translation>enabled je false: nič sa nesynchronizuje.</translation>
    </message>
    <message>
        <source>Unless that is intended, set it to true, and start the server again.</source>
        <translation>Ak to nie je zámer, nastavte hodnotu na true a znova spustite server.</translation>
    </message>
    <message>
        <source>The plugin could not start: nothing is synchronised.</source>
        <translation>Zásuvný modul sa nepodarilo spustiť: nič sa nesynchronizuje.</translation>
    </message>
    <message>
        <source>Start the server again; before that, look for an error above.</source>
        <translation>Znova spustite server; predtým vyhľadajte chybu uvedenú vyššie.</translation>
    </message>
    <message>
        <source>The worker cannot tick: nothing is synchronised.</source>
        <translation>Pracovné vlákno nemôže vykonávať takty: nič sa nesynchronizuje.</translation>
    </message>
    <message>
        <source>Start the server again.</source>
        <translation>Znova spustite server.</translation>
    </message>
    <message>
        <source>The server&apos;s folder for data or logs is missing and cannot be created.</source>
        <translation>Priečinok servera na údaje alebo protokoly chýba a nedá sa vytvoriť.</translation>
    </message>
    <message>
        <source>Check the rights of the folder above it.</source>
        <translation>Skontrolujte oprávnenia nadradeného priečinka.</translation>
    </message>
    <message>
        <source>The server&apos;s user may not write to its folder for data or logs.</source>
        <translation>Používateľ servera nesmie zapisovať do priečinka servera na údaje alebo protokoly.</translation>
    </message>
    <message>
        <source>Check its rights.</source>
        <translation>Skontrolujte oprávnenia priečinka.</translation>
    </message>
    <message>
        <source>A tick came within another one; nothing is lost.</source>
        <translation>Takt nastal počas iného taktu; nič sa nestratilo.</translation>
    </message>
    <message>
        <source>The tick was dropped, since the database could not be opened; the next one tries again, but a synchronisation that was due waits for its next turn.</source>
        <translation>Takt bol vynechaný, pretože databázu sa nepodarilo otvoriť; ďalší to skúsi znova, ale synchronizácia, ktorá bola na rade, čaká na svoj ďalší termín.</translation>
    </message>
    <message>
        <source>If it goes on: is the database server up, the password right?</source>
        <translation>Ak to pretrváva: beží databázový server, je heslo správne?</translation>
    </message>
    <message>
        <source>Why the database could not be opened; the tick was dropped.</source>
        <translation>Dôvod, pre ktorý sa databázu nepodarilo otvoriť; takt bol vynechaný.</translation>
    </message>
    <message>
        <source>syncCommandRun requires a command and syncCommand is empty; a file that lies there is read all the same.</source>
        <translation>syncCommandRun vyžaduje príkaz a syncCommand je prázdny; súbor, ktorý tam leží, sa aj tak prečíta.</translation>
    </message>
    <message>
        <source>Set one of the two, and start the server again.</source>
        <translation>Nastavte jedno z nich a znova spustite server.</translation>
    </message>
    <message>
        <source>The export command failed; a file that lies there is read all the same.</source>
        <translation>Príkaz exportu zlyhal; súbor, ktorý tam leží, sa aj tak prečíta.</translation>
    </message>
    <message>
        <source>The code says why: -2 it could not be started, -1 it crashed, otherwise it is its own status (5 of the gate: refused).</source>
        <translation>Dôvod udáva kód: -2 nepodarilo sa ho spustiť, -1 spadol, inak je to jeho vlastný návratový kód (5 pri bráne: odmietnuté).</translation>
    </message>
    <message>
        <source>A helper process failed. The plugin starts none itself.</source>
        <translation>Zlyhal pomocný proces. Zásuvný modul sám žiadny nespúšťa.</translation>
    </message>
    <message>
        <source>Look for the component of the server that starts it.</source>
        <translation>Vyhľadajte súčasť servera, ktorá ho spúšťa.</translation>
    </message>
    <message>
        <source>No export lies there. Normal between HR&apos;s deliveries.</source>
        <translation>Žiadny export tam neleží. Medzi dodávkami personálneho oddelenia je to bežné.</translation>
    </message>
    <message>
        <source>The export could not be opened, so nobody was read: the server&apos;s user may not read it, or a file server (Samba, NFS) keeps it for a client that is still at it.</source>
        <translation>Export sa nepodarilo otvoriť, takže sa neprečítala žiadna osoba: používateľ servera ho nesmie čítať alebo ho súborový server (Samba, NFS) drží pre klienta, ktorý s ním ešte pracuje.</translation>
    </message>
    <message>
        <source>In the first case mend its rights; in the second the next synchronisation reads it.</source>
        <translation>V prvom prípade opravte jeho oprávnenia; v druhom ho prečíta najbližšia synchronizácia.</translation>
    </message>
    <message>
        <source>One of two: the file cannot be read to its end, then the text comes with deleteFile=false, too; or it was read, and the server&apos;s user may not write to the folder. It is read again next time.</source>
        <translation>Jedno z dvoch: súbor sa nedá prečítať do konca, vtedy sa text objaví aj s deleteFile=false; alebo bol prečítaný a používateľ servera nesmie zapisovať do priečinka. Nabudúce sa prečíta znova.</translation>
    </message>
    <message>
        <source>mirovahrctl check-file says whether it can be read to its end; otherwise mend the rights of its folder.</source>
        <translation>mirovahrctl check-file povie, či sa dá prečítať do konca; inak opravte oprávnenia jeho priečinka.</translation>
    </message>
    <message>
        <source>A line without 18 fields was dropped: its person is not synchronised.</source>
        <translation>Riadok, ktorý nemá 18 polí, bol vynechaný: jeho osoba sa nesynchronizuje.</translation>
    </message>
    <message>
        <source>mirovahrctl check-file names the line for HR.</source>
        <translation>mirovahrctl check-file uvedie tento riadok pre personálne oddelenie.</translation>
    </message>
    <message>
        <source>The people could not be loaded from the database.</source>
        <translation>Osoby sa nepodarilo načítať z databázy.</translation>
    </message>
    <message>
        <source>See the next text.</source>
        <translation>Pozrite si nasledujúci text.</translation>
    </message>
    <message>
        <source>The people could not be loaded from the database: everything that this synchronisation has read is lost.</source>
        <translation>Osoby sa nepodarilo načítať z databázy: všetko, čo táto synchronizácia prečítala, je stratené.</translation>
    </message>
    <message>
        <source>Provide the export again, and force.</source>
        <translation>Znova poskytnite export a vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>The uid of a person could not be looked up: the person&apos;s later steps in this cycle fail.</source>
        <translation>Uid osoby sa nepodarilo vyhľadať: ďalšie kroky tejto osoby v tomto cykle zlyhajú.</translation>
    </message>
    <message>
        <source>Force, when the cause is mended.</source>
        <translation>Po odstránení príčiny vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>It could not be looked up whether a person is there (other components).</source>
        <translation>Nepodarilo sa zistiť, či osoba existuje (ostatné súčasti).</translation>
    </message>
    <message>
        <source>Look at the error of the database.</source>
        <translation>Pozrite si chybu databázy.</translation>
    </message>
    <message>
        <source>The person would be created without test mode.</source>
        <translation>Bez skúšobného režimu by sa osoba vytvorila.</translation>
    </message>
    <message>
        <source>The person was not created, and is not tried again by itself.</source>
        <translation>Osoba nebola vytvorená a samo sa to nezopakuje.</translation>
    </message>
    <message>
        <source>Mend the line, or force when the cause is mended.</source>
        <translation>Opravte riadok alebo po odstránení príčiny vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>The person was created, but is not in the payroll export&apos;s selection: there is none or more than one exportPam.N.active, or it could not be written.</source>
        <translation>Osoba bola vytvorená, ale nie je vo výbere exportu pre mzdy: exportPam.N.active neexistuje alebo ich je viac ako jeden, alebo sa to nepodarilo zapísať.</translation>
    </message>
    <message>
        <source>When there is one, mend it with mirovahrctl drift; sites without such an export ignore it.</source>
        <translation>Ak export existuje, napravte to pomocou mirovahrctl drift; pracoviská bez takého exportu si text nemusia všímať.</translation>
    </message>
    <message>
        <source>The person would be updated without test mode.</source>
        <translation>Bez skúšobného režimu by sa osoba aktualizovala.</translation>
    </message>
    <message>
        <source>The person was not updated, and is not tried again by itself.</source>
        <translation>Osoba nebola aktualizovaná a samo sa to nezopakuje.</translation>
    </message>
    <message>
        <source>The person would get a payroll setting without test mode.</source>
        <translation>Bez skúšobného režimu by osoba dostala nastavenie pre mzdy.</translation>
    </message>
    <message>
        <source>The person just created is not found.</source>
        <translation>Práve vytvorená osoba sa nenašla.</translation>
    </message>
    <message>
        <source>Do reads go to a replica? Enter the payroll setting by hand.</source>
        <translation>Číta sa z repliky? Nastavenie pre mzdy zadajte ručne.</translation>
    </message>
    <message>
        <source>The payroll setting of a new person was not written.</source>
        <translation>Nastavenie novej osoby pre mzdy sa nezapísalo.</translation>
    </message>
    <message>
        <source>Mend it with mirovahrctl drift.</source>
        <translation>Napravte to pomocou mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The new person has no payroll setting, or somebody else wrote the same first.</source>
        <translation>Nová osoba nemá nastavenie pre mzdy alebo to isté zapísal najprv niekto iný.</translation>
    </message>
    <message>
        <source>mirovahrctl drift says which, and mends it.</source>
        <translation>mirovahrctl drift ukáže, čo z toho platí, a napraví to.</translation>
    </message>
    <message>
        <source>An updated person is not found, so the terminals do not learn of the change: reads go to a replica, or the row went meanwhile.</source>
        <translation>Aktualizovaná osoba sa nenašla, takže terminály sa o zmene nedozvedia: číta sa z repliky alebo riadok medzičasom zanikol.</translation>
    </message>
    <message>
        <source>Send the person to the terminals.</source>
        <translation>Pošlite osobu do terminálov.</translation>
    </message>
    <message>
        <source>The queue of the terminals was not written: they do not learn of the change.</source>
        <translation>Do frontu terminálov sa nezapísalo: o zmene sa nedozvedia.</translation>
    </message>
    <message>
        <source>Send the people to the terminals.</source>
        <translation>Pošlite osoby do terminálov.</translation>
    </message>
    <message>
        <source>The change is queued, but the terminals are not notified.</source>
        <translation>Zmena je vo fronte, ale terminály o nej nedostali správu.</translation>
    </message>
    <message>
        <source>A setting (force flag, selection) was not written. The force flag stays: the next tick is forced again.</source>
        <translation>Nastavenie (príznak vynútenia, výber) sa nezapísalo. Príznak vynútenia zostáva: nasledujúci takt je opäť vynútený.</translation>
    </message>
    <message>
        <source>Mend the cause; a new person who is not in the selection is to be entered by hand.</source>
        <translation>Odstráňte príčinu; novú osobu, ktorá nie je vo výbere, treba zadať ručne.</translation>
    </message>
    <message>
        <source>A setting was not read; the force flag counts as not set.</source>
        <translation>Nastavenie sa neprečítalo; príznak vynútenia sa považuje za nenastavený.</translation>
    </message>
    <message>
        <source>If it goes on, mend the cause.</source>
        <translation>Ak to pretrváva, odstráňte príčinu.</translation>
    </message>
    <message>
        <source>The payroll exports were not read: new people join none.</source>
        <translation>Exporty pre mzdy sa neprečítali: nové osoby sa do žiadneho nezaradia.</translation>
    </message>
    <message>
        <source>A setting was not deleted (other components).</source>
        <translation>Nastavenie sa nevymazalo (ostatné súčasti).</translation>
    </message>
    <message>
        <source>Repeat what deleted it.</source>
        <translation>Zopakujte to, čo ho malo vymazať.</translation>
    </message>
    <message>
        <source>The connection of the settings could not be opened (other components).</source>
        <translation>Spojenie pre nastavenia sa nepodarilo otvoriť (ostatné súčasti).</translation>
    </message>
    <message>
        <source>People (uids) join a branch; with an error, they did not.</source>
        <translation>Osoby (uid) sa zaraďujú do pobočky; pri chybe sa nezaradili.</translation>
    </message>
    <message>
        <source>After an error: provide the export again, and force.</source>
        <translation>Po chybe: znova poskytnite export a vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>Not all terminals of the branch got its new people. Also after a removal.</source>
        <translation>Nie všetky terminály pobočky dostali jej nové osoby. Platí aj po odobratí.</translation>
    </message>
    <message>
        <source>See the error above, and add them with mirovahrctl drift.</source>
        <translation>Pozrite si chybu uvedenú vyššie a doplňte ich pomocou mirovahrctl drift.</translation>
    </message>
    <message>
        <source>Not all administrators of the branch got its new people. Also after a removal.</source>
        <translation>Nie všetci administrátori pobočky dostali jej nové osoby. Platí aj po odobratí.</translation>
    </message>
    <message>
        <source>The terminals of a branch; with an error, they could not be looked up, and people are not added to them.</source>
        <translation>Terminály pobočky; pri chybe sa ich nepodarilo vyhľadať a osoby sa do nich nepridajú.</translation>
    </message>
    <message>
        <source>After an error: add them with mirovahrctl drift.</source>
        <translation>Po chybe: doplňte ich pomocou mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The administrators of a branch; with an error, they could not be looked up, and people are not given to them. An error may come from those of a person as well.</source>
        <translation>Administrátori pobočky; pri chybe sa ich nepodarilo vyhľadať a osoby sa im nepridelia. Chyba môže pochádzať aj z vyhľadania administrátorov jednej osoby.</translation>
    </message>
    <message>
        <source>The people of a branch; with an error, they could not be looked up (other components).</source>
        <translation>Osoby pobočky; pri chybe sa ich nepodarilo vyhľadať (ostatné súčasti).</translation>
    </message>
    <message>
        <source>After an error: repeat the operation.</source>
        <translation>Po chybe: zopakujte operáciu.</translation>
    </message>
    <message>
        <source>People were not added to a terminal.</source>
        <translation>Osoby sa nepridali do terminálu.</translation>
    </message>
    <message>
        <source>Add them with mirovahrctl drift.</source>
        <translation>Doplňte ich pomocou mirovahrctl drift.</translation>
    </message>
    <message>
        <source>People were not given to administrators.</source>
        <translation>Osoby sa nepridelili administrátorom.</translation>
    </message>
    <message>
        <source>People leave a branch (other components); with an error, that failed.</source>
        <translation>Osoby opúšťajú pobočku (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>People leave a terminal (other components); with an error, that failed.</source>
        <translation>Osoby sa odoberajú z terminálu (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>People are taken from an administrator (other components); with an error, that failed.</source>
        <translation>Osoby sa odoberajú administrátorovi (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>Terminals join a branch (other components); with an error, that failed.</source>
        <translation>Terminály sa priraďujú k pobočke (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>Terminals leave a branch (other components); with an error, that failed.</source>
        <translation>Terminály sa odoberajú z pobočky (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>Administrators join a branch (other components); with an error, that failed.</source>
        <translation>Administrátori sa priraďujú k pobočke (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>Administrators leave a branch (other components); with an error, that failed.</source>
        <translation>Administrátori sa odoberajú z pobočky (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>Sections join a branch (other components); with an error, that failed.</source>
        <translation>Sekcie sa priraďujú k pobočke (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>The attributes of sections that leave a branch stayed (other components).</source>
        <translation>Atribúty sekcií, ktoré sa odoberajú z pobočky, zostali (ostatné súčasti).</translation>
    </message>
    <message>
        <source>Repeat the operation.</source>
        <translation>Zopakujte operáciu.</translation>
    </message>
    <message>
        <source>Sections stayed in a branch (other components).</source>
        <translation>Sekcie zostali v pobočke (ostatné súčasti).</translation>
    </message>
    <message>
        <source>A branch was not created (other components).</source>
        <translation>Pobočka nebola vytvorená (ostatné súčasti).</translation>
    </message>
    <message>
        <source>A branch without a name was not created (other components).</source>
        <translation>Pobočka bez názvu nebola vytvorená (ostatné súčasti).</translation>
    </message>
    <message>
        <source>Give it a name.</source>
        <translation>Zadajte jej názov.</translation>
    </message>
    <message>
        <source>A branch was not changed (other components).</source>
        <translation>Pobočka nebola zmenená (ostatné súčasti).</translation>
    </message>
    <message>
        <source>Attributes of sections are set (other components); with an error, that failed.</source>
        <translation>Atribúty sekcií sa nastavujú (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>Attributes of sections are removed (other components); with an error, that failed.</source>
        <translation>Atribúty sekcií sa odstraňujú (ostatné súčasti); pri chybe to zlyhalo.</translation>
    </message>
    <message>
        <source>People, or interval types, were not queued for a terminal.</source>
        <translation>Osoby alebo druhy intervalov sa nezaradili do frontu terminálu.</translation>
    </message>
    <message>
        <source>Let the attendance system send the change again.</source>
        <translation>Nechajte dochádzkový systém poslať zmenu znova.</translation>
    </message>
    <message>
        <source>The change is queued, but the terminal was not notified.</source>
        <translation>Zmena je vo fronte, ale terminál o nej nedostal správu.</translation>
    </message>
    <message>
        <source>A person was not queued.</source>
        <translation>Osoba sa nezaradila do frontu.</translation>
    </message>
    <message>
        <source>The change is queued, but the terminals were not notified.</source>
        <translation>Zmena je vo fronte, ale terminály nedostali správu.</translation>
    </message>
    <message>
        <source>An interval type was not queued.</source>
        <translation>Druh intervalu sa nezaradil do frontu.</translation>
    </message>
    <message>
        <source>A time zone of a terminal was not queued.</source>
        <translation>Časové pásmo terminálu sa nezaradilo do frontu.</translation>
    </message>
    <message>
        <source>A person&apos;s time zone was not queued.</source>
        <translation>Časové pásmo osoby sa nezaradilo do frontu.</translation>
    </message>
    <message>
        <source>A person&apos;s colour group was not queued.</source>
        <translation>Farebná skupina osoby sa nezaradila do frontu.</translation>
    </message>
    <message>
        <source>The colour groups of several people were not queued.</source>
        <translation>Farebné skupiny viacerých osôb sa nezaradili do frontu.</translation>
    </message>
    <message>
        <source>The colour groups were not queued.</source>
        <translation>Farebné skupiny sa nezaradili do frontu.</translation>
    </message>
    <message>
        <source>The terminals were not notified of the colour groups.</source>
        <translation>Terminály nedostali správu o farebných skupinách.</translation>
    </message>
    <message>
        <source>The vacation fund could not be looked up; that of the last cycle stays.</source>
        <translation>Fond dovolenky sa nepodarilo vyhľadať; zostáva fond z posledného cyklu.</translation>
    </message>
    <message>
        <source>If nothing is corrected any more, mend the cause.</source>
        <translation>Ak sa už nič neopravuje, odstráňte príčinu.</translation>
    </message>
    <message>
        <source>Whether the balance was corrected today is not known: it is not corrected in this cycle, and tried again in the next.</source>
        <translation>Nie je známe, či bol zostatok dnes opravený: v tomto cykle sa neopraví a v ďalšom sa to skúsi znova.</translation>
    </message>
    <message>
        <source>One of two: whether attendance is calculated is not known, then the balance is not corrected in this cycle and tried again in the next; or open days could not be counted, and the balance is corrected all the same.</source>
        <translation>Jedno z dvoch: nie je známe, či je dochádzka vypočítaná, vtedy sa zostatok v tomto cykle neopraví a v ďalšom sa to skúsi znova; alebo sa nepodarilo spočítať otvorené dni a zostatok sa aj tak opraví.</translation>
    </message>
    <message>
        <source>The moves before this month could not be summed, so the balance was not corrected.</source>
        <translation>Pohyby pred týmto mesiacom sa nepodarilo sčítať, takže zostatok nebol opravený.</translation>
    </message>
    <message>
        <source>The corrections of this month could not be summed, so the balance was not corrected.</source>
        <translation>Opravy v tomto mesiaci sa nepodarilo sčítať, takže zostatok nebol opravený.</translation>
    </message>
    <message>
        <source>The database&apos;s balance could not be computed, so the balance was not corrected. It is when the line&apos;s balance changes or a synchronisation is forced.</source>
        <translation>Zostatok v databáze sa nepodarilo vypočítať, takže zostatok nebol opravený. Opraví sa, keď sa zostatok v riadku zmení alebo sa vynúti synchronizácia.</translation>
    </message>
    <message>
        <source>The correction of the balance was not written.</source>
        <translation>Oprava zostatku sa nezapísala.</translation>
    </message>
    <message>
        <source>The correction of the balance was not written, is out of range, or somebody else wrote the same first.</source>
        <translation>Oprava zostatku sa nezapísala, je mimo rozsahu alebo to isté zapísal najprv niekto iný.</translation>
    </message>
    <message>
        <source>Look at HR&apos;s figure; when an error is logged before it, mend that, and force.</source>
        <translation>Pozrite si údaj personálneho oddelenia; ak je pred týmto textom zaznamenaná chyba, odstráňte ju a vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>No administrator has this personal number: the person keeps the supervisor that is set.</source>
        <translation>Žiadny administrátor nemá toto osobné číslo: osobe zostáva nadriadený, ktorý je nastavený.</translation>
    </message>
    <message>
        <source>Set the administrator&apos;s personal number; mirovahrctl drift or a start of the server repeats the step.</source>
        <translation>Nastavte osobné číslo administrátora; krok zopakuje mirovahrctl drift alebo spustenie servera.</translation>
    </message>
    <message>
        <source>The person (pid) is not in the database, so the supervisor is not set: not created, or test mode.</source>
        <translation>Osoba (pid) nie je v databáze, takže nadriadený sa nenastavil: nebola vytvorená alebo je zapnutý skúšobný režim.</translation>
    </message>
    <message>
        <source>See why the person was not created.</source>
        <translation>Zistite, prečo osoba nebola vytvorená.</translation>
    </message>
    <message>
        <source>The supervisor was not set. Rolled back: the old one stays.</source>
        <translation>Nadriadený sa nenastavil. Zmena bola vrátená: zostáva pôvodný.</translation>
    </message>
    <message>
        <source>See the error above; mirovahrctl drift or a start of the server repeats the step.</source>
        <translation>Pozrite si chybu uvedenú vyššie; krok zopakuje mirovahrctl drift alebo spustenie servera.</translation>
    </message>
    <message>
        <source>The administrator could not be looked up, and so counts as not found.</source>
        <translation>Administrátora sa nepodarilo vyhľadať, takže sa považuje za nenájdeného.</translation>
    </message>
    <message>
        <source>Start the server again, when the cause is mended: that repeats the step.</source>
        <translation>Po odstránení príčiny znova spustite server: tým sa krok zopakuje.</translation>
    </message>
    <message>
        <source>The old supervisor could not be reset, so the new one is not set.</source>
        <translation>Pôvodného nadriadeného sa nepodarilo zrušiť, takže nový sa nenastavil.</translation>
    </message>
    <message>
        <source>The new supervisor could not be set, so the old one stays.</source>
        <translation>Nového nadriadeného sa nepodarilo nastaviť, takže zostáva pôvodný.</translation>
    </message>
    <message>
        <source>The branches could not be loaded: nobody has a branch in this cycle, and who is written loses it.</source>
        <translation>Pobočky sa nepodarilo načítať: v tomto cykle nemá pobočku nikto a kto sa zapíše, ten o ňu príde.</translation>
    </message>
    <message>
        <source>No branch has this cost centre as its number; the record waits, and the person stays where they are.</source>
        <translation>Žiadna pobočka nemá číslo tohto strediska; záznam čaká a osoba zostáva tam, kde je.</translation>
    </message>
    <message>
        <source>Set up the branch, or have HR correct the cost centre.</source>
        <translation>Vytvorte pobočku alebo požiadajte personálne oddelenie o opravu strediska.</translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for this calendar: the person&apos;s calendar is not planned.</source>
        <translation>Hlavná skupina pobočky nemá skupinu pre tento kalendár: kalendár osoby sa nenaplánuje.</translation>
    </message>
    <message>
        <source>Set the group up, then force.</source>
        <translation>Vytvorte skupinu a potom vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>The calendar could not be planned, somebody else wrote the same first, or the person is not there (not created, test mode).</source>
        <translation>Kalendár sa nepodarilo naplánovať, to isté zapísal najprv niekto iný alebo osoba neexistuje (nebola vytvorená, skúšobný režim).</translation>
    </message>
    <message>
        <source>See the error above, or why the person was not created; then force, and run mirovahrctl drift: months may lack the calendar.</source>
        <translation>Pozrite si chybu uvedenú vyššie alebo zistite, prečo osoba nebola vytvorená; potom vynúťte synchronizáciu a spustite mirovahrctl drift: v niektorých mesiacoch môže kalendár chýbať.</translation>
    </message>
    <message>
        <source>Whether the person is a member of the branch is not known, so the person is added.</source>
        <translation>Nie je známe, či je osoba členom pobočky, takže sa do nej pridá.</translation>
    </message>
    <message>
        <source>The calendar group could not be looked up, and so counts as not found.</source>
        <translation>Kalendárovú skupinu sa nepodarilo vyhľadať, takže sa považuje za nenájdenú.</translation>
    </message>
    <message>
        <source>Whether the calendar is planned is not known, so it is planned.</source>
        <translation>Nie je známe, či je kalendár naplánovaný, takže sa naplánuje.</translation>
    </message>
    <message>
        <source>A calendar is planned; with an error, it was not.</source>
        <translation>Kalendár sa plánuje; pri chybe sa nenaplánoval.</translation>
    </message>
    <message>
        <source>After an error: force, when the cause is mended.</source>
        <translation>Po chybe: po odstránení príčiny vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>A plan is removed (other components); with an error, it was not.</source>
        <translation>Plán sa odstraňuje (ostatné súčasti); pri chybe sa neodstránil.</translation>
    </message>
    <message>
        <source>After an error: repeat what removed it.</source>
        <translation>Po chybe: zopakujte to, čo ho malo odstrániť.</translation>
    </message>
    <message>
        <source>The months of a person were not filled again from the plan.</source>
        <translation>Mesiace osoby sa znova nevyplnili podľa plánu.</translation>
    </message>
    <message>
        <source>Let the attendance system fill them again.</source>
        <translation>Nechajte dochádzkový systém znova ich vyplniť.</translation>
    </message>
    <message>
        <source>The current group of a person could not be read from the plan.</source>
        <translation>Aktuálnu skupinu osoby sa nepodarilo prečítať z plánu.</translation>
    </message>
    <message>
        <source>The current group of a person could not be read from the person&apos;s own row.</source>
        <translation>Aktuálnu skupinu osoby sa nepodarilo prečítať z jej vlastného riadka.</translation>
    </message>
    <message>
        <source>Attendance of the person is not recalculated.</source>
        <translation>Dochádzka osoby sa neprepočíta.</translation>
    </message>
    <message>
        <source>Recalculate by hand.</source>
        <translation>Prepočítajte ju ručne.</translation>
    </message>
    <message>
        <source>Attendance of the person is marked, but its recalculation is not requested.</source>
        <translation>Dochádzka osoby je označená, ale jej prepočítanie nie je vyžiadané.</translation>
    </message>
    <message>
        <source>The person is not found, so attendance is not recalculated.</source>
        <translation>Osoba sa nenašla, takže dochádzka sa neprepočíta.</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Začiatok</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>Forced</source>
        <translation>Vynútená</translation>
    </message>
    <message>
        <source>People read</source>
        <translation>Prečítané osoby</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Čakajúci</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problémy</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvorení</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualizovaní</translation>
    </message>
    <message>
        <source>Moved in</source>
        <translation>Zaradení</translation>
    </message>
    <message>
        <source>Balances</source>
        <translation>Zostatky</translation>
    </message>
    <message>
        <source>by days</source>
        <translation>o koľko dní</translation>
    </message>
    <message>
        <source>at most</source>
        <translation>najviac</translation>
    </message>
    <message>
        <source>Supervisors</source>
        <translation>Nadriadení</translation>
    </message>
    <message>
        <source>Statements failed by a deadlock, a lock&apos;s timeout, a lost connection or a node that was not ready.</source>
        <translation>Príkazy zlyhali kvôli vzájomnému zablokovaniu (deadlock), vypršaniu časového limitu zámku, strate spojenia alebo nepripravenému uzlu klastra.</translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift. Look out for more: a failed COMMIT is not logged.</source>
        <translation>To, čo mali zapísať, môže chýbať natrvalo: vynúťte synchronizáciu s tým istým exportom a potom spustite mirovahrctl drift. Počítajte s ďalšími: zlyhaný COMMIT sa nezaznamenáva.</translation>
    </message>
    <message>
        <source>The plugin logged an error.</source>
        <translation>Zásuvný modul zaznamenal chybu.</translation>
    </message>
    <message>
        <source>The finding says what was lost and what to do; docs/operations.md lists every text.</source>
        <translation>Nález uvádza, čo sa stratilo a čo treba urobiť; všetky texty sú v docs/operations.md.</translation>
    </message>
    <message>
        <source>The plugin logged a warning. It is a note when nothing has to be done.</source>
        <translation>Zásuvný modul zaznamenal upozornenie. Je to poznámka, keď netreba nič urobiť.</translation>
    </message>
    <message>
        <source>A synchronisation began and did not end. It is a note when it may still be running.</source>
        <translation>Synchronizácia sa začala a neskončila. Je to poznámka, keď možno ešte prebieha.</translation>
    </message>
    <message>
        <source>Look for what ended the attendance server; then provide the export again, and force.</source>
        <translation>Zistite, čo ukončilo dochádzkový server; potom znova poskytnite export a vynúťte synchronizáciu.</translation>
    </message>
    <message>
        <source>The log begins within a synchronisation: its counts are not known.</source>
        <translation>Protokol sa začína uprostred synchronizácie: jej počty nie sú známe.</translation>
    </message>
    <message>
        <source>A tick that was due did not come.</source>
        <translation>Očakávaný takt nenastal.</translation>
    </message>
    <message>
        <source>Look for what stopped the attendance server, or the machine, at that time.</source>
        <translation>Zistite, čo v tom čase zastavilo dochádzkový server alebo počítač.</translation>
    </message>
    <message>
        <source>The log shows no synchronisation, or none when one was due.</source>
        <translation>V protokole nie je žiadna synchronizácia alebo chýba tá, ktorá mala prebehnúť.</translation>
    </message>
    <message>
        <source>See whether the attendance server runs with the plugin, at debug level 1 at least.</source>
        <translation>Skontrolujte, či dochádzkový server beží so zásuvným modulom a aspoň na úrovni ladenia 1.</translation>
    </message>
    <message>
        <source>Lines begin like those of the plugin, but are none that this program knows.</source>
        <translation>Riadky sa začínajú ako riadky zásuvného modulu, ale tento program ich nepozná.</translation>
    </message>
    <message>
        <source>They are cut, or the plugin is of another version: read them yourself.</source>
        <translation>Sú skrátené alebo je zásuvný modul inej verzie: prečítajte si ich sami.</translation>
    </message>
</context>
</TS>
