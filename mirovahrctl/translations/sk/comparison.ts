<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Person</source>
        <translation>Osoba</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a person</comment>
        <translation>Meno</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Význam</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmenené</translation>
    </message>
    <message>
        <source>Emptied</source>
        <translation>Vymazané</translation>
    </message>
    <message>
        <source>Misread</source>
        <translation>Nesprávne prečítané</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Napravené</translation>
    </message>
    <message>
        <source>Cost centre</source>
        <translation>Stredisko</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Menia stredisko</translation>
    </message>
    <message>
        <source>From cost centre</source>
        <translation>Zo strediska</translation>
    </message>
    <message>
        <source>To cost centre</source>
        <translation>Do strediska</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Predtým</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>%1: the first %2 of %3.</source>
        <translation>%1: prvých %2 z %3.</translation>
    </message>
    <message>
        <source>personal number</source>
        <translation>osobné číslo</translation>
    </message>
    <message>
        <source>relationship number</source>
        <translation>číslo pomeru</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titul</translation>
    </message>
    <message>
        <source>first name</source>
        <translation>meno</translation>
    </message>
    <message>
        <source>surname</source>
        <translation>priezvisko</translation>
    </message>
    <message>
        <source>title after the name</source>
        <translation>titul za menom</translation>
    </message>
    <message>
        <source>telephone number</source>
        <translation>telefónne číslo</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>prvý deň</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>posledný deň</translation>
    </message>
    <message>
        <source>cost centre</source>
        <translation>stredisko</translation>
    </message>
    <message>
        <source>name of the cost centre</source>
        <translation>názov strediska</translation>
    </message>
    <message>
        <source>calendar</source>
        <translation>kalendár</translation>
    </message>
    <message>
        <source>start of the calendar</source>
        <translation>začiatok platnosti kalendára</translation>
    </message>
    <message>
        <source>employment type</source>
        <translation>druh pracovného pomeru</translation>
    </message>
    <message>
        <source>employment state</source>
        <translation>stav pracovného pomeru</translation>
    </message>
    <message>
        <source>register state</source>
        <translation>evidenčný stav</translation>
    </message>
    <message>
        <source>vacation balance</source>
        <translation>zostatok dovolenky</translation>
    </message>
    <message>
        <source>supervisor</source>
        <translation>nadriadený</translation>
    </message>
</context>
</TS>
