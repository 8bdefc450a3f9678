<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>The database lacks the branch or calendar group of %Ln person(s). The plugin tries again at every synchronisation in which their lines are the same.</source>
        <translation>
            <numerusform>The database lacks the branch or calendar group of %Ln person. The plugin tries again at every synchronisation in which their lines are the same.</numerusform>
            <numerusform>The database lacks the branch or calendar group of %Ln people. The plugin tries again at every synchronisation in which their lines are the same.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: %Ln person(s) whose line has an error, who have several lines, or whose payroll id and pid do not belong together.</source>
        <translation>
            <numerusform>Left out: %Ln person whose line has an error, who have several lines, or whose payroll id and pid do not belong together.</numerusform>
            <numerusform>Left out: %Ln people whose line has an error, who have several lines, or whose payroll id and pid do not belong together.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln difference(s), to be mended: %1.</source>
        <translation>
            <numerusform>%Ln difference, to be mended: %1.</numerusform>
            <numerusform>%Ln differences, to be mended: %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
