<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The id of an administrator exceeds 16 bits, which is all that other components keep.</source>
        <translation>Id administrátora přesahuje 16 bitů, ostatní součásti však víc neuchovávají.</translation>
    </message>
    <message>
        <source>Give the administrators ids up to 65535.</source>
        <translation>Přidělte administrátorům id nejvýše 65535.</translation>
    </message>
    <message>
        <source>The id of a branch exceeds 16 bits; members are added to another branch, or to none.</source>
        <translation>Id pobočky přesahuje 16 bitů; členové se přidají do jiné pobočky nebo do žádné.</translation>
    </message>
    <message>
        <source>Give the branches ids up to 65535.</source>
        <translation>Přidělte pobočkám id nejvýše 65535.</translation>
    </message>
    <message>
        <source>Several branches have the same number; people are placed in any of them.</source>
        <translation>Více poboček má stejné číslo; osoby se zařadí do kterékoli z nich.</translation>
    </message>
    <message>
        <source>Give the number to one branch only.</source>
        <translation>Přidělte číslo jen jedné pobočce.</translation>
    </message>
    <message>
        <source>Several calendar groups have the same calendar; people are placed in any of them.</source>
        <translation>Více kalendářových skupin má stejný kalendář; osoby se zařadí do kterékoli z nich.</translation>
    </message>
    <message>
        <source>Keep one group for each calendar in a master group.</source>
        <translation>Ponechte v hlavní skupině pro každý kalendář jednu skupinu.</translation>
    </message>
    <message>
        <source>The clocks of the server and of this machine differ.</source>
        <translation>Hodiny serveru a tohoto počítače se liší.</translation>
    </message>
    <message>
        <source>Synchronise both with the same time server: the plugin compares times of the two.</source>
        <translation>Hodiny obou synchronizujte s týmž časovým serverem: zásuvný modul jejich časy porovnává.</translation>
    </message>
    <message>
        <source>innodb_autoinc_lock_mode is not 2, so inserts of several nodes can block each other for good.</source>
        <translation>innodb_autoinc_lock_mode není 2, takže vkládání řádků z více uzlů se může navzájem natrvalo zablokovat.</translation>
    </message>
    <message>
        <source>Set innodb_autoinc_lock_mode = 2 on every node.</source>
        <translation>Nastavte na každém uzlu innodb_autoinc_lock_mode = 2.</translation>
    </message>
    <message>
        <source>binlog_format is not ROW, the only one that a Galera cluster replicates.</source>
        <translation>binlog_format není ROW, jediný formát, který cluster Galera replikuje.</translation>
    </message>
    <message>
        <source>Set binlog_format = ROW on every node.</source>
        <translation>Nastavte na každém uzlu binlog_format = ROW.</translation>
    </message>
    <message>
        <source>A node that is being copied to a joining one does not work meanwhile.</source>
        <translation>Uzel, ze kterého se kopírují data do připojovaného uzlu, mezitím nepracuje.</translation>
    </message>
    <message>
        <source>Set wsrep_sst_method = mariabackup and wsrep_sst_donor_rejects_queries = OFF on every node.</source>
        <translation>Nastavte na každém uzlu wsrep_sst_method = mariabackup a wsrep_sst_donor_rejects_queries = OFF.</translation>
    </message>
    <message>
        <source>A table has an engine that the cluster does not replicate.</source>
        <translation>Tabulka používá úložiště (engine), které cluster nereplikuje.</translation>
    </message>
    <message>
        <source>Convert the table: ALTER TABLE ... ENGINE = InnoDB.</source>
        <translation>Převeďte tabulku: ALTER TABLE ... ENGINE = InnoDB.</translation>
    </message>
    <message>
        <source>wsrep_retry_autocommit is below 5, so statements fail at conflicts with other nodes.</source>
        <translation>wsrep_retry_autocommit je méně než 5, takže příkazy při konfliktech s jinými uzly selhávají.</translation>
    </message>
    <message>
        <source>Set wsrep_retry_autocommit = 5, or more, on every node.</source>
        <translation>Nastavte na každém uzlu wsrep_retry_autocommit = 5 nebo více.</translation>
    </message>
    <message>
        <source>A table has no primary key, so different new rows of two nodes conflict.</source>
        <translation>Tabulka nemá primární klíč, takže rozdílné nové řádky dvou uzlů jsou v konfliktu.</translation>
    </message>
    <message>
        <source>Add a column id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY.</source>
        <translation>Přidejte sloupec id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY.</translation>
    </message>
    <message>
        <source>Another node counts automatic numbers in other steps than this one.</source>
        <translation>Jiný uzel přiděluje automatická čísla s jiným krokem než tento.</translation>
    </message>
    <message>
        <source>Set wsrep_auto_increment_control = ON, or the same auto_increment_increment, on every node.</source>
        <translation>Nastavte na každém uzlu wsrep_auto_increment_control = ON nebo stejné auto_increment_increment.</translation>
    </message>
    <message>
        <source>A member of the cluster could not be asked, so this check says nothing about it.</source>
        <translation>Jednoho z členů clusteru nebylo možné ověřit, takže tato kontrola o něm nic neříká.</translation>
    </message>
    <message>
        <source>Check it by itself. Here the account must be allowed to connect to it.</source>
        <translation>Ověřte ho samostatně. Pro tuto kontrolu musí mít účet povoleno se k němu připojit.</translation>
    </message>
    <message>
        <source>Another node has another SQL mode than this one.</source>
        <translation>Jiný uzel má jiný režim SQL než tento.</translation>
    </message>
    <message>
        <source>Give every node the same sql_mode: the plugin works with each of them after a fail-over.</source>
        <translation>Nastavte na každém uzlu stejný sql_mode: po přepnutí pracuje zásuvný modul s kterýmkoli z nich.</translation>
    </message>
    <message>
        <source>Another node is in another time zone than this one.</source>
        <translation>Jiný uzel je v jiném časovém pásmu než tento.</translation>
    </message>
    <message>
        <source>Give every node, and the attendance server, the same time zone by its name.</source>
        <translation>Nastavte na každém uzlu i na docházkovém serveru totéž časové pásmo jeho názvem.</translation>
    </message>
    <message>
        <source>Another node has another version than this one.</source>
        <translation>Jiný uzel má jinou verzi než tento.</translation>
    </message>
    <message>
        <source>Finish the upgrade of the cluster.</source>
        <translation>Dokončete aktualizaci clusteru.</translation>
    </message>
    <message>
        <source>The node has lost the majority of its cluster, and refuses every statement.</source>
        <translation>Uzel ztratil spojení s většinou svého clusteru a odmítá každý příkaz.</translation>
    </message>
    <message>
        <source>Use another node. See to the network and the other nodes.</source>
        <translation>Použijte jiný uzel. Zkontrolujte síť a ostatní uzly.</translation>
    </message>
    <message>
        <source>A node of the cluster is not in step with the others, or refuses statements.</source>
        <translation>Uzel clusteru není v souladu s ostatními nebo odmítá příkazy.</translation>
    </message>
    <message>
        <source>Wait until it is Synced, or use another node.</source>
        <translation>Počkejte, až bude ve stavu Synced, nebo použijte jiný uzel.</translation>
    </message>
    <message>
        <source>The server is prepared for a cluster, and does not replicate.</source>
        <translation>Server je připraven na práci v clusteru, ale nereplikuje.</translation>
    </message>
    <message>
        <source>Set wsrep_on = ON, or remove wsrep_provider from a server that is to be alone.</source>
        <translation>Nastavte wsrep_on = ON nebo odstraňte wsrep_provider ze serveru, který má pracovat samostatně.</translation>
    </message>
    <message>
        <source>wsrep_sync_wait lacks the bit 1, so a query may miss what other nodes have committed.</source>
        <translation>wsrep_sync_wait neobsahuje bit 1, takže dotaz nemusí vidět to, co už potvrdily jiné uzly.</translation>
    </message>
    <message>
        <source>Set wsrep_sync_wait = 1 on every node.</source>
        <translation>Nastavte na každém uzlu wsrep_sync_wait = 1.</translation>
    </message>
    <message>
        <source>A text column has a character set that lacks letters.</source>
        <translation>Textový sloupec má znakovou sadu, ve které chybí písmena.</translation>
    </message>
    <message>
        <source>Convert the column to utf8mb4.</source>
        <translation>Převeďte sloupec na utf8mb4.</translation>
    </message>
    <message>
        <source>A column has another kind of type than the plugin writes.</source>
        <translation>Sloupec má jiný druh typu, než jaký zapisuje zásuvný modul.</translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql.</source>
        <translation>Nastavte sloupci typ podle reference-db/schema.sql.</translation>
    </message>
    <message>
        <source>A column that the plugin uses does not exist, or the account has no rights on it.</source>
        <translation>Sloupec, který zásuvný modul používá, neexistuje nebo k němu účet nemá oprávnění.</translation>
    </message>
    <message>
        <source>See the definition in reference-db/schema.sql. An account cannot see what it has no rights on.</source>
        <translation>Podívejte se na definici v reference-db/schema.sql. Účet nevidí to, k čemu nemá oprávnění.</translation>
    </message>
    <message>
        <source>A column does not allow NULL, which the plugin writes into it.</source>
        <translation>Sloupec nepřipouští NULL, které do něj zásuvný modul zapisuje.</translation>
    </message>
    <message>
        <source>Allow NULL in the column.</source>
        <translation>Povolte ve sloupci NULL.</translation>
    </message>
    <message>
        <source>A column cannot hold everything that the plugin writes into it.</source>
        <translation>Do sloupce se nevejde vše, co do něj zásuvný modul zapisuje.</translation>
    </message>
    <message>
        <source>A column that the plugin leaves out has no default value, so new rows are refused.</source>
        <translation>Sloupec, který zásuvný modul vynechává, nemá výchozí hodnotu, takže nové řádky budou odmítnuty.</translation>
    </message>
    <message>
        <source>Give the column a default value.</source>
        <translation>Nastavte sloupci výchozí hodnotu.</translation>
    </message>
    <message>
        <source>The account sees only some columns of a table, so this check may miss others.</source>
        <translation>Účet vidí jen některé sloupce tabulky, takže této kontrole mohou ostatní uniknout.</translation>
    </message>
    <message>
        <source>Check again with an account that reads whole tables, such as mirovahrctl, and --other-account.</source>
        <translation>Zopakujte kontrolu s účtem, který čte celé tabulky, například mirovahrctl, a s volbou --other-account.</translation>
    </message>
    <message>
        <source>The connection&apos;s character set is not UTF-8: accented letters are stored wrongly.</source>
        <translation>Znaková sada spojení není UTF-8: písmena s diakritikou se ukládají nesprávně.</translation>
    </message>
    <message>
        <source>Check the server&apos;s init_connect for SET NAMES.</source>
        <translation>Zkontrolujte, zda init_connect serveru neobsahuje SET NAMES.</translation>
    </message>
    <message>
        <source>The column of the department cannot hold that of the configuration.</source>
        <translation>Do sloupce oddělení se nevejde oddělení z konfigurace.</translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql, or write a smaller departmentId.</source>
        <translation>Nastavte sloupci typ podle reference-db/schema.sql nebo uveďte menší departmentId.</translation>
    </message>
    <message>
        <source>The connect options contain CLIENT_FOUND_ROWS, so the plugin miscounts changed rows.</source>
        <translation>Volby spojení obsahují CLIENT_FOUND_ROWS, takže zásuvný modul nesprávně počítá změněné řádky.</translation>
    </message>
    <message>
        <source>Leave the option out, here and in the attendance server.</source>
        <translation>Vynechte tuto volbu zde i v docházkovém serveru.</translation>
    </message>
    <message>
        <source>The server reserves the word groups, so a statement of the plugin fails.</source>
        <translation>Slovo groups je na serveru vyhrazené, takže jeden příkaz zásuvného modulu selže.</translation>
    </message>
    <message>
        <source>Use MariaDB, or MySQL up to 5.7.</source>
        <translation>Použijte MariaDB nebo MySQL nejvýše 5.7.</translation>
    </message>
    <message>
        <source>A table has no unique key where the plugin expects one row for each value.</source>
        <translation>Tabulka nemá jedinečný klíč tam, kde zásuvný modul očekává pro každou hodnotu jeden řádek.</translation>
    </message>
    <message>
        <source>Remove the duplicate rows and add the key.</source>
        <translation>Odstraňte duplicitní řádky a přidejte klíč.</translation>
    </message>
    <message>
        <source>A unique key is missing: the plugin inserts a second row instead of updating the first.</source>
        <translation>Chybí jedinečný klíč: zásuvný modul místo aktualizace prvního řádku vloží druhý.</translation>
    </message>
    <message>
        <source>A unique key is missing that another component of the attendance server needs.</source>
        <translation>Chybí jedinečný klíč, který potřebuje jiná součást docházkového serveru.</translation>
    </message>
    <message>
        <source>A further unique key can make the plugin change another row than it means.</source>
        <translation>Další jedinečný klíč může způsobit, že zásuvný modul změní jiný řádek, než má.</translation>
    </message>
    <message>
        <source>Make the key non-unique.</source>
        <translation>Změňte klíč na nejedinečný.</translation>
    </message>
    <message>
        <source>A table or column is missing that only other components of the attendance server use.</source>
        <translation>Chybí tabulka nebo sloupec, které používají jen ostatní součásti docházkového serveru.</translation>
    </message>
    <message>
        <source>The connect options set no time limit: a silent server freezes the plugin.</source>
        <translation>Volby spojení neurčují časový limit: server, který mlčí, zásuvný modul zablokuje.</translation>
    </message>
    <message>
        <source>Give the attendance server&apos;s connection the connect options MYSQL_OPT_CONNECT_TIMEOUT=30, MYSQL_OPT_READ_TIMEOUT=120 and MYSQL_OPT_WRITE_TIMEOUT=120, and this check the same with --connect-options. yavhost sets them by itself.</source>
        <translation>Nastavte spojení docházkového serveru volby MYSQL_OPT_CONNECT_TIMEOUT=30, MYSQL_OPT_READ_TIMEOUT=120 a MYSQL_OPT_WRITE_TIMEOUT=120 a této kontrole tytéž pomocí --connect-options. yavhost je nastavuje sám.</translation>
    </message>
    <message>
        <source>A column is not AUTO_INCREMENT, but the plugin leaves its value to the server.</source>
        <translation>Sloupec není AUTO_INCREMENT, ale zásuvný modul nechává jeho hodnotu na serveru.</translation>
    </message>
    <message>
        <source>Make it AUTO_INCREMENT.</source>
        <translation>Nastavte ho jako AUTO_INCREMENT.</translation>
    </message>
    <message>
        <source>A table does not support transactions.</source>
        <translation>Tabulka nepodporuje transakce.</translation>
    </message>
    <message>
        <source>Use a transactional engine, such as InnoDB.</source>
        <translation>Použijte transakční úložiště (engine), například InnoDB.</translation>
    </message>
    <message>
        <source>There is no payroll export, so the plugin adds new people to none.</source>
        <translation>Export pro mzdy neexistuje, takže zásuvný modul do žádného nové osoby nepřidá.</translation>
    </message>
    <message>
        <source>Ignore this if nobody should be added.</source>
        <translation>Pokud se nemá přidávat nikdo, nález můžete ignorovat.</translation>
    </message>
    <message>
        <source>There are several payroll exports, so the plugin adds new people to none.</source>
        <translation>Existuje více exportů pro mzdy, takže zásuvný modul do žádného nové osoby nepřidá.</translation>
    </message>
    <message>
        <source>The pid and pamId of an active person disagree.</source>
        <translation>pid a pamId aktivní osoby si neodpovídají.</translation>
    </message>
    <message>
        <source>pamId is the personal number, a dot and the number of the relationship; pid is the digits of both joined.</source>
        <translation>pamId je osobní číslo, tečka a číslo poměru; pid jsou spojené číslice obou.</translation>
    </message>
    <message>
        <source>The cluster refuses writes to tables without a primary key, and there is such a table.</source>
        <translation>Cluster odmítá zápis do tabulek bez primárního klíče a taková tabulka zde je.</translation>
    </message>
    <message>
        <source>The account has more rights than the plugin needs.</source>
        <translation>Účet má více oprávnění, než zásuvný modul potřebuje.</translation>
    </message>
    <message>
        <source>Run the plugin with an account as in reference-db/grants.sql; see docs/security.md.</source>
        <translation>Provozujte zásuvný modul s účtem podle reference-db/grants.sql; viz docs/security.md.</translation>
    </message>
    <message>
        <source>The account lacks a right that the plugin needs.</source>
        <translation>Účtu chybí oprávnění, které zásuvný modul potřebuje.</translation>
    </message>
    <message>
        <source>Load reference-db/grants.sql, with the account&apos;s name in it.</source>
        <translation>Načtěte reference-db/grants.sql se jménem účtu.</translation>
    </message>
    <message>
        <source>A routine takes a different number of arguments from what the plugin passes.</source>
        <translation>Uložená procedura má jiný počet argumentů, než jí zásuvný modul předává.</translation>
    </message>
    <message>
        <source>Compare it with reference-db/routines.sql.</source>
        <translation>Porovnejte ji s reference-db/routines.sql.</translation>
    </message>
    <message>
        <source>A routine fails.</source>
        <translation>Uložená procedura selhává.</translation>
    </message>
    <message>
        <source>A function fails for days beyond the server&apos;s range.</source>
        <translation>Funkce selhává u dnů mimo rozsah serveru.</translation>
    </message>
    <message>
        <source>Create the function again in an SQL mode that is not strict, as reference-db/routines.sql does, and grant EXECUTE on it again.</source>
        <translation>Vytvořte funkci znovu v režimu SQL, který není striktní, jak to dělá reference-db/routines.sql, a znovu k ní udělte oprávnění EXECUTE.</translation>
    </message>
    <message>
        <source>A routine does not exist, or the account may not call it.</source>
        <translation>Uložená procedura neexistuje nebo ji účet nesmí volat.</translation>
    </message>
    <message>
        <source>See reference-db/routines.sql and reference-db/grants.sql.</source>
        <translation>Podívejte se do reference-db/routines.sql a reference-db/grants.sql.</translation>
    </message>
    <message>
        <source>The account cannot see a routine.</source>
        <translation>Účet nevidí uloženou proceduru.</translation>
    </message>
    <message>
        <source>Check with the plugin&apos;s account as well.</source>
        <translation>Zopakujte kontrolu i s účtem zásuvného modulu.</translation>
    </message>
    <message>
        <source>A function returns a wrong result.</source>
        <translation>Funkce vrací nesprávný výsledek.</translation>
    </message>
    <message>
        <source>The column of the payroll export&apos;s selection cannot name every active person.</source>
        <translation>Do sloupce s výběrem exportu pro mzdy se nevejdou všechny aktivní osoby.</translation>
    </message>
    <message>
        <source>Make the column a MEDIUMTEXT.</source>
        <translation>Změňte typ sloupce na MEDIUMTEXT.</translation>
    </message>
    <message>
        <source>The server is read-only, so every write of the plugin fails.</source>
        <translation>Server je jen pro čtení, takže každý zápis zásuvného modulu selže.</translation>
    </message>
    <message>
        <source>Use the server that accepts writes, not a replica.</source>
        <translation>Použijte server, který přijímá zápisy, ne repliku.</translation>
    </message>
    <message>
        <source>The connection refuses several statements in one text.</source>
        <translation>Spojení odmítá více příkazů v jednom textu.</translation>
    </message>
    <message>
        <source>Check for a proxy between this machine and the server that splits the statements.</source>
        <translation>Zkontrolujte, zda mezi tímto počítačem a serverem není proxy server, který příkazy rozděluje.</translation>
    </message>
    <message>
        <source>The SQL mode NO_BACKSLASH_ESCAPES is on, so a backslash is stored literally.</source>
        <translation>Je zapnut režim SQL NO_BACKSLASH_ESCAPES, takže zpětné lomítko se uloží tak, jak je.</translation>
    </message>
    <message>
        <source>Run the gate with --texts no-backslash-escapes: otherwise it doubles backslashes.</source>
        <translation>Spouštějte bránu s --texts no-backslash-escapes: jinak zpětná lomítka zdvojuje.</translation>
    </message>
    <message>
        <source>The SQL mode EMPTY_STRING_IS_NULL is on, so people with empty texts cannot be written.</source>
        <translation>Je zapnut režim SQL EMPTY_STRING_IS_NULL, takže osoby s prázdnými texty nelze zapsat.</translation>
    </message>
    <message>
        <source>Remove the mode from the server&apos;s sql_mode, or from that of the plugin&apos;s connections.</source>
        <translation>Odstraňte tento režim ze sql_mode serveru nebo spojení zásuvného modulu.</translation>
    </message>
    <message>
        <source>The SQL mode ONLY_FULL_GROUP_BY is on, so some statements fail.</source>
        <translation>Je zapnut režim SQL ONLY_FULL_GROUP_BY, takže některé příkazy selžou.</translation>
    </message>
    <message>
        <source>No strict SQL mode is on, so values that do not fit are altered silently.</source>
        <translation>Není zapnut žádný striktní režim SQL, takže hodnoty, které se nevejdou, se bez upozornění pozmění.</translation>
    </message>
    <message>
        <source>Add STRICT_TRANS_TABLES to the server&apos;s sql_mode.</source>
        <translation>Přidejte STRICT_TRANS_TABLES do sql_mode serveru.</translation>
    </message>
    <message>
        <source>The column of the relationship state lacks letters of a text in the configuration.</source>
        <translation>Ve znakové sadě sloupce stavu poměru chybí písmena textu z konfigurace.</translation>
    </message>
    <message>
        <source>The column of the relationship state is shorter than a text in the configuration.</source>
        <translation>Sloupec stavu poměru je kratší než text z konfigurace.</translation>
    </message>
    <message>
        <source>Shorten the text in the group MES, or widen the column.</source>
        <translation>Zkraťte text ve skupině MES nebo rozšiřte sloupec.</translation>
    </message>
    <message>
        <source>Without a key, statements that the plugin sends for each person walk a large table.</source>
        <translation>Bez klíče procházejí příkazy, které zásuvný modul posílá pro každou osobu, velkou tabulku.</translation>
    </message>
    <message>
        <source>Add the key of reference-db/schema.sql.</source>
        <translation>Přidejte klíč podle reference-db/schema.sql.</translation>
    </message>
    <message>
        <source>The default of people.status is not 1, so new people are inactive.</source>
        <translation>Výchozí hodnota people.status není 1, takže nové osoby jsou neaktivní.</translation>
    </message>
    <message>
        <source>Make 1 the default of the column.</source>
        <translation>Nastavte sloupci výchozí hodnotu 1.</translation>
    </message>
    <message>
        <source>Several administrators have the same personal number; any of them gets the requests.</source>
        <translation>Více administrátorů má stejné osobní číslo; žádosti dostane kterýkoli z nich.</translation>
    </message>
    <message>
        <source>Give the number to one administrator only.</source>
        <translation>Přidělte číslo jen jednomu administrátorovi.</translation>
    </message>
    <message>
        <source>A table that the plugin uses does not exist, or the account has no rights on it.</source>
        <translation>Tabulka, kterou zásuvný modul používá, neexistuje nebo k ní účet nemá oprávnění.</translation>
    </message>
    <message>
        <source>The server refuses temporary tables without a primary key.</source>
        <translation>Server odmítá dočasné tabulky bez primárního klíče.</translation>
    </message>
    <message>
        <source>Change the setting of the server that the finding names.</source>
        <translation>Změňte nastavení serveru, které nález uvádí.</translation>
    </message>
    <message>
        <source>The server and this program disagree about when days begin.</source>
        <translation>Server a tento program se neshodují v tom, kdy začínají dny.</translation>
    </message>
    <message>
        <source>Run this check with the TZ of the attendance server. If the error remains, give both the same zone by name: an offset such as +01:00 has no daylight saving time.</source>
        <translation>Spusťte tuto kontrolu s hodnotou TZ docházkového serveru. Pokud chyba přetrvává, nastavte obojímu totéž pásmo jeho názvem: posun, například +01:00, nezná letní čas.</translation>
    </message>
    <message>
        <source>There is no vacation fund, so vacation balances are not synchronised.</source>
        <translation>Fond dovolené neexistuje, takže zůstatky dovolené se nesynchronizují.</translation>
    </message>
    <message>
        <source>Ignore this if they should not be.</source>
        <translation>Pokud se synchronizovat nemají, nález můžete ignorovat.</translation>
    </message>
    <message>
        <source>The number of the vacation fund exceeds 16 bits; the plugin would write to another fund.</source>
        <translation>Číslo fondu dovolené přesahuje 16 bitů; zásuvný modul by zapisoval do jiného fondu.</translation>
    </message>
    <message>
        <source>Give the fund a number up to 65535.</source>
        <translation>Přidělte fondu číslo nejvýše 65535.</translation>
    </message>
    <message>
        <source>There are several vacation funds; the plugin uses any of them.</source>
        <translation>Existuje více fondů dovolené; zásuvný modul použije kterýkoli z nich.</translation>
    </message>
    <message>
        <source>Keep only one.</source>
        <translation>Ponechte jen jeden.</translation>
    </message>
    <message>
        <source>Checks whether the attendance database meets the plugin&apos;s requirements: the server, the connection, tables, columns, keys and routines, the rights of the account, and some of the data. Writes nothing: the server itself refuses it.

Check twice. First connect as the plugin does: with its account, its connect options and its time zone (TZ). That account sees only the columns on which it has rights. A column without a default value that the site added makes every new row fail; only a second check finds it, with an account that reads whole tables and --other-account. With --config the check is about the department and the relationship states of that configuration, and otherwise about any.</source>
        <translation>Ověří, zda docházková databáze splňuje požadavky zásuvného modulu: server, spojení, tabulky, sloupce, klíče a uložené procedury, oprávnění účtu a část dat. Nic nezapisuje: odmítl by to sám server.

Kontrolu proveďte dvakrát. Nejprve se připojte jako zásuvný modul: s jeho účtem, jeho volbami spojení a jeho časovým pásmem (TZ). Tento účet vidí jen sloupce, k nimž má oprávnění. Pokud byl do databáze přidán sloupec bez výchozí hodnoty, selže každý nový řádek; odhalí ho až druhá kontrola, s účtem, který čte celé tabulky, a s volbou --other-account. S volbou --config se ověřuje oddělení a stavy poměru dané konfigurace, jinak jakékoli.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin cannot work properly with this database: %Ln requirement(s) are violated.</source>
        <translation>
            <numerusform>Zásuvný modul nemůže s touto databází správně pracovat: je porušen %Ln požadavek.</numerusform>
            <numerusform>Zásuvný modul nemůže s touto databází správně pracovat: jsou porušeny %Ln požadavky.</numerusform>
            <numerusform>Zásuvný modul nemůže s touto databází správně pracovat: je porušeno %Ln požadavků.</numerusform>
        </translation>
    </message>
    <message>
        <source>As far as this account can see, the database meets the plugin&apos;s requirements.</source>
        <translation>Pokud tento účet vidí, databáze splňuje požadavky zásuvného modulu.</translation>
    </message>
    <message numerus="yes">
        <source>As far as this account can see, the plugin can work with this database; %Ln finding(s) need attention.</source>
        <translation>
            <numerusform>Pokud tento účet vidí, zásuvný modul může s touto databází pracovat; pozornost vyžaduje %Ln nález.</numerusform>
            <numerusform>Pokud tento účet vidí, zásuvný modul může s touto databází pracovat; pozornost vyžadují %Ln nálezy.</numerusform>
            <numerusform>Pokud tento účet vidí, zásuvný modul může s touto databází pracovat; pozornost vyžaduje %Ln nálezů.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database meets the plugin&apos;s requirements.</source>
        <translation>Databáze splňuje požadavky zásuvného modulu.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin can work with this database; %Ln finding(s) need attention.</source>
        <translation>
            <numerusform>Zásuvný modul může s touto databází pracovat; pozornost vyžaduje %Ln nález.</numerusform>
            <numerusform>Zásuvný modul může s touto databází pracovat; pozornost vyžadují %Ln nálezy.</numerusform>
            <numerusform>Zásuvný modul může s touto databází pracovat; pozornost vyžaduje %Ln nálezů.</numerusform>
        </translation>
    </message>
    <message>
        <source>Database %1</source>
        <translation>Databáze %1</translation>
    </message>
    <message>
        <source>The account is not the plugin&apos;s: do not check its rights.</source>
        <translation>Účet nepatří zásuvnému modulu: jeho oprávnění se neověřují.</translation>
    </message>
    <message>
        <source>On a cluster: ask the other nodes, too, and report what differs.</source>
        <translation>V clusteru: ověří i ostatní uzly a ohlásí rozdíly.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The plugin&apos;s INI file, whose values must fit the columns.</source>
        <translation>INI soubor zásuvného modulu, jehož hodnoty se musí vejít do sloupců.</translation>
    </message>
    <message>
        <source>It refuses statements (state %1)</source>
        <translation>Odmítá příkazy (stav %1)</translation>
    </message>
    <message>
        <source>The server there is not a member of this cluster</source>
        <translation>Server na této adrese není členem tohoto clusteru</translation>
    </message>
    <message>
        <source>The address leads to a node that was asked already</source>
        <translation>Adresa vede k uzlu, který už byl ověřen</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>of a setting</comment>
        <translation>neznámé</translation>
    </message>
    <message>
        <source>state %1, wsrep_ready = %2</source>
        <translation>stav %1, wsrep_ready = %2</translation>
    </message>
    <message>
        <source>The node has lost the majority of its cluster (wsrep_cluster_status = %1): it refuses every statement on a table with error 1047</source>
        <translation>Uzel ztratil spojení s většinou svého clusteru (wsrep_cluster_status = %1): každý příkaz nad tabulkou odmítá s chybou 1047</translation>
    </message>
    <message>
        <source>The node refuses every statement on a table with error 1047 (%1)</source>
        <translation>Uzel odmítá každý příkaz nad tabulkou s chybou 1047 (%1)</translation>
    </message>
    <message>
        <source>The node is not in step with the cluster (state %1): what is read here may lack what other nodes have committed.</source>
        <translation>Uzel není v souladu s clusterem (stav %1): v datech, která se zde čtou, může chybět to, co už potvrdily jiné uzly.</translation>
    </message>
    <message>
        <source>binlog_format is %1: a Galera cluster replicates rows only, and other formats can leave the nodes with different data</source>
        <translation>binlog_format je %1: cluster Galera replikuje jen řádky a při jiných formátech mohou mít uzly rozdílná data</translation>
    </message>
    <message>
        <source>innodb_autoinc_lock_mode is %1: inserts keep their table&apos;s counter locked, and inserts that arrive from other nodes can block each other until the node stands still</source>
        <translation>innodb_autoinc_lock_mode je %1: vkládání řádků drží počítadlo tabulky zamčené a vkládání přicházející z jiných uzlů se může navzájem blokovat, až se uzel zastaví</translation>
    </message>
    <message>
        <source>wsrep_retry_autocommit is %1: a statement that conflicts more often with what other nodes write fails with error 1213 (deadlock), and the plugin does not repeat it</source>
        <translation>wsrep_retry_autocommit je %1: příkaz, který se častěji dostane do konfliktu se zápisy jiných uzlů, selže s chybou 1213 (deadlock) a zásuvný modul ho nezopakuje</translation>
    </message>
    <message>
        <source>wsrep_sync_wait is %1, without the bit 1: a query may miss what other nodes have committed. After a fail-over the plugin may not see what it has just written</source>
        <translation>wsrep_sync_wait je %1, bez bitu 1: dotaz nemusí vidět to, co už potvrdily jiné uzly. Po přepnutí na jiný uzel zásuvný modul nemusí vidět, co právě zapsal</translation>
    </message>
    <message>
        <source>wsrep_sst_donor_rejects_queries is ON: a node that is being copied to another one refuses every query meanwhile</source>
        <translation>wsrep_sst_donor_rejects_queries je ON: uzel, ze kterého se kopírují data do jiného, mezitím odmítá každý dotaz</translation>
    </message>
    <message>
        <source>wsrep_sst_method is %1: a node that is being copied to another one makes every write wait until the transfer has ended</source>
        <translation>wsrep_sst_method je %1: na uzlu, ze kterého se kopírují data do jiného, čeká každý zápis na konec přenosu</translation>
    </message>
    <message>
        <source>wsrep_sst_method is %1, which this check does not know: a node that is being copied to another one may make every write wait</source>
        <translation>wsrep_sst_method je %1, což tato kontrola nezná: na uzlu, ze kterého se kopírují data do jiného, může každý zápis čekat</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>Cluster</translation>
    </message>
    <message>
        <source>Members of the cluster</source>
        <translation>Počet členů clusteru</translation>
    </message>
    <message>
        <source>State of this node</source>
        <translation>Stav tohoto uzlu</translation>
    </message>
    <message>
        <source>The node is in step with its cluster, and its settings are suitable for the plugin.</source>
        <translation>Uzel je v souladu se svým clusterem a jeho nastavení je pro zásuvný modul vhodné.</translation>
    </message>
    <message>
        <source>The server has a wsrep_provider, and wsrep_on = OFF for this connection: what it writes stays on this server, and the other nodes of its cluster do not get it</source>
        <translation>Server má wsrep_provider, ale pro toto spojení platí wsrep_on = OFF: co se přes něj zapíše, zůstane na tomto serveru a ostatní uzly clusteru to nedostanou</translation>
    </message>
    <message>
        <source>The server does not belong to a cluster: there are no other nodes.</source>
        <translation>Server nepatří do clusteru: jiné uzly neexistují.</translation>
    </message>
    <message>
        <source>Tables on the cluster</source>
        <translation>Tabulky v clusteru</translation>
    </message>
    <message>
        <source>Only tables of the engine InnoDB are replicated with their conflicts noticed. These have another one, so that their rows may differ between the nodes: %1</source>
        <translation>Konflikty se při replikaci zjistí jen v tabulkách s úložištěm (engine) InnoDB. Tyto tabulky mají jiné, takže jejich řádky se mohou na jednotlivých uzlech lišit: %1</translation>
    </message>
    <message>
        <source>All tables have the engine that the cluster replicates.</source>
        <translation>Všechny tabulky mají úložiště (engine), které cluster replikuje.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>what %1 holds</source>
        <translation>hodnoty sloupce %1</translation>
    </message>
    <message>
        <source>The column %1 is %2; the plugin writes numbers into it</source>
        <translation>Sloupec %1 je %2; zásuvný modul do něj zapisuje čísla</translation>
    </message>
    <message>
        <source>The column %1 is %2; the plugin writes %3 into it (%4).</source>
        <translation>Sloupec %1 je %2; zásuvný modul do něj zapisuje %3 (%4).</translation>
    </message>
    <message>
        <source>The column %1 is %2; the plugin writes texts into it</source>
        <translation>Sloupec %1 je %2; zásuvný modul do něj zapisuje texty</translation>
    </message>
    <message numerus="yes">
        <source>The column %1 is %2; the plugin writes up to %Ln character(s) into it.</source>
        <translation>
            <numerusform>Sloupec %1 je %2; zásuvný modul do něj zapisuje nejvýše %Ln znak.</numerusform>
            <numerusform>Sloupec %1 je %2; zásuvný modul do něj zapisuje nejvýše %Ln znaky.</numerusform>
            <numerusform>Sloupec %1 je %2; zásuvný modul do něj zapisuje nejvýše %Ln znaků.</numerusform>
        </translation>
    </message>
    <message>
        <source>The column %1 has the character set %2: letters that it lacks are refused, or stored as question marks where no strict SQL mode is on</source>
        <translation>Sloupec %1 má znakovou sadu %2: písmena, která v ní chybí, server odmítne; pokud není zapnut striktní režim SQL, uloží je jako otazníky</translation>
    </message>
    <message>
        <source>The column %1 (%2) does not allow NULL, which the plugin writes for people who have none</source>
        <translation>Sloupec %1 (%2) nepřipouští NULL, které zásuvný modul zapisuje u osob bez tohoto údaje</translation>
    </message>
    <message>
        <source>The column %1 is %2; it holds only times from %3 to %4, and the plugin may write others into it (%5).</source>
        <translation>Sloupec %1 je %2; vejdou se do něj jen časy od %3 do %4, ale zásuvný modul do něj může zapsat i jiné (%5).</translation>
    </message>
    <message>
        <source>The column %1 is %2; it holds only times from %3 on, and the plugin may write others into it (%4).</source>
        <translation>Sloupec %1 je %2; vejdou se do něj jen časy od %3, ale zásuvný modul do něj může zapsat i jiné (%4).</translation>
    </message>
    <message>
        <source>The column %1 is %2; it holds only times up to %3, and the plugin may write others into it (%4).</source>
        <translation>Sloupec %1 je %2; vejdou se do něj jen časy do %3, ale zásuvný modul do něj může zapsat i jiné (%4).</translation>
    </message>
    <message>
        <source>Values that do not fit are refused, or altered where no strict SQL mode is on</source>
        <translation>Hodnoty, které se nevejdou, server odmítne; pokud není zapnut striktní režim SQL, pozmění je</translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql, or name the plugin&apos;s INI file with --config, if its own value fits.</source>
        <translation>Nastavte sloupci typ podle reference-db/schema.sql, nebo pokud se hodnota z INI souboru zásuvného modulu vejde, uveďte tento soubor volbou --config.</translation>
    </message>
    <message>
        <source>Text column</source>
        <translation>Textový sloupec</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Znaků</translation>
    </message>
    <message>
        <source>Character set</source>
        <translation>Znaková sada</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Sloupce</translation>
    </message>
    <message>
        <source>The columns can hold what the plugin writes, except for HR&apos;s texts, which check-file checks.</source>
        <translation>Do sloupců se vejde vše, co zásuvný modul zapisuje, kromě textů personálního oddělení, které ověřuje check-file.</translation>
    </message>
    <message>
        <source>The columns can hold what the plugin writes, except for texts: check-file checks HR&apos;s, and --config lets this check those of the INI file.</source>
        <translation>Do sloupců se vejde vše, co zásuvný modul zapisuje, kromě textů: texty personálního oddělení ověřuje check-file a texty z INI souboru ověří tato kontrola s volbou --config.</translation>
    </message>
    <message>
        <source>The column %1 does not allow NULL, which the plugin writes because departmentId is 0 in the configuration</source>
        <translation>Sloupec %1 nepřipouští NULL, které zásuvný modul zapisuje, protože departmentId je v konfiguraci 0</translation>
    </message>
    <message>
        <source>The column %1 is %2 and cannot hold the department of the configuration, %3: nobody is created or updated, or everybody gets another department where no strict SQL mode is on</source>
        <translation>Sloupec %1 je %2 a oddělení z konfigurace, %3, se do něj nevejde: žádná osoba se nevytvoří ani neaktualizuje; pokud není zapnut striktní režim SQL, dostanou všechny jiné oddělení</translation>
    </message>
    <message>
        <source>The column %1 is %2; the text of register state %3 in the configuration is longer, %4: people in this state are refused, or their text is cut where no strict SQL mode is on</source>
        <translation>Sloupec %1 je %2; text evidenčního stavu %3 v konfiguraci je delší, %4: osoby v tomto stavu server odmítne; pokud není zapnut striktní režim SQL, jejich text zkrátí</translation>
    </message>
    <message>
        <source>The column %1 has the character set %2, which lacks letters of the text of register state %3 in the configuration, %4: people in this state are refused, or get question marks where no strict SQL mode is on</source>
        <translation>Sloupec %1 má znakovou sadu %2, ve které chybí písmena textu evidenčního stavu %3 z konfigurace, %4: osoby v tomto stavu server odmítne; pokud není zapnut striktní režim SQL, uloží místo těchto písmen otazníky</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurace</translation>
    </message>
    <message>
        <source>The columns can hold its department and its relationship states.</source>
        <translation>Její oddělení i stavy poměru se do sloupců vejdou.</translation>
    </message>
    <message>
        <source>The connection&apos;s character set is not UTF-8 (client %1, connection %2, results %3): accented letters are stored wrongly</source>
        <translation>Znaková sada spojení není UTF-8 (klient %1, spojení %2, výsledky %3): písmena s diakritikou se ukládají nesprávně</translation>
    </message>
    <message>
        <source>Several statements in one text allowed</source>
        <translation>Povolení více příkazů v jednom textu</translation>
    </message>
    <message>
        <source>The connection refuses several statements in one text. The plugin does not need them, but where the attendance server uses the same classes, a changed time zone does not reach the terminals</source>
        <translation>Spojení odmítá více příkazů v jednom textu. Zásuvný modul je nepotřebuje, ale pokud docházkový server používá tytéž třídy, změna časového pásma se nedostane do terminálů</translation>
    </message>
    <message>
        <source>The connect options contain CLIENT_FOUND_ROWS: the plugin then counts rows that it left unchanged as changed</source>
        <translation>Volby spojení obsahují CLIENT_FOUND_ROWS: zásuvný modul potom počítá mezi změněné i řádky, které nechal beze změny</translation>
    </message>
    <message>
        <source>The connect options that this check was given lack %1. When the attendance server connects like this, a database server that neither answers nor closes the connection freezes the plugin&apos;s tick, and the attendance server when it unloads the plugin</source>
        <translation>Volby spojení zadané této kontrole neobsahují %1. Pokud se takto připojuje docházkový server, databázový server, který neodpovídá ani neukončí spojení, zablokuje takt zásuvného modulu, a při odstraňování zásuvného modulu z paměti i docházkový server</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Spojení</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>The connection works as the plugin requires.</source>
        <translation>Spojení funguje tak, jak zásuvný modul vyžaduje.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 a %Ln další</numerusform>
            <numerusform>%1 a %Ln další</numerusform>
            <numerusform>%1 a %Ln dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no vacation fund (a row of funds with iid 3 and unit 2): vacation balances are not synchronised</source>
        <translation>Fond dovolené (řádek tabulky funds s iid 3 a unit 2) neexistuje: zůstatky dovolené se nesynchronizují</translation>
    </message>
    <message>
        <source>There are several vacation funds (iid 3, unit 2): %1. The plugin uses the first that the server happens to return</source>
        <translation>Existuje více fondů dovolené (iid 3, unit 2): %1. Zásuvný modul použije ten, který server náhodou vrátí jako první</translation>
    </message>
    <message>
        <source>The vacation fund has the number %1; the plugin keeps 16 bits of it and would write to another fund</source>
        <translation>Fond dovolené má číslo %1; zásuvný modul z něj použije 16 bitů a zapisoval by do jiného fondu</translation>
    </message>
    <message>
        <source>There is no payroll export. The plugin adds new people to one only when there is exactly one key exportPam.N.active in vars, whatever its value</source>
        <translation>Export pro mzdy neexistuje. Zásuvný modul do něj přidává nové osoby, jen pokud je v tabulce vars právě jeden klíč exportPam.N.active, s jakoukoli hodnotou</translation>
    </message>
    <message>
        <source>There are several payroll exports: %1. The plugin adds new people to one only when there is exactly one key exportPam.N.active in vars, whatever its value</source>
        <translation>Existuje více exportů pro mzdy: %1. Zásuvný modul přidává nové osoby do exportu, jen pokud je v tabulce vars právě jeden klíč exportPam.N.active, s jakoukoli hodnotou</translation>
    </message>
    <message>
        <source>%1 of master group %2</source>
        <translation>%1 z hlavní skupiny %2</translation>
    </message>
    <message>
        <source>Several calendar groups have the same calendar: %1. People are placed in any of them</source>
        <translation>Více kalendářových skupin má stejný kalendář: %1. Osoby se zařadí do kterékoli z nich</translation>
    </message>
    <message>
        <source>Several branches have the same number: %1. People of that cost centre are placed in any of them</source>
        <translation>Více poboček má stejné číslo: %1. Osoby z tohoto střediska se zařadí do kterékoli z nich</translation>
    </message>
    <message>
        <source>The ids of these branches exceed 16 bits: %1. Members are added to another branch, or to none</source>
        <translation>Id těchto poboček přesahují 16 bitů: %1. Členové se přidají do jiné pobočky nebo do žádné</translation>
    </message>
    <message>
        <source>The ids of these administrators exceed 16 bits: %1. The plugin writes them correctly, but other components of the attendance server that use its repository classes keep only 16 bits: people are assigned to another administrator, or to none</source>
        <translation>Id těchto administrátorů přesahují 16 bitů: %1. Zásuvný modul je zapisuje správně, ale ostatní součásti docházkového serveru, které používají jeho třídy pro přístup k databázi, uchovají jen 16 bitů: osoby se přidělí jinému administrátorovi nebo žádnému</translation>
    </message>
    <message>
        <source>Several administrators have the same personal number: %1. Any of them gets the requests</source>
        <translation>Více administrátorů má stejné osobní číslo: %1. Žádosti dostane kterýkoli z nich</translation>
    </message>
    <message>
        <source>The pid and pamId of these active people disagree: %1. The plugin looks a person up by pamId and writes by pid: it changes nobody, or treats the person as new</source>
        <translation>pid a pamId těchto aktivních osob si neodpovídají: %1. Zásuvný modul vyhledává osobu podle pamId a zapisuje podle pid: nezmění nikoho nebo považuje osobu za novou</translation>
    </message>
    <message numerus="yes">
        <source>The column vars.value holds %Ln character(s); the selection of the payroll export would need %1 to name every active person</source>
        <translation>
            <numerusform>Do sloupce vars.value se vejde %Ln znak; výběr exportu pro mzdy by jich k uvedení všech aktivních osob potřeboval %1</numerusform>
            <numerusform>Do sloupce vars.value se vejdou %Ln znaky; výběr exportu pro mzdy by jich k uvedení všech aktivních osob potřeboval %1</numerusform>
            <numerusform>Do sloupce vars.value se vejde %Ln znaků; výběr exportu pro mzdy by jich k uvedení všech aktivních osob potřeboval %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Obsah</translation>
    </message>
    <message>
        <source>The data meets the plugin&apos;s requirements.</source>
        <translation>Data splňují požadavky zásuvného modulu.</translation>
    </message>
    <message>
        <source>Set default_tmp_storage_engine to the same engine.</source>
        <translation>Nastavte default_tmp_storage_engine na totéž úložiště (engine).</translation>
    </message>
    <message>
        <source>Turn it off, or set default_tmp_storage_engine to Aria.</source>
        <translation>Vypněte ho nebo nastavte default_tmp_storage_engine na Aria.</translation>
    </message>
    <message>
        <source>Remove the mode from wsrep_mode.</source>
        <translation>Odstraňte tento režim z wsrep_mode.</translation>
    </message>
    <message>
        <source>The server has %1: CREATE TEMPORARY TABLE tmptbl_updateTermsSyncTZ fails with error %2. The plugin does not need it, but where the attendance server uses the same classes, a changed time zone does not reach the terminals</source>
        <translation>Server má nastaveno %1: CREATE TEMPORARY TABLE tmptbl_updateTermsSyncTZ selže s chybou %2. Zásuvný modul ho nepotřebuje, ale pokud docházkový server používá tytéž třídy, změna časového pásma se nedostane do terminálů</translation>
    </message>
    <message>
        <source>The server has wsrep_certify_nonPK = OFF, and this account sees no primary key on these tables: %1. Without one, each of the plugin&apos;s writes to them fails with error 1213 (deadlock).</source>
        <translation>Server má nastaveno wsrep_certify_nonPK = OFF a tento účet v těchto tabulkách nevidí primární klíč: %1. Bez něj selže každý zápis zásuvného modulu do nich s chybou 1213 (deadlock).</translation>
    </message>
    <message>
        <source>This account sees no primary key on these tables: %1. On a cluster, new rows of two nodes conflict in such a table though they differ, and one of the two is refused with error 1213 (deadlock).</source>
        <translation>Tento účet v těchto tabulkách nevidí primární klíč: %1. V clusteru jsou nové řádky dvou uzlů v takové tabulce v konfliktu, ačkoli jsou rozdílné, a jeden z nich bude odmítnut s chybou 1213 (deadlock).</translation>
    </message>
    <message>
        <source>Tables without a primary key</source>
        <translation>Tabulky bez primárního klíče</translation>
    </message>
    <message>
        <source>The server accepts them where they are used.</source>
        <translation>Server je přijímá všude, kde se používají.</translation>
    </message>
    <message>
        <source>The table %1 has no unique key on exactly %2: the plugin inserts a second row instead of updating the first</source>
        <translation>Tabulka %1 nemá jedinečný klíč právě na %2: zásuvný modul místo aktualizace prvního řádku vloží druhý</translation>
    </message>
    <message>
        <source>The table %1 has no unique key on exactly %2: another component of the attendance server inserts a second row instead of updating the first</source>
        <translation>Tabulka %1 nemá jedinečný klíč právě na %2: jiná součást docházkového serveru místo aktualizace prvního řádku vloží druhý</translation>
    </message>
    <message>
        <source>The table %1 has no unique key on %2: of two rows with the same value, either may be used</source>
        <translation>Tabulka %1 nemá jedinečný klíč na %2: ze dvou řádků se stejnou hodnotou se může použít kterýkoli</translation>
    </message>
    <message>
        <source>The table %1 has a unique key %2 on %3: a row that the plugin inserts can collide with another row in it and change that one instead</source>
        <translation>Tabulka %1 má jedinečný klíč %2 na %3: řádek, který zásuvný modul vkládá, se v něm může shodovat s jiným řádkem a změnit místo toho ten</translation>
    </message>
    <message>
        <source>The column %1.%2 is not AUTO_INCREMENT: the plugin leaves its value to the server</source>
        <translation>Sloupec %1.%2 není AUTO_INCREMENT: zásuvný modul nechává jeho hodnotu na serveru</translation>
    </message>
    <message>
        <source>Unique keys</source>
        <translation>Jedinečné klíče</translation>
    </message>
    <message>
        <source>The unique keys are as the plugin requires.</source>
        <translation>Jedinečné klíče jsou takové, jaké zásuvný modul vyžaduje.</translation>
    </message>
    <message>
        <source>The node %1 was not asked: %2</source>
        <translation>Uzel %1 nebyl ověřen: %2</translation>
    </message>
    <message>
        <source>The node %1 differs from this one in its SQL mode: &apos;%2&apos;, not &apos;%3&apos;</source>
        <translation>Uzel %1 se od tohoto liší režimem SQL: „%2“, ne „%3“</translation>
    </message>
    <message>
        <source>The node %1 differs from this one in its auto_increment_increment: &apos;%2&apos;, not &apos;%3&apos;</source>
        <translation>Uzel %1 se od tohoto liší hodnotou auto_increment_increment: „%2“, ne „%3“</translation>
    </message>
    <message>
        <source>The node %1 differs from this one in its version: &apos;%2&apos;, not &apos;%3&apos;</source>
        <translation>Uzel %1 se od tohoto liší verzí: „%2“, ne „%3“</translation>
    </message>
    <message>
        <source>The node %1 is not in step with the cluster (state %2).</source>
        <translation>Uzel %1 není v souladu s clusterem (stav %2).</translation>
    </message>
    <message>
        <source>The node %1 (time zone %2) and this one (%3) disagree about when days begin. After a fail-over, days of attendance and vacation would be missed or duplicated</source>
        <translation>Uzel %1 (časové pásmo %2) a tento (%3) se neshodují v tom, kdy začínají dny. Po přepnutí by dny docházky a dovolené chyběly nebo by se zdvojily</translation>
    </message>
    <message>
        <source>Other nodes of the cluster</source>
        <translation>Ostatní uzly clusteru</translation>
    </message>
    <message numerus="yes">
        <source>The cluster has %Ln member(s) without an address, as an arbitrator is, which was not asked</source>
        <translation>
            <numerusform>Cluster má %Ln člena bez adresy (takovým je například arbitr), který nebyl ověřen</numerusform>
            <numerusform>Cluster má %Ln členy bez adresy (takovým je například arbitr), kteří nebyli ověřeni</numerusform>
            <numerusform>Cluster má %Ln členů bez adresy (takovým je například arbitr), kteří nebyli ověřeni</numerusform>
        </translation>
    </message>
    <message>
        <source>The cluster has no other nodes.</source>
        <translation>Cluster nemá žádné další uzly.</translation>
    </message>
    <message>
        <source>All of them have the time zone, SQL mode, auto_increment_increment and version of this one.</source>
        <translation>Všechny mají stejné časové pásmo, režim SQL, auto_increment_increment a verzi jako tento uzel.</translation>
    </message>
    <message>
        <source>The account lacks %1 on %2 of the table %3</source>
        <translation>Účtu chybí v tabulce %3 oprávnění %1 k: %2</translation>
    </message>
    <message>
        <source>Rights of the account</source>
        <translation>Oprávnění účtu</translation>
    </message>
    <message>
        <source>The account has rights on the whole server that the plugin does not need: %1. Texts of the export go into the plugin&apos;s statements unescaped, so whoever writes the export can do whatever the account may do</source>
        <translation>Účet má oprávnění k celému serveru, která zásuvný modul nepotřebuje: %1. Texty exportu se do příkazů zásuvného modulu vkládají neošetřené, takže kdo zapisuje export, může udělat vše, co smí účet</translation>
    </message>
    <message>
        <source>The account has rights on whole databases that the plugin does not need: %1. Texts of the export go into the plugin&apos;s statements unescaped, so whoever writes the export can do whatever the account may do</source>
        <translation>Účet má oprávnění k celým databázím, která zásuvný modul nepotřebuje: %1. Texty exportu se do příkazů zásuvného modulu vkládají neošetřené, takže kdo zapisuje export, může udělat vše, co smí účet</translation>
    </message>
    <message>
        <source>The account has the rights that the plugin needs, and hardly more.</source>
        <translation>Účet má oprávnění, která zásuvný modul potřebuje, a ne o mnoho více.</translation>
    </message>
    <message>
        <source>The routine %1 does not exist, or the account may not call it</source>
        <translation>Uložená procedura %1 neexistuje nebo ji účet nesmí volat</translation>
    </message>
    <message>
        <source>The routine %1 takes a different number of arguments from what the plugin passes</source>
        <translation>Uložená procedura %1 má jiný počet argumentů, než jí zásuvný modul předává</translation>
    </message>
    <message>
        <source>The routine %1 fails: %2</source>
        <translation>Uložená procedura %1 selhává: %2</translation>
    </message>
    <message>
        <source>The function %1 returns a wrong result: %2 gives %3, not %4</source>
        <translation>Funkce %1 vrací nesprávný výsledek: %2 dává %3, ne %4</translation>
    </message>
    <message>
        <source>The function %1 fails for days beyond the server&apos;s range (%2). A single such day of attendance, for example with a mistyped year, keeps every month of that person from being filled</source>
        <translation>Funkce %1 selhává u dnů mimo rozsah serveru (%2). Jediný takový den docházky, například s překlepem v roce, způsobí, že se dané osobě nedoplní žádný měsíc</translation>
    </message>
    <message>
        <source>This account cannot see the routine %1</source>
        <translation>Tento účet nevidí uloženou proceduru %1</translation>
    </message>
    <message>
        <source>Routines</source>
        <translation>Uložené procedury</translation>
    </message>
    <message>
        <source>The routines work as the plugin requires.</source>
        <translation>Uložené procedury fungují tak, jak zásuvný modul vyžaduje.</translation>
    </message>
    <message>
        <source>The server is %1. There &quot;groups&quot; is a reserved word, and the plugin&apos;s statement that looks up a calendar group, which does not quote it, fails for everybody</source>
        <translation>Server je %1. „groups“ je tam vyhrazené slovo a příkaz zásuvného modulu, který vyhledává kalendářovou skupinu a neuvádí ho v uvozovkách, selže u každé osoby</translation>
    </message>
    <message>
        <source>The server is read-only: every write of the plugin fails</source>
        <translation>Server je jen pro čtení: každý zápis zásuvného modulu selže</translation>
    </message>
    <message>
        <source>The SQL mode ONLY_FULL_GROUP_BY is on: the statements that rebuild groups_month and queue a time zone for the terminals fail</source>
        <translation>Je zapnut režim SQL ONLY_FULL_GROUP_BY: příkazy, které znovu vytvářejí groups_month a zařazují časové pásmo do fronty terminálů, selžou</translation>
    </message>
    <message>
        <source>The SQL mode EMPTY_STRING_IS_NULL is on: people without a title or telephone cannot be written to columns that do not allow NULL</source>
        <translation>Je zapnut režim SQL EMPTY_STRING_IS_NULL: osoby bez titulu nebo telefonu nelze zapsat do sloupců, které nepřipouštějí NULL</translation>
    </message>
    <message>
        <source>No strict SQL mode is on: texts longer than their column are cut and numbers that do not fit are altered without any message</source>
        <translation>Není zapnut žádný striktní režim SQL: texty delší než jejich sloupec se zkrátí a čísla, která se nevejdou, se pozmění bez jakéhokoli hlášení</translation>
    </message>
    <message>
        <source>The SQL mode NO_BACKSLASH_ESCAPES is on: a backslash in a text of the export is stored literally. Without the mode it escapes the next character</source>
        <translation>Je zapnut režim SQL NO_BACKSLASH_ESCAPES: zpětné lomítko v textu exportu se uloží tak, jak je. Bez tohoto režimu mění význam následujícího znaku</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>SQL mode</source>
        <translation>Režim SQL</translation>
    </message>
    <message>
        <source>The server and its SQL mode are suitable for the plugin.</source>
        <translation>Server a jeho režim SQL jsou pro zásuvný modul vhodné.</translation>
    </message>
    <message>
        <source>%1, and none on %2</source>
        <translation>%1 ani na %2</translation>
    </message>
    <message numerus="yes">
        <source>The table %1 has no key on %2: for each person or branch the plugin sends %Ln statement(s) that walk up to %3 of its rows. A synchronisation in which all %4 people have changed takes up to about %5 longer, estimated with %6 rows a second</source>
        <translation>
            <numerusform>Tabulka %1 nemá klíč na %2: pro každou osobu nebo pobočku posílá zásuvný modul %Ln příkaz, který prochází až %3 jejích řádků. Prodloužení synchronizace, při níž se změnily všechny osoby (%4), odhadnuté při %6 řádcích za sekundu: až %5</numerusform>
            <numerusform>Tabulka %1 nemá klíč na %2: pro každou osobu nebo pobočku posílá zásuvný modul %Ln příkazy, které procházejí až %3 jejích řádků. Prodloužení synchronizace, při níž se změnily všechny osoby (%4), odhadnuté při %6 řádcích za sekundu: až %5</numerusform>
            <numerusform>Tabulka %1 nemá klíč na %2: pro každou osobu nebo pobočku posílá zásuvný modul %Ln příkazů, které procházejí až %3 jejích řádků. Prodloužení synchronizace, při níž se změnily všechny osoby (%4), odhadnuté při %6 řádcích za sekundu: až %5</numerusform>
        </translation>
    </message>
    <message>
        <source>Statements for a person</source>
        <translation>Příkazy pro jednu osobu</translation>
    </message>
    <message>
        <source>The server finds their rows without walking a large table.</source>
        <translation>Server najde jejich řádky bez procházení velké tabulky.</translation>
    </message>
    <message>
        <source>The server does not explain all of them: %1.</source>
        <translation>Server nevysvětlil všechny (EXPLAIN): %1.</translation>
    </message>
    <message>
        <source>The table %1 does not exist, or the account has no rights on it</source>
        <translation>Tabulka %1 neexistuje nebo k ní účet nemá oprávnění</translation>
    </message>
    <message>
        <source>The column %1 does not exist, or the account has no rights on it</source>
        <translation>Sloupec %1 neexistuje nebo k němu účet nemá oprávnění</translation>
    </message>
    <message>
        <source>Missing, or hidden from this account: %1. The plugin does not use them; other components of the attendance server may</source>
        <translation>Chybí nebo tento účet nevidí: %1. Zásuvný modul to nepoužívá; ostatní součásti docházkového serveru mohou</translation>
    </message>
    <message>
        <source>The column %1.%2 has no default value and does not allow NULL: in strict SQL modes the plugin&apos;s new rows, which leave it out, are refused</source>
        <translation>Sloupec %1.%2 nemá výchozí hodnotu a nepřipouští NULL: ve striktních režimech SQL budou nové řádky zásuvného modulu, které ho vynechávají, odmítnuty</translation>
    </message>
    <message>
        <source>This account has rights on single columns of these tables and sees no others: %1. This check cannot find a column that the site added there without a default value, which makes every new row fail, nor a unique key on hidden columns</source>
        <translation>Tento účet má oprávnění k jednotlivým sloupcům těchto tabulek a jiné nevidí: %1. Tato kontrola v nich nenajde dodatečně přidaný sloupec bez výchozí hodnoty, kvůli kterému selže každý nový řádek, ani jedinečný klíč na skrytých sloupcích</translation>
    </message>
    <message>
        <source>The default of people.status is not 1: people whom the plugin creates are inactive until their line of the export changes</source>
        <translation>Výchozí hodnota people.status není 1: osoby, které zásuvný modul vytvoří, jsou neaktivní, dokud se nezmění jejich řádek v exportu</translation>
    </message>
    <message>
        <source>The table %1 does not support transactions: if a supervisor cannot be set, the previous one loses the person&apos;s requests all the same</source>
        <translation>Tabulka %1 nepodporuje transakce: pokud nadřízeného nelze nastavit, předchozí i tak přijde o žádosti dané osoby</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabulky</translation>
    </message>
    <message>
        <source>All tables and columns exist, and new rows can be inserted.</source>
        <translation>Všechny tabulky a sloupce existují a nové řádky lze vložit.</translation>
    </message>
    <message>
        <source>The server (time zone %1) and this program (%2) disagree about when days begin, such as %3. Days of attendance and vacation would be missed or duplicated</source>
        <translation>Server (časové pásmo %1) a tento program (%2) se neshodují v tom, kdy začínají dny, například %3. Dny docházky a dovolené by chyběly nebo by se zdvojily</translation>
    </message>
    <message numerus="yes">
        <source>The server&apos;s clock is %Ln second(s) ahead of this machine&apos;s</source>
        <translation>
            <numerusform>Hodiny serveru jdou oproti tomuto počítači o %Ln sekundu napřed</numerusform>
            <numerusform>Hodiny serveru jdou oproti tomuto počítači o %Ln sekundy napřed</numerusform>
            <numerusform>Hodiny serveru jdou oproti tomuto počítači o %Ln sekund napřed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server&apos;s clock is %Ln second(s) behind this machine&apos;s</source>
        <translation>
            <numerusform>Hodiny serveru jdou oproti tomuto počítači o %Ln sekundu pozadu</numerusform>
            <numerusform>Hodiny serveru jdou oproti tomuto počítači o %Ln sekundy pozadu</numerusform>
            <numerusform>Hodiny serveru jdou oproti tomuto počítači o %Ln sekund pozadu</numerusform>
        </translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Server&apos;s time zone</source>
        <translation>Časové pásmo serveru</translation>
    </message>
    <message>
        <source>Time zone of this program</source>
        <translation>Časové pásmo tohoto programu</translation>
    </message>
    <message>
        <source>Server knows the time after 19 January 2038</source>
        <translation>Server zná čas po 19. lednu 2038</translation>
    </message>
    <message>
        <source>The server and this program agree about time.</source>
        <translation>Server a tento program se v čase shodují.</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>of a state</comment>
        <translation>neznámý</translation>
    </message>
</context>
</TS>
