<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The force flag cannot be read: %1</source>
        <translation>Příznak vynucení nelze přečíst: %1</translation>
    </message>
    <message>
        <source>The force flag cannot be written: %1</source>
        <translation>Příznak vynucení nelze zapsat: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln statement(s) failed through a deadlock, the timeout of a lock, a lost connection or a cluster node that was not ready.</source>
        <translation>
            <numerusform>%Ln příkaz selhal kvůli vzájemnému zablokování (deadlock), vypršení časového limitu zámku, ztrátě spojení nebo nepřipravenému uzlu clusteru.</numerusform>
            <numerusform>%Ln příkazy selhaly kvůli vzájemnému zablokování (deadlock), vypršení časového limitu zámku, ztrátě spojení nebo nepřipravenému uzlu clusteru.</numerusform>
            <numerusform>%Ln příkazů selhalo kvůli vzájemnému zablokování (deadlock), vypršení časového limitu zámku, ztrátě spojení nebo nepřipravenému uzlu clusteru.</numerusform>
        </translation>
    </message>
    <message>
        <source>it is compressed; unpack it with %1</source>
        <translation>je komprimovaný; rozbalte ho programem %1</translation>
    </message>
    <message>
        <source>%1, which unpacks it, cannot be started: %2</source>
        <translation>program %1, který ho rozbaluje, nelze spustit: %2</translation>
    </message>
    <message>
        <source>it cannot be unpacked: %1</source>
        <translation>nelze ho rozbalit: %1</translation>
    </message>
    <message>
        <source>Standard input cannot be read: %1</source>
        <translation>Standardní vstup nelze přečíst: %1</translation>
    </message>
    <message>
        <source>The log &apos;%1&apos; cannot be read: %2</source>
        <translation>Protokol „%1“ nelze přečíst: %2</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The plugin&apos;s INI file; /etc/yav/MirovaHR.ini by default.</source>
        <translation>INI soubor zásuvného modulu; výchozí je /etc/yav/MirovaHR.ini.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Soubor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read</source>
        <translation>„%1“ nelze přečíst</translation>
    </message>
    <message>
        <source>The configuration is that of %1.</source>
        <translation>Konfigurace je ze souboru %1.</translation>
    </message>
    <message>
        <source>There is no file %1 here: this holds for a plugin with its defaults.</source>
        <translation>Soubor %1 zde neexistuje: uvedené platí pro zásuvný modul s výchozím nastavením.</translation>
    </message>
    <message>
        <source>The plugin already has a connection to another database</source>
        <translation>Zásuvný modul už má spojení s jinou databází</translation>
    </message>
</context>
</TS>
