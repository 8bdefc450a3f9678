<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The force flag cannot be read: %1</source>
        <translation>Príznak vynútenia sa nedá prečítať: %1</translation>
    </message>
    <message>
        <source>The force flag cannot be written: %1</source>
        <translation>Príznak vynútenia sa nedá zapísať: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln statement(s) failed through a deadlock, the timeout of a lock, a lost connection or a cluster node that was not ready.</source>
        <translation>
            <numerusform>%Ln príkaz zlyhal pre vzájomné zablokovanie (deadlock), vypršanie časového limitu zámku, stratu spojenia alebo nepripravený uzol klastra.</numerusform>
            <numerusform>%Ln príkazy zlyhali pre vzájomné zablokovanie (deadlock), vypršanie časového limitu zámku, stratu spojenia alebo nepripravený uzol klastra.</numerusform>
            <numerusform>%Ln príkazov zlyhalo pre vzájomné zablokovanie (deadlock), vypršanie časového limitu zámku, stratu spojenia alebo nepripravený uzol klastra.</numerusform>
        </translation>
    </message>
    <message>
        <source>it is compressed; unpack it with %1</source>
        <translation>je komprimovaný; rozbaľte ho programom %1</translation>
    </message>
    <message>
        <source>%1, which unpacks it, cannot be started: %2</source>
        <translation>program %1, ktorý ho rozbaľuje, sa nedá spustiť: %2</translation>
    </message>
    <message>
        <source>it cannot be unpacked: %1</source>
        <translation>nedá sa rozbaliť: %1</translation>
    </message>
    <message>
        <source>Standard input cannot be read: %1</source>
        <translation>Štandardný vstup sa nedá prečítať: %1</translation>
    </message>
    <message>
        <source>The log &apos;%1&apos; cannot be read: %2</source>
        <translation>Protokol „%1“ sa nedá prečítať: %2</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The plugin&apos;s INI file; /etc/yav/MirovaHR.ini by default.</source>
        <translation>INI súbor zásuvného modulu; predvolený je /etc/yav/MirovaHR.ini.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Súbor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read</source>
        <translation>„%1“ sa nedá prečítať</translation>
    </message>
    <message>
        <source>The configuration is that of %1.</source>
        <translation>Konfigurácia je zo súboru %1.</translation>
    </message>
    <message>
        <source>There is no file %1 here: this holds for a plugin with its defaults.</source>
        <translation>Súbor %1 tu neexistuje: uvedené platí pre zásuvný modul s predvolenými nastaveniami.</translation>
    </message>
    <message>
        <source>The plugin already has a connection to another database</source>
        <translation>Zásuvný modul už má spojenie s inou databázou</translation>
    </message>
</context>
</TS>
