<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Another gate is using the folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait until it has finished.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file changed while it was being read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HR&apos;s export should write under another name and rename the file when it is complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file contains no people.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR whether the export went wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is larger than the plugin reads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was changed less than the seconds of --settle ago.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It may still be incomplete; run the gate again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More lines with people than the limits allow are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR; if the change is intended, run the gate once with --accept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More lines than the limits allow are about people of earlier lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HR&apos;s file does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR whether the export has run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no admitted file to compare with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inspect the file with check-file and preview, then admit it once with --accept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More people than the limits allow leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More people than the limits allow get another cost centre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More people than the limits allow are new.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More people than the limits allow return who had left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More people than the limits allow lose a supervisor who still works in the same place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow become 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow leave the plausible range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More vacation balances than the limits allow are the same multiple of what they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More values of a field than the limits allow change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More values of a field than the limits allow are emptied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More values of a field than the limits allow are newly misread by the plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR for a correct file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last line is damaged or has no line feed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR for the complete file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has lines with errors, which do not keep it from being admitted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send HR the file of these lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has lines with values that the plugin misreads or that are hardly intended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has texts that look as if they were written for SQL already, such as O&apos;&apos;Brien.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask HR whether its program doubles apostrophes or backslashes; it should leave that to the gate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file equals the last admitted one and is published again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An earlier file was still in place, which the plugin has not read or does not remove.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
