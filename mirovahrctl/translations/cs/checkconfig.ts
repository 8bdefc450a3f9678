<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Not every integer type holds the department id: it depends on the column of the site.</source>
        <translation>Id oddělení se nevejde do každého celočíselného typu: závisí na sloupci v databázi.</translation>
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
        <translation>Soubor obsahuje řádky, které nejsou ani klíč, ani skupina, ani komentář; ignorují se.</translation>
    </message>
    <message>
        <source>Compare the file with the sample MirovaHR.ini.</source>
        <translation>Porovnejte soubor se vzorovým souborem MirovaHR.ini.</translation>
    </message>
    <message>
        <source>The INI file does not exist, so every key has its default.</source>
        <translation>INI soubor neexistuje, takže každý klíč má výchozí hodnotu.</translation>
    </message>
    <message>
        <source>Start from the sample MirovaHR.ini that comes with the plugin.</source>
        <translation>Vyjděte ze vzorového souboru MirovaHR.ini, který se dodává se zásuvným modulem.</translation>
    </message>
    <message>
        <source>Every user of the machine can change the INI file.</source>
        <translation>INI soubor může změnit každý uživatel počítače.</translation>
    </message>
    <message>
        <source>Remove the permission with chmod o-w.</source>
        <translation>Odeberte oprávnění příkazem chmod o-w.</translation>
    </message>
    <message>
        <source>A flag has an empty value and is read as false.</source>
        <translation>Příznak má prázdnou hodnotu a čte se jako false.</translation>
    </message>
    <message>
        <source>Write true or false.</source>
        <translation>Napište true nebo false.</translation>
    </message>
    <message>
        <source>A flag has an unusual value and is read as true.</source>
        <translation>Příznak má neobvyklou hodnotu a čte se jako true.</translation>
    </message>
    <message>
        <source>The gate in syncCommand admits whatever has changed.</source>
        <translation>Brána v syncCommand přijme soubor bez ohledu na to, co se v něm změnilo.</translation>
    </message>
    <message>
        <source>Remove --accept from syncCommand: it is for one run by hand.</source>
        <translation>Odstraňte --accept ze syncCommand: je určeno k jednorázovému ručnímu spuštění.</translation>
    </message>
    <message>
        <source>The gate publishes to another file than the one that the plugin reads.</source>
        <translation>Brána zveřejňuje do jiného souboru, než který čte zásuvný modul.</translation>
    </message>
    <message>
        <source>Write the same path as importFile and behind --to.</source>
        <translation>Uveďte v importFile i za --to stejnou cestu.</translation>
    </message>
    <message>
        <source>The gate in syncCommand does not understand its options.</source>
        <translation>Brána v syncCommand nerozumí svým volbám.</translation>
    </message>
    <message>
        <source>Run the command by hand: it says which option is wrong. Compare it with the sample MirovaHR.ini.</source>
        <translation>Spusťte příkaz ručně: řekne, která volba je nesprávná. Porovnejte ho se vzorovým souborem MirovaHR.ini.</translation>
    </message>
    <message>
        <source>The gate publishes texts as HR wrote them, so that a name can become a statement.</source>
        <translation>Brána zveřejňuje texty tak, jak je napsalo personální oddělení, takže jméno se může stát příkazem SQL.</translation>
    </message>
    <message>
        <source>Leave out --texts as-is, unless HR writes the texts for SQL already.</source>
        <translation>Vynechte --texts as-is, pokud personální oddělení nepíše texty už upravené pro SQL.</translation>
    </message>
    <message>
        <source>importFile names something other than a regular file, which the plugin never reads.</source>
        <translation>importFile neoznačuje běžný soubor, proto ho zásuvný modul nikdy nepřečte.</translation>
    </message>
    <message>
        <source>Write the path of the export file itself.</source>
        <translation>Uveďte cestu k samotnému souboru exportu.</translation>
    </message>
    <message>
        <source>importFile is a relative path, so it depends on the server&apos;s working directory.</source>
        <translation>importFile je relativní cesta, takže závisí na pracovní složce serveru.</translation>
    </message>
    <message>
        <source>Write a path that begins with /.</source>
        <translation>Uveďte cestu, která začíná znakem /.</translation>
    </message>
    <message>
        <source>Every user of the machine can change the export.</source>
        <translation>Export může změnit každý uživatel počítače.</translation>
    </message>
    <message>
        <source>Let only HR&apos;s transfer write to it.</source>
        <translation>Zápis povolte jen přenosu z personálního oddělení.</translation>
    </message>
    <message>
        <source>The folder of the export does not exist.</source>
        <translation>Složka exportu neexistuje.</translation>
    </message>
    <message>
        <source>Create the folder, or correct the path.</source>
        <translation>Vytvořte složku nebo opravte cestu.</translation>
    </message>
    <message>
        <source>Every user of the machine can put an export of their own in place.</source>
        <translation>Na místo exportu může každý uživatel počítače podstrčit vlastní soubor.</translation>
    </message>
    <message>
        <source>Use a folder that only HR&apos;s transfer and the attendance server can write to, such as /var/lib/yav/import.</source>
        <translation>Použijte složku, do které může zapisovat jen přenos z personálního oddělení a docházkový server, například /var/lib/yav/import.</translation>
    </message>
    <message>
        <source>A key occurs more than once; the last line counts.</source>
        <translation>Klíč se vyskytuje vícekrát; platí poslední řádek.</translation>
    </message>
    <message>
        <source>Keep one of the lines.</source>
        <translation>Ponechte jeden z řádků.</translation>
    </message>
    <message>
        <source>A key of the group MES is not a register state code and counts as code 0.</source>
        <translation>Klíč skupiny MES není kód evidenčního stavu a považuje se za kód 0.</translation>
    </message>
    <message>
        <source>Write the code of HR as the key, in digits.</source>
        <translation>Jako klíč napište číslicemi kód personálního oddělení.</translation>
    </message>
    <message>
        <source>A code in the group MES exceeds 16 bits and counts as another code.</source>
        <translation>Kód ve skupině MES přesahuje 16 bitů a považuje se za jiný kód.</translation>
    </message>
    <message>
        <source>Write a code up to 65535.</source>
        <translation>Napište kód nejvýše 65535.</translation>
    </message>
    <message>
        <source>Two keys of the group MES are the same code; only one text is in force.</source>
        <translation>Dva klíče skupiny MES jsou stejný kód; platí jen jeden text.</translation>
    </message>
    <message>
        <source>Keep one of the two lines.</source>
        <translation>Ponechte jeden z obou řádků.</translation>
    </message>
    <message>
        <source>The text of a relationship state breaks the statement that it enters.</source>
        <translation>Text stavu poměru naruší příkaz, do kterého se vloží.</translation>
    </message>
    <message>
        <source>Write the text without these characters.</source>
        <translation>Napište text bez těchto znaků.</translation>
    </message>
    <message>
        <source>The text of a relationship state is longer than the column of the reference schema.</source>
        <translation>Text stavu poměru je delší než sloupec referenčního schématu.</translation>
    </message>
    <message>
        <source>Shorten the text, or ask check-db --config whether the column of the site holds it.</source>
        <translation>Zkraťte text nebo pomocí check-db --config ověřte, zda se vejde do sloupce v databázi.</translation>
    </message>
    <message>
        <source>New and updated people belong to no department.</source>
        <translation>Nové a aktualizované osoby nepatří do žádného oddělení.</translation>
    </message>
    <message>
        <source>No gate keeps damaged files of HR from the plugin.</source>
        <translation>Zásuvný modul před poškozenými soubory z personálního oddělení nechrání žádná brána.</translation>
    </message>
    <message>
        <source>Make mirovahrctl gate the syncCommand, as the sample MirovaHR.ini does.</source>
        <translation>Nastavte mirovahrctl gate jako syncCommand, podle vzorového souboru MirovaHR.ini.</translation>
    </message>
    <message>
        <source>The group MES defines no relationship state, so nobody gets one.</source>
        <translation>Skupina MES nedefinuje žádný stav poměru, takže ho nikdo nedostane.</translation>
    </message>
    <message>
        <source>A number is not a whole number and is read as 0.</source>
        <translation>Hodnota není celé číslo a čte se jako 0.</translation>
    </message>
    <message>
        <source>Write digits only, without sign, unit, point or comma.</source>
        <translation>Napište jen číslice, bez znaménka, jednotky, tečky a čárky.</translation>
    </message>
    <message>
        <source>A number exceeds 32 bits and is read as another number.</source>
        <translation>Číslo přesahuje 32 bitů a čte se jako jiné číslo.</translation>
    </message>
    <message>
        <source>Write a number up to 4294967295.</source>
        <translation>Napište číslo nejvýše 4294967295.</translation>
    </message>
    <message>
        <source>syncCommandRun demands a command, but there is none.</source>
        <translation>syncCommandRun vyžaduje příkaz, ale žádný není uveden.</translation>
    </message>
    <message>
        <source>Write the command, or syncCommandRun=0.</source>
        <translation>Uveďte příkaz nebo nastavte syncCommandRun=0.</translation>
    </message>
    <message>
        <source>There is a command, but syncCommandRun never runs it.</source>
        <translation>Příkaz je uveden, ale syncCommandRun ho nikdy nespustí.</translation>
    </message>
    <message>
        <source>Write syncCommandRun=1 for a forced synchronisation, 2 for every one.</source>
        <translation>Nastavte syncCommandRun=1 (jen před vynucenou synchronizací) nebo 2 (před každou).</translation>
    </message>
    <message>
        <source>The program of syncCommand does not exist or is not executable.</source>
        <translation>Program ze syncCommand neexistuje nebo není spustitelný.</translation>
    </message>
    <message>
        <source>Write the program with its full path. No shell reads the line.</source>
        <translation>Uveďte program s úplnou cestou. Řádek nezpracovává žádný shell.</translation>
    </message>
    <message>
        <source>syncCommandRun exceeds 8 bits and counts as another number.</source>
        <translation>syncCommandRun přesahuje 8 bitů a považuje se za jiné číslo.</translation>
    </message>
    <message>
        <source>Write 0 for never, 1 for a forced synchronisation, 2 for every one.</source>
        <translation>Napište 0 (nikdy), 1 (jen před vynucenou synchronizací) nebo 2 (před každou).</translation>
    </message>
    <message>
        <source>syncInterval is 0 and counts as 1: every tick synchronises.</source>
        <translation>syncInterval je 0 a považuje se za 1: synchronizuje se při každém taktu.</translation>
    </message>
    <message>
        <source>Write the number of ticks between two synchronisations.</source>
        <translation>Napište počet taktů mezi dvěma synchronizacemi.</translation>
    </message>
    <message>
        <source>Test mode is on: people are neither created nor updated.</source>
        <translation>Je zapnut zkušební režim: osoby se nevytvářejí ani neaktualizují.</translation>
    </message>
    <message>
        <source>Write testMode=false for normal work.</source>
        <translation>Pro běžný provoz nastavte testMode=false.</translation>
    </message>
    <message>
        <source>timerInterval exceeds 32 bits of milliseconds, so the plugin ticks at another period.</source>
        <translation>timerInterval v milisekundách přesahuje 32 bitů, takže takty mají jiný interval.</translation>
    </message>
    <message>
        <source>Write at most 2147483.</source>
        <translation>Napište nejvýše 2147483.</translation>
    </message>
    <message>
        <source>timerInterval exceeds the limit of a timer, so the plugin ticks at another period.</source>
        <translation>timerInterval přesahuje možnosti časovače, takže takty mají jiný interval.</translation>
    </message>
    <message>
        <source>timerInterval is below a second; the plugin ticks every second.</source>
        <translation>timerInterval je kratší než sekunda; takt nastává každou sekundu.</translation>
    </message>
    <message>
        <source>Write the seconds between two ticks, 60 for a minute.</source>
        <translation>Napište počet sekund mezi dvěma takty, 60 pro minutu.</translation>
    </message>
    <message>
        <source>The plugin does not know the key; the line has no effect.</source>
        <translation>Zásuvný modul tento klíč nezná; řádek nemá žádný účinek.</translation>
    </message>
    <message>
        <source>Remove the line or correct the key: keys are case-sensitive, and comments begin with a semicolon.</source>
        <translation>Odstraňte řádek nebo opravte klíč: v klíčích se rozlišují velká a malá písmena a komentáře začínají středníkem.</translation>
    </message>
    <message>
        <source>A text has a comma outside quotation marks and is read as empty.</source>
        <translation>Text obsahuje čárku mimo uvozovky a čte se jako prázdný.</translation>
    </message>
    <message>
        <source>Put the whole value in quotation marks.</source>
        <translation>Dejte celou hodnotu do uvozovek.</translation>
    </message>
    <message>
        <source>A value has a semicolon outside quotation marks and ends there.</source>
        <translation>Hodnota obsahuje středník mimo uvozovky a na tom místě končí.</translation>
    </message>
    <message>
        <source>Reads the plugin&apos;s INI file exactly as the plugin does. Shows for each key what will be in force, and reports what is wrong. Needs no database, and changes nothing.</source>
        <translation>Přečte INI soubor zásuvného modulu přesně tak, jak ho čte zásuvný modul. U každého klíče ukáže, co bude platit, a ohlásí, co je nesprávné. Nepotřebuje databázi a nic nemění.</translation>
    </message>
    <message>
        <source>Nothing is wrong with the configuration.</source>
        <translation>Konfigurace je v pořádku.</translation>
    </message>
    <message>
        <source>The configuration needs attention.</source>
        <translation>Konfigurace vyžaduje pozornost.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a readable file</source>
        <translation>„%1“ není čitelný soubor</translation>
    </message>
    <message>
        <source>Configuration %1</source>
        <translation>Konfigurace %1</translation>
    </message>
    <message>
        <source>What is in force</source>
        <translation>Co platí</translation>
    </message>
    <message>
        <source>The plugin reads the file once, when the attendance server loads the plugin. A change takes effect at the next start of the server.</source>
        <translation>Zásuvný modul přečte soubor jen jednou, když ho načte docházkový server. Změna se projeví až po dalším spuštění serveru.</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The INI file; /etc/yav/MirovaHR.ini when left out.</source>
        <translation>INI soubor; pokud se neuvede, /etc/yav/MirovaHR.ini.</translation>
    </message>
    <message>
        <source>Begin comments with a semicolon, not with #.</source>
        <translation>Komentáře začínejte středníkem, ne znakem #.</translation>
    </message>
    <message>
        <source>Remove the line, or see the sample MirovaHR.ini for the known keys.</source>
        <translation>Odstraňte řádek nebo si známé klíče vyhledejte ve vzorovém souboru MirovaHR.ini.</translation>
    </message>
    <message>
        <source>Perhaps %1 is meant: keys are case-sensitive, and this one belongs before the first group.</source>
        <translation>Možná má jít o %1: v klíčích se rozlišují velká a malá písmena a tento patří před první skupinu.</translation>
    </message>
    <message>
        <source>The file does not exist: every key has its default.</source>
        <translation>Soubor neexistuje: každý klíč má výchozí hodnotu.</translation>
    </message>
    <message>
        <source>The file has lines that are neither key=value, nor [group], nor a comment; they are ignored.</source>
        <translation>Soubor obsahuje řádky, které nejsou ani klíč=hodnota, ani [skupina], ani komentář; ignorují se.</translation>
    </message>
    <message>
        <source>Every user of the machine can change this file, and with syncCommand run programs as the attendance server.</source>
        <translation>Tento soubor může změnit každý uživatel počítače a pomocí syncCommand spouštět programy s oprávněními docházkového serveru.</translation>
    </message>
    <message>
        <source>Remove the permission: chmod o-w &apos;%1&apos;.</source>
        <translation>Odeberte oprávnění: chmod o-w &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The key occurs more than once; the last line counts.</source>
        <translation>Klíč se vyskytuje vícekrát; platí poslední řádek.</translation>
    </message>
    <message>
        <source>The plugin does not know this key; the line has no effect.</source>
        <translation>Zásuvný modul tento klíč nezná; řádek nemá žádný účinek.</translation>
    </message>
    <message>
        <source>The value ends at the semicolon; the rest of the line is a comment.</source>
        <translation>Hodnota končí středníkem; zbytek řádku je komentář.</translation>
    </message>
    <message>
        <source>%1 is read as true, like everything except 0, false and an empty value.</source>
        <translation>%1 se čte jako true, stejně jako vše kromě 0, false a prázdné hodnoty.</translation>
    </message>
    <message>
        <source>An empty value is read as false.</source>
        <translation>Prázdná hodnota se čte jako false.</translation>
    </message>
    <message>
        <source>%1 is not a whole number and is read as 0.</source>
        <translation>%1 není celé číslo a čte se jako 0.</translation>
    </message>
    <message>
        <source>%1 is too large and is read as %2.</source>
        <translation>%1 je příliš velké číslo a čte se jako %2.</translation>
    </message>
    <message>
        <source>Write a number up to %1.</source>
        <translation>Napište číslo nejvýše %1.</translation>
    </message>
    <message>
        <source>The text has a comma outside quotation marks and is read as empty.</source>
        <translation>Text obsahuje čárku mimo uvozovky a čte se jako prázdný.</translation>
    </message>
    <message>
        <source>The plugin is switched off: it does nothing at all.</source>
        <translation>Zásuvný modul je vypnutý: nedělá vůbec nic.</translation>
    </message>
    <message>
        <source>Test mode is on: people are neither created nor updated. Branches, calendars, balances, supervisors and terminals are still written.</source>
        <translation>Je zapnut zkušební režim: osoby se nevytvářejí ani neaktualizují. Pobočky, kalendáře, zůstatky, nadřízení a terminály se zapisují i tak.</translation>
    </message>
    <message>
        <source>Whether the database holds the department %1 depends on the type of %2 there: check-db --config reports it.</source>
        <translation>Zda se oddělení %1 vejde do databáze, závisí na typu sloupce %2: ověří to check-db --config.</translation>
    </message>
    <message>
        <source>%1 seconds exceed 32 bits of milliseconds: the plugin ticks every %2 ms.</source>
        <translation>%1 s v milisekundách přesahuje 32 bitů: interval taktů je %2 ms.</translation>
    </message>
    <message>
        <source>The plugin ticks every second: the period is never shorter.</source>
        <translation>Takt nastává každou sekundu: kratší interval není možný.</translation>
    </message>
    <message>
        <source>The period exceeds the limit of a timer: the plugin ticks every %1 ms.</source>
        <translation>Interval přesahuje možnosti časovače: interval taktů je %1 ms.</translation>
    </message>
    <message>
        <source>0 counts as 1: every tick synchronises.</source>
        <translation>0 se považuje za 1: synchronizuje se při každém taktu.</translation>
    </message>
    <message>
        <source>The path is relative: what it names depends on the folder in which the attendance server was started.</source>
        <translation>Cesta je relativní: její význam závisí na složce, ve které byl spuštěn docházkový server.</translation>
    </message>
    <message>
        <source>%1 is not a regular file: the plugin never reads it.</source>
        <translation>%1 není běžný soubor: zásuvný modul ho nikdy nepřečte.</translation>
    </message>
    <message>
        <source>Every user of the machine can change %1. Its texts enter SQL statements unescaped.</source>
        <translation>%1 může změnit každý uživatel počítače. Texty z něj se do příkazů SQL vkládají neošetřené.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist, so there is never an export.</source>
        <translation>Složka %1 neexistuje, takže export se tam nikdy neobjeví.</translation>
    </message>
    <message>
        <source>The export is read from %1, and every user of the machine can put an export of their own there: %2 is writable for everybody. Its texts enter SQL statements unescaped.</source>
        <translation>Export se čte z %1 a každý uživatel počítače tam může podstrčit vlastní: do %2 může zapisovat kdokoli. Texty z exportu se do příkazů SQL vkládají neošetřené.</translation>
    </message>
    <message>
        <source>syncCommandRun demands a command, but there is none: the plugin logs a warning each time.</source>
        <translation>syncCommandRun vyžaduje příkaz, ale žádný není uveden: zásuvný modul pokaždé zapíše do protokolu upozornění.</translation>
    </message>
    <message>
        <source>The command is never run, because syncCommandRun is 0.</source>
        <translation>Příkaz se nikdy nespustí, protože syncCommandRun je 0.</translation>
    </message>
    <message>
        <source>There is no executable program &apos;%1&apos;.</source>
        <translation>Spustitelný program „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>Only the low 8 bits of %1 are kept: it counts as %2.</source>
        <translation>Z hodnoty %1 se použije jen dolních 8 bitů: považuje se za %2.</translation>
    </message>
    <message>
        <source>syncCommand runs no gate. Unless another program runs one, what HR exports reaches the database unexamined.</source>
        <translation>syncCommand nespouští bránu. Pokud ji nespouští jiný program, export personálního oddělení se dostane do databáze bez kontroly.</translation>
    </message>
    <message>
        <source>The gate does not understand its options, so it publishes nothing.</source>
        <translation>Brána nerozumí svým volbám, takže nic nezveřejní.</translation>
    </message>
    <message>
        <source>The gate publishes to %1, but the plugin reads %2.</source>
        <translation>Brána zveřejňuje do %1, ale zásuvný modul čte %2.</translation>
    </message>
    <message>
        <source>The gate publishes texts as HR wrote them: they enter SQL statements unescaped.</source>
        <translation>Brána zveřejňuje texty tak, jak je napsalo personální oddělení: do příkazů SQL se vkládají neošetřené.</translation>
    </message>
    <message>
        <source>With --accept the gate admits a file whatever is missing or has changed in it.</source>
        <translation>S volbou --accept brána přijme soubor bez ohledu na to, co v něm chybí nebo se změnilo.</translation>
    </message>
    <message numerus="yes">
        <source>a synchronisation at the first tick, then every %Ln tick(s), which is %1</source>
        <translation>
            <numerusform>synchronizace při prvním taktu, potom každý %Ln takt, což je %1</numerusform>
            <numerusform>synchronizace při prvním taktu, potom každé %Ln takty, což je %1</numerusform>
            <numerusform>synchronizace při prvním taktu, potom každých %Ln taktů, což je %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the command is never run</source>
        <translation>příkaz se nikdy nespustí</translation>
    </message>
    <message>
        <source>the command is run before a forced synchronisation only</source>
        <translation>příkaz se spustí jen před vynucenou synchronizací</translation>
    </message>
    <message>
        <source>the command is run before every synchronisation</source>
        <translation>příkaz se spustí před každou synchronizací</translation>
    </message>
    <message>
        <source>the plugin works</source>
        <translation>zásuvný modul pracuje</translation>
    </message>
    <message>
        <source>the plugin does nothing</source>
        <translation>zásuvný modul nedělá nic</translation>
    </message>
    <message>
        <source>a tick every %1</source>
        <translation>interval taktů: %1</translation>
    </message>
    <message>
        <source>people are only logged, not written</source>
        <translation>osoby se jen zapisují do protokolu, ne do databáze</translation>
    </message>
    <message>
        <source>people are written</source>
        <translation>osoby se zapisují do databáze</translation>
    </message>
    <message>
        <source>people have no department</source>
        <translation>osoby nemají oddělení</translation>
    </message>
    <message>
        <source>people are in department %1</source>
        <translation>osoby jsou v oddělení %1</translation>
    </message>
    <message>
        <source>the export is read from %1</source>
        <translation>export se čte z %1</translation>
    </message>
    <message>
        <source>the export is removed after it was read</source>
        <translation>export se po přečtení odstraní</translation>
    </message>
    <message>
        <source>the export stays and is read again</source>
        <translation>export zůstává a čte se znovu</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>žádný příkaz</translation>
    </message>
    <message>
        <source>register state %1 is %2</source>
        <translation>evidenční stav %1 je %2</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Klíč</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>V souboru</translation>
    </message>
    <message>
        <source>In force</source>
        <translation>Platí</translation>
    </message>
    <message>
        <source>The group defines no relationship state: nobody gets one.</source>
        <translation>Skupina nedefinuje žádný stav poměru: nikdo ho nedostane.</translation>
    </message>
    <message>
        <source>The key is not a register state code; it counts as code 0.</source>
        <translation>Klíč není kód evidenčního stavu; považuje se za kód 0.</translation>
    </message>
    <message>
        <source>Only the low 16 bits of the code are kept: it counts as code %1.</source>
        <translation>Z kódu se použije jen dolních 16 bitů: považuje se za kód %1.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than the %Ln character(s) that %1 has in reference-db/schema.sql: a column of that length refuses people in this state, or cuts the text.</source>
        <translation>
            <numerusform>Text je delší než %Ln znak, který má %1 v souboru reference-db/schema.sql: sloupec této délky osoby v tomto stavu odmítne nebo text zkrátí.</numerusform>
            <numerusform>Text je delší než %Ln znaky, které má %1 v souboru reference-db/schema.sql: sloupec této délky osoby v tomto stavu odmítne nebo text zkrátí.</numerusform>
            <numerusform>Text je delší než %Ln znaků, které má %1 v souboru reference-db/schema.sql: sloupec této délky osoby v tomto stavu odmítne nebo text zkrátí.</numerusform>
        </translation>
    </message>
    <message>
        <source>The text contains an apostrophe, a backslash, a percent sign followed by a digit, or a character above U+FFFF. It enters the SQL statement unescaped: nobody in this state can be written.</source>
        <translation>Text obsahuje apostrof, zpětné lomítko, znak procenta, za nímž následuje číslice, nebo znak nad U+FFFF. Do příkazu SQL se vkládá neošetřený: osoby v tomto stavu nelze zapsat.</translation>
    </message>
    <message>
        <source>%1 and %2 are the same code %3; the text of %2 is in force.</source>
        <translation>%1 a %2 jsou stejný kód %3; platí text klíče %2.</translation>
    </message>
</context>
</TS>
