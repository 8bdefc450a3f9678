<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>its folder cannot be watched</source>
        <translation>jeho složku nelze sledovat</translation>
    </message>
    <message>
        <source>The log &apos;%1&apos; is not there yet.</source>
        <translation>Protokol „%1“ zatím neexistuje.</translation>
    </message>
    <message>
        <source>it is no file; give what comes from it on standard input</source>
        <translation>není to soubor; jeho výstup předejte na standardním vstupu</translation>
    </message>
    <message>
        <source>The log &apos;%1&apos; cannot be read: %2</source>
        <translation>Protokol „%1“ nelze přečíst: %2</translation>
    </message>
    <message>
        <source>Synchronisation #%1. %2</source>
        <translation>Synchronizace #%1. %2</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>This line begins like the plugin&apos;s and is none that is known: %1.</source>
        <translation>Tento řádek začíná jako řádky zásuvného modulu, ale není známý: %1.</translation>
    </message>
    <message>
        <source>Shows what the log of the attendance server says of the plugin&apos;s work: for each synchronisation when it ran, how long, and what it did; then every warning and error with what it means, whom it concerns, what was lost and what to do; and what is missing. Whatever stands before the plugin&apos;s texts is allowed, and so are lines of others. Reads files, also those that gzip, xz or zstd has compressed, and without one standard input.

With --follow it goes on while the log is written, also when the file is rotated: each synchronisation that is over, each warning and each error is one line. With --json each line is an object.</source>
        <translation>Ukáže, co protokol docházkového serveru říká o práci zásuvného modulu: u každé synchronizace, kdy proběhla, jak dlouho trvala a co udělala; potom každé upozornění a každou chybu s tím, co znamená, koho se týká, co se ztratilo a co je třeba udělat; a co v protokolu chybí. Před texty zásuvného modulu může být cokoli a mezi nimi i cizí řádky. Čte soubory, také zkomprimované programem gzip, xz nebo zstd, a není-li uveden žádný, standardní vstup.

S volbou --follow pokračuje, dokud se protokol zapisuje, i když se soubor rotuje: každá skončená synchronizace, každé upozornění a každá chyba je jeden řádek. S volbou --json je každý řádek objekt.</translation>
    </message>
    <message>
        <source>What the log says of the plugin&apos;s work</source>
        <translation>Co říká protokol o práci zásuvného modulu</translation>
    </message>
    <message>
        <source>--follow takes one log</source>
        <translation>--follow přijímá jeden protokol</translation>
    </message>
    <message>
        <source>--follow writes no page</source>
        <translation>--follow nezapisuje stránku</translation>
    </message>
    <message>
        <source>--follow begins with what standard input gives; --last needs a file</source>
        <translation>--follow začíná tím, co přijde na standardním vstupu; --last vyžaduje soubor</translation>
    </message>
    <message>
        <source>--since takes a time such as 2026-11-22, 2026-11-22T18:00, 90min, 12h or 7d</source>
        <translation>--since vyžaduje čas ve tvaru 2026-11-22, 2026-11-22T18:00, 90min, 12h nebo 7d</translation>
    </message>
    <message>
        <source>--last takes a number above 0</source>
        <translation>--last vyžaduje číslo větší než 0</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The logs; - is standard input, which is read without one, too.</source>
        <translation>Protokoly; - je standardní vstup, který se čte i tehdy, když není uveden žádný.</translation>
    </message>
    <message>
        <source>time</source>
        <translation>čas</translation>
    </message>
    <message>
        <source>Leave out what was logged before: 2026-11-22, 2026-11-22T18:00, or so long ago as 90min, 12h or 7d.</source>
        <translation>Vynechá, co bylo zaznamenáno dříve: 2026-11-22, 2026-11-22T18:00 nebo před takovou dobou jako 90min, 12h či 7d.</translation>
    </message>
    <message>
        <source>count</source>
        <translation>počet</translation>
    </message>
    <message>
        <source>Leave out all but the last synchronisations.</source>
        <translation>Vynechá všechny kromě posledních synchronizací.</translation>
    </message>
    <message>
        <source>Go on while the log is written; begins with the last synchronisation, or with what --since or --last says.</source>
        <translation>Pokračuje, dokud se protokol zapisuje; začíná poslední synchronizací nebo tím, co určuje --since nebo --last.</translation>
    </message>
    <message>
        <source>Logged once at %1: &quot;%2&quot;.</source>
        <translation>Zaznamenáno jednou, %1: „%2“.</translation>
    </message>
    <message>
        <source>Logged once: &quot;%1&quot;.</source>
        <translation>Zaznamenáno jednou: „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>Logged %Ln time(s): &quot;%1&quot;.</source>
        <translation>
            <numerusform>Zaznamenáno %Lnkrát: „%1“.</numerusform>
            <numerusform>Zaznamenáno %Lnkrát: „%1“.</numerusform>
            <numerusform>Zaznamenáno %Lnkrát: „%1“.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Logged %Ln time(s) from %1 to %2: &quot;%3&quot;.</source>
        <translation>
            <numerusform>Zaznamenáno %Lnkrát od %1 do %2: „%3“.</numerusform>
            <numerusform>Zaznamenáno %Lnkrát od %1 do %2: „%3“.</numerusform>
            <numerusform>Zaznamenáno %Lnkrát od %1 do %2: „%3“.</numerusform>
        </translation>
    </message>
    <message>
        <source>It concerns %1.</source>
        <translation>Týká se těchto osob: %1.</translation>
    </message>
    <message numerus="yes">
        <source>It concerns %Ln person(s), among them %1.</source>
        <translation>
            <numerusform>Týká se %Ln osoby, mezi nimi: %1.</numerusform>
            <numerusform>Týká se %Ln osob, mezi nimi: %1.</numerusform>
            <numerusform>Týká se %Ln osob, mezi nimi: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>branch %1</source>
        <translation>pobočka %1</translation>
    </message>
    <message>
        <source>calendar %1</source>
        <translation>kalendář %1</translation>
    </message>
    <message>
        <source>supervisor %1</source>
        <translation>nadřízený %1</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>soubor %1</translation>
    </message>
    <message>
        <source>command %1</source>
        <translation>příkaz %1</translation>
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
        <translation>Jde o toto: %1.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a synchronisation</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Synchronisation %1 did not end.</source>
        <translation>Synchronizace %1 neskončila.</translation>
    </message>
    <message>
        <source>The plugin&apos;s lines have no times, which --since needs</source>
        <translation>Řádky zásuvného modulu neobsahují čas, který vyžaduje --since</translation>
    </message>
    <message>
        <source>Synchronisation %1 has not ended where the log does: it may still be running.</source>
        <translation>Synchronizace %1 do konce protokolu neskončila: možná ještě probíhá.</translation>
    </message>
    <message>
        <source>Look again later.</source>
        <translation>Podívejte se znovu později.</translation>
    </message>
    <message>
        <source>Synchronisation %1 began before the log does.</source>
        <translation>Synchronizace %1 začala před začátkem protokolu.</translation>
    </message>
    <message>
        <source>Standard input cannot be read: %1</source>
        <translation>Standardní vstup nelze přečíst: %1</translation>
    </message>
    <message>
        <source>A compressed log does not grow; read it without --follow</source>
        <translation>Zkomprimovaný protokol neroste; čtěte ho bez --follow</translation>
    </message>
    <message numerus="yes">
        <source>No synchronisation came between %1 and %2, although one usually comes every %Ln second(s); the log ends then.</source>
        <translation>
            <numerusform>Mezi %1 a %2 neproběhla žádná synchronizace, ačkoli obvykle probíhá každou %Ln sekundu; potom protokol končí.</numerusform>
            <numerusform>Mezi %1 a %2 neproběhla žádná synchronizace, ačkoli obvykle probíhá každé %Ln sekundy; potom protokol končí.</numerusform>
            <numerusform>Mezi %1 a %2 neproběhla žádná synchronizace, ačkoli obvykle probíhá každých %Ln sekund; potom protokol končí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No synchronisation came between %1 and %2, although one usually comes every %Ln second(s).</source>
        <translation>
            <numerusform>Mezi %1 a %2 neproběhla žádná synchronizace, ačkoli obvykle probíhá každou %Ln sekundu.</numerusform>
            <numerusform>Mezi %1 a %2 neproběhla žádná synchronizace, ačkoli obvykle probíhá každé %Ln sekundy.</numerusform>
            <numerusform>Mezi %1 a %2 neproběhla žádná synchronizace, ačkoli obvykle probíhá každých %Ln sekund.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No tick came between %1 and %2, although one usually comes every %Ln second(s); the log ends then.</source>
        <translation>
            <numerusform>Mezi %1 a %2 nenastal žádný takt, ačkoli obvykle nastává každou %Ln sekundu; potom protokol končí.</numerusform>
            <numerusform>Mezi %1 a %2 nenastal žádný takt, ačkoli obvykle nastává každé %Ln sekundy; potom protokol končí.</numerusform>
            <numerusform>Mezi %1 a %2 nenastal žádný takt, ačkoli obvykle nastává každých %Ln sekund; potom protokol končí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No tick came between %1 and %2, although one usually comes every %Ln second(s).</source>
        <translation>
            <numerusform>Mezi %1 a %2 nenastal žádný takt, ačkoli obvykle nastává každou %Ln sekundu.</numerusform>
            <numerusform>Mezi %1 a %2 nenastal žádný takt, ačkoli obvykle nastává každé %Ln sekundy.</numerusform>
            <numerusform>Mezi %1 a %2 nenastal žádný takt, ačkoli obvykle nastává každých %Ln sekund.</numerusform>
        </translation>
    </message>
    <message>
        <source>The log shows %1, %2 and %3.</source>
        <translation>Obsah protokolu: %1, %2 a %3.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln synchronisation(s)</source>
        <translation>
            <numerusform>%Ln synchronizace</numerusform>
            <numerusform>%Ln synchronizace</numerusform>
            <numerusform>%Ln synchronizací</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln error(s)</source>
        <translation>
            <numerusform>%Ln chyba</numerusform>
            <numerusform>%Ln chyby</numerusform>
            <numerusform>%Ln chyb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warning(s)</source>
        <translation>
            <numerusform>%Ln upozornění</numerusform>
            <numerusform>%Ln upozornění</numerusform>
            <numerusform>%Ln upozornění</numerusform>
        </translation>
    </message>
    <message>
        <source>Synchronisations</source>
        <translation>Synchronizace</translation>
    </message>
    <message>
        <source>The log shows none.</source>
        <translation>V protokolu není žádná.</translation>
    </message>
    <message>
        <source>These are the last %1 of %2; --last shows more.</source>
        <translation>Zobrazeny jsou jen poslední (%1 z %2); další ukáže --last.</translation>
    </message>
    <message>
        <source>These are the changes. Created are also people who return; moved in are new members of a branch; balances are those of the vacation.</source>
        <translation>Toto jsou změny. K vytvořeným patří i osoby, které se vracejí; zařazení jsou noví členové pobočky; zůstatky jsou zůstatky dovolené.</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Upozornění a chyby</translation>
    </message>
    <message>
        <source>The plugin logged none.</source>
        <translation>Zásuvný modul nezaznamenal žádné.</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>Co chybí</translation>
    </message>
    <message>
        <source>The lines have no times: ticks that did not come cannot be noticed.</source>
        <translation>Řádky neobsahují čas: chybějící takty nelze zjistit.</translation>
    </message>
    <message>
        <source>The log shows no synchronisation.</source>
        <translation>V protokolu není žádná synchronizace.</translation>
    </message>
    <message>
        <source>The log has no line of the plugin.</source>
        <translation>V protokolu není žádný řádek zásuvného modulu.</translation>
    </message>
    <message>
        <source>The log has no line of debug level 1 or above. At debug level 0 the plugin logs problems only: nobody can tell whether it synchronised.</source>
        <translation>V protokolu není žádný řádek z úrovně ladění 1 nebo vyšší. Na úrovni ladění 0 zásuvný modul zaznamenává jen problémy: nelze říci, zda synchronizoval.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) begin like the plugin&apos;s and none that is known, the first of them %1.</source>
        <translation>
            <numerusform>%Ln řádek začíná jako řádky zásuvného modulu, ale není známý; první z nich: %1.</numerusform>
            <numerusform>%Ln řádky začínají jako řádky zásuvného modulu, ale nejsou známé; první z nich: %1.</numerusform>
            <numerusform>%Ln řádků začíná jako řádky zásuvného modulu, ale nejsou známé; první z nich: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>What this log can tell</source>
        <translation>Co lze z tohoto protokolu zjistit</translation>
    </message>
    <message>
        <source>Its lines are those of debug level %1.</source>
        <translation>Jeho řádky odpovídají úrovni ladění %1.</translation>
    </message>
    <message>
        <source>From debug level 1 on it would tell when the plugin synchronised, and whom it created and updated.</source>
        <translation>Od úrovně ladění 1 by bylo vidět, kdy zásuvný modul synchronizoval a koho vytvořil a aktualizoval.</translation>
    </message>
    <message>
        <source>From debug level 2 on it would tell how many people are read at a site without a vacation fund, when an export was missing, and when the plugin ticked.</source>
        <translation>Od úrovně ladění 2 by bylo vidět, kolik osob se přečte na pracovišti bez fondu dovolené, kdy export chyběl a kdy nastaly takty.</translation>
    </message>
    <message>
        <source>From debug level 3 on it would tell which lines of the export were dropped, and whom an error concerns that names nobody.</source>
        <translation>Od úrovně ladění 3 by bylo vidět, které řádky exportu byly vynechány a koho se týká chyba, která nikoho neuvádí.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Lines of the plugin</source>
        <translation>Řádky zásuvného modulu</translation>
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
        <translation>Úroveň ladění</translation>
    </message>
    <message>
        <source>People created</source>
        <translation>Vytvořené osoby</translation>
    </message>
    <message>
        <source>People updated</source>
        <translation>Aktualizované osoby</translation>
    </message>
    <message>
        <source>Memberships of branches</source>
        <translation>Členství v pobočkách</translation>
    </message>
    <message>
        <source>Vacation balances corrected</source>
        <translation>Opravené zůstatky dovolené</translation>
    </message>
    <message>
        <source>Supervisors set</source>
        <translation>Nastavení nadřízení</translation>
    </message>
    <message>
        <source>The INI file is not at this path: the defaults are in force, with /tmp/ron.data.</source>
        <translation>INI soubor na této cestě není: platí výchozí hodnoty se souborem /tmp/ron.data.</translation>
    </message>
    <message>
        <source>Install the INI file, and start the server again.</source>
        <translation>Nainstalujte INI soubor a znovu spusťte server.</translation>
    </message>
    <message>
        <source>enabled is false: nothing is synchronised.</source>
        <translation>enabled je false: nic se nesynchronizuje.</translation>
    </message>
    <message>
        <source>Unless that is intended, set it to true, and start the server again.</source>
        <translation>Pokud to není záměr, nastavte hodnotu na true a znovu spusťte server.</translation>
    </message>
    <message>
        <source>The plugin could not start: nothing is synchronised.</source>
        <translation>Zásuvný modul se nepodařilo spustit: nic se nesynchronizuje.</translation>
    </message>
    <message>
        <source>Start the server again; before that, look for an error above.</source>
        <translation>Znovu spusťte server; předtím vyhledejte chybu uvedenou výše.</translation>
    </message>
    <message>
        <source>The worker cannot tick: nothing is synchronised.</source>
        <translation>Pracovní vlákno nemůže provádět takty: nic se nesynchronizuje.</translation>
    </message>
    <message>
        <source>Start the server again.</source>
        <translation>Znovu spusťte server.</translation>
    </message>
    <message>
        <source>The server&apos;s folder for data or logs is missing and cannot be created.</source>
        <translation>Složka serveru pro data nebo protokoly chybí a nelze ji vytvořit.</translation>
    </message>
    <message>
        <source>Check the rights of the folder above it.</source>
        <translation>Zkontrolujte oprávnění nadřazené složky.</translation>
    </message>
    <message>
        <source>The server&apos;s user may not write to its folder for data or logs.</source>
        <translation>Uživatel serveru nesmí zapisovat do složky serveru pro data nebo protokoly.</translation>
    </message>
    <message>
        <source>Check its rights.</source>
        <translation>Zkontrolujte oprávnění složky.</translation>
    </message>
    <message>
        <source>A tick came within another one; nothing is lost.</source>
        <translation>Takt nastal během jiného taktu; nic se neztratilo.</translation>
    </message>
    <message>
        <source>The tick was dropped, since the database could not be opened; the next one tries again, but a synchronisation that was due waits for its next turn.</source>
        <translation>Takt byl vynechán, protože databázi se nepodařilo otevřít; další to zkusí znovu, ale synchronizace, která byla na řadě, čeká na svůj další termín.</translation>
    </message>
    <message>
        <source>If it goes on: is the database server up, the password right?</source>
        <translation>Pokud to přetrvává: běží databázový server, je heslo správné?</translation>
    </message>
    <message>
        <source>Why the database could not be opened; the tick was dropped.</source>
        <translation>Důvod, proč se databázi nepodařilo otevřít; takt byl vynechán.</translation>
    </message>
    <message>
        <source>syncCommandRun requires a command and syncCommand is empty; a file that lies there is read all the same.</source>
        <translation>syncCommandRun vyžaduje příkaz a syncCommand je prázdný; soubor, který tam leží, se přesto přečte.</translation>
    </message>
    <message>
        <source>Set one of the two, and start the server again.</source>
        <translation>Nastavte jedno z nich a znovu spusťte server.</translation>
    </message>
    <message>
        <source>The export command failed; a file that lies there is read all the same.</source>
        <translation>Příkaz exportu selhal; soubor, který tam leží, se přesto přečte.</translation>
    </message>
    <message>
        <source>The code says why: -2 it could not be started, -1 it crashed, otherwise it is its own status (5 of the gate: refused).</source>
        <translation>Důvod udává kód: -2 nepodařilo se ho spustit, -1 spadl, jinak je to jeho vlastní návratový kód (5 u brány: odmítnuto).</translation>
    </message>
    <message>
        <source>A helper process failed. The plugin starts none itself.</source>
        <translation>Selhal pomocný proces. Zásuvný modul sám žádný nespouští.</translation>
    </message>
    <message>
        <source>Look for the component of the server that starts it.</source>
        <translation>Vyhledejte součást serveru, která ho spouští.</translation>
    </message>
    <message>
        <source>No export lies there. Normal between HR&apos;s deliveries.</source>
        <translation>Žádný export tam neleží. Mezi dodávkami personálního oddělení je to běžné.</translation>
    </message>
    <message>
        <source>The export could not be opened, so nobody was read: the server&apos;s user may not read it, or a file server (Samba, NFS) keeps it for a client that is still at it.</source>
        <translation>Export se nepodařilo otevřít, takže nebyla přečtena žádná osoba: uživatel serveru ho nesmí číst nebo ho souborový server (Samba, NFS) drží pro klienta, který s ním ještě pracuje.</translation>
    </message>
    <message>
        <source>In the first case mend its rights; in the second the next synchronisation reads it.</source>
        <translation>V prvním případě opravte jeho oprávnění; ve druhém ho přečte nejbližší synchronizace.</translation>
    </message>
    <message>
        <source>One of two: the file cannot be read to its end, then the text comes with deleteFile=false, too; or it was read, and the server&apos;s user may not write to the folder. It is read again next time.</source>
        <translation>Jedno ze dvou: soubor nelze přečíst do konce, pak se text objeví i s deleteFile=false; nebo byl přečten a uživatel serveru nesmí zapisovat do složky. Příště se přečte znovu.</translation>
    </message>
    <message>
        <source>mirovahrctl check-file says whether it can be read to its end; otherwise mend the rights of its folder.</source>
        <translation>mirovahrctl check-file řekne, zda ho lze přečíst do konce; jinak opravte oprávnění jeho složky.</translation>
    </message>
    <message>
        <source>A line without 18 fields was dropped: its person is not synchronised.</source>
        <translation>Řádek, který nemá 18 polí, byl vynechán: jeho osoba se nesynchronizuje.</translation>
    </message>
    <message>
        <source>mirovahrctl check-file names the line for HR.</source>
        <translation>mirovahrctl check-file uvede tento řádek pro personální oddělení.</translation>
    </message>
    <message>
        <source>The people could not be loaded from the database.</source>
        <translation>Osoby se nepodařilo načíst z databáze.</translation>
    </message>
    <message>
        <source>See the next text.</source>
        <translation>Podívejte se na následující text.</translation>
    </message>
    <message>
        <source>The people could not be loaded from the database: everything that this synchronisation has read is lost.</source>
        <translation>Osoby se nepodařilo načíst z databáze: vše, co tato synchronizace přečetla, je ztraceno.</translation>
    </message>
    <message>
        <source>Provide the export again, and force.</source>
        <translation>Znovu poskytněte export a vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>The uid of a person could not be looked up: the person&apos;s later steps in this cycle fail.</source>
        <translation>Uid osoby se nepodařilo vyhledat: další kroky této osoby v tomto cyklu selžou.</translation>
    </message>
    <message>
        <source>Force, when the cause is mended.</source>
        <translation>Po odstranění příčiny vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>It could not be looked up whether a person is there (other components).</source>
        <translation>Nepodařilo se zjistit, zda osoba existuje (ostatní součásti).</translation>
    </message>
    <message>
        <source>Look at the error of the database.</source>
        <translation>Podívejte se na chybu databáze.</translation>
    </message>
    <message>
        <source>The person would be created without test mode.</source>
        <translation>Bez zkušebního režimu by se osoba vytvořila.</translation>
    </message>
    <message>
        <source>The person was not created, and is not tried again by itself.</source>
        <translation>Osoba nebyla vytvořena a samo se to nezopakuje.</translation>
    </message>
    <message>
        <source>Mend the line, or force when the cause is mended.</source>
        <translation>Opravte řádek nebo po odstranění příčiny vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>The person was created, but is not in the payroll export&apos;s selection: there is none or more than one exportPam.N.active, or it could not be written.</source>
        <translation>Osoba byla vytvořena, ale není ve výběru exportu pro mzdy: exportPam.N.active neexistuje nebo je jich více než jeden, nebo se to nepodařilo zapsat.</translation>
    </message>
    <message>
        <source>When there is one, mend it with mirovahrctl drift; sites without such an export ignore it.</source>
        <translation>Pokud export existuje, napravte to pomocí mirovahrctl drift; pracoviště bez takového exportu si textu nemusí všímat.</translation>
    </message>
    <message>
        <source>The person would be updated without test mode.</source>
        <translation>Bez zkušebního režimu by se osoba aktualizovala.</translation>
    </message>
    <message>
        <source>The person was not updated, and is not tried again by itself.</source>
        <translation>Osoba nebyla aktualizována a samo se to nezopakuje.</translation>
    </message>
    <message>
        <source>The person would get a payroll setting without test mode.</source>
        <translation>Bez zkušebního režimu by osoba dostala nastavení pro mzdy.</translation>
    </message>
    <message>
        <source>The person just created is not found.</source>
        <translation>Právě vytvořená osoba nebyla nalezena.</translation>
    </message>
    <message>
        <source>Do reads go to a replica? Enter the payroll setting by hand.</source>
        <translation>Čte se z repliky? Nastavení pro mzdy zadejte ručně.</translation>
    </message>
    <message>
        <source>The payroll setting of a new person was not written.</source>
        <translation>Nastavení nové osoby pro mzdy se nezapsalo.</translation>
    </message>
    <message>
        <source>Mend it with mirovahrctl drift.</source>
        <translation>Napravte to pomocí mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The new person has no payroll setting, or somebody else wrote the same first.</source>
        <translation>Nová osoba nemá nastavení pro mzdy nebo totéž zapsal nejprve někdo jiný.</translation>
    </message>
    <message>
        <source>mirovahrctl drift says which, and mends it.</source>
        <translation>mirovahrctl drift ukáže, co z toho platí, a napraví to.</translation>
    </message>
    <message>
        <source>An updated person is not found, so the terminals do not learn of the change: reads go to a replica, or the row went meanwhile.</source>
        <translation>Aktualizovaná osoba nebyla nalezena, takže terminály se o změně nedozvědí: čte se z repliky nebo řádek mezitím zanikl.</translation>
    </message>
    <message>
        <source>Send the person to the terminals.</source>
        <translation>Pošlete osobu do terminálů.</translation>
    </message>
    <message>
        <source>The queue of the terminals was not written: they do not learn of the change.</source>
        <translation>Do fronty terminálů se nezapsalo: o změně se nedozvědí.</translation>
    </message>
    <message>
        <source>Send the people to the terminals.</source>
        <translation>Pošlete osoby do terminálů.</translation>
    </message>
    <message>
        <source>The change is queued, but the terminals are not notified.</source>
        <translation>Změna je ve frontě, ale terminály o ní nedostaly zprávu.</translation>
    </message>
    <message>
        <source>A setting (force flag, selection) was not written. The force flag stays: the next tick is forced again.</source>
        <translation>Nastavení (příznak vynucení, výběr) se nezapsalo. Příznak vynucení zůstává: následující takt je opět vynucený.</translation>
    </message>
    <message>
        <source>Mend the cause; a new person who is not in the selection is to be entered by hand.</source>
        <translation>Odstraňte příčinu; novou osobu, která není ve výběru, je třeba zadat ručně.</translation>
    </message>
    <message>
        <source>A setting was not read; the force flag counts as not set.</source>
        <translation>Nastavení se nepřečetlo; příznak vynucení se považuje za nenastavený.</translation>
    </message>
    <message>
        <source>If it goes on, mend the cause.</source>
        <translation>Pokud to přetrvává, odstraňte příčinu.</translation>
    </message>
    <message>
        <source>The payroll exports were not read: new people join none.</source>
        <translation>Exporty pro mzdy se nepřečetly: nové osoby se do žádného nezařadí.</translation>
    </message>
    <message>
        <source>A setting was not deleted (other components).</source>
        <translation>Nastavení se nesmazalo (ostatní součásti).</translation>
    </message>
    <message>
        <source>Repeat what deleted it.</source>
        <translation>Zopakujte to, co ho mělo smazat.</translation>
    </message>
    <message>
        <source>The connection of the settings could not be opened (other components).</source>
        <translation>Spojení pro nastavení se nepodařilo otevřít (ostatní součásti).</translation>
    </message>
    <message>
        <source>People (uids) join a branch; with an error, they did not.</source>
        <translation>Osoby (uid) se zařazují do pobočky; při chybě se nezařadily.</translation>
    </message>
    <message>
        <source>After an error: provide the export again, and force.</source>
        <translation>Po chybě: znovu poskytněte export a vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>Not all terminals of the branch got its new people. Also after a removal.</source>
        <translation>Ne všechny terminály pobočky dostaly její nové osoby. Platí i po odebrání.</translation>
    </message>
    <message>
        <source>See the error above, and add them with mirovahrctl drift.</source>
        <translation>Podívejte se na chybu uvedenou výše a doplňte je pomocí mirovahrctl drift.</translation>
    </message>
    <message>
        <source>Not all administrators of the branch got its new people. Also after a removal.</source>
        <translation>Ne všichni administrátoři pobočky dostali její nové osoby. Platí i po odebrání.</translation>
    </message>
    <message>
        <source>The terminals of a branch; with an error, they could not be looked up, and people are not added to them.</source>
        <translation>Terminály pobočky; při chybě se je nepodařilo vyhledat a osoby se do nich nepřidají.</translation>
    </message>
    <message>
        <source>After an error: add them with mirovahrctl drift.</source>
        <translation>Po chybě: doplňte je pomocí mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The administrators of a branch; with an error, they could not be looked up, and people are not given to them. An error may come from those of a person as well.</source>
        <translation>Administrátoři pobočky; při chybě se je nepodařilo vyhledat a osoby se jim nepřidělí. Chyba může pocházet i z vyhledání administrátorů jedné osoby.</translation>
    </message>
    <message>
        <source>The people of a branch; with an error, they could not be looked up (other components).</source>
        <translation>Osoby pobočky; při chybě se je nepodařilo vyhledat (ostatní součásti).</translation>
    </message>
    <message>
        <source>After an error: repeat the operation.</source>
        <translation>Po chybě: zopakujte operaci.</translation>
    </message>
    <message>
        <source>People were not added to a terminal.</source>
        <translation>Osoby se nepřidaly do terminálu.</translation>
    </message>
    <message>
        <source>Add them with mirovahrctl drift.</source>
        <translation>Doplňte je pomocí mirovahrctl drift.</translation>
    </message>
    <message>
        <source>People were not given to administrators.</source>
        <translation>Osoby se nepřidělily administrátorům.</translation>
    </message>
    <message>
        <source>People leave a branch (other components); with an error, that failed.</source>
        <translation>Osoby opouštějí pobočku (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>People leave a terminal (other components); with an error, that failed.</source>
        <translation>Osoby se odebírají z terminálu (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>People are taken from an administrator (other components); with an error, that failed.</source>
        <translation>Osoby se odebírají administrátorovi (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>Terminals join a branch (other components); with an error, that failed.</source>
        <translation>Terminály se přiřazují k pobočce (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>Terminals leave a branch (other components); with an error, that failed.</source>
        <translation>Terminály se odebírají z pobočky (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>Administrators join a branch (other components); with an error, that failed.</source>
        <translation>Administrátoři se přiřazují k pobočce (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>Administrators leave a branch (other components); with an error, that failed.</source>
        <translation>Administrátoři se odebírají z pobočky (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>Sections join a branch (other components); with an error, that failed.</source>
        <translation>Sekce se přiřazují k pobočce (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>The attributes of sections that leave a branch stayed (other components).</source>
        <translation>Atributy sekcí, které se odebírají z pobočky, zůstaly (ostatní součásti).</translation>
    </message>
    <message>
        <source>Repeat the operation.</source>
        <translation>Zopakujte operaci.</translation>
    </message>
    <message>
        <source>Sections stayed in a branch (other components).</source>
        <translation>Sekce zůstaly v pobočce (ostatní součásti).</translation>
    </message>
    <message>
        <source>A branch was not created (other components).</source>
        <translation>Pobočka nebyla vytvořena (ostatní součásti).</translation>
    </message>
    <message>
        <source>A branch without a name was not created (other components).</source>
        <translation>Pobočka bez názvu nebyla vytvořena (ostatní součásti).</translation>
    </message>
    <message>
        <source>Give it a name.</source>
        <translation>Zadejte její název.</translation>
    </message>
    <message>
        <source>A branch was not changed (other components).</source>
        <translation>Pobočka nebyla změněna (ostatní součásti).</translation>
    </message>
    <message>
        <source>Attributes of sections are set (other components); with an error, that failed.</source>
        <translation>Atributy sekcí se nastavují (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>Attributes of sections are removed (other components); with an error, that failed.</source>
        <translation>Atributy sekcí se odstraňují (ostatní součásti); při chybě to selhalo.</translation>
    </message>
    <message>
        <source>People, or interval types, were not queued for a terminal.</source>
        <translation>Osoby nebo druhy intervalů se nezařadily do fronty terminálu.</translation>
    </message>
    <message>
        <source>Let the attendance system send the change again.</source>
        <translation>Nechte docházkový systém poslat změnu znovu.</translation>
    </message>
    <message>
        <source>The change is queued, but the terminal was not notified.</source>
        <translation>Změna je ve frontě, ale terminál o ní nedostal zprávu.</translation>
    </message>
    <message>
        <source>A person was not queued.</source>
        <translation>Osoba se nezařadila do fronty.</translation>
    </message>
    <message>
        <source>The change is queued, but the terminals were not notified.</source>
        <translation>Změna je ve frontě, ale terminály nedostaly zprávu.</translation>
    </message>
    <message>
        <source>An interval type was not queued.</source>
        <translation>Druh intervalu se nezařadil do fronty.</translation>
    </message>
    <message>
        <source>A time zone of a terminal was not queued.</source>
        <translation>Časové pásmo terminálu se nezařadilo do fronty.</translation>
    </message>
    <message>
        <source>A person&apos;s time zone was not queued.</source>
        <translation>Časové pásmo osoby se nezařadilo do fronty.</translation>
    </message>
    <message>
        <source>A person&apos;s colour group was not queued.</source>
        <translation>Barevná skupina osoby se nezařadila do fronty.</translation>
    </message>
    <message>
        <source>The colour groups of several people were not queued.</source>
        <translation>Barevné skupiny více osob se nezařadily do fronty.</translation>
    </message>
    <message>
        <source>The colour groups were not queued.</source>
        <translation>Barevné skupiny se nezařadily do fronty.</translation>
    </message>
    <message>
        <source>The terminals were not notified of the colour groups.</source>
        <translation>Terminály nedostaly zprávu o barevných skupinách.</translation>
    </message>
    <message>
        <source>The vacation fund could not be looked up; that of the last cycle stays.</source>
        <translation>Fond dovolené se nepodařilo vyhledat; zůstává fond z posledního cyklu.</translation>
    </message>
    <message>
        <source>If nothing is corrected any more, mend the cause.</source>
        <translation>Pokud se už nic neopravuje, odstraňte příčinu.</translation>
    </message>
    <message>
        <source>Whether the balance was corrected today is not known: it is not corrected in this cycle, and tried again in the next.</source>
        <translation>Není známo, zda byl zůstatek dnes opraven: v tomto cyklu se neopraví a v dalším se to zkusí znovu.</translation>
    </message>
    <message>
        <source>One of two: whether attendance is calculated is not known, then the balance is not corrected in this cycle and tried again in the next; or open days could not be counted, and the balance is corrected all the same.</source>
        <translation>Jedno ze dvou: není známo, zda je docházka vypočtena, pak se zůstatek v tomto cyklu neopraví a v dalším se to zkusí znovu; nebo se nepodařilo spočítat otevřené dny a zůstatek se přesto opraví.</translation>
    </message>
    <message>
        <source>The moves before this month could not be summed, so the balance was not corrected.</source>
        <translation>Pohyby před tímto měsícem se nepodařilo sečíst, takže zůstatek nebyl opraven.</translation>
    </message>
    <message>
        <source>The corrections of this month could not be summed, so the balance was not corrected.</source>
        <translation>Opravy v tomto měsíci se nepodařilo sečíst, takže zůstatek nebyl opraven.</translation>
    </message>
    <message>
        <source>The database&apos;s balance could not be computed, so the balance was not corrected. It is when the line&apos;s balance changes or a synchronisation is forced.</source>
        <translation>Zůstatek v databázi se nepodařilo vypočítat, takže zůstatek nebyl opraven. Opraví se, když se zůstatek v řádku změní nebo se vynutí synchronizace.</translation>
    </message>
    <message>
        <source>The correction of the balance was not written.</source>
        <translation>Oprava zůstatku se nezapsala.</translation>
    </message>
    <message>
        <source>The correction of the balance was not written, is out of range, or somebody else wrote the same first.</source>
        <translation>Oprava zůstatku se nezapsala, je mimo rozsah nebo totéž zapsal nejprve někdo jiný.</translation>
    </message>
    <message>
        <source>Look at HR&apos;s figure; when an error is logged before it, mend that, and force.</source>
        <translation>Podívejte se na údaj personálního oddělení; je-li před tímto textem zaznamenána chyba, odstraňte ji a vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>No administrator has this personal number: the person keeps the supervisor that is set.</source>
        <translation>Žádný administrátor nemá toto osobní číslo: osobě zůstává nadřízený, který je nastaven.</translation>
    </message>
    <message>
        <source>Set the administrator&apos;s personal number; mirovahrctl drift or a start of the server repeats the step.</source>
        <translation>Nastavte osobní číslo administrátora; krok zopakuje mirovahrctl drift nebo spuštění serveru.</translation>
    </message>
    <message>
        <source>The person (pid) is not in the database, so the supervisor is not set: not created, or test mode.</source>
        <translation>Osoba (pid) není v databázi, takže nadřízený se nenastavil: nebyla vytvořena nebo je zapnutý zkušební režim.</translation>
    </message>
    <message>
        <source>See why the person was not created.</source>
        <translation>Zjistěte, proč osoba nebyla vytvořena.</translation>
    </message>
    <message>
        <source>The supervisor was not set. Rolled back: the old one stays.</source>
        <translation>Nadřízený se nenastavil. Změna byla vrácena: zůstává původní.</translation>
    </message>
    <message>
        <source>See the error above; mirovahrctl drift or a start of the server repeats the step.</source>
        <translation>Podívejte se na chybu uvedenou výše; krok zopakuje mirovahrctl drift nebo spuštění serveru.</translation>
    </message>
    <message>
        <source>The administrator could not be looked up, and so counts as not found.</source>
        <translation>Administrátora se nepodařilo vyhledat, takže se považuje za nenalezeného.</translation>
    </message>
    <message>
        <source>Start the server again, when the cause is mended: that repeats the step.</source>
        <translation>Po odstranění příčiny znovu spusťte server: tím se krok zopakuje.</translation>
    </message>
    <message>
        <source>The old supervisor could not be reset, so the new one is not set.</source>
        <translation>Původního nadřízeného se nepodařilo zrušit, takže nový se nenastavil.</translation>
    </message>
    <message>
        <source>The new supervisor could not be set, so the old one stays.</source>
        <translation>Nového nadřízeného se nepodařilo nastavit, takže zůstává původní.</translation>
    </message>
    <message>
        <source>The branches could not be loaded: nobody has a branch in this cycle, and who is written loses it.</source>
        <translation>Pobočky se nepodařilo načíst: v tomto cyklu nemá pobočku nikdo a kdo se zapíše, ten o ni přijde.</translation>
    </message>
    <message>
        <source>No branch has this cost centre as its number; the record waits, and the person stays where they are.</source>
        <translation>Žádná pobočka nemá číslo tohoto střediska; záznam čeká a osoba zůstává tam, kde je.</translation>
    </message>
    <message>
        <source>Set up the branch, or have HR correct the cost centre.</source>
        <translation>Vytvořte pobočku nebo požádejte personální oddělení o opravu střediska.</translation>
    </message>
    <message>
        <source>The branch&apos;s master group has no group for this calendar: the person&apos;s calendar is not planned.</source>
        <translation>Hlavní skupina pobočky nemá skupinu pro tento kalendář: kalendář osoby se nenaplánuje.</translation>
    </message>
    <message>
        <source>Set the group up, then force.</source>
        <translation>Vytvořte skupinu a potom vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>The calendar could not be planned, somebody else wrote the same first, or the person is not there (not created, test mode).</source>
        <translation>Kalendář se nepodařilo naplánovat, totéž zapsal nejprve někdo jiný nebo osoba neexistuje (nebyla vytvořena, zkušební režim).</translation>
    </message>
    <message>
        <source>See the error above, or why the person was not created; then force, and run mirovahrctl drift: months may lack the calendar.</source>
        <translation>Podívejte se na chybu uvedenou výše nebo zjistěte, proč osoba nebyla vytvořena; potom vynuťte synchronizaci a spusťte mirovahrctl drift: v některých měsících může kalendář chybět.</translation>
    </message>
    <message>
        <source>Whether the person is a member of the branch is not known, so the person is added.</source>
        <translation>Není známo, zda je osoba členem pobočky, takže se do ní přidá.</translation>
    </message>
    <message>
        <source>The calendar group could not be looked up, and so counts as not found.</source>
        <translation>Kalendářovou skupinu se nepodařilo vyhledat, takže se považuje za nenalezenou.</translation>
    </message>
    <message>
        <source>Whether the calendar is planned is not known, so it is planned.</source>
        <translation>Není známo, zda je kalendář naplánován, takže se naplánuje.</translation>
    </message>
    <message>
        <source>A calendar is planned; with an error, it was not.</source>
        <translation>Kalendář se plánuje; při chybě se nenaplánoval.</translation>
    </message>
    <message>
        <source>After an error: force, when the cause is mended.</source>
        <translation>Po chybě: po odstranění příčiny vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>A plan is removed (other components); with an error, it was not.</source>
        <translation>Plán se odstraňuje (ostatní součásti); při chybě se neodstranil.</translation>
    </message>
    <message>
        <source>After an error: repeat what removed it.</source>
        <translation>Po chybě: zopakujte to, co ho mělo odstranit.</translation>
    </message>
    <message>
        <source>The months of a person were not filled again from the plan.</source>
        <translation>Měsíce osoby se znovu nevyplnily podle plánu.</translation>
    </message>
    <message>
        <source>Let the attendance system fill them again.</source>
        <translation>Nechte docházkový systém znovu je vyplnit.</translation>
    </message>
    <message>
        <source>The current group of a person could not be read from the plan.</source>
        <translation>Aktuální skupinu osoby se nepodařilo přečíst z plánu.</translation>
    </message>
    <message>
        <source>The current group of a person could not be read from the person&apos;s own row.</source>
        <translation>Aktuální skupinu osoby se nepodařilo přečíst z jejího vlastního řádku.</translation>
    </message>
    <message>
        <source>Attendance of the person is not recalculated.</source>
        <translation>Docházka osoby se nepřepočítá.</translation>
    </message>
    <message>
        <source>Recalculate by hand.</source>
        <translation>Přepočítejte ji ručně.</translation>
    </message>
    <message>
        <source>Attendance of the person is marked, but its recalculation is not requested.</source>
        <translation>Docházka osoby je označena, ale její přepočítání není vyžádáno.</translation>
    </message>
    <message>
        <source>The person is not found, so attendance is not recalculated.</source>
        <translation>Osoba nebyla nalezena, takže docházka se nepřepočítá.</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>Forced</source>
        <translation>Vynucená</translation>
    </message>
    <message>
        <source>People read</source>
        <translation>Přečtené osoby</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Čekající</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problémy</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvoření</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualizovaní</translation>
    </message>
    <message>
        <source>Moved in</source>
        <translation>Zařazení</translation>
    </message>
    <message>
        <source>Balances</source>
        <translation>Zůstatky</translation>
    </message>
    <message>
        <source>by days</source>
        <translation>o kolik dní</translation>
    </message>
    <message>
        <source>at most</source>
        <translation>nejvýše</translation>
    </message>
    <message>
        <source>Supervisors</source>
        <translation>Nadřízení</translation>
    </message>
    <message>
        <source>Statements failed by a deadlock, a lock&apos;s timeout, a lost connection or a node that was not ready.</source>
        <translation>Příkazy selhaly kvůli vzájemnému zablokování (deadlock), vypršení časového limitu zámku, ztrátě spojení nebo nepřipravenému uzlu clusteru.</translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift. Look out for more: a failed COMMIT is not logged.</source>
        <translation>To, co měly zapsat, může chybět natrvalo: vynuťte synchronizaci se stejným exportem a potom spusťte mirovahrctl drift. Počítejte s dalšími: selhaný COMMIT se nezaznamenává.</translation>
    </message>
    <message>
        <source>The plugin logged an error.</source>
        <translation>Zásuvný modul zaznamenal chybu.</translation>
    </message>
    <message>
        <source>The finding says what was lost and what to do; docs/operations.md lists every text.</source>
        <translation>Nález uvádí, co se ztratilo a co je třeba udělat; všechny texty jsou v docs/operations.md.</translation>
    </message>
    <message>
        <source>The plugin logged a warning. It is a note when nothing has to be done.</source>
        <translation>Zásuvný modul zaznamenal upozornění. Je to poznámka, když není třeba nic udělat.</translation>
    </message>
    <message>
        <source>A synchronisation began and did not end. It is a note when it may still be running.</source>
        <translation>Synchronizace začala a neskončila. Je to poznámka, když možná ještě probíhá.</translation>
    </message>
    <message>
        <source>Look for what ended the attendance server; then provide the export again, and force.</source>
        <translation>Zjistěte, co ukončilo docházkový server; potom znovu poskytněte export a vynuťte synchronizaci.</translation>
    </message>
    <message>
        <source>The log begins within a synchronisation: its counts are not known.</source>
        <translation>Protokol začíná uprostřed synchronizace: její počty nejsou známy.</translation>
    </message>
    <message>
        <source>A tick that was due did not come.</source>
        <translation>Očekávaný takt nenastal.</translation>
    </message>
    <message>
        <source>Look for what stopped the attendance server, or the machine, at that time.</source>
        <translation>Zjistěte, co v té době zastavilo docházkový server nebo počítač.</translation>
    </message>
    <message>
        <source>The log shows no synchronisation, or none when one was due.</source>
        <translation>V protokolu není žádná synchronizace nebo chybí ta, která měla proběhnout.</translation>
    </message>
    <message>
        <source>See whether the attendance server runs with the plugin, at debug level 1 at least.</source>
        <translation>Zkontrolujte, zda docházkový server běží se zásuvným modulem a alespoň na úrovni ladění 1.</translation>
    </message>
    <message>
        <source>Lines begin like those of the plugin, but are none that this program knows.</source>
        <translation>Řádky začínají jako řádky zásuvného modulu, ale tento program je nezná.</translation>
    </message>
    <message>
        <source>They are cut, or the plugin is of another version: read them yourself.</source>
        <translation>Jsou zkrácené nebo je zásuvný modul jiné verze: přečtěte si je sami.</translation>
    </message>
</context>
</TS>
