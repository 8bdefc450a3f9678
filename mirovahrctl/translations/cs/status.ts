<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The gate has refused the last file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until a file is admitted nothing new reaches the plugin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statements of the plugin failed through a deadlock, a lock&apos;s timeout or a lost connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What they were to write may be missing for good: force a synchronisation with the same export, then run mirovahrctl drift.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last admitted file, or the last trace of the plugin, is too old.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the log of the attendance server and what HR delivers.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
