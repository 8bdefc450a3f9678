<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Values of the newer export are misread that were not before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check-file names the lines and what is wrong with each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Many balances are the same multiple, or the same fraction, of what they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR whether they are hours instead of days, or have lost their decimal points.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
