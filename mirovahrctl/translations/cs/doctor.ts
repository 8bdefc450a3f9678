<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>A check could not be made: a file or the database cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run that subcommand by itself until it answers; what it would find is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yavhost.service is enabled or was started, but does not run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See what ended it: systemctl status yavhost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user or the confinement of yavhost.service keeps it from writing to a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the folder to that user, and name it in ReadWritePaths (systemctl edit yavhost).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
