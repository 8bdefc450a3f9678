<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>A check could not be made: a file or the database cannot be read.</source>
        <translation>Kontrola sa nedala vykonať: súbor alebo databáza sa nedá prečítať.</translation>
    </message>
    <message>
        <source>Run that subcommand by itself until it answers; what it would find is not known.</source>
        <translation>Spúšťajte tento podpríkaz samostatne, kým neodpovie; čo by zistil, nie je známe.</translation>
    </message>
    <message>
        <source>yavhost.service is enabled or was started, but does not run.</source>
        <translation>Služba yavhost.service je povolená alebo bola spustená, ale nebeží.</translation>
    </message>
    <message>
        <source>See what ended it: systemctl status yavhost.</source>
        <translation>Zistite, čo ju ukončilo: systemctl status yavhost.</translation>
    </message>
    <message>
        <source>The confinement of yavhost.service hides a file or folder from it.</source>
        <translation>Obmedzenia služby yavhost.service pred ňou skrývajú súbor alebo priečinok.</translation>
    </message>
    <message>
        <source>Choose another place, such as the folders in /var/lib/yav.</source>
        <translation>Zvoľte iné miesto, napríklad priečinky v /var/lib/yav.</translation>
    </message>
    <message>
        <source>The user or the confinement of yavhost.service keeps it from writing to a folder.</source>
        <translation>Služba yavhost.service pre svojho používateľa alebo svoje obmedzenia nemôže zapisovať do priečinka.</translation>
    </message>
    <message>
        <source>Give the folder to that user, and name it in ReadWritePaths (systemctl edit yavhost).</source>
        <translation>Nastavte tohto používateľa ako vlastníka priečinka a uveďte priečinok v ReadWritePaths (systemctl edit yavhost).</translation>
    </message>
    <message numerus="yes">
        <source>And %Ln more finding(s) of this rule.</source>
        <translation>
            <numerusform>A ešte %Ln nález podľa tohto pravidla.</numerusform>
            <numerusform>A ešte %Ln nálezy podľa tohto pravidla.</numerusform>
            <numerusform>A ešte %Ln nálezov podľa tohto pravidla.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its report cannot be read here</source>
        <translation>Jeho správa sa tu nedá prečítať</translation>
    </message>
    <message>
        <source>What needs attention here</source>
        <translation>Čo tu vyžaduje pozornosť</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurácia</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Služba</translation>
    </message>
    <message>
        <source>yavhost.service is %1 and %2.</source>
        <translation>Stav služby yavhost.service: %1, %2.</translation>
    </message>
    <message>
        <source>yavhost.service does not run; its state is %1.</source>
        <translation>Služba yavhost.service nebeží; jej stav je %1.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databáza</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>No export lies here now: %1.</source>
        <translation>Export tu teraz nie je: %1.</translation>
    </message>
    <message>
        <source>The last work</source>
        <translation>Posledná činnosť</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>Nie je potrebné nič urobiť.</translation>
    </message>
    <message>
        <source>mirovahrctl rules %1 explains it.</source>
        <translation>Vysvetlenie vypíše mirovahrctl rules %1.</translation>
    </message>
    <message>
        <source>Do this first: %1 %2</source>
        <translation>Ako prvé vyriešte toto: %1 %2</translation>
    </message>
    <message>
        <source>The account is the plugin&apos;s: check its rights, too.</source>
        <translation>Účet patrí zásuvnému modulu: overí aj jeho oprávnenia.</translation>
    </message>
    <message>
        <source>yavhost.service has a %1 of its own (PrivateTmp) and does not see %2</source>
        <translation>Služba yavhost.service má vlastný priečinok %1 (PrivateTmp) a nevidí %2</translation>
    </message>
    <message>
        <source>yavhost.service sees nothing in %1 (ProtectHome), and so not %2</source>
        <translation>Služba yavhost.service nevidí nič v priečinku %1 (ProtectHome), a teda ani %2</translation>
    </message>
    <message>
        <source>ReadWritePaths of yavhost.service does not name %1</source>
        <translation>ReadWritePaths služby yavhost.service neuvádza priečinok %1</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Priečinok %1 neexistuje</translation>
    </message>
    <message>
        <source>There is no user %1, as which yavhost.service would run</source>
        <translation>Používateľ %1, pod ktorým by bežala služba yavhost.service, neexistuje</translation>
    </message>
    <message>
        <source>The user %1, as which yavhost.service runs, may not write to %2</source>
        <translation>Používateľ %1, pod ktorým beží služba yavhost.service, nesmie zapisovať do %2</translation>
    </message>
    <message>
        <source>Runs what can be checked here, and ends with the one most important thing to do: the configuration, yavhost.service where it is installed, the database with the time zones of this process and the server, the export that lies there, the plugin&apos;s and the gate&apos;s last work, and what the database lacks of the file that the gate admitted last. Shows of each rule one finding. Changes nothing.</source>
        <translation>Vykoná všetky kontroly, ktoré sa tu dajú vykonať, a na konci uvedie jednu najdôležitejšiu vec, ktorú treba urobiť: kontroluje konfiguráciu, službu yavhost.service, ak je nainštalovaná, databázu vrátane časových pásiem tohto procesu a servera, pripravený export, poslednú činnosť zásuvného modulu a brány a to, čo v databáze chýba zo súboru, ktorý brána naposledy prijala. Z každého pravidla ukáže jeden nález. Nič nemení.</translation>
    </message>
    <message>
        <source>What the database lacks</source>
        <translation>Čo v databáze chýba</translation>
    </message>
    <message>
        <source>The plugin has not read the export %1 yet: run drift when it has synchronised.</source>
        <translation>Zásuvný modul export %1 ešte neprečítal: drift spustite až po synchronizácii.</translation>
    </message>
    <message>
        <source>day</source>
        <translation>deň</translation>
    </message>
    <message>
        <source>Leave out what is done once for each person or member, and would have been done before this day: payroll export, terminals and administrators.</source>
        <translation>Vynechá to, čo sa pri každej osobe alebo členovi robí raz a bolo by sa urobilo pred týmto dňom: export pre mzdy, terminály a administrátorov.</translation>
    </message>
</context>
</TS>
