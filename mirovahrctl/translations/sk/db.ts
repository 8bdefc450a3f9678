<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>uid</source>
        <translation>uid</translation>
    </message>
    <message>
        <source>pid</source>
        <translation>pid</translation>
    </message>
    <message>
        <source>payroll id</source>
        <translation>identifikátor pre mzdy</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titul</translation>
    </message>
    <message>
        <source>first name</source>
        <translation>meno</translation>
    </message>
    <message>
        <source>surname</source>
        <translation>priezvisko</translation>
    </message>
    <message>
        <source>title after the name</source>
        <translation>titul za menom</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>telefón</translation>
    </message>
    <message>
        <source>employed from</source>
        <translation>v pracovnom pomere od</translation>
    </message>
    <message>
        <source>employed until</source>
        <translation>v pracovnom pomere do</translation>
    </message>
    <message>
        <source>created</source>
        <translation>vytvorené</translation>
    </message>
    <message>
        <source>last changed</source>
        <translation>naposledy zmenené</translation>
    </message>
    <message>
        <source>last changed by</source>
        <translation>naposledy zmenil</translation>
    </message>
    <message>
        <source>relationship state from</source>
        <translation>stav pomeru od</translation>
    </message>
    <message>
        <source>relationship state until</source>
        <translation>stav pomeru do</translation>
    </message>
    <message>
        <source>relationship state</source>
        <translation>stav pomeru</translation>
    </message>
    <message>
        <source>employment type</source>
        <translation>druh pracovného pomeru</translation>
    </message>
    <message>
        <source>department</source>
        <translation>oddelenie</translation>
    </message>
    <message>
        <source>HR&apos;s calendar</source>
        <translation>kalendár personálneho oddelenia</translation>
    </message>
    <message>
        <source>home branch</source>
        <translation>domovská pobočka</translation>
    </message>
    <message>
        <source>active</source>
        <translation>aktívna</translation>
    </message>
    <message>
        <source>attendance recalculated from</source>
        <translation>dochádzka prepočítaná od</translation>
    </message>
    <message>
        <source>last calculation</source>
        <translation>posledný výpočet</translation>
    </message>
    <message>
        <source>calendar group by default</source>
        <translation>predvolená kalendárová skupina</translation>
    </message>
    <message>
        <source>settings of the payroll export</source>
        <translation>nastavenie exportu pre mzdy</translation>
    </message>
    <message>
        <source>below 0: to be calculated</source>
        <translation>menej ako 0: treba vypočítať</translation>
    </message>
    <message>
        <source>cost centre</source>
        <translation>stredisko</translation>
    </message>
    <message>
        <source>branch</source>
        <translation>pobočka</translation>
    </message>
    <message>
        <source>member since</source>
        <translation>člen od</translation>
    </message>
    <message>
        <source>calendar group</source>
        <translation>kalendárová skupina</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mesiac</translation>
    </message>
    <message>
        <source>kind of movement</source>
        <translation>druh pohybu</translation>
    </message>
    <message>
        <source>day</source>
        <translation>deň</translation>
    </message>
    <message>
        <source>hundredths of a day</source>
        <translation>stotiny dňa</translation>
    </message>
    <message>
        <source>fund</source>
        <translation>fond</translation>
    </message>
    <message>
        <source>receives the requests</source>
        <translation>dostáva žiadosti</translation>
    </message>
    <message>
        <source>kinds of data to fetch</source>
        <translation>druhy údajov na načítanie</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>zaradené do frontu</translation>
    </message>
    <message>
        <source>kind of data</source>
        <translation>druh údajov</translation>
    </message>
</context>
</TS>
