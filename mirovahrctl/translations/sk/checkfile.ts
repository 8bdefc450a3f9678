<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The line has too few or too many fields, so the plugin drops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write every field, even an empty one, and separate them with the character |, which no text may contain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line is a header, which the plugin reads as a person without a number and drops.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export without a header.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line exceeds the longest that the plugin reads, so the plugin skips it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export is damaged; perhaps line feeds are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line has neither a first name nor a surname, so the plugin drops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Provide at least one of the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line has no personal number above 0, so the plugin drops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the personal number into the first field: digits, above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line has no relationship number above 0, so the plugin drops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the number of the employment relationship into the second field: digits, above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line contains a NUL byte; the plugin reads nothing after it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export is damaged, or not encoded in UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text contains a backslash: it arrives changed, or its statement fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without \.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two people have numbers that join to the same pid; the plugin treats both as one person.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of the two needs another personal number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person&apos;s numbers join to more than 32 bits, so the pid becomes 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person needs a shorter personal number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text contains a percent sign and a digit, which the plugin replaces with another value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without %.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text contains an apostrophe, which breaks its statement: the person is not written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirovahrctl gate writes such a text so that it arrives; without the gate, write it without &apos;, or with the character ’.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text is longer than its column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorten the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text contains a character above U+FFFF, which the connection cannot carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the text without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin cannot read the field as a date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write dates as in 2021-03-31 00:00:00.000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin cannot read the field as a number and takes 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write digits only, up to 4294967295.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The vacation balance cannot be stored, so the plugin leaves it unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct the balance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line begins with a byte order mark, which the plugin skips.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the export as UTF-8 without a byte order mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A code exceeds 16 bits and is read as another code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct the code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin stores days from 1970 to 2106 only; the day comes back as another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct the date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same employment relationship occurs more than once; the last line wins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export each relationship once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A date is missing that the plugin needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Provide the date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is missing that the plugin needs; it takes 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The person leaves before employment begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of the two dates is wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last line does not end with a line feed; the file may be truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check whether the export is complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file contains no people.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check whether the export went wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some bytes are not UTF-8 and are read as replacement characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the export as UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many people occur more than once, so not all of them were compared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check whether the export was written several times into one file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is encoded in UTF-16, which the plugin cannot read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
