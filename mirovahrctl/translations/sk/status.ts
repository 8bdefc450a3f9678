<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The gate has refused the last file.</source>
        <translation>Brána odmietla posledný súbor.</translation>
    </message>
    <message>
        <source>Until a file is admitted nothing new reaches the plugin.</source>
        <translation>Kým sa neprijme ďalší súbor, k zásuvnému modulu sa nedostane nič nové.</translation>
    </message>
    <message>
        <source>Statements failed by a deadlock, a lock&apos;s timeout, a lost connection or a node that was not ready.</source>
        <translation>Príkazy zlyhali kvôli vzájomnému zablokovaniu (deadlock), vypršaniu časového limitu zámku, strate spojenia alebo nepripravenému uzlu klastra.</translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift.</source>
        <translation>To, čo mali zapísať, môže chýbať natrvalo: vynúťte synchronizáciu s tým istým exportom a potom spustite mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The last admitted file, or the last trace of the plugin, is too old.</source>
        <translation>Naposledy prijatý súbor alebo posledná stopa zásuvného modulu je príliš stará.</translation>
    </message>
    <message>
        <source>Check the log of the attendance server and what HR delivers.</source>
        <translation>Skontrolujte protokol dochádzkového servera a to, čo dodáva personálne oddelenie.</translation>
    </message>
    <message>
        <source>no trace of the plugin yet</source>
        <translation>zatiaľ žiadna stopa zásuvného modulu</translation>
    </message>
    <message>
        <source>last admission of a file %1 ago</source>
        <translation>od posledného prijatia súboru uplynulo: %1</translation>
    </message>
    <message>
        <source>last trace of the plugin %1 ago</source>
        <translation>od poslednej stopy zásuvného modulu uplynulo: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln active person(s)</source>
        <translation>
            <numerusform>%Ln aktívna osoba</numerusform>
            <numerusform>%Ln aktívne osoby</numerusform>
            <numerusform>%Ln aktívnych osôb</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln entry(s) in the terminal queue</source>
        <translation>
            <numerusform>%Ln položka vo fronte terminálov</numerusform>
            <numerusform>%Ln položky vo fronte terminálov</numerusform>
            <numerusform>%Ln položiek vo fronte terminálov</numerusform>
        </translation>
    </message>
    <message>
        <source>Shows what the attendance database knows of the plugin&apos;s work and, when the gate&apos;s status file is named, what the gate did last. The plugin leaves no trace of a synchronisation that changes nothing: without the gate, an old trace may only mean that nothing happened. Changes nothing.

With --nagios the answer is one line for a monitoring system, and the exit status follows that convention: 0 OK, 1 WARNING, 2 CRITICAL (also: no database), 3 UNKNOWN (also: wrong usage).

With --metrics the same is written for a system that collects samples, also when the database cannot be reached.</source>
        <translation>Ukáže, čo dochádzková databáza vie o práci zásuvného modulu, a keď je uvedený stavový súbor brány, aj to, čo naposledy urobila brána. Po synchronizácii, ktorá nič nezmení, zásuvný modul nezanechá žiadnu stopu: bez brány môže stará stopa znamenať len to, že sa nič nestalo. Nič nemení.

S voľbou --nagios je odpoveďou jeden riadok pre monitorovací systém a návratový kód sa riadi jeho zvyklosťou: 0 OK, 1 WARNING, 2 CRITICAL (aj pri nedostupnej databáze), 3 UNKNOWN (aj pri nesprávnom použití).

S voľbou --metrics sa to isté zapíše pre systém, ktorý zbiera vzorky, a to aj vtedy, keď databáza nie je dostupná.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databáza</translation>
    </message>
    <message>
        <source>Forced synchronisation pending</source>
        <translation>Vynútená synchronizácia čaká na vykonanie</translation>
    </message>
    <message>
        <source>Active people</source>
        <translation>Aktívne osoby</translation>
    </message>
    <message>
        <source>Last person created</source>
        <translation>Posledné vytvorenie osoby</translation>
    </message>
    <message>
        <source>Last person changed by the plugin</source>
        <translation>Posledná zmena osoby zásuvným modulom</translation>
    </message>
    <message>
        <source>Vacation balances corrected today</source>
        <translation>Dnes opravené zostatky dovolenky</translation>
    </message>
    <message>
        <source>Entries in the terminal queue</source>
        <translation>Položky vo fronte terminálov</translation>
    </message>
    <message>
        <source>Oldest entry of the terminal queue</source>
        <translation>Najstaršia položka frontu terminálov</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Brána</translation>
    </message>
    <message>
        <source>Last file</source>
        <translation>Posledný súbor</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odmietnutý</translation>
    </message>
    <message>
        <source>admitted</source>
        <translation>prijatý</translation>
    </message>
    <message>
        <source>Last run</source>
        <translation>Posledné spustenie</translation>
    </message>
    <message>
        <source>Last admission</source>
        <translation>Posledné prijatie</translation>
    </message>
    <message>
        <source>Admitted file</source>
        <translation>Prijatý súbor</translation>
    </message>
    <message>
        <source>Lines in the admitted file</source>
        <translation>Riadky v prijatom súbore</translation>
    </message>
    <message>
        <source>Lines with errors in the last file</source>
        <translation>Riadky s chybami v poslednom súbore</translation>
    </message>
    <message>
        <source>Lines with warnings in the last file</source>
        <translation>Riadky s upozorneniami v poslednom súbore</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokol</translation>
    </message>
    <message>
        <source>Records that wait for a branch or a calendar group</source>
        <translation>Záznamy, ktoré čakajú na pobočku alebo kalendárovú skupinu</translation>
    </message>
    <message>
        <source>Give --nagios or --json, not both</source>
        <translation>Uveďte buď --nagios, alebo --json, nie oboje</translation>
    </message>
    <message>
        <source>--%1 takes a number of hours above 0</source>
        <translation>--%1 vyžaduje počet hodín väčší ako 0</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ sa nedá zapísať: %2</translation>
    </message>
    <message>
        <source>Status of the plugin</source>
        <translation>Stav zásuvného modulu</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>No findings.</source>
        <translation>Žiadne nálezy.</translation>
    </message>
    <message>
        <source>The plugin&apos;s work needs attention.</source>
        <translation>Práca zásuvného modulu vyžaduje pozornosť.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The status file that the gate writes.</source>
        <translation>Stavový súbor, ktorý zapisuje brána.</translation>
    </message>
    <message>
        <source>The attendance server&apos;s log of today, - for standard input: how many records wait, and whether a deadlock or a lost connection has interrupted statements.</source>
        <translation>Dnešný protokol dochádzkového servera, - pre štandardný vstup: koľko záznamov čaká a či príkazy prerušilo vzájomné zablokovanie (deadlock) alebo strata spojenia.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hodiny</translation>
    </message>
    <message>
        <source>Warn when the last admission of a file, or without --gate-status the last trace of the plugin, was this many hours ago.</source>
        <translation>Upozorní, keď od posledného prijatia súboru, alebo bez --gate-status od poslednej stopy zásuvného modulu, uplynulo toľko hodín.</translation>
    </message>
    <message>
        <source>The same as an error, which --nagios reports as CRITICAL.</source>
        <translation>To isté ako chyba, ktorú --nagios hlási ako CRITICAL.</translation>
    </message>
    <message>
        <source>Print one line for a monitoring system, in the convention of its plugins.</source>
        <translation>Vypíše jeden riadok pre monitorovací systém podľa zvyklostí jeho zásuvných modulov.</translation>
    </message>
    <message>
        <source>Also write OpenMetrics text to this file, at one stroke, for a monitoring system that collects it.</source>
        <translation>Do tohto súboru zapíše jedným krokom aj text OpenMetrics pre monitorovací systém, ktorý ho zbiera.</translation>
    </message>
    <message>
        <source>There is no trace of the plugin yet.</source>
        <translation>Zásuvný modul zatiaľ nezanechal žiadnu stopu.</translation>
    </message>
    <message>
        <source>The last admission of a file was %1 ago.</source>
        <translation>Od posledného prijatia súboru uplynulo: %1.</translation>
    </message>
    <message>
        <source>The last trace of the plugin was %1 ago.</source>
        <translation>Od poslednej stopy zásuvného modulu uplynulo: %1.</translation>
    </message>
    <message>
        <source>The gate has refused the last file: %1</source>
        <translation>Brána odmietla posledný súbor: %1</translation>
    </message>
</context>
</TS>
