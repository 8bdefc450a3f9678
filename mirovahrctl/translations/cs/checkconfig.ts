<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Not every integer type holds the department id: it depends on the column of the site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write enabled=true to switch it on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has lines that are neither a key, nor a group, nor a comment; they are ignored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare the file with the sample MirovaHR.ini.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The INI file does not exist, so every key has its default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start from the sample MirovaHR.ini that comes with the plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every user of the machine can change the INI file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the permission with chmod o-w.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A flag has an empty value and is read as false.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write true or false.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A flag has an unusual value and is read as true.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gate in syncCommand admits whatever has changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove --accept from syncCommand: it is for one run by hand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gate publishes to another file than the one that the plugin reads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the same path as importFile and behind --to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gate in syncCommand does not understand its options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the command by hand: it says which option is wrong. Compare it with the sample MirovaHR.ini.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gate publishes texts as HR wrote them, so that a name can become a statement.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out --texts as-is, unless HR writes the texts for SQL already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>importFile names something other than a regular file, which the plugin never reads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the path of the export file itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>importFile is a relative path, so it depends on the server&apos;s working directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a path that begins with /.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every user of the machine can change the export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let only HR&apos;s transfer write to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder of the export does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create the folder, or correct the path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every user of the machine can put an export of their own in place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a folder that only HR&apos;s transfer and the attendance server can write to, such as /var/lib/yav/import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A key occurs more than once; the last line counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep one of the lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A key of the group MES is not a register state code and counts as code 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the code of HR as the key, in digits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A code in the group MES exceeds 16 bits and counts as another code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a code up to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two keys of the group MES are the same code; only one text is in force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep one of the two lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of a relationship state breaks the statement that it enters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the text without these characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of a relationship state is longer than the column of the reference schema.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorten the text, or ask check-db --config whether the column of the site holds it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New and updated people belong to no department.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No gate keeps damaged files of HR from the plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make mirovahrctl gate the syncCommand, as the sample MirovaHR.ini does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The group MES defines no relationship state, so nobody gets one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is not a whole number and is read as 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write digits only, without sign, unit, point or comma.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number exceeds 32 bits and is read as another number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a number up to 4294967295.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>syncCommandRun demands a command, but there is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the command, or syncCommandRun=0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a command, but syncCommandRun never runs it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write syncCommandRun=1 for a forced synchronisation, 2 for every one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program of syncCommand does not exist or is not executable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the program with its full path. No shell reads the line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>syncCommandRun exceeds 8 bits and counts as another number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write 0 for never, 1 for a forced synchronisation, 2 for every one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>syncInterval is 0 and counts as 1: every tick synchronises.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the number of ticks between two synchronisations.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test mode is on: people are neither created nor updated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write testMode=false for normal work.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>timerInterval exceeds 32 bits of milliseconds, so the plugin ticks at another period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write at most 2147483.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>timerInterval exceeds the limit of a timer, so the plugin ticks at another period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>timerInterval is below a second; the plugin ticks every second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the seconds between two ticks, 60 for a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plugin does not know the key; the line has no effect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the line or correct the key: keys are case-sensitive, and comments begin with a semicolon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text has a comma outside quotation marks and is read as empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the whole value in quotation marks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value has a semicolon outside quotation marks and ends there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
