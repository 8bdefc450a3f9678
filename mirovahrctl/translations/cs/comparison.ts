<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Person</source>
        <translation>Osoba</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a person</comment>
        <translation>Jméno</translation>
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
        <translation>Změněné</translation>
    </message>
    <message>
        <source>Emptied</source>
        <translation>Vymazané</translation>
    </message>
    <message>
        <source>Misread</source>
        <translation>Nesprávně přečtené</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Napravené</translation>
    </message>
    <message>
        <source>Cost centre</source>
        <translation>Středisko</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Mění středisko</translation>
    </message>
    <message>
        <source>From cost centre</source>
        <translation>Ze střediska</translation>
    </message>
    <message>
        <source>To cost centre</source>
        <translation>Do střediska</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Předtím</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>%1: the first %2 of %3.</source>
        <translation>%1: prvních %2 z %3.</translation>
    </message>
    <message>
        <source>personal number</source>
        <translation>osobní číslo</translation>
    </message>
    <message>
        <source>relationship number</source>
        <translation>číslo poměru</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titul</translation>
    </message>
    <message>
        <source>first name</source>
        <translation>jméno</translation>
    </message>
    <message>
        <source>surname</source>
        <translation>příjmení</translation>
    </message>
    <message>
        <source>title after the name</source>
        <translation>titul za jménem</translation>
    </message>
    <message>
        <source>telephone number</source>
        <translation>telefonní číslo</translation>
    </message>
    <message>
        <source>first day</source>
        <translation>první den</translation>
    </message>
    <message>
        <source>last day</source>
        <translation>poslední den</translation>
    </message>
    <message>
        <source>cost centre</source>
        <translation>středisko</translation>
    </message>
    <message>
        <source>name of the cost centre</source>
        <translation>název střediska</translation>
    </message>
    <message>
        <source>calendar</source>
        <translation>kalendář</translation>
    </message>
    <message>
        <source>start of the calendar</source>
        <translation>začátek platnosti kalendáře</translation>
    </message>
    <message>
        <source>employment type</source>
        <translation>druh pracovního poměru</translation>
    </message>
    <message>
        <source>employment state</source>
        <translation>stav pracovního poměru</translation>
    </message>
    <message>
        <source>register state</source>
        <translation>evidenční stav</translation>
    </message>
    <message>
        <source>vacation balance</source>
        <translation>zůstatek dovolené</translation>
    </message>
    <message>
        <source>supervisor</source>
        <translation>nadřízený</translation>
    </message>
</context>
</TS>
