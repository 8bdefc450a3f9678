<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The output cannot be written: %1</source>
        <translation>Výstup sa nedá zapísať: %1</translation>
    </message>
    <message>
        <source>mirovahrctl help SUBCOMMAND</source>
        <translation>mirovahrctl help PODPRÍKAZ</translation>
    </message>
    <message>
        <source>what it does and its options</source>
        <translation>čo robí a aké má voľby</translation>
    </message>
    <message>
        <source>this overview</source>
        <translation>tento prehľad</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>verzia</translation>
    </message>
    <message>
        <source>Is everything set up as it should be?</source>
        <translation>Je všetko nastavené tak, ako má byť?</translation>
    </message>
    <message>
        <source>mirovahrctl check-file FILE</source>
        <translation>mirovahrctl check-file SÚBOR</translation>
    </message>
    <message>
        <source>What is wrong with HR&apos;s file?</source>
        <translation>Čo je zlé v súbore personálneho oddelenia?</translation>
    </message>
    <message>
        <source>mirovahrctl explain PERSON</source>
        <translation>mirovahrctl explain OSOBA</translation>
    </message>
    <message>
        <source>Why did this person not arrive?</source>
        <translation>Prečo táto osoba neprišla do dochádzky?</translation>
    </message>
    <message>
        <source>mirovahrctl preview FILE</source>
        <translation>mirovahrctl preview SÚBOR</translation>
    </message>
    <message>
        <source>What will this file change?</source>
        <translation>Čo tento súbor zmení?</translation>
    </message>
    <message>
        <source>mirovahrctl log --since 12h LOGFILE</source>
        <translation>mirovahrctl log --since 12h PROTOKOL</translation>
    </message>
    <message>
        <source>What did last night do?</source>
        <translation>Čo sa stalo minulú noc?</translation>
    </message>
    <message>
        <source>Usage: mirovahrctl SUBCOMMAND [OPTION...] [ARGUMENT...]</source>
        <translation>Použitie: mirovahrctl PODPRÍKAZ [VOĽBA...] [ARGUMENT...]</translation>
    </message>
    <message>
        <source>The operator&apos;s tool for MirovaHR, the plugin that keeps an attendance database in step with the export of an HR system.</source>
        <translation>Nástroj správcu pre MirovaHR, zásuvný modul, ktorý udržiava dochádzkovú databázu v súlade s exportom personálneho systému.</translation>
    </message>
    <message>
        <source>Subcommands:</source>
        <translation>Podpríkazy:</translation>
    </message>
    <message>
        <source>mirovahrctl answers these questions:</source>
        <translation>mirovahrctl odpovedá na tieto otázky:</translation>
    </message>
    <message>
        <source>&quot;mirovahrctl help&quot; lists the other subcommands and says how to see their options.</source>
        <translation>„mirovahrctl help“ vypíše ostatné podpríkazy a povie, ako zobraziť ich voľby.</translation>
    </message>
    <message>
        <source>Unknown subcommand &apos;%1&apos;; --help lists them</source>
        <translation>Neznámy podpríkaz „%1“; zoznam vypíše --help</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos; for help</source>
        <translation>Nečakaný argument „%1“ pre help</translation>
    </message>
    <message>
        <source>Check the plugin&apos;s INI file, and show the settings in force</source>
        <translation>Overí INI súbor zásuvného modulu a ukáže platné nastavenia</translation>
    </message>
    <message>
        <source>Check an HR export for what the plugin would drop or misread</source>
        <translation>Overí, čo by zásuvný modul z exportu vynechal alebo nesprávne prečítal</translation>
    </message>
    <message>
        <source>Show what differs between two HR exports, as the plugin reads them</source>
        <translation>Ukáže rozdiely medzi dvoma exportmi tak, ako ich číta zásuvný modul</translation>
    </message>
    <message>
        <source>Check that the attendance database is what the plugin relies on</source>
        <translation>Overí, či dochádzková databáza je taká, na akú sa zásuvný modul spolieha</translation>
    </message>
    <message>
        <source>Explain what the plugin makes of a person, step by step</source>
        <translation>Krok za krokom vysvetlí, ako zásuvný modul spracuje osobu</translation>
    </message>
    <message>
        <source>Show what a synchronisation would change, by running it on a copy</source>
        <translation>Ukáže, čo by synchronizácia zmenila, jej vykonaním na kópii</translation>
    </message>
    <message>
        <source>Find what the database lacks although the plugin counts it as done</source>
        <translation>Nájde, čo v databáze chýba, hoci to zásuvný modul považuje za hotové</translation>
    </message>
    <message>
        <source>Publish HR&apos;s file for the plugin, or hold it back</source>
        <translation>Zverejní súbor personálneho oddelenia pre zásuvný modul alebo ho zadrží</translation>
    </message>
    <message>
        <source>Make the plugin synchronise everybody at its next tick</source>
        <translation>Prikáže zásuvnému modulu synchronizovať všetkých pri najbližšom takte</translation>
    </message>
    <message>
        <source>Show what is known of the plugin&apos;s work, for people and monitoring</source>
        <translation>Ukáže, čo je známe o práci zásuvného modulu, pre ľudí aj dohľad</translation>
    </message>
    <message>
        <source>Show what the attendance server&apos;s log says of the plugin&apos;s work</source>
        <translation>Ukáže, čo o práci zásuvného modulu hovorí protokol dochádzkového servera</translation>
    </message>
    <message>
        <source>Run every check that can be run here, and name what to do first</source>
        <translation>Vykoná všetky kontroly, ktoré sa tu dajú vykonať, a povie, čo urobiť ako prvé</translation>
    </message>
    <message>
        <source>List the rules behind the findings, or explain one</source>
        <translation>Vypíše pravidlá, podľa ktorých vznikajú nálezy, alebo jedno vysvetlí</translation>
    </message>
    <message>
        <source>Write an HR export for a support case, with other names and numbers</source>
        <translation>Zapíše export personálneho oddelenia s inými menami a číslami, na účely podpory</translation>
    </message>
</context>
</TS>
