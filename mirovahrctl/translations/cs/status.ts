<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The gate has refused the last file.</source>
        <translation>Brána odmítla poslední soubor.</translation>
    </message>
    <message>
        <source>Until a file is admitted nothing new reaches the plugin.</source>
        <translation>Dokud není přijat další soubor, k zásuvnému modulu se nedostane nic nového.</translation>
    </message>
    <message>
        <source>Statements failed by a deadlock, a lock&apos;s timeout, a lost connection or a node that was not ready.</source>
        <translation>Příkazy selhaly kvůli vzájemnému zablokování (deadlock), vypršení časového limitu zámku, ztrátě spojení nebo nepřipravenému uzlu clusteru.</translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift.</source>
        <translation>To, co měly zapsat, může chybět natrvalo: vynuťte synchronizaci se stejným exportem a potom spusťte mirovahrctl drift.</translation>
    </message>
    <message>
        <source>The last admitted file, or the last trace of the plugin, is too old.</source>
        <translation>Naposledy přijatý soubor nebo poslední stopa zásuvného modulu je příliš stará.</translation>
    </message>
    <message>
        <source>Check the log of the attendance server and what HR delivers.</source>
        <translation>Zkontrolujte protokol docházkového serveru a to, co dodává personální oddělení.</translation>
    </message>
    <message>
        <source>no trace of the plugin yet</source>
        <translation>zatím žádná stopa zásuvného modulu</translation>
    </message>
    <message>
        <source>last admission of a file %1 ago</source>
        <translation>od posledního přijetí souboru uplynulo: %1</translation>
    </message>
    <message>
        <source>last trace of the plugin %1 ago</source>
        <translation>od poslední stopy zásuvného modulu uplynulo: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln active person(s)</source>
        <translation>
            <numerusform>%Ln aktivní osoba</numerusform>
            <numerusform>%Ln aktivní osoby</numerusform>
            <numerusform>%Ln aktivních osob</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln entry(s) in the terminal queue</source>
        <translation>
            <numerusform>%Ln položka ve frontě terminálů</numerusform>
            <numerusform>%Ln položky ve frontě terminálů</numerusform>
            <numerusform>%Ln položek ve frontě terminálů</numerusform>
        </translation>
    </message>
    <message>
        <source>Shows what the attendance database knows of the plugin&apos;s work and, when the gate&apos;s status file is named, what the gate did last. The plugin leaves no trace of a synchronisation that changes nothing: without the gate, an old trace may only mean that nothing happened. Changes nothing.

With --nagios the answer is one line for a monitoring system, and the exit status follows that convention: 0 OK, 1 WARNING, 2 CRITICAL (also: no database), 3 UNKNOWN (also: wrong usage).

With --metrics the same is written for a system that collects samples, also when the database cannot be reached.</source>
        <translation>Ukáže, co docházková databáze ví o práci zásuvného modulu, a je-li uveden stavový soubor brány, také to, co naposledy udělala brána. Po synchronizaci, která nic nezmění, zásuvný modul nezanechá žádnou stopu: bez brány může stará stopa znamenat jen to, že se nic nestalo. Nic nemění.

S volbou --nagios je odpovědí jeden řádek pro monitorovací systém a návratový kód se řídí jeho zvyklostí: 0 OK, 1 WARNING, 2 CRITICAL (také při nedostupné databázi), 3 UNKNOWN (také při nesprávném použití).

S volbou --metrics se totéž zapíše pro systém, který sbírá vzorky, a to i tehdy, když databáze není dostupná.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databáze</translation>
    </message>
    <message>
        <source>Forced synchronisation pending</source>
        <translation>Vynucená synchronizace čeká na provedení</translation>
    </message>
    <message>
        <source>Active people</source>
        <translation>Aktivní osoby</translation>
    </message>
    <message>
        <source>Last person created</source>
        <translation>Poslední vytvoření osoby</translation>
    </message>
    <message>
        <source>Last person changed by the plugin</source>
        <translation>Poslední změna osoby zásuvným modulem</translation>
    </message>
    <message>
        <source>Vacation balances corrected today</source>
        <translation>Dnes opravené zůstatky dovolené</translation>
    </message>
    <message>
        <source>Entries in the terminal queue</source>
        <translation>Položky ve frontě terminálů</translation>
    </message>
    <message>
        <source>Oldest entry of the terminal queue</source>
        <translation>Nejstarší položka fronty terminálů</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Brána</translation>
    </message>
    <message>
        <source>Last file</source>
        <translation>Poslední soubor</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odmítnut</translation>
    </message>
    <message>
        <source>admitted</source>
        <translation>přijat</translation>
    </message>
    <message>
        <source>Last run</source>
        <translation>Poslední spuštění</translation>
    </message>
    <message>
        <source>Last admission</source>
        <translation>Poslední přijetí</translation>
    </message>
    <message>
        <source>Admitted file</source>
        <translation>Přijatý soubor</translation>
    </message>
    <message>
        <source>Lines in the admitted file</source>
        <translation>Řádky v přijatém souboru</translation>
    </message>
    <message>
        <source>Lines with errors in the last file</source>
        <translation>Řádky s chybami v posledním souboru</translation>
    </message>
    <message>
        <source>Lines with warnings in the last file</source>
        <translation>Řádky s upozorněními v posledním souboru</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokol</translation>
    </message>
    <message>
        <source>Records that wait for a branch or a calendar group</source>
        <translation>Záznamy, které čekají na pobočku nebo kalendářovou skupinu</translation>
    </message>
    <message>
        <source>Give --nagios or --json, not both</source>
        <translation>Uveďte buď --nagios, nebo --json, ne obojí</translation>
    </message>
    <message>
        <source>--%1 takes a number of hours above 0</source>
        <translation>--%1 vyžaduje počet hodin větší než 0</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written: %2</source>
        <translation>„%1“ nelze zapsat: %2</translation>
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
        <translation>Žádné nálezy.</translation>
    </message>
    <message>
        <source>The plugin&apos;s work needs attention.</source>
        <translation>Práce zásuvného modulu vyžaduje pozornost.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The status file that the gate writes.</source>
        <translation>Stavový soubor, který zapisuje brána.</translation>
    </message>
    <message>
        <source>The attendance server&apos;s log of today, - for standard input: how many records wait, and whether a deadlock or a lost connection has interrupted statements.</source>
        <translation>Dnešní protokol docházkového serveru, - pro standardní vstup: kolik záznamů čeká a zda příkazy přerušilo vzájemné zablokování (deadlock) nebo ztráta spojení.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hodiny</translation>
    </message>
    <message>
        <source>Warn when the last admission of a file, or without --gate-status the last trace of the plugin, was this many hours ago.</source>
        <translation>Upozorní, když od posledního přijetí souboru, nebo bez --gate-status od poslední stopy zásuvného modulu, uplynulo tolik hodin.</translation>
    </message>
    <message>
        <source>The same as an error, which --nagios reports as CRITICAL.</source>
        <translation>Totéž jako chyba, kterou --nagios hlásí jako CRITICAL.</translation>
    </message>
    <message>
        <source>Print one line for a monitoring system, in the convention of its plugins.</source>
        <translation>Vypíše jeden řádek pro monitorovací systém podle zvyklostí jeho zásuvných modulů.</translation>
    </message>
    <message>
        <source>Also write OpenMetrics text to this file, at one stroke, for a monitoring system that collects it.</source>
        <translation>Do tohoto souboru zapíše jedním krokem také text OpenMetrics pro monitorovací systém, který ho sbírá.</translation>
    </message>
    <message>
        <source>There is no trace of the plugin yet.</source>
        <translation>Zásuvný modul zatím nezanechal žádnou stopu.</translation>
    </message>
    <message>
        <source>The last admission of a file was %1 ago.</source>
        <translation>Od posledního přijetí souboru uplynulo: %1.</translation>
    </message>
    <message>
        <source>The last trace of the plugin was %1 ago.</source>
        <translation>Od poslední stopy zásuvného modulu uplynulo: %1.</translation>
    </message>
    <message>
        <source>The gate has refused the last file: %1</source>
        <translation>Brána odmítla poslední soubor: %1</translation>
    </message>
</context>
</TS>
