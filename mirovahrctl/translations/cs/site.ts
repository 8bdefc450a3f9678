<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The database has no table &apos;people&apos; with text columns, or the account may not see it</source>
        <translation>Databáze nemá tabulku „people“ s textovými sloupci nebo ji účet nesmí vidět</translation>
    </message>
    <message>
        <source>The site&apos;s server (time zone %1) and this program disagree about when days begin. Run this program with the TZ of the attendance server</source>
        <translation>Databázový server (časové pásmo %1) a tento program se neshodují v tom, kdy začínají dny. Spusťte tento program s hodnotou TZ docházkového serveru</translation>
    </message>
    <message>
        <source>The database cannot be opened: %1</source>
        <translation>Databázi nelze otevřít: %1</translation>
    </message>
    <message>
        <source>The database server %1 has closed the connection or did not answer in time (see --read-timeout)</source>
        <translation>Databázový server %1 ukončil spojení nebo neodpověděl včas (viz --read-timeout)</translation>
    </message>
    <message>
        <source>The database cannot be used: %1</source>
        <translation>Databázi nelze použít: %1</translation>
    </message>
</context>
</TS>
