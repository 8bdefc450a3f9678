<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Not every integer type holds the department id: it depends on the column of the site.</source>
        <translation>Id oddelenia sa nezmestí do každého celočíselného typu: závisí od stĺpca v databáze.</translation>
    </message>
    <message>
        <source>The plugin is switched off.</source>
        <translation>Zásuvný modul je vypnutý.</translation>
    </message>
    <message>
        <source>Write enabled=true to switch it on.</source>
        <translation>Zapnete ho nastavením enabled=true.</translation>
    </message>
    <message>
        <source>The file has lines that are neither a key, nor a group, nor a comment; they are ignored.</source>
        <translation>Súbor obsahuje riadky, ktoré nie sú ani kľúč, ani skupina, ani komentár; ignorujú sa.</translation>
    </message>
    <message>
        <source>Compare the file with the sample MirovaHR.ini.</source>
        <translation>Porovnajte súbor so vzorovým súborom MirovaHR.ini.</translation>
    </message>
    <message>
        <source>The INI file does not exist, so every key has its default.</source>
        <translation>INI súbor neexistuje, takže každý kľúč má predvolenú hodnotu.</translation>
    </message>
    <message>
        <source>Start from the sample MirovaHR.ini that comes with the plugin.</source>
        <translation>Vychádzajte zo vzorového súboru MirovaHR.ini, ktorý sa dodáva so zásuvným modulom.</translation>
    </message>
    <message>
        <source>Every user of the machine can change the INI file.</source>
        <translation>INI súbor môže zmeniť každý používateľ počítača.</translation>
    </message>
    <message>
        <source>Remove the permission with chmod o-w.</source>
        <translation>Odoberte oprávnenie príkazom chmod o-w.</translation>
    </message>
    <message>
        <source>A flag has an empty value and is read as false.</source>
        <translation>Príznak má prázdnu hodnotu a číta sa ako false.</translation>
    </message>
    <message>
        <source>Write true or false.</source>
        <translation>Napíšte true alebo false.</translation>
    </message>
    <message>
        <source>A flag has an unusual value and is read as true.</source>
        <translation>Príznak má nezvyčajnú hodnotu a číta sa ako true.</translation>
    </message>
    <message>
        <source>The gate in syncCommand admits whatever has changed.</source>
        <translation>Brána v syncCommand prijme súbor bez ohľadu na to, čo sa v ňom zmenilo.</translation>
    </message>
    <message>
        <source>Remove --accept from syncCommand: it is for one run by hand.</source>
        <translation>Odstráňte --accept zo syncCommand: je určené na jednorazové ručné spustenie.</translation>
    </message>
    <message>
        <source>The gate publishes to another file than the one that the plugin reads.</source>
        <translation>Brána zverejňuje do iného súboru, než ktorý číta zásuvný modul.</translation>
    </message>
    <message>
        <source>Write the same path as importFile and behind --to.</source>
        <translation>Uveďte v importFile aj za --to tú istú cestu.</translation>
    </message>
    <message>
        <source>The gate in syncCommand does not understand its options.</source>
        <translation>Brána v syncCommand nerozumie svojim voľbám.</translation>
    </message>
    <message>
        <source>Run the command by hand: it says which option is wrong. Compare it with the sample MirovaHR.ini.</source>
        <translation>Spustite príkaz ručne: povie, ktorá voľba je nesprávna. Porovnajte ho so vzorovým súborom MirovaHR.ini.</translation>
    </message>
    <message>
        <source>The gate publishes texts as HR wrote them, so that a name can become a statement.</source>
        <translation>Brána zverejňuje texty tak, ako ich napísalo personálne oddelenie, takže meno sa môže stať príkazom SQL.</translation>
    </message>
    <message>
        <source>Leave out --texts as-is, unless HR writes the texts for SQL already.</source>
        <translation>Vynechajte --texts as-is, pokiaľ personálne oddelenie nepíše texty už upravené pre SQL.</translation>
    </message>
    <message>
        <source>importFile names something other than a regular file, which the plugin never reads.</source>
        <translation>importFile neoznačuje bežný súbor, preto ho zásuvný modul nikdy neprečíta.</translation>
    </message>
    <message>
        <source>Write the path of the export file itself.</source>
        <translation>Uveďte cestu k samotnému súboru exportu.</translation>
    </message>
    <message>
        <source>importFile is a relative path, so it depends on the server&apos;s working directory.</source>
        <translation>importFile je relatívna cesta, takže závisí od pracovného priečinka servera.</translation>
    </message>
    <message>
        <source>Write a path that begins with /.</source>
        <translation>Uveďte cestu, ktorá sa začína znakom /.</translation>
    </message>
    <message>
        <source>Every user of the machine can change the export.</source>
        <translation>Export môže zmeniť každý používateľ počítača.</translation>
    </message>
    <message>
        <source>Let only HR&apos;s transfer write to it.</source>
        <translation>Zápis povoľte len prenosu z personálneho oddelenia.</translation>
    </message>
    <message>
        <source>The folder of the export does not exist.</source>
        <translation>Priečinok exportu neexistuje.</translation>
    </message>
    <message>
        <source>Create the folder, or correct the path.</source>
        <translation>Vytvorte priečinok alebo opravte cestu.</translation>
    </message>
    <message>
        <source>Every user of the machine can put an export of their own in place.</source>
        <translation>Na miesto exportu môže každý používateľ počítača podstrčiť vlastný súbor.</translation>
    </message>
    <message>
        <source>Use a folder that only HR&apos;s transfer and the attendance server can write to, such as /var/lib/yav/import.</source>
        <translation>Použite priečinok, do ktorého môže zapisovať len prenos z personálneho oddelenia a dochádzkový server, napríklad /var/lib/yav/import.</translation>
    </message>
    <message>
        <source>A key occurs more than once; the last line counts.</source>
        <translation>Kľúč sa vyskytuje viackrát; platí posledný riadok.</translation>
    </message>
    <message>
        <source>Keep one of the lines.</source>
        <translation>Ponechajte jeden z riadkov.</translation>
    </message>
    <message>
        <source>A key of the group MES is not a register state code and counts as code 0.</source>
        <translation>Kľúč skupiny MES nie je kód evidenčného stavu a považuje sa za kód 0.</translation>
    </message>
    <message>
        <source>Write the code of HR as the key, in digits.</source>
        <translation>Ako kľúč napíšte číslicami kód personálneho oddelenia.</translation>
    </message>
    <message>
        <source>A code in the group MES exceeds 16 bits and counts as another code.</source>
        <translation>Kód v skupine MES presahuje 16 bitov a považuje sa za iný kód.</translation>
    </message>
    <message>
        <source>Write a code up to 65535.</source>
        <translation>Napíšte kód najviac 65535.</translation>
    </message>
    <message>
        <source>Two keys of the group MES are the same code; only one text is in force.</source>
        <translation>Dva kľúče skupiny MES sú ten istý kód; platí len jeden text.</translation>
    </message>
    <message>
        <source>Keep one of the two lines.</source>
        <translation>Ponechajte jeden z oboch riadkov.</translation>
    </message>
    <message>
        <source>The text of a relationship state breaks the statement that it enters.</source>
        <translation>Text stavu pomeru naruší príkaz, do ktorého sa vloží.</translation>
    </message>
    <message>
        <source>Write the text without these characters.</source>
        <translation>Napíšte text bez týchto znakov.</translation>
    </message>
    <message>
        <source>The text of a relationship state is longer than the column of the reference schema.</source>
        <translation>Text stavu pomeru je dlhší ako stĺpec referenčnej schémy.</translation>
    </message>
    <message>
        <source>Shorten the text, or ask check-db --config whether the column of the site holds it.</source>
        <translation>Skráťte text alebo pomocou check-db --config overte, či sa zmestí do stĺpca v databáze.</translation>
    </message>
    <message>
        <source>New and updated people belong to no department.</source>
        <translation>Nové a aktualizované osoby nepatria do žiadneho oddelenia.</translation>
    </message>
    <message>
        <source>No gate keeps damaged files of HR from the plugin.</source>
        <translation>Zásuvný modul pred poškodenými súbormi z personálneho oddelenia nechráni žiadna brána.</translation>
    </message>
    <message>
        <source>Make mirovahrctl gate the syncCommand, as the sample MirovaHR.ini does.</source>
        <translation>Nastavte mirovahrctl gate ako syncCommand, podľa vzorového súboru MirovaHR.ini.</translation>
    </message>
    <message>
        <source>The group MES defines no relationship state, so nobody gets one.</source>
        <translation>Skupina MES nedefinuje žiadny stav pomeru, takže ho nikto nedostane.</translation>
    </message>
    <message>
        <source>A number is not a whole number and is read as 0.</source>
        <translation>Hodnota nie je celé číslo a číta sa ako 0.</translation>
    </message>
    <message>
        <source>Write digits only, without sign, unit, point or comma.</source>
        <translation>Napíšte len číslice, bez znamienka, jednotky, bodky a čiarky.</translation>
    </message>
    <message>
        <source>A number exceeds 32 bits and is read as another number.</source>
        <translation>Číslo presahuje 32 bitov a číta sa ako iné číslo.</translation>
    </message>
    <message>
        <source>Write a number up to 4294967295.</source>
        <translation>Napíšte číslo najviac 4294967295.</translation>
    </message>
    <message>
        <source>syncCommandRun demands a command, but there is none.</source>
        <translation>syncCommandRun vyžaduje príkaz, ale žiadny nie je uvedený.</translation>
    </message>
    <message>
        <source>Write the command, or syncCommandRun=0.</source>
        <translation>Uveďte príkaz alebo nastavte syncCommandRun=0.</translation>
    </message>
    <message>
        <source>There is a command, but syncCommandRun never runs it.</source>
        <translation>Príkaz je uvedený, ale syncCommandRun ho nikdy nespustí.</translation>
    </message>
    <message>
        <source>Write syncCommandRun=1 for a forced synchronisation, 2 for every one.</source>
        <translation>Nastavte syncCommandRun=1 (len pred vynútenou synchronizáciou) alebo 2 (pred každou).</translation>
    </message>
    <message>
        <source>The program of syncCommand does not exist or is not executable.</source>
        <translation>Program zo syncCommand neexistuje alebo nie je spustiteľný.</translation>
    </message>
    <message>
        <source>Write the program with its full path. No shell reads the line.</source>
        <translation>Uveďte program s úplnou cestou. Riadok nespracúva žiadny shell.</translation>
    </message>
    <message>
        <source>syncCommandRun exceeds 8 bits and counts as another number.</source>
        <translation>syncCommandRun presahuje 8 bitov a považuje sa za iné číslo.</translation>
    </message>
    <message>
        <source>Write 0 for never, 1 for a forced synchronisation, 2 for every one.</source>
        <translation>Napíšte 0 (nikdy), 1 (len pred vynútenou synchronizáciou) alebo 2 (pred každou).</translation>
    </message>
    <message>
        <source>syncInterval is 0 and counts as 1: every tick synchronises.</source>
        <translation>syncInterval je 0 a považuje sa za 1: synchronizuje sa pri každom takte.</translation>
    </message>
    <message>
        <source>Write the number of ticks between two synchronisations.</source>
        <translation>Napíšte počet taktov medzi dvoma synchronizáciami.</translation>
    </message>
    <message>
        <source>Test mode is on: people are neither created nor updated.</source>
        <translation>Je zapnutý skúšobný režim: osoby sa nevytvárajú ani neaktualizujú.</translation>
    </message>
    <message>
        <source>Write testMode=false for normal work.</source>
        <translation>Pre bežnú prevádzku nastavte testMode=false.</translation>
    </message>
    <message>
        <source>timerInterval exceeds 32 bits of milliseconds, so the plugin ticks at another period.</source>
        <translation>timerInterval v milisekundách presahuje 32 bitov, takže takty majú iný interval.</translation>
    </message>
    <message>
        <source>Write at most 2147483.</source>
        <translation>Napíšte najviac 2147483.</translation>
    </message>
    <message>
        <source>timerInterval exceeds the limit of a timer, so the plugin ticks at another period.</source>
        <translation>timerInterval presahuje možnosti časovača, takže takty majú iný interval.</translation>
    </message>
    <message>
        <source>timerInterval is below a second; the plugin ticks every second.</source>
        <translation>timerInterval je kratší ako sekunda; takt nastáva každú sekundu.</translation>
    </message>
    <message>
        <source>Write the seconds between two ticks, 60 for a minute.</source>
        <translation>Napíšte počet sekúnd medzi dvoma taktmi, 60 pre minútu.</translation>
    </message>
    <message>
        <source>The plugin does not know the key; the line has no effect.</source>
        <translation>Zásuvný modul tento kľúč nepozná; riadok nemá žiadny účinok.</translation>
    </message>
    <message>
        <source>Remove the line or correct the key: keys are case-sensitive, and comments begin with a semicolon.</source>
        <translation>Odstráňte riadok alebo opravte kľúč: v kľúčoch sa rozlišujú veľké a malé písmená a komentáre sa začínajú bodkočiarkou.</translation>
    </message>
    <message>
        <source>A text has a comma outside quotation marks and is read as empty.</source>
        <translation>Text obsahuje čiarku mimo úvodzoviek a číta sa ako prázdny.</translation>
    </message>
    <message>
        <source>Put the whole value in quotation marks.</source>
        <translation>Dajte celú hodnotu do úvodzoviek.</translation>
    </message>
    <message>
        <source>A value has a semicolon outside quotation marks and ends there.</source>
        <translation>Hodnota obsahuje bodkočiarku mimo úvodzoviek a na tom mieste sa končí.</translation>
    </message>
    <message>
        <source>Reads the plugin&apos;s INI file exactly as the plugin does. Shows for each key what will be in force, and reports what is wrong. Needs no database, and changes nothing.</source>
        <translation>Prečíta INI súbor zásuvného modulu presne tak, ako ho číta zásuvný modul. Pri každom kľúči ukáže, čo bude platiť, a ohlási, čo je nesprávne. Nepotrebuje databázu a nič nemení.</translation>
    </message>
    <message>
        <source>Nothing is wrong with the configuration.</source>
        <translation>Konfigurácia je v poriadku.</translation>
    </message>
    <message>
        <source>The configuration needs attention.</source>
        <translation>Konfigurácia si vyžaduje pozornosť.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a readable file</source>
        <translation>„%1“ nie je čitateľný súbor</translation>
    </message>
    <message>
        <source>Configuration %1</source>
        <translation>Konfigurácia %1</translation>
    </message>
    <message>
        <source>What is in force</source>
        <translation>Čo platí</translation>
    </message>
    <message>
        <source>The plugin reads the file once, when the attendance server loads the plugin. A change takes effect at the next start of the server.</source>
        <translation>Zásuvný modul prečíta súbor iba raz, keď ho načíta dochádzkový server. Zmena sa prejaví až po ďalšom spustení servera.</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The INI file; /etc/yav/MirovaHR.ini when left out.</source>
        <translation>INI súbor; ak sa neuvedie, /etc/yav/MirovaHR.ini.</translation>
    </message>
    <message>
        <source>Begin comments with a semicolon, not with #.</source>
        <translation>Komentáre začínajte bodkočiarkou, nie znakom #.</translation>
    </message>
    <message>
        <source>Remove the line, or see the sample MirovaHR.ini for the known keys.</source>
        <translation>Odstráňte riadok alebo si pozrite známe kľúče vo vzorovom súbore MirovaHR.ini.</translation>
    </message>
    <message>
        <source>Perhaps %1 is meant: keys are case-sensitive, and this one belongs before the first group.</source>
        <translation>Možno má ísť o %1: v kľúčoch sa rozlišujú veľké a malé písmená a tento patrí pred prvú skupinu.</translation>
    </message>
    <message>
        <source>The file does not exist: every key has its default.</source>
        <translation>Súbor neexistuje: každý kľúč má predvolenú hodnotu.</translation>
    </message>
    <message>
        <source>The file has lines that are neither key=value, nor [group], nor a comment; they are ignored.</source>
        <translation>Súbor obsahuje riadky, ktoré nie sú ani kľúč=hodnota, ani [skupina], ani komentár; ignorujú sa.</translation>
    </message>
    <message>
        <source>Every user of the machine can change this file, and with syncCommand run programs as the attendance server.</source>
        <translation>Tento súbor môže zmeniť každý používateľ počítača a pomocou syncCommand spúšťať programy s oprávneniami dochádzkového servera.</translation>
    </message>
    <message>
        <source>Remove the permission: chmod o-w &apos;%1&apos;.</source>
        <translation>Odoberte oprávnenie: chmod o-w &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The key occurs more than once; the last line counts.</source>
        <translation>Kľúč sa vyskytuje viackrát; platí posledný riadok.</translation>
    </message>
    <message>
        <source>The plugin does not know this key; the line has no effect.</source>
        <translation>Zásuvný modul tento kľúč nepozná; riadok nemá žiadny účinok.</translation>
    </message>
    <message>
        <source>The value ends at the semicolon; the rest of the line is a comment.</source>
        <translation>Hodnota sa končí bodkočiarkou; zvyšok riadka je komentár.</translation>
    </message>
    <message>
        <source>%1 is read as true, like everything except 0, false and an empty value.</source>
        <translation>%1 sa číta ako true, tak ako všetko okrem 0, false a prázdnej hodnoty.</translation>
    </message>
    <message>
        <source>An empty value is read as false.</source>
        <translation>Prázdna hodnota sa číta ako false.</translation>
    </message>
    <message>
        <source>%1 is not a whole number and is read as 0.</source>
        <translation>%1 nie je celé číslo a číta sa ako 0.</translation>
    </message>
    <message>
        <source>%1 is too large and is read as %2.</source>
        <translation>%1 je príliš veľké číslo a číta sa ako %2.</translation>
    </message>
    <message>
        <source>Write a number up to %1.</source>
        <translation>Napíšte číslo najviac %1.</translation>
    </message>
    <message>
        <source>The text has a comma outside quotation marks and is read as empty.</source>
        <translation>Text obsahuje čiarku mimo úvodzoviek a číta sa ako prázdny.</translation>
    </message>
    <message>
        <source>The plugin is switched off: it does nothing at all.</source>
        <translation>Zásuvný modul je vypnutý: nerobí vôbec nič.</translation>
    </message>
    <message>
        <source>Test mode is on: people are neither created nor updated. Branches, calendars, balances, supervisors and terminals are still written.</source>
        <translation>Je zapnutý skúšobný režim: osoby sa nevytvárajú ani neaktualizujú. Pobočky, kalendáre, zostatky, nadriadení a terminály sa zapisujú aj tak.</translation>
    </message>
    <message>
        <source>Whether the database holds the department %1 depends on the type of %2 there: check-db --config reports it.</source>
        <translation>Či sa oddelenie %1 zmestí do databázy, závisí od typu stĺpca %2: overí to check-db --config.</translation>
    </message>
    <message>
        <source>%1 seconds exceed 32 bits of milliseconds: the plugin ticks every %2 ms.</source>
        <translation>%1 s v milisekundách presahuje 32 bitov: interval taktov je %2 ms.</translation>
    </message>
    <message>
        <source>The plugin ticks every second: the period is never shorter.</source>
        <translation>Takt nastáva každú sekundu: kratší interval nie je možný.</translation>
    </message>
    <message>
        <source>The period exceeds the limit of a timer: the plugin ticks every %1 ms.</source>
        <translation>Interval presahuje možnosti časovača: interval taktov je %1 ms.</translation>
    </message>
    <message>
        <source>0 counts as 1: every tick synchronises.</source>
        <translation>0 sa považuje za 1: synchronizuje sa pri každom takte.</translation>
    </message>
    <message>
        <source>The path is relative: what it names depends on the folder in which the attendance server was started.</source>
        <translation>Cesta je relatívna: jej význam závisí od priečinka, v ktorom bol spustený dochádzkový server.</translation>
    </message>
    <message>
        <source>%1 is not a regular file: the plugin never reads it.</source>
        <translation>%1 nie je bežný súbor: zásuvný modul ho nikdy neprečíta.</translation>
    </message>
    <message>
        <source>Every user of the machine can change %1. Its texts enter SQL statements unescaped.</source>
        <translation>%1 môže zmeniť každý používateľ počítača. Texty z neho sa do príkazov SQL vkladajú neošetrené.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist, so there is never an export.</source>
        <translation>Priečinok %1 neexistuje, takže export sa tam nikdy neobjaví.</translation>
    </message>
    <message>
        <source>The export is read from %1, and every user of the machine can put an export of their own there: %2 is writable for everybody. Its texts enter SQL statements unescaped.</source>
        <translation>Export sa číta z %1 a každý používateľ počítača tam môže podstrčiť vlastný: do %2 môže zapisovať ktokoľvek. Texty z exportu sa do príkazov SQL vkladajú neošetrené.</translation>
    </message>
    <message>
        <source>syncCommandRun demands a command, but there is none: the plugin logs a warning each time.</source>
        <translation>syncCommandRun vyžaduje príkaz, ale žiadny nie je uvedený: zásuvný modul zakaždým zapíše do protokolu upozornenie.</translation>
    </message>
    <message>
        <source>The command is never run, because syncCommandRun is 0.</source>
        <translation>Príkaz sa nikdy nespustí, pretože syncCommandRun je 0.</translation>
    </message>
    <message>
        <source>There is no executable program &apos;%1&apos;.</source>
        <translation>Spustiteľný program „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>Only the low 8 bits of %1 are kept: it counts as %2.</source>
        <translation>Z hodnoty %1 sa použije len dolných 8 bitov: považuje sa za %2.</translation>
    </message>
    <message>
        <source>syncCommand runs no gate. Unless another program runs one, what HR exports reaches the database unexamined.</source>
        <translation>syncCommand nespúšťa bránu. Ak ju nespúšťa iný program, export personálneho oddelenia sa dostane do databázy bez kontroly.</translation>
    </message>
    <message>
        <source>The gate does not understand its options, so it publishes nothing.</source>
        <translation>Brána nerozumie svojim voľbám, takže nič nezverejní.</translation>
    </message>
    <message>
        <source>The gate publishes to %1, but the plugin reads %2.</source>
        <translation>Brána zverejňuje do %1, ale zásuvný modul číta %2.</translation>
    </message>
    <message>
        <source>The gate publishes texts as HR wrote them: they enter SQL statements unescaped.</source>
        <translation>Brána zverejňuje texty tak, ako ich napísalo personálne oddelenie: do príkazov SQL sa vkladajú neošetrené.</translation>
    </message>
    <message>
        <source>With --accept the gate admits a file whatever is missing or has changed in it.</source>
        <translation>S voľbou --accept brána prijme súbor bez ohľadu na to, čo v ňom chýba alebo sa zmenilo.</translation>
    </message>
    <message numerus="yes">
        <source>a synchronisation at the first tick, then every %Ln tick(s), which is %1</source>
        <translation>
            <numerusform>synchronizácia pri prvom takte, potom každý %Ln takt, čo je %1</numerusform>
            <numerusform>synchronizácia pri prvom takte, potom každé %Ln takty, čo je %1</numerusform>
            <numerusform>synchronizácia pri prvom takte, potom každých %Ln taktov, čo je %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the command is never run</source>
        <translation>príkaz sa nikdy nespustí</translation>
    </message>
    <message>
        <source>the command is run before a forced synchronisation only</source>
        <translation>príkaz sa spustí len pred vynútenou synchronizáciou</translation>
    </message>
    <message>
        <source>the command is run before every synchronisation</source>
        <translation>príkaz sa spustí pred každou synchronizáciou</translation>
    </message>
    <message>
        <source>the plugin works</source>
        <translation>zásuvný modul pracuje</translation>
    </message>
    <message>
        <source>the plugin does nothing</source>
        <translation>zásuvný modul nerobí nič</translation>
    </message>
    <message>
        <source>a tick every %1</source>
        <translation>interval taktov: %1</translation>
    </message>
    <message>
        <source>people are only logged, not written</source>
        <translation>osoby sa len zapisujú do protokolu, nie do databázy</translation>
    </message>
    <message>
        <source>people are written</source>
        <translation>osoby sa zapisujú do databázy</translation>
    </message>
    <message>
        <source>people have no department</source>
        <translation>osoby nemajú oddelenie</translation>
    </message>
    <message>
        <source>people are in department %1</source>
        <translation>osoby sú v oddelení %1</translation>
    </message>
    <message>
        <source>the export is read from %1</source>
        <translation>export sa číta z %1</translation>
    </message>
    <message>
        <source>the export is removed after it was read</source>
        <translation>export sa po prečítaní odstráni</translation>
    </message>
    <message>
        <source>the export stays and is read again</source>
        <translation>export zostáva a číta sa znova</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>žiadny príkaz</translation>
    </message>
    <message>
        <source>register state %1 is %2</source>
        <translation>evidenčný stav %1 je %2</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Kľúč</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>V súbore</translation>
    </message>
    <message>
        <source>In force</source>
        <translation>Platí</translation>
    </message>
    <message>
        <source>The group defines no relationship state: nobody gets one.</source>
        <translation>Skupina nedefinuje žiadny stav pomeru: nikto ho nedostane.</translation>
    </message>
    <message>
        <source>The key is not a register state code; it counts as code 0.</source>
        <translation>Kľúč nie je kód evidenčného stavu; považuje sa za kód 0.</translation>
    </message>
    <message>
        <source>Only the low 16 bits of the code are kept: it counts as code %1.</source>
        <translation>Z kódu sa použije len dolných 16 bitov: považuje sa za kód %1.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than the %Ln character(s) that %1 has in reference-db/schema.sql: a column of that length refuses people in this state, or cuts the text.</source>
        <translation>
            <numerusform>Text je dlhší ako %Ln znak, ktorý má %1 v súbore reference-db/schema.sql: stĺpec tejto dĺžky osoby v tomto stave odmietne alebo text skráti.</numerusform>
            <numerusform>Text je dlhší ako %Ln znaky, ktoré má %1 v súbore reference-db/schema.sql: stĺpec tejto dĺžky osoby v tomto stave odmietne alebo text skráti.</numerusform>
            <numerusform>Text je dlhší ako %Ln znakov, ktoré má %1 v súbore reference-db/schema.sql: stĺpec tejto dĺžky osoby v tomto stave odmietne alebo text skráti.</numerusform>
        </translation>
    </message>
    <message>
        <source>The text contains an apostrophe, a backslash, a percent sign followed by a digit, or a character above U+FFFF. It enters the SQL statement unescaped: nobody in this state can be written.</source>
        <translation>Text obsahuje apostrof, opačnú lomku, znak percenta, za ktorým nasleduje číslica, alebo znak nad U+FFFF. Do príkazu SQL sa vkladá neošetrený: osoby v tomto stave sa nedajú zapísať.</translation>
    </message>
    <message>
        <source>%1 and %2 are the same code %3; the text of %2 is in force.</source>
        <translation>%1 a %2 sú ten istý kód %3; platí text kľúča %2.</translation>
    </message>
</context>
</TS>
