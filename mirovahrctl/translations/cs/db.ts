<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
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
        <translation>identifikátor pro mzdy</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titul</translation>
    </message>
    <message>
        <source>first name</source>
        <translation>jméno</translation>
    </message>
    <message>
        <source>surname</source>
        <translation>příjmení</translation>
    </message>
    <message>
        <source>title after the name</source>
        <translation>titul za jménem</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>telefon</translation>
    </message>
    <message>
        <source>employed from</source>
        <translation>v pracovním poměru od</translation>
    </message>
    <message>
        <source>employed until</source>
        <translation>v pracovním poměru do</translation>
    </message>
    <message>
        <source>created</source>
        <translation>vytvořeno</translation>
    </message>
    <message>
        <source>last changed</source>
        <translation>naposledy změněno</translation>
    </message>
    <message>
        <source>last changed by</source>
        <translation>naposledy změnil</translation>
    </message>
    <message>
        <source>relationship state from</source>
        <translation>stav poměru od</translation>
    </message>
    <message>
        <source>relationship state until</source>
        <translation>stav poměru do</translation>
    </message>
    <message>
        <source>relationship state</source>
        <translation>stav poměru</translation>
    </message>
    <message>
        <source>employment type</source>
        <translation>druh pracovního poměru</translation>
    </message>
    <message>
        <source>department</source>
        <translation>oddělení</translation>
    </message>
    <message>
        <source>HR&apos;s calendar</source>
        <translation>kalendář personálního oddělení</translation>
    </message>
    <message>
        <source>home branch</source>
        <translation>domovská pobočka</translation>
    </message>
    <message>
        <source>active</source>
        <translation>aktivní</translation>
    </message>
    <message>
        <source>attendance recalculated from</source>
        <translation>docházka přepočtena od</translation>
    </message>
    <message>
        <source>last calculation</source>
        <translation>poslední výpočet</translation>
    </message>
    <message>
        <source>calendar group by default</source>
        <translation>výchozí kalendářová skupina</translation>
    </message>
    <message>
        <source>settings of the payroll export</source>
        <translation>nastavení exportu pro mzdy</translation>
    </message>
    <message>
        <source>below 0: to be calculated</source>
        <translation>méně než 0: je třeba vypočítat</translation>
    </message>
    <message>
        <source>cost centre</source>
        <translation>středisko</translation>
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
        <translation>kalendářová skupina</translation>
    </message>
    <message>
        <source>month</source>
        <translation>měsíc</translation>
    </message>
    <message>
        <source>kind of movement</source>
        <translation>druh pohybu</translation>
    </message>
    <message>
        <source>day</source>
        <translation>den</translation>
    </message>
    <message>
        <source>hundredths of a day</source>
        <translation>setiny dne</translation>
    </message>
    <message>
        <source>fund</source>
        <translation>fond</translation>
    </message>
    <message>
        <source>receives the requests</source>
        <translation>dostává žádosti</translation>
    </message>
    <message>
        <source>kinds of data to fetch</source>
        <translation>druhy údajů k načtení</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>zařazeno do fronty</translation>
    </message>
    <message>
        <source>kind of data</source>
        <translation>druh údajů</translation>
    </message>
</context>
</TS>
