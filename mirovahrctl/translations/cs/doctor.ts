<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>A check could not be made: a file or the database cannot be read.</source>
        <translation>Kontrolu nebylo možné provést: soubor nebo databázi nelze přečíst.</translation>
    </message>
    <message>
        <source>Run that subcommand by itself until it answers; what it would find is not known.</source>
        <translation>Spouštějte tento podpříkaz samostatně, dokud neodpoví; co by zjistil, není známo.</translation>
    </message>
    <message>
        <source>yavhost.service is enabled or was started, but does not run.</source>
        <translation>Služba yavhost.service je povolená nebo byla spuštěna, ale neběží.</translation>
    </message>
    <message>
        <source>See what ended it: systemctl status yavhost.</source>
        <translation>Zjistěte, co ji ukončilo: systemctl status yavhost.</translation>
    </message>
    <message>
        <source>The confinement of yavhost.service hides a file or folder from it.</source>
        <translation>Omezení služby yavhost.service před ní skrývají soubor nebo složku.</translation>
    </message>
    <message>
        <source>Choose another place, such as the folders in /var/lib/yav.</source>
        <translation>Zvolte jiné místo, například složky v /var/lib/yav.</translation>
    </message>
    <message>
        <source>The user or the confinement of yavhost.service keeps it from writing to a folder.</source>
        <translation>Služba yavhost.service kvůli svému uživateli nebo svým omezením nemůže zapisovat do složky.</translation>
    </message>
    <message>
        <source>Give the folder to that user, and name it in ReadWritePaths (systemctl edit yavhost).</source>
        <translation>Nastavte tohoto uživatele jako vlastníka složky a uveďte složku v ReadWritePaths (systemctl edit yavhost).</translation>
    </message>
    <message numerus="yes">
        <source>And %Ln more finding(s) of this rule.</source>
        <translation>
            <numerusform>A ještě %Ln nález podle tohoto pravidla.</numerusform>
            <numerusform>A ještě %Ln nálezy podle tohoto pravidla.</numerusform>
            <numerusform>A ještě %Ln nálezů podle tohoto pravidla.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its report cannot be read here</source>
        <translation>Jeho zprávu zde nelze přečíst</translation>
    </message>
    <message>
        <source>What needs attention here</source>
        <translation>Co zde vyžaduje pozornost</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurace</translation>
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
        <translation>Služba yavhost.service neběží; její stav je %1.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databáze</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>No export lies here now: %1.</source>
        <translation>Export zde nyní není: %1.</translation>
    </message>
    <message>
        <source>The last work</source>
        <translation>Poslední činnost</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>Není třeba nic dělat.</translation>
    </message>
    <message>
        <source>mirovahrctl rules %1 explains it.</source>
        <translation>Vysvětlení vypíše mirovahrctl rules %1.</translation>
    </message>
    <message>
        <source>Do this first: %1 %2</source>
        <translation>Jako první vyřešte toto: %1 %2</translation>
    </message>
    <message>
        <source>The account is the plugin&apos;s: check its rights, too.</source>
        <translation>Účet patří zásuvnému modulu: ověří i jeho oprávnění.</translation>
    </message>
    <message>
        <source>yavhost.service has a %1 of its own (PrivateTmp) and does not see %2</source>
        <translation>Služba yavhost.service má vlastní složku %1 (PrivateTmp) a nevidí %2</translation>
    </message>
    <message>
        <source>yavhost.service sees nothing in %1 (ProtectHome), and so not %2</source>
        <translation>Služba yavhost.service nevidí nic ve složce %1 (ProtectHome), a tedy ani %2</translation>
    </message>
    <message>
        <source>ReadWritePaths of yavhost.service does not name %1</source>
        <translation>ReadWritePaths služby yavhost.service neuvádí složku %1</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Složka %1 neexistuje</translation>
    </message>
    <message>
        <source>There is no user %1, as which yavhost.service would run</source>
        <translation>Uživatel %1, pod kterým by běžela služba yavhost.service, neexistuje</translation>
    </message>
    <message>
        <source>The user %1, as which yavhost.service runs, may not write to %2</source>
        <translation>Uživatel %1, pod kterým běží služba yavhost.service, nesmí zapisovat do %2</translation>
    </message>
    <message>
        <source>Runs what can be checked here, and ends with the one most important thing to do: the configuration, yavhost.service where it is installed, the database with the time zones of this process and the server, the export that lies there, the plugin&apos;s and the gate&apos;s last work, and what the database lacks of the file that the gate admitted last. Shows of each rule one finding. Changes nothing.</source>
        <translation>Provede všechny kontroly, které zde lze provést, a na konci uvede jednu nejdůležitější věc, kterou je třeba udělat: kontroluje konfiguraci, službu yavhost.service, je-li nainstalována, databázi včetně časových pásem tohoto procesu a serveru, připravený export, poslední činnost zásuvného modulu a brány a to, co v databázi chybí ze souboru, který brána naposledy přijala. Z každého pravidla ukáže jeden nález. Nic nemění.</translation>
    </message>
    <message>
        <source>What the database lacks</source>
        <translation>Co v databázi chybí</translation>
    </message>
    <message>
        <source>The plugin has not read the export %1 yet: run drift when it has synchronised.</source>
        <translation>Zásuvný modul export %1 ještě nepřečetl: drift spusťte až po synchronizaci.</translation>
    </message>
    <message>
        <source>day</source>
        <translation>den</translation>
    </message>
    <message>
        <source>Leave out what is done once for each person or member, and would have been done before this day: payroll export, terminals and administrators.</source>
        <translation>Vynechá to, co se u každé osoby nebo člena dělá jednou a bylo by se udělalo před tímto dnem: export pro mzdy, terminály a administrátory.</translation>
    </message>
</context>
</TS>
