<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Text</name>
    <message numerus="yes">
        <source>%Ln line(s) (%1 %) with people are missing compared with the last admitted file; %2</source>
        <translation>
            <numerusform>%Ln line (%1 %) with people is missing compared with the last admitted file; %2</numerusform>
            <numerusform>%Ln lines (%1 %) with people are missing compared with the last admitted file; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln line(s) (%1 %) repeat people of earlier lines, more than in the last admitted file; %2</source>
        <translation>
            <numerusform>%Ln line (%1 %) repeats a person of an earlier line, more than in the last admitted file; %2</numerusform>
            <numerusform>%Ln lines (%1 %) repeat people of earlier lines, more than in the last admitted file; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) leave; %2</source>
        <translation>
            <numerusform>%Ln person (%1 %) leaves; %2</numerusform>
            <numerusform>%Ln people (%1 %) leave; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) get another cost centre; %2</source>
        <translation>
            <numerusform>%Ln person (%1 %) gets another cost centre; %2</numerusform>
            <numerusform>%Ln people (%1 %) get another cost centre; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) are new; %2</source>
        <translation>
            <numerusform>%Ln person (%1 %) is new; %2</numerusform>
            <numerusform>%Ln people (%1 %) are new; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s) (%1 %) return who had left; %2</source>
        <translation>
            <numerusform>%Ln person (%1 %) returns who had left; %2</numerusform>
            <numerusform>%Ln people (%1 %) return who had left; %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file was changed within the last %Ln second(s).</source>
        <translation>
            <numerusform>The file was changed within the last %Ln second.</numerusform>
            <numerusform>The file was changed within the last %Ln seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with errors, dropped or not written correctly.</source>
        <translation>
            <numerusform>The file has %Ln line with errors, dropped or not written correctly.</numerusform>
            <numerusform>The file has %Ln lines with errors, dropped or not written correctly.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with warnings: values that the plugin misreads, or that are hardly intended.</source>
        <translation>
            <numerusform>The file has %Ln line with warnings: values that the plugin misreads, or that are hardly intended.</numerusform>
            <numerusform>The file has %Ln lines with warnings: values that the plugin misreads, or that are hardly intended.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %Ln line(s) with texts that look as if they were written for SQL already, such as O&apos;&apos;Brien. The database gets them as they are here.</source>
        <translation>
            <numerusform>The file has %Ln line with texts that look as if they were written for SQL already, such as O&apos;&apos;Brien. The database gets them as they are here.</numerusform>
            <numerusform>The file has %Ln lines with texts that look as if they were written for SQL already, such as O&apos;&apos;Brien. The database gets them as they are here.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file was admitted and published: %Ln person(s).</source>
        <translation>
            <numerusform>The file was admitted and published: %Ln person.</numerusform>
            <numerusform>The file was admitted and published: %Ln people.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) becomes 0; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) becomes 0; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) becomes 0; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is now less than %4 or more than %5 days; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) is now less than %4 or more than %5 days; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) is now less than %4 or more than %5 days; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is %4 times what it was; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) is %4 times what it was; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) is %4 times what it was; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is misread: %4; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) is misread: %4; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) is misread: %4; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) changes; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) changes; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) changes; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) is emptied; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) is emptied; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) is emptied; %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 of %Ln person(s) (%2 %) changes though the former one still works in the same place; %3</source>
        <translation>
            <numerusform>The %1 of %Ln person (%2 %) changes though the former one still works in the same place; %3</numerusform>
            <numerusform>The %1 of %Ln people (%2 %) changes though the former one still works in the same place; %3</numerusform>
        </translation>
    </message>
</context>
</TS>
