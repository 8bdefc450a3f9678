<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The database has no table &apos;people&apos; with text columns, or the account may not see it</source>
        <translation>Databáza nemá tabuľku „people“ s textovými stĺpcami alebo ju účet nesmie vidieť</translation>
    </message>
    <message>
        <source>The site&apos;s server (time zone %1) and this program disagree about when days begin. Run this program with the TZ of the attendance server</source>
        <translation>Databázový server (časové pásmo %1) a tento program sa nezhodujú v tom, kedy sa začínajú dni. Spustite tento program s hodnotou TZ dochádzkového servera</translation>
    </message>
    <message>
        <source>The database cannot be opened: %1</source>
        <translation>Databáza sa nedá otvoriť: %1</translation>
    </message>
    <message>
        <source>The database server %1 has closed the connection or did not answer in time (see --read-timeout)</source>
        <translation>Databázový server %1 ukončil spojenie alebo neodpovedal včas (pozri --read-timeout)</translation>
    </message>
    <message>
        <source>The database cannot be used: %1</source>
        <translation>Databáza sa nedá použiť: %1</translation>
    </message>
</context>
</TS>
