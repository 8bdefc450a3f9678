<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The output cannot be written: %1</source>
        <translation>Výstup nelze zapsat: %1</translation>
    </message>
    <message>
        <source>mirovahrctl help SUBCOMMAND</source>
        <translation>mirovahrctl help PODPŘÍKAZ</translation>
    </message>
    <message>
        <source>what it does and its options</source>
        <translation>co dělá a jaké má volby</translation>
    </message>
    <message>
        <source>this overview</source>
        <translation>tento přehled</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>verze</translation>
    </message>
    <message>
        <source>Is everything set up as it should be?</source>
        <translation>Je všechno nastaveno tak, jak má být?</translation>
    </message>
    <message>
        <source>mirovahrctl check-file FILE</source>
        <translation>mirovahrctl check-file SOUBOR</translation>
    </message>
    <message>
        <source>What is wrong with HR&apos;s file?</source>
        <translation>Co je špatně v souboru personálního oddělení?</translation>
    </message>
    <message>
        <source>mirovahrctl explain PERSON</source>
        <translation>mirovahrctl explain OSOBA</translation>
    </message>
    <message>
        <source>Why did this person not arrive?</source>
        <translation>Proč se tato osoba nedostala do docházky?</translation>
    </message>
    <message>
        <source>mirovahrctl preview FILE</source>
        <translation>mirovahrctl preview SOUBOR</translation>
    </message>
    <message>
        <source>What will this file change?</source>
        <translation>Co tento soubor změní?</translation>
    </message>
    <message>
        <source>mirovahrctl log --since 12h LOGFILE</source>
        <translation>mirovahrctl log --since 12h PROTOKOL</translation>
    </message>
    <message>
        <source>What did last night do?</source>
        <translation>Co se stalo minulou noc?</translation>
    </message>
    <message>
        <source>Usage: mirovahrctl SUBCOMMAND [OPTION...] [ARGUMENT...]</source>
        <translation>Použití: mirovahrctl PODPŘÍKAZ [VOLBA...] [ARGUMENT...]</translation>
    </message>
    <message>
        <source>The operator&apos;s tool for MirovaHR, the plugin that keeps an attendance database in step with the export of an HR system.</source>
        <translation>Nástroj správce pro MirovaHR, zásuvný modul, který udržuje docházkovou databázi v souladu s exportem personálního systému.</translation>
    </message>
    <message>
        <source>Subcommands:</source>
        <translation>Podpříkazy:</translation>
    </message>
    <message>
        <source>mirovahrctl answers these questions:</source>
        <translation>mirovahrctl odpovídá na tyto otázky:</translation>
    </message>
    <message>
        <source>&quot;mirovahrctl help&quot; lists the other subcommands and says how to see their options.</source>
        <translation>„mirovahrctl help“ vypíše ostatní podpříkazy a řekne, jak zobrazit jejich volby.</translation>
    </message>
    <message>
        <source>Unknown subcommand &apos;%1&apos;; --help lists them</source>
        <translation>Neznámý podpříkaz „%1“; seznam vypíše --help</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos; for help</source>
        <translation>Neočekávaný argument „%1“ pro help</translation>
    </message>
    <message>
        <source>Check the plugin&apos;s INI file, and show the settings in force</source>
        <translation>Ověří INI soubor zásuvného modulu a ukáže platná nastavení</translation>
    </message>
    <message>
        <source>Check an HR export for what the plugin would drop or misread</source>
        <translation>Ověří, co by zásuvný modul z exportu vynechal nebo nesprávně přečetl</translation>
    </message>
    <message>
        <source>Show what differs between two HR exports, as the plugin reads them</source>
        <translation>Ukáže rozdíly mezi dvěma exporty tak, jak je čte zásuvný modul</translation>
    </message>
    <message>
        <source>Check that the attendance database is what the plugin relies on</source>
        <translation>Ověří, zda docházková databáze je taková, na jakou zásuvný modul spoléhá</translation>
    </message>
    <message>
        <source>Explain what the plugin makes of a person, step by step</source>
        <translation>Krok za krokem vysvětlí, jak zásuvný modul zpracuje osobu</translation>
    </message>
    <message>
        <source>Show what a synchronisation would change, by running it on a copy</source>
        <translation>Ukáže, co by synchronizace změnila, jejím provedením na kopii</translation>
    </message>
    <message>
        <source>Find what the database lacks although the plugin counts it as done</source>
        <translation>Najde, co v databázi chybí, ačkoli to zásuvný modul považuje za hotové</translation>
    </message>
    <message>
        <source>Publish HR&apos;s file for the plugin, or hold it back</source>
        <translation>Zveřejní soubor personálního oddělení pro zásuvný modul nebo ho zadrží</translation>
    </message>
    <message>
        <source>Make the plugin synchronise everybody at its next tick</source>
        <translation>Přikáže zásuvnému modulu synchronizovat všechny při nejbližším taktu</translation>
    </message>
    <message>
        <source>Show what is known of the plugin&apos;s work, for people and monitoring</source>
        <translation>Ukáže, co je známo o práci zásuvného modulu, pro lidi i dohled</translation>
    </message>
    <message>
        <source>Show what the attendance server&apos;s log says of the plugin&apos;s work</source>
        <translation>Ukáže, co o práci zásuvného modulu říká protokol docházkového serveru</translation>
    </message>
    <message>
        <source>Run every check that can be run here, and name what to do first</source>
        <translation>Provede všechny kontroly, které zde lze provést, a řekne, co udělat jako první</translation>
    </message>
    <message>
        <source>List the rules behind the findings, or explain one</source>
        <translation>Vypíše pravidla, podle nichž vznikají nálezy, nebo jedno vysvětlí</translation>
    </message>
    <message>
        <source>Write an HR export for a support case, with other names and numbers</source>
        <translation>Zapíše export personálního oddělení s jinými jmény a čísly, pro účely podpory</translation>
    </message>
</context>
</TS>
