<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>Shows what a forced synchronisation with an export would change in the attendance database, by doing it: copies the rows and routines that the plugin reaches into a private database server, lets the plugin&apos;s own code synchronise the copy, and reports what happens to each person. Only reads the site&apos;s database, keeps the export, and removes the copy afterwards. Needs MariaDB&apos;s server programs on this machine, and twice the room of these rows in the folder for temporary files.</source>
        <translation>Ukáže, co by vynucená synchronizace s exportem změnila v docházkové databázi, a to tak, že ji provede: zkopíruje řádky a uložené procedury, se kterými zásuvný modul pracuje, do soukromého databázového serveru, nechá kopii synchronizovat vlastním kódem zásuvného modulu a oznámí, co se děje s každou osobou. Databázi pouze čte, export ponechá a kopii nakonec odstraní. Vyžaduje serverové programy MariaDB na tomto počítači a ve složce pro dočasné soubory dvojnásobek místa, které tyto řádky zabírají.</translation>
    </message>
    <message>
        <source>--details shows everything, --html a page, --person one person</source>
        <translation>--details ukáže vše, --html stránku, --person jednu osobu</translation>
    </message>
    <message>
        <source>What %1 does not take back</source>
        <translation>Co %1 nevrátí zpět</translation>
    </message>
    <message>
        <source>Neither the database nor the export has a person &apos;%1&apos;</source>
        <translation>Osoba „%1“ není v databázi ani v exportu</translation>
    </message>
    <message>
        <source>Preview of HR export %1 for person %2</source>
        <translation>Náhled exportu personálního oddělení %1 pro osobu %2</translation>
    </message>
    <message>
        <source>Preview of HR export %1</source>
        <translation>Náhled exportu personálního oddělení %1</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos;</source>
        <translation>Soubor „%1“ neexistuje</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read</source>
        <translation>„%1“ nelze přečíst</translation>
    </message>
    <message>
        <source>--partial belongs to --undo</source>
        <translation>--partial patří k --undo</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The export.</source>
        <translation>Export.</translation>
    </message>
    <message>
        <source>Show only the verdict, the findings and the totals.</source>
        <translation>Ukáže pouze závěr, nálezy a součty.</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>Show only what happens to one person: a payroll id such as 1234.1, a personal number or a pid.</source>
        <translation>Ukáže pouze to, co se děje s jednou osobou: identifikátor pro mzdy, například 1234.1, osobní číslo nebo pid.</translation>
    </message>
    <message>
        <source>Show everybody, not only the first, and the bookkeeping.</source>
        <translation>Ukáže všechny osoby, nejen první, a také vedlejší změny.</translation>
    </message>
    <message>
        <source>Also write the differences as SQL statements.</source>
        <translation>Zapíše rozdíly také jako příkazy SQL.</translation>
    </message>
    <message>
        <source>Also write SQL statements that take the differences back after the synchronisation.</source>
        <translation>Zapíše také příkazy SQL, které po synchronizaci vrátí rozdíly zpět.</translation>
    </message>
    <message>
        <source>Let these statements take back all other rows when somebody has changed one, not none.</source>
        <translation>Pokud někdo některý řádek změnil, tyto příkazy vrátí zpět všechny ostatní řádky, nikoli žádný.</translation>
    </message>
    <message>
        <source>Also write the plugin&apos;s whole log of the synchronisation.</source>
        <translation>Zapíše také celý protokol zásuvného modulu ze synchronizace.</translation>
    </message>
    <message>
        <source>Also copy the rows that a synchronisation does not reach.</source>
        <translation>Zkopíruje také řádky, se kterými synchronizace nepracuje.</translation>
    </message>
    <message>
        <source>none</source>
        <comment>value of a field</comment>
        <translation>prázdné</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 a %Ln další</numerusform>
            <numerusform>%1 a %Ln další</numerusform>
            <numerusform>%1 a %Ln dalších</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each of these %Ln people</source>
        <translation>
            <numerusform>Každá z těchto %Ln osob</numerusform>
            <numerusform>Každá z těchto %Ln osob</numerusform>
            <numerusform>Každá z těchto %Ln osob</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy cannot be created</source>
        <translation>Kopii nelze vytvořit</translation>
    </message>
    <message>
        <source>The table %1 cannot be created in the copy</source>
        <translation>Tabulku %1 nelze v kopii vytvořit</translation>
    </message>
    <message>
        <source>The table %1 cannot be copied</source>
        <translation>Tabulku %1 nelze zkopírovat</translation>
    </message>
    <message>
        <source>The table %1 cannot be kept for comparison</source>
        <translation>Tabulku %1 nelze uchovat k porovnání</translation>
    </message>
    <message>
        <source>%1 cannot be created in the copy</source>
        <translation>%1 nelze v kopii vytvořit</translation>
    </message>
    <message>
        <source>the person with the uid %1</source>
        <translation>osoba s uid %1</translation>
    </message>
    <message>
        <source>the person with the pid %1</source>
        <translation>osoba s pid %1</translation>
    </message>
    <message>
        <source>branch %1</source>
        <translation>pobočka %1</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>skupina %1</translation>
    </message>
    <message>
        <source>group %1 (calendar %2)</source>
        <translation>skupina %1 (kalendář %2)</translation>
    </message>
    <message>
        <source>administrator %1 (%2)</source>
        <translation>administrátor %1 (%2)</translation>
    </message>
    <message>
        <source>administrator %1</source>
        <translation>administrátor %1</translation>
    </message>
    <message>
        <source>administrator %1 (personal number %2)</source>
        <translation>administrátor %1 (osobní číslo %2)</translation>
    </message>
    <message>
        <source>terminal %1</source>
        <translation>terminál %1</translation>
    </message>
    <message>
        <source>terminal %1 (%2)</source>
        <translation>terminál %1 (%2)</translation>
    </message>
    <message>
        <source>The plugin cannot open the copy. It logs &quot;%1&quot;</source>
        <translation>Zásuvný modul nemůže otevřít kopii. Do protokolu zapisuje „%1“</translation>
    </message>
    <message>
        <source>The plugin cannot load the people of this database and would synchronise nobody. It logs &quot;%1&quot;. Run check-db for details</source>
        <translation>Zásuvný modul nemůže načíst osoby z této databáze a nesynchronizoval by nikoho. Do protokolu zapisuje „%1“. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>The plugin cannot load the branches of this database; everybody whom it writes would lose the branch. It logs &quot;%1&quot;. Run check-db for details</source>
        <translation>Zásuvný modul nemůže načíst pobočky z této databáze; každá osoba, kterou zapíše, by přišla o pobočku. Do protokolu zapisuje „%1“. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read to its end: the plugin would log &quot;%2&quot;</source>
        <translation>„%1“ nelze přečíst do konce: zásuvný modul by do protokolu zapsal „%2“</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s)</source>
        <translation>
            <numerusform>%Ln osoba</numerusform>
            <numerusform>%Ln osoby</numerusform>
            <numerusform>%Ln osob</numerusform>
        </translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Afterwards</source>
        <translation>Poté</translation>
    </message>
    <message>
        <source>Bookkeeping</source>
        <translation>Vedlejší změna</translation>
    </message>
    <message numerus="yes">
        <source>%Ln person(s)</source>
        <comment>whom a synchronisation would create or change</comment>
        <translation>
            <numerusform>%Ln osobu</numerusform>
            <numerusform>%Ln osoby</numerusform>
            <numerusform>%Ln osob</numerusform>
        </translation>
    </message>
    <message>
        <source>A synchronisation would create %1 and change %2.</source>
        <translation>Synchronizace by vytvořila %1 a změnila %2.</translation>
    </message>
    <message>
        <source>A synchronisation would create %1.</source>
        <translation>Synchronizace by vytvořila %1.</translation>
    </message>
    <message>
        <source>A synchronisation would change %1.</source>
        <translation>Synchronizace by změnila %1.</translation>
    </message>
    <message>
        <source>A synchronisation would change nothing.</source>
        <translation>Synchronizace by nezměnila nic.</translation>
    </message>
    <message numerus="yes">
        <source>A synchronisation would change nobody, only %Ln row(s) besides.</source>
        <translation>
            <numerusform>Synchronizace by nezměnila žádnou osobu, pouze %Ln jiný řádek.</numerusform>
            <numerusform>Synchronizace by nezměnila žádnou osobu, pouze %Ln jiné řádky.</numerusform>
            <numerusform>Synchronizace by nezměnila žádnou osobu, pouze %Ln jiných řádků.</numerusform>
        </translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Nálezy</translation>
    </message>
    <message>
        <source>The plugin is disabled in the configuration: it would not synchronise at all.</source>
        <translation>Zásuvný modul je v konfiguraci vypnutý: vůbec by nesynchronizoval.</translation>
    </message>
    <message>
        <source>Test mode is on: people are only logged, not written.</source>
        <translation>Je zapnut zkušební režim: osoby se jen zapisují do protokolu, ne do databáze.</translation>
    </message>
    <message>
        <source>This account is not allowed to see the triggers of these tables: %1. The preview lacks whatever triggers do there.</source>
        <translation>Tento účet nesmí vidět triggery těchto tabulek: %1. V náhledu chybí vše, co tam triggery dělají.</translation>
    </message>
    <message>
        <source>The engine of these tables does not support snapshots; they were copied one after the other: %1.</source>
        <translation>Úložiště těchto tabulek nepodporuje snímky; kopírovaly se jedna po druhé: %1.</translation>
    </message>
    <message>
        <source>Routines or triggers seem to use views, which are not copied: %1.</source>
        <translation>Uložené procedury nebo triggery zřejmě používají pohledy, které se nekopírují: %1.</translation>
    </message>
    <message>
        <source>The site&apos;s server is version %1, the copy was on version %2.</source>
        <translation>Databázový server má verzi %1, kopie byla na verzi %2.</translation>
    </message>
    <message>
        <source>People with bookkeeping only</source>
        <translation>Osoby, u kterých jsou pouze vedlejší změny</translation>
    </message>
    <message>
        <source>Rows that would change</source>
        <translation>Řádky, které by se změnily</translation>
    </message>
    <message>
        <source>The plugin&apos;s warnings</source>
        <translation>Upozornění zásuvného modulu</translation>
    </message>
    <message>
        <source>What is left out</source>
        <translation>Co se neporovnává</translation>
    </message>
    <message>
        <source>%1 This is the forced synchronisation of a plugin that was just started: an ordinary one skips people whose line has not changed, and a running plugin remembers more than the database holds. It is valid for today, %2, and for the database as it was when it was copied; moments of writing are shown as &quot;now&quot;. The plugin&apos;s warnings are those of its log: check-file reports lines that it drops silently, check-db rights that its account lacks.</source>
        <translation>%1 Toto je vynucená synchronizace právě spuštěného zásuvného modulu: běžná synchronizace přeskakuje osoby, jejichž řádek se nezměnil, a běžící zásuvný modul si pamatuje víc, než obsahuje databáze. Platí pro dnešní den, %2, a pro databázi ve stavu, v jakém se zkopírovala; čas zápisu se zobrazuje jako „nyní“. Upozornění zásuvného modulu pocházejí z jeho protokolu: řádky, které bez oznámení vynechává, uvádí check-file, oprávnění, která jeho účtu chybějí, check-db.</translation>
    </message>
    <message>
        <source>The plugin would run its export command first. It was not run: this is the preview of the file as it is.</source>
        <translation>Zásuvný modul by nejprve spustil svůj příkaz exportu. Ten se nespustil: toto je náhled souboru v jeho současné podobě.</translation>
    </message>
    <message>
        <source>The plugin would remove the export after reading it. It was not removed.</source>
        <translation>Zásuvný modul by export po přečtení odstranil. Export se neodstranil.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin would warn %Ln time(s).</source>
        <translation>
            <numerusform>Zásuvný modul by zapsal %Ln upozornění.</numerusform>
            <numerusform>Zásuvný modul by zapsal %Ln upozornění.</numerusform>
            <numerusform>Zásuvný modul by zapsal %Ln upozornění.</numerusform>
        </translation>
    </message>
    <message>
        <source>The plugin already has a connection to another database</source>
        <translation>Zásuvný modul už má spojení s jinou databází</translation>
    </message>
    <message>
        <source>This account is not allowed to read the text of the trigger %1: it lacks TRIGGER on its table</source>
        <translation>Tento účet nesmí číst text triggeru %1: chybí mu oprávnění TRIGGER k jeho tabulce</translation>
    </message>
    <message>
        <source>This account is not allowed to read the text of the function %1: it lacks SELECT on mysql.proc</source>
        <translation>Tento účet nesmí číst text funkce %1: chybí mu oprávnění SELECT k mysql.proc</translation>
    </message>
    <message>
        <source>This account is not allowed to read the text of the procedure %1: it lacks SELECT on mysql.proc</source>
        <translation>Tento účet nesmí číst text procedury %1: chybí mu oprávnění SELECT k mysql.proc</translation>
    </message>
    <message>
        <source>The site&apos;s database cannot be read: %1</source>
        <translation>Databázi nelze číst: %1</translation>
    </message>
    <message>
        <source>There is no table %1, or this account is not allowed to see it: it needs SELECT on %1. Run check-db for details</source>
        <translation>Tabulka %1 neexistuje nebo ji tento účet nesmí vidět: potřebuje oprávnění SELECT k %1. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>There is no routine %1, or this account is not allowed to see it: it needs SELECT on mysql.proc. Run check-db for details</source>
        <translation>Uložená procedura %1 neexistuje nebo ji tento účet nesmí vidět: potřebuje oprávnění SELECT k mysql.proc. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>%1 is not a table but a %2, which cannot be copied</source>
        <translation>%1 není tabulka (ale %2), proto ji nelze zkopírovat</translation>
    </message>
    <message>
        <source>This account is not allowed to read the table %1: it lacks SELECT on the whole table</source>
        <translation>Tento účet nesmí číst tabulku %1: chybí mu oprávnění SELECT k celé tabulce</translation>
    </message>
    <message>
        <source>The table %1 refers to the database %2, which is not copied</source>
        <translation>Tabulka %1 odkazuje na databázi %2, která se nekopíruje</translation>
    </message>
    <message>
        <source>There is no table that %1 refers to, %2, or this account is not allowed to see it: it needs SELECT on %2. Run check-db for details</source>
        <translation>Tabulka, na kterou odkazuje %1 (%2), neexistuje nebo ji tento účet nesmí vidět: potřebuje oprávnění SELECT k %2. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because a text in line %1 of the export changes the plugin&apos;s statements</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože text v řádku %1 exportu mění příkazy zásuvného modulu</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because a relationship state of the configuration changes the plugin&apos;s statements</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože stav poměru v konfiguraci mění příkazy zásuvného modulu</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because the site has triggers, such as %1</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože databáze má triggery, například %1</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because the routine %1 runs statements that it makes</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože uložená procedura %1 spouští příkazy, které sama sestavuje</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because the routine %2 uses it</source>
        <translation>Zkopírovaly se všechny řádky tabulky %1, protože ji používá uložená procedura %2</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because %1.%2 is not a number</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože %1.%2 není číslo</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because the server does not count people.uid</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože people.uid nečísluje server</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because it has the unique key %2</source>
        <translation>Zkopírovaly se všechny řádky tabulky %1, protože má jedinečný klíč %2</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because %2 refers to it</source>
        <translation>Zkopírovaly se všechny řádky tabulky %1, protože na ni odkazuje %2</translation>
    </message>
    <message>
        <source>All rows of %1 were copied, because it refers to %2</source>
        <translation>Zkopírovaly se všechny řádky tabulky %1, protože odkazuje na %2</translation>
    </message>
    <message>
        <source>All rows of all tables were copied, because there are ids that are no whole numbers of 32 bits</source>
        <translation>Zkopírovaly se všechny řádky všech tabulek, protože některé identifikátory nejsou celá čísla s 32 bity</translation>
    </message>
    <message>
        <source>--undo writes statements of MariaDB, and the site&apos;s server is version %1</source>
        <translation>--undo zapisuje příkazy pro MariaDB, ale databázový server má verzi %1</translation>
    </message>
    <message>
        <source>The differences cannot be taken back, since no key identifies the rows of %1. Run check-db for details</source>
        <translation>Rozdíly nelze vrátit zpět, protože řádky %1 neurčuje žádný klíč. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>What a terminal has fetched from its queue. The statements name the rows that are no longer in the queue: send these people to the terminals again.</source>
        <translation>To, co si terminál už načetl ze své fronty. Příkazy uvedou řádky, které už ve frontě nejsou: pošlete tyto osoby do terminálů znovu.</translation>
    </message>
    <message>
        <source>The uids of new people: they are used up, and the next person gets another one.</source>
        <translation>Hodnoty uid nových osob: jsou už použité a další osoba dostane jiné.</translation>
    </message>
    <message>
        <source>What others have written for new people, such as days of attendance.</source>
        <translation>To, co pro nové osoby zapsali jiní, například dny docházky.</translation>
    </message>
    <message>
        <source>Attendance that was calculated with what the synchronisation has written. The statements name these people: let it be calculated again.</source>
        <translation>Docházka, která se vypočítala s tím, co zapsala synchronizace. Příkazy tyto osoby uvedou: nechte jejich docházku vypočítat znovu.</translation>
    </message>
    <message>
        <source>A payroll export that was made in between.</source>
        <translation>Export pro mzdy, který se mezitím vytvořil.</translation>
    </message>
    <message>
        <source>What triggers and routines of the site have changed in %1.</source>
        <translation>To, co triggery a uložené procedury databáze změnily v těchto tabulkách: %1.</translation>
    </message>
    <message>
        <source>What the site&apos;s triggers do when the rows are taken back: they fire again (%1).</source>
        <translation>To, co triggery databáze udělají, když se řádky vracejí zpět: spustí se znovu (%1).</translation>
    </message>
    <message>
        <source>What triggers do that this account is not allowed to see, of these tables: %1.</source>
        <translation>To, co dělají triggery, které tento účet nesmí vidět, v těchto tabulkách: %1.</translation>
    </message>
    <message>
        <source>The flag that forces a synchronisation: it would force another one.</source>
        <translation>Příznak, který vynucuje synchronizaci: vynutil by další.</translation>
    </message>
    <message>
        <source>A failure in the middle: these tables have no transactions, and what is written by then stays: %1. They are locked meanwhile, and written only when all rows have been checked.</source>
        <translation>Selhání uprostřed: tyto tabulky nemají transakce a to, co je do té doby zapsáno, v nich zůstane: %1. Mezitím jsou uzamčené a zapisuje se do nich až po kontrole všech řádků.</translation>
    </message>
    <message>
        <source>interval types</source>
        <translation>druhy intervalů</translation>
    </message>
    <message>
        <source>people</source>
        <translation>osoby</translation>
    </message>
    <message>
        <source>time zones</source>
        <translation>časová pásma</translation>
    </message>
    <message>
        <source>colour groups</source>
        <translation>barevné skupiny</translation>
    </message>
    <message>
        <source>no</source>
        <translation>ne</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ano</translation>
    </message>
    <message>
        <source>the beginning</source>
        <translation>začátek</translation>
    </message>
    <message numerus="yes">
        <source>%Ln day(s)</source>
        <translation>
            <numerusform>%Ln den</numerusform>
            <numerusform>%Ln dny</numerusform>
            <numerusform>%Ln dní</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 dne</translation>
    </message>
    <message>
        <source>nothing</source>
        <comment>kinds of data</comment>
        <translation>nic</translation>
    </message>
    <message>
        <source>now</source>
        <translation>nyní</translation>
    </message>
    <message>
        <source>%1-%2</source>
        <comment>a year and a month</comment>
        <translation>%2/%1</translation>
    </message>
    <message>
        <source>HR</source>
        <translation>personální oddělení</translation>
    </message>
    <message>
        <source>due</source>
        <translation>je třeba provést</translation>
    </message>
    <message>
        <source>to be calculated</source>
        <translation>je třeba vypočítat</translation>
    </message>
    <message>
        <source>calculated</source>
        <translation>vypočítaná</translation>
    </message>
    <message>
        <source>New people</source>
        <translation>Nové osoby</translation>
    </message>
    <message>
        <source>Changed people</source>
        <translation>Změněné osoby</translation>
    </message>
    <message>
        <source>Attendance to be calculated again</source>
        <translation>Docházka k novému výpočtu</translation>
    </message>
    <message>
        <source>Members of branches</source>
        <translation>Členové poboček</translation>
    </message>
    <message>
        <source>Calendar groups</source>
        <translation>Kalendářové skupiny</translation>
    </message>
    <message>
        <source>Vacation balances</source>
        <translation>Zůstatky dovolené</translation>
    </message>
    <message>
        <source>Supervisors and administrators</source>
        <translation>Nadřízení a administrátoři</translation>
    </message>
    <message>
        <source>Payroll export</source>
        <translation>Export pro mzdy</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminály</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Other tables</source>
        <translation>Jiné tabulky</translation>
    </message>
    <message>
        <source>is no longer shown to %1, who got the requests</source>
        <translation>osobu přestane vidět a její žádosti dostávat %1</translation>
    </message>
    <message>
        <source>is no longer shown to %1</source>
        <translation>osobu přestane vidět %1</translation>
    </message>
    <message>
        <source>requests go to %1</source>
        <translation>žádosti bude dostávat %1</translation>
    </message>
    <message>
        <source>is shown to %1</source>
        <translation>osobu uvidí %1</translation>
    </message>
    <message>
        <source>requests no longer go to %1</source>
        <translation>žádosti přestane dostávat %1</translation>
    </message>
    <message>
        <source>vacation balance corrected on %1 by</source>
        <translation>zůstatek dovolené opravený %1 o</translation>
    </message>
    <message>
        <source>vacation balance corrected on %1 by %2</source>
        <translation>zůstatek dovolené opravený %1 o %2</translation>
    </message>
    <message>
        <source>vacation balance moved on %1 by</source>
        <translation>zůstatek dovolené změněný pohybem %1 o</translation>
    </message>
    <message>
        <source>vacation balance moved on %1 by %2</source>
        <translation>zůstatek dovolené změněný pohybem %1 o %2</translation>
    </message>
    <message>
        <source>fund %3 balance corrected on %1 by</source>
        <translation>zůstatek fondu %3 opravený %1 o</translation>
    </message>
    <message>
        <source>fund %3 balance corrected on %1 by %2</source>
        <translation>zůstatek fondu %3 opravený %1 o %2</translation>
    </message>
    <message>
        <source>fund %3 balance moved on %1 by</source>
        <translation>zůstatek fondu %3 změněný pohybem %1 o</translation>
    </message>
    <message>
        <source>fund %3 balance moved on %1 by %2</source>
        <translation>zůstatek fondu %3 změněný pohybem %1 o %2</translation>
    </message>
    <message>
        <source>is created</source>
        <translation>vytvoří se</translation>
    </message>
    <message>
        <source>attendance of %1</source>
        <translation>docházka %1</translation>
    </message>
    <message>
        <source>joins the branch %1</source>
        <translation>přibude v pobočce %1</translation>
    </message>
    <message>
        <source>is in the branch %1 since</source>
        <translation>v pobočce %1 od</translation>
    </message>
    <message>
        <source>joins the branch %1, since</source>
        <translation>přibude v pobočce %1, od</translation>
    </message>
    <message>
        <source>joins the branch %1, since %2</source>
        <translation>přibude v pobočce %1, od %2</translation>
    </message>
    <message>
        <source>leaves the branch %1, in it since</source>
        <translation>opustí pobočku %1, v ní od</translation>
    </message>
    <message>
        <source>leaves the branch %1, in it since %2</source>
        <translation>opustí pobočku %1, v ní od %2</translation>
    </message>
    <message>
        <source>calendar group from the beginning on</source>
        <translation>kalendářová skupina od začátku</translation>
    </message>
    <message>
        <source>calendar group from %1 on</source>
        <translation>kalendářová skupina od %1</translation>
    </message>
    <message>
        <source>calendar group in %1</source>
        <translation>kalendářová skupina v měsíci %1</translation>
    </message>
    <message>
        <source>settings of the payroll export</source>
        <translation>nastavení exportu pro mzdy</translation>
    </message>
    <message>
        <source>has to fetch</source>
        <translation>má si načíst</translation>
    </message>
    <message>
        <source>is forgotten by %1</source>
        <translation>osobu přestane znát %1</translation>
    </message>
    <message>
        <source>is known to %1</source>
        <translation>osobu bude znát %1</translation>
    </message>
    <message>
        <source>is no longer queued for %1</source>
        <translation>ve frontě už není pro %1</translation>
    </message>
    <message>
        <source>is queued for %1</source>
        <translation>zařadí se do fronty pro %1</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 v %3</translation>
    </message>
    <message>
        <source>value</source>
        <comment>of a setting</comment>
        <translation>hodnota</translation>
    </message>
    <message>
        <source>is selected for %1</source>
        <translation>přibude ve výběru %1</translation>
    </message>
    <message>
        <source>is no longer selected for %1</source>
        <translation>ubude z výběru %1</translation>
    </message>
    <message>
        <source>new row: %1</source>
        <translation>nový řádek: %1</translation>
    </message>
    <message>
        <source>removed row: %1</source>
        <translation>odstraněný řádek: %1</translation>
    </message>
    <message>
        <source>The copy cannot be synchronised: %1. Run check-db for details</source>
        <translation>Kopii nelze synchronizovat: %1. Podrobnosti zjistí check-db</translation>
    </message>
    <message>
        <source>Copying the database</source>
        <translation>Kopíruje se databáze</translation>
    </message>
    <message>
        <source>Synchronising the copy</source>
        <translation>Synchronizuje se kopie</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was changed meanwhile. Run preview again</source>
        <translation>„%1“ se mezitím změnil. Spusťte preview znovu</translation>
    </message>
    <message>
        <source>The changes in the copy cannot be read: %1</source>
        <translation>Změny v kopii nelze přečíst: %1</translation>
    </message>
    <message>
        <source>The plugin is switched off, so it would not synchronise at all.</source>
        <translation>Zásuvný modul je vypnutý, proto by vůbec nesynchronizoval.</translation>
    </message>
    <message>
        <source>Set enabled to 1 and start the attendance server again.</source>
        <translation>Nastavte enabled na 1 a znovu spusťte docházkový server.</translation>
    </message>
    <message>
        <source>A table&apos;s engine does not support snapshots, so it was not copied at the same moment.</source>
        <translation>Úložiště tabulky nepodporuje snímky, proto se nezkopírovala ve stejném okamžiku.</translation>
    </message>
    <message>
        <source>Run the preview while nobody works with the attendance server.</source>
        <translation>Spusťte náhled tehdy, když s docházkovým serverem nikdo nepracuje.</translation>
    </message>
    <message>
        <source>The copy was on a server of another version than the site&apos;s.</source>
        <translation>Kopie byla na serveru jiné verze, než je databázový server.</translation>
    </message>
    <message>
        <source>The plugin logged an error during the synchronisation.</source>
        <translation>Zásuvný modul zapsal při synchronizaci do protokolu chybu.</translation>
    </message>
    <message>
        <source>The text is that of the plugin&apos;s log: docs/operations.md says what it means and what to do.</source>
        <translation>Text pochází z protokolu zásuvného modulu: co znamená a co udělat, uvádí docs/operations.md.</translation>
    </message>
    <message>
        <source>The plugin logged a warning during the synchronisation.</source>
        <translation>Zásuvný modul zapsal při synchronizaci do protokolu upozornění.</translation>
    </message>
    <message>
        <source>Set testMode to 0 and start the attendance server again.</source>
        <translation>Nastavte testMode na 0 a znovu spusťte docházkový server.</translation>
    </message>
    <message>
        <source>The account may not see the triggers of a table, so the preview lacks their effects.</source>
        <translation>Účet nesmí vidět triggery tabulky, proto v náhledu chybějí jejich účinky.</translation>
    </message>
    <message>
        <source>Run one preview with an account that has TRIGGER on the database.</source>
        <translation>Spusťte jeden náhled s účtem, který má k databázi oprávnění TRIGGER.</translation>
    </message>
    <message>
        <source>A routine or trigger seems to use a view, which is not copied.</source>
        <translation>Uložená procedura nebo trigger zřejmě používá pohled, který se nekopíruje.</translation>
    </message>
    <message>
        <source>Check whether the plugin&apos;s warnings above mention them.</source>
        <translation>Zkontrolujte, zda je zmiňují upozornění zásuvného modulu uvedená výše.</translation>
    </message>
    <message>
        <source>Something may let the plugin reach more rows than by itself, so all were copied: it took longer.</source>
        <translation>Zásuvný modul může z nějakého důvodu pracovat s více řádky než sám od sebe, proto se zkopírovaly všechny: trvalo to déle.</translation>
    </message>
    <message>
        <source>The names in the copy cannot be read: %1. Run check-db for details</source>
        <translation>Jména a názvy v kopii nelze přečíst: %1. Podrobnosti zjistí check-db</translation>
    </message>
</context>
</TS>
