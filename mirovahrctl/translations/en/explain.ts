<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln line(s) of the export are too broken to tell whom they are about, and the plugin drops them: see check-file.</source>
        <translation>
            <numerusform>%Ln line of the export is too broken to tell whom it is about, and the plugin drops it: see check-file.</numerusform>
            <numerusform>%Ln lines of the export are too broken to tell whom they are about, and the plugin drops them: see check-file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) match: name one of them.</source>
        <translation>
            <numerusform>%Ln person matches: name one of them.</numerusform>
            <numerusform>%Ln people match: name one of them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) more about the same person are not explained: the facts are those of the first %1 lines.</source>
        <translation>
            <numerusform>%Ln line more about the same person is not explained: the facts are those of the first %1 lines.</numerusform>
            <numerusform>%Ln lines more about the same person are not explained: the facts are those of the first %1 lines.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>None of the %Ln line(s) of %1 is about %2.</source>
        <translation>
            <numerusform>None of the %Ln line of %1 is about %2.</numerusform>
            <numerusform>None of the %Ln lines of %1 is about %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) are too broken to tell whom they are about, and the plugin drops them: see check-file.</source>
        <translation>
            <numerusform>%Ln line is too broken to tell whom it is about, and the plugin drops it: see check-file.</numerusform>
            <numerusform>%Ln lines are too broken to tell whom they are about, and the plugin drops them: see check-file.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The person joins no payroll export, because there are %Ln instead of one. The log says: %1</source>
        <translation>
            <numerusform>The person joins no payroll export, because there is %Ln instead of one. The log says: %1</numerusform>
            <numerusform>The person joins no payroll export, because there are %Ln instead of one. The log says: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
