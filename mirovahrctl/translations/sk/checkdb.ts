<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Text</name>
    <message>
        <source>The id of an administrator exceeds 16 bits, which is all that other components keep.</source>
        <translation>Id administrátora presahuje 16 bitov, ostatné súčasti však viac neuchovávajú.</translation>
    </message>
    <message>
        <source>Give the administrators ids up to 65535.</source>
        <translation>Prideľte administrátorom id najviac 65535.</translation>
    </message>
    <message>
        <source>The id of a branch exceeds 16 bits; members are added to another branch, or to none.</source>
        <translation>Id pobočky presahuje 16 bitov; členovia sa pridajú do inej pobočky alebo do žiadnej.</translation>
    </message>
    <message>
        <source>Give the branches ids up to 65535.</source>
        <translation>Prideľte pobočkám id najviac 65535.</translation>
    </message>
    <message>
        <source>Several branches have the same number; people are placed in any of them.</source>
        <translation>Viac pobočiek má to isté číslo; osoby sa zaradia do ktorejkoľvek z nich.</translation>
    </message>
    <message>
        <source>Give the number to one branch only.</source>
        <translation>Prideľte číslo len jednej pobočke.</translation>
    </message>
    <message>
        <source>Several calendar groups have the same calendar; people are placed in any of them.</source>
        <translation>Viac kalendárových skupín má ten istý kalendár; osoby sa zaradia do ktorejkoľvek z nich.</translation>
    </message>
    <message>
        <source>Keep one group for each calendar in a master group.</source>
        <translation>Ponechajte v hlavnej skupine pre každý kalendár jednu skupinu.</translation>
    </message>
    <message>
        <source>The clocks of the server and of this machine differ.</source>
        <translation>Hodiny servera a tohto počítača sa líšia.</translation>
    </message>
    <message>
        <source>Synchronise both with the same time server: the plugin compares times of the two.</source>
        <translation>Hodiny oboch synchronizujte s tým istým časovým serverom: zásuvný modul ich časy porovnáva.</translation>
    </message>
    <message>
        <source>innodb_autoinc_lock_mode is not 2, so inserts of several nodes can block each other for good.</source>
        <translation>innodb_autoinc_lock_mode nie je 2, takže vkladanie riadkov z viacerých uzlov sa môže navzájom natrvalo zablokovať.</translation>
    </message>
    <message>
        <source>Set innodb_autoinc_lock_mode = 2 on every node.</source>
        <translation>Nastavte na každom uzle innodb_autoinc_lock_mode = 2.</translation>
    </message>
    <message>
        <source>binlog_format is not ROW, the only one that a Galera cluster replicates.</source>
        <translation>binlog_format nie je ROW, jediný formát, ktorý klaster Galera replikuje.</translation>
    </message>
    <message>
        <source>Set binlog_format = ROW on every node.</source>
        <translation>Nastavte na každom uzle binlog_format = ROW.</translation>
    </message>
    <message>
        <source>A node that is being copied to a joining one does not work meanwhile.</source>
        <translation>Uzol, z ktorého sa kopírujú údaje do pripájaného uzla, medzitým nepracuje.</translation>
    </message>
    <message>
        <source>Set wsrep_sst_method = mariabackup and wsrep_sst_donor_rejects_queries = OFF on every node.</source>
        <translation>Nastavte na každom uzle wsrep_sst_method = mariabackup a wsrep_sst_donor_rejects_queries = OFF.</translation>
    </message>
    <message>
        <source>A table has an engine that the cluster does not replicate.</source>
        <translation>Tabuľka používa úložisko (engine), ktoré klaster nereplikuje.</translation>
    </message>
    <message>
        <source>Convert the table: ALTER TABLE ... ENGINE = InnoDB.</source>
        <translation>Preveďte tabuľku: ALTER TABLE ... ENGINE = InnoDB.</translation>
    </message>
    <message>
        <source>wsrep_retry_autocommit is below 5, so statements fail at conflicts with other nodes.</source>
        <translation>wsrep_retry_autocommit je menej ako 5, takže príkazy pri konfliktoch s inými uzlami zlyhávajú.</translation>
    </message>
    <message>
        <source>Set wsrep_retry_autocommit = 5, or more, on every node.</source>
        <translation>Nastavte na každom uzle wsrep_retry_autocommit = 5 alebo viac.</translation>
    </message>
    <message>
        <source>A table has no primary key, so different new rows of two nodes conflict.</source>
        <translation>Tabuľka nemá primárny kľúč, takže rozdielne nové riadky dvoch uzlov sú v konflikte.</translation>
    </message>
    <message>
        <source>Add a column id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY.</source>
        <translation>Pridajte stĺpec id BIGINT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY.</translation>
    </message>
    <message>
        <source>Another node counts automatic numbers in other steps than this one.</source>
        <translation>Iný uzol prideľuje automatické čísla s iným krokom ako tento.</translation>
    </message>
    <message>
        <source>Set wsrep_auto_increment_control = ON, or the same auto_increment_increment, on every node.</source>
        <translation>Nastavte na každom uzle wsrep_auto_increment_control = ON alebo rovnaké auto_increment_increment.</translation>
    </message>
    <message>
        <source>A member of the cluster could not be asked, so this check says nothing about it.</source>
        <translation>Jeden z členov klastra sa nedal overiť, takže táto kontrola o ňom nič nehovorí.</translation>
    </message>
    <message>
        <source>Check it by itself. Here the account must be allowed to connect to it.</source>
        <translation>Overte ho samostatne. Pre túto kontrolu musí mať účet povolené pripojiť sa k nemu.</translation>
    </message>
    <message>
        <source>Another node has another SQL mode than this one.</source>
        <translation>Iný uzol má iný režim SQL ako tento.</translation>
    </message>
    <message>
        <source>Give every node the same sql_mode: the plugin works with each of them after a fail-over.</source>
        <translation>Nastavte na každom uzle rovnaký sql_mode: po prepnutí pracuje zásuvný modul s ktorýmkoľvek z nich.</translation>
    </message>
    <message>
        <source>Another node is in another time zone than this one.</source>
        <translation>Iný uzol je v inom časovom pásme ako tento.</translation>
    </message>
    <message>
        <source>Give every node, and the attendance server, the same time zone by its name.</source>
        <translation>Nastavte na každom uzle aj na dochádzkovom serveri to isté časové pásmo jeho názvom.</translation>
    </message>
    <message>
        <source>Another node has another version than this one.</source>
        <translation>Iný uzol má inú verziu ako tento.</translation>
    </message>
    <message>
        <source>Finish the upgrade of the cluster.</source>
        <translation>Dokončite aktualizáciu klastra.</translation>
    </message>
    <message>
        <source>The node has lost the majority of its cluster, and refuses every statement.</source>
        <translation>Uzol stratil spojenie s väčšinou svojho klastra a odmieta každý príkaz.</translation>
    </message>
    <message>
        <source>Use another node. See to the network and the other nodes.</source>
        <translation>Použite iný uzol. Skontrolujte sieť a ostatné uzly.</translation>
    </message>
    <message>
        <source>A node of the cluster is not in step with the others, or refuses statements.</source>
        <translation>Uzol klastra nie je zosúladený s ostatnými alebo odmieta príkazy.</translation>
    </message>
    <message>
        <source>Wait until it is Synced, or use another node.</source>
        <translation>Počkajte, kým bude v stave Synced, alebo použite iný uzol.</translation>
    </message>
    <message>
        <source>The server is prepared for a cluster, and does not replicate.</source>
        <translation>Server je pripravený na prácu v klastri, ale nereplikuje.</translation>
    </message>
    <message>
        <source>Set wsrep_on = ON, or remove wsrep_provider from a server that is to be alone.</source>
        <translation>Nastavte wsrep_on = ON alebo odstráňte wsrep_provider zo servera, ktorý má pracovať samostatne.</translation>
    </message>
    <message>
        <source>wsrep_sync_wait lacks the bit 1, so a query may miss what other nodes have committed.</source>
        <translation>wsrep_sync_wait neobsahuje bit 1, takže dotaz nemusí vidieť to, čo už potvrdili iné uzly.</translation>
    </message>
    <message>
        <source>Set wsrep_sync_wait = 1 on every node.</source>
        <translation>Nastavte na každom uzle wsrep_sync_wait = 1.</translation>
    </message>
    <message>
        <source>A text column has a character set that lacks letters.</source>
        <translation>Textový stĺpec má znakovú sadu, v ktorej chýbajú písmená.</translation>
    </message>
    <message>
        <source>Convert the column to utf8mb4.</source>
        <translation>Preveďte stĺpec na utf8mb4.</translation>
    </message>
    <message>
        <source>A column has another kind of type than the plugin writes.</source>
        <translation>Stĺpec má iný druh typu, než aký zapisuje zásuvný modul.</translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql.</source>
        <translation>Nastavte stĺpcu typ podľa reference-db/schema.sql.</translation>
    </message>
    <message>
        <source>A column that the plugin uses does not exist, or the account has no rights on it.</source>
        <translation>Stĺpec, ktorý zásuvný modul používa, neexistuje alebo naň účet nemá oprávnenia.</translation>
    </message>
    <message>
        <source>See the definition in reference-db/schema.sql. An account cannot see what it has no rights on.</source>
        <translation>Pozrite si definíciu v reference-db/schema.sql. Účet nevidí to, na čo nemá oprávnenia.</translation>
    </message>
    <message>
        <source>A column does not allow NULL, which the plugin writes into it.</source>
        <translation>Stĺpec nepripúšťa NULL, ktoré doň zásuvný modul zapisuje.</translation>
    </message>
    <message>
        <source>Allow NULL in the column.</source>
        <translation>Povoľte v stĺpci NULL.</translation>
    </message>
    <message>
        <source>A column cannot hold everything that the plugin writes into it.</source>
        <translation>Do stĺpca sa nezmestí všetko, čo doň zásuvný modul zapisuje.</translation>
    </message>
    <message>
        <source>A column that the plugin leaves out has no default value, so new rows are refused.</source>
        <translation>Stĺpec, ktorý zásuvný modul vynecháva, nemá predvolenú hodnotu, takže nové riadky sa odmietnu.</translation>
    </message>
    <message>
        <source>Give the column a default value.</source>
        <translation>Nastavte stĺpcu predvolenú hodnotu.</translation>
    </message>
    <message>
        <source>The account sees only some columns of a table, so this check may miss others.</source>
        <translation>Účet vidí len niektoré stĺpce tabuľky, takže tejto kontrole môžu ostatné uniknúť.</translation>
    </message>
    <message>
        <source>Check again with an account that reads whole tables, such as mirovahrctl, and --other-account.</source>
        <translation>Zopakujte kontrolu s účtom, ktorý číta celé tabuľky, napríklad mirovahrctl, a s voľbou --other-account.</translation>
    </message>
    <message>
        <source>The connection&apos;s character set is not UTF-8: accented letters are stored wrongly.</source>
        <translation>Znaková sada spojenia nie je UTF-8: písmená s diakritikou sa ukladajú nesprávne.</translation>
    </message>
    <message>
        <source>Check the server&apos;s init_connect for SET NAMES.</source>
        <translation>Skontrolujte, či init_connect servera neobsahuje SET NAMES.</translation>
    </message>
    <message>
        <source>The column of the department cannot hold that of the configuration.</source>
        <translation>Do stĺpca oddelenia sa nezmestí oddelenie z konfigurácie.</translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql, or write a smaller departmentId.</source>
        <translation>Nastavte stĺpcu typ podľa reference-db/schema.sql alebo uveďte menšie departmentId.</translation>
    </message>
    <message>
        <source>The connect options contain CLIENT_FOUND_ROWS, so the plugin miscounts changed rows.</source>
        <translation>Voľby spojenia obsahujú CLIENT_FOUND_ROWS, takže zásuvný modul nesprávne počíta zmenené riadky.</translation>
    </message>
    <message>
        <source>Leave the option out, here and in the attendance server.</source>
        <translation>Vynechajte túto voľbu tu aj v dochádzkovom serveri.</translation>
    </message>
    <message>
        <source>The server reserves the word groups, so a statement of the plugin fails.</source>
        <translation>Slovo groups je na serveri vyhradené, takže jeden príkaz zásuvného modulu zlyhá.</translation>
    </message>
    <message>
        <source>Use MariaDB, or MySQL up to 5.7.</source>
        <translation>Použite MariaDB alebo MySQL najviac 5.7.</translation>
    </message>
    <message>
        <source>A table has no unique key where the plugin expects one row for each value.</source>
        <translation>Tabuľka nemá jedinečný kľúč tam, kde zásuvný modul očakáva pre každú hodnotu jeden riadok.</translation>
    </message>
    <message>
        <source>Remove the duplicate rows and add the key.</source>
        <translation>Odstráňte duplicitné riadky a pridajte kľúč.</translation>
    </message>
    <message>
        <source>A unique key is missing: the plugin inserts a second row instead of updating the first.</source>
        <translation>Chýba jedinečný kľúč: zásuvný modul namiesto aktualizácie prvého riadka vloží druhý.</translation>
    </message>
    <message>
        <source>A unique key is missing that another component of the attendance server needs.</source>
        <translation>Chýba jedinečný kľúč, ktorý potrebuje iná súčasť dochádzkového servera.</translation>
    </message>
    <message>
        <source>A further unique key can make the plugin change another row than it means.</source>
        <translation>Ďalší jedinečný kľúč môže spôsobiť, že zásuvný modul zmení iný riadok, než má.</translation>
    </message>
    <message>
        <source>Make the key non-unique.</source>
        <translation>Zmeňte kľúč na nejedinečný.</translation>
    </message>
    <message>
        <source>A table or column is missing that only other components of the attendance server use.</source>
        <translation>Chýba tabuľka alebo stĺpec, ktoré používajú len ostatné súčasti dochádzkového servera.</translation>
    </message>
    <message>
        <source>The connect options set no time limit: a silent server freezes the plugin.</source>
        <translation>Voľby spojenia neurčujú časový limit: server, ktorý mlčí, zásuvný modul zablokuje.</translation>
    </message>
    <message>
        <source>Give the attendance server&apos;s connection the connect options MYSQL_OPT_CONNECT_TIMEOUT=30, MYSQL_OPT_READ_TIMEOUT=120 and MYSQL_OPT_WRITE_TIMEOUT=120, and this check the same with --connect-options. yavhost sets them by itself.</source>
        <translation>Nastavte spojeniu dochádzkového servera voľby MYSQL_OPT_CONNECT_TIMEOUT=30, MYSQL_OPT_READ_TIMEOUT=120 a MYSQL_OPT_WRITE_TIMEOUT=120 a tejto kontrole tie isté pomocou --connect-options. yavhost ich nastavuje sám.</translation>
    </message>
    <message>
        <source>A column is not AUTO_INCREMENT, but the plugin leaves its value to the server.</source>
        <translation>Stĺpec nie je AUTO_INCREMENT, ale zásuvný modul necháva jeho hodnotu na server.</translation>
    </message>
    <message>
        <source>Make it AUTO_INCREMENT.</source>
        <translation>Nastavte ho ako AUTO_INCREMENT.</translation>
    </message>
    <message>
        <source>A table does not support transactions.</source>
        <translation>Tabuľka nepodporuje transakcie.</translation>
    </message>
    <message>
        <source>Use a transactional engine, such as InnoDB.</source>
        <translation>Použite transakčné úložisko (engine), napríklad InnoDB.</translation>
    </message>
    <message>
        <source>There is no payroll export, so the plugin adds new people to none.</source>
        <translation>Export pre mzdy neexistuje, takže zásuvný modul do žiadneho nové osoby nepridá.</translation>
    </message>
    <message>
        <source>Ignore this if nobody should be added.</source>
        <translation>Ak sa nemá pridávať nikto, nález môžete ignorovať.</translation>
    </message>
    <message>
        <source>There are several payroll exports, so the plugin adds new people to none.</source>
        <translation>Existuje viac exportov pre mzdy, takže zásuvný modul do žiadneho nové osoby nepridá.</translation>
    </message>
    <message>
        <source>The pid and pamId of an active person disagree.</source>
        <translation>pid a pamId aktívnej osoby si nezodpovedajú.</translation>
    </message>
    <message>
        <source>pamId is the personal number, a dot and the number of the relationship; pid is the digits of both joined.</source>
        <translation>pamId je osobné číslo, bodka a číslo pomeru; pid sú spojené číslice oboch.</translation>
    </message>
    <message>
        <source>The cluster refuses writes to tables without a primary key, and there is such a table.</source>
        <translation>Klaster odmieta zápis do tabuliek bez primárneho kľúča a taká tabuľka tu je.</translation>
    </message>
    <message>
        <source>The account has more rights than the plugin needs.</source>
        <translation>Účet má viac oprávnení, než zásuvný modul potrebuje.</translation>
    </message>
    <message>
        <source>Run the plugin with an account as in reference-db/grants.sql; see docs/security.md.</source>
        <translation>Prevádzkujte zásuvný modul s účtom podľa reference-db/grants.sql; pozri docs/security.md.</translation>
    </message>
    <message>
        <source>The account lacks a right that the plugin needs.</source>
        <translation>Účtu chýba oprávnenie, ktoré zásuvný modul potrebuje.</translation>
    </message>
    <message>
        <source>Load reference-db/grants.sql, with the account&apos;s name in it.</source>
        <translation>Načítajte reference-db/grants.sql s menom účtu.</translation>
    </message>
    <message>
        <source>A routine takes a different number of arguments from what the plugin passes.</source>
        <translation>Uložená procedúra má iný počet argumentov, než jej zásuvný modul odovzdáva.</translation>
    </message>
    <message>
        <source>Compare it with reference-db/routines.sql.</source>
        <translation>Porovnajte ju s reference-db/routines.sql.</translation>
    </message>
    <message>
        <source>A routine fails.</source>
        <translation>Uložená procedúra zlyháva.</translation>
    </message>
    <message>
        <source>A function fails for days beyond the server&apos;s range.</source>
        <translation>Funkcia zlyháva pri dňoch mimo rozsahu servera.</translation>
    </message>
    <message>
        <source>Create the function again in an SQL mode that is not strict, as reference-db/routines.sql does, and grant EXECUTE on it again.</source>
        <translation>Vytvorte funkciu znova v režime SQL, ktorý nie je striktný, ako to robí reference-db/routines.sql, a znova na ňu udeľte oprávnenie EXECUTE.</translation>
    </message>
    <message>
        <source>A routine does not exist, or the account may not call it.</source>
        <translation>Uložená procedúra neexistuje alebo ju účet nesmie volať.</translation>
    </message>
    <message>
        <source>See reference-db/routines.sql and reference-db/grants.sql.</source>
        <translation>Pozrite si reference-db/routines.sql a reference-db/grants.sql.</translation>
    </message>
    <message>
        <source>The account cannot see a routine.</source>
        <translation>Účet nevidí uloženú procedúru.</translation>
    </message>
    <message>
        <source>Check with the plugin&apos;s account as well.</source>
        <translation>Zopakujte kontrolu aj s účtom zásuvného modulu.</translation>
    </message>
    <message>
        <source>A function returns a wrong result.</source>
        <translation>Funkcia vracia nesprávny výsledok.</translation>
    </message>
    <message>
        <source>The column of the payroll export&apos;s selection cannot name every active person.</source>
        <translation>Do stĺpca s výberom exportu pre mzdy sa nezmestia všetky aktívne osoby.</translation>
    </message>
    <message>
        <source>Make the column a MEDIUMTEXT.</source>
        <translation>Zmeňte typ stĺpca na MEDIUMTEXT.</translation>
    </message>
    <message>
        <source>The server is read-only, so every write of the plugin fails.</source>
        <translation>Server je len na čítanie, takže každý zápis zásuvného modulu zlyhá.</translation>
    </message>
    <message>
        <source>Use the server that accepts writes, not a replica.</source>
        <translation>Použite server, ktorý prijíma zápisy, nie repliku.</translation>
    </message>
    <message>
        <source>The connection refuses several statements in one text.</source>
        <translation>Spojenie odmieta viac príkazov v jednom texte.</translation>
    </message>
    <message>
        <source>Check for a proxy between this machine and the server that splits the statements.</source>
        <translation>Skontrolujte, či medzi týmto počítačom a serverom nie je proxy server, ktorý príkazy rozdeľuje.</translation>
    </message>
    <message>
        <source>The SQL mode NO_BACKSLASH_ESCAPES is on, so a backslash is stored literally.</source>
        <translation>Je zapnutý režim SQL NO_BACKSLASH_ESCAPES, takže opačná lomka sa uloží tak, ako je.</translation>
    </message>
    <message>
        <source>Run the gate with --texts no-backslash-escapes: otherwise it doubles backslashes.</source>
        <translation>Spúšťajte bránu s --texts no-backslash-escapes: inak opačné lomky zdvojuje.</translation>
    </message>
    <message>
        <source>The SQL mode EMPTY_STRING_IS_NULL is on, so people with empty texts cannot be written.</source>
        <translation>Je zapnutý režim SQL EMPTY_STRING_IS_NULL, takže osoby s prázdnymi textami sa nedajú zapísať.</translation>
    </message>
    <message>
        <source>Remove the mode from the server&apos;s sql_mode, or from that of the plugin&apos;s connections.</source>
        <translation>Odstráňte tento režim zo sql_mode servera alebo spojení zásuvného modulu.</translation>
    </message>
    <message>
        <source>The SQL mode ONLY_FULL_GROUP_BY is on, so some statements fail.</source>
        <translation>Je zapnutý režim SQL ONLY_FULL_GROUP_BY, takže niektoré príkazy zlyhajú.</translation>
    </message>
    <message>
        <source>No strict SQL mode is on, so values that do not fit are altered silently.</source>
        <translation>Nie je zapnutý žiadny striktný režim SQL, takže hodnoty, ktoré sa nezmestia, sa bez upozornenia pozmenia.</translation>
    </message>
    <message>
        <source>Add STRICT_TRANS_TABLES to the server&apos;s sql_mode.</source>
        <translation>Pridajte STRICT_TRANS_TABLES do sql_mode servera.</translation>
    </message>
    <message>
        <source>The column of the relationship state lacks letters of a text in the configuration.</source>
        <translation>V znakovej sade stĺpca stavu pomeru chýbajú písmená textu z konfigurácie.</translation>
    </message>
    <message>
        <source>The column of the relationship state is shorter than a text in the configuration.</source>
        <translation>Stĺpec stavu pomeru je kratší ako text z konfigurácie.</translation>
    </message>
    <message>
        <source>Shorten the text in the group MES, or widen the column.</source>
        <translation>Skráťte text v skupine MES alebo rozšírte stĺpec.</translation>
    </message>
    <message>
        <source>Without a key, statements that the plugin sends for each person walk a large table.</source>
        <translation>Bez kľúča prechádzajú príkazy, ktoré zásuvný modul posiela pre každú osobu, veľkú tabuľku.</translation>
    </message>
    <message>
        <source>Add the key of reference-db/schema.sql.</source>
        <translation>Pridajte kľúč podľa reference-db/schema.sql.</translation>
    </message>
    <message>
        <source>The default of people.status is not 1, so new people are inactive.</source>
        <translation>Predvolená hodnota people.status nie je 1, takže nové osoby sú neaktívne.</translation>
    </message>
    <message>
        <source>Make 1 the default of the column.</source>
        <translation>Nastavte stĺpcu predvolenú hodnotu 1.</translation>
    </message>
    <message>
        <source>Several administrators have the same personal number; any of them gets the requests.</source>
        <translation>Viac administrátorov má to isté osobné číslo; žiadosti dostane ktorýkoľvek z nich.</translation>
    </message>
    <message>
        <source>Give the number to one administrator only.</source>
        <translation>Prideľte číslo len jednému administrátorovi.</translation>
    </message>
    <message>
        <source>A table that the plugin uses does not exist, or the account has no rights on it.</source>
        <translation>Tabuľka, ktorú zásuvný modul používa, neexistuje alebo na ňu účet nemá oprávnenia.</translation>
    </message>
    <message>
        <source>The server refuses temporary tables without a primary key.</source>
        <translation>Server odmieta dočasné tabuľky bez primárneho kľúča.</translation>
    </message>
    <message>
        <source>Change the setting of the server that the finding names.</source>
        <translation>Zmeňte nastavenie servera, ktoré nález uvádza.</translation>
    </message>
    <message>
        <source>The server and this program disagree about when days begin.</source>
        <translation>Server a tento program sa nezhodujú v tom, kedy sa začínajú dni.</translation>
    </message>
    <message>
        <source>Run this check with the TZ of the attendance server. If the error remains, give both the same zone by name: an offset such as +01:00 has no daylight saving time.</source>
        <translation>Spustite túto kontrolu s hodnotou TZ dochádzkového servera. Ak chyba pretrváva, nastavte obom to isté pásmo jeho názvom: posun, napríklad +01:00, nepozná letný čas.</translation>
    </message>
    <message>
        <source>There is no vacation fund, so vacation balances are not synchronised.</source>
        <translation>Fond dovolenky neexistuje, takže zostatky dovolenky sa nesynchronizujú.</translation>
    </message>
    <message>
        <source>Ignore this if they should not be.</source>
        <translation>Ak sa synchronizovať nemajú, nález môžete ignorovať.</translation>
    </message>
    <message>
        <source>The number of the vacation fund exceeds 16 bits; the plugin would write to another fund.</source>
        <translation>Číslo fondu dovolenky presahuje 16 bitov; zásuvný modul by zapisoval do iného fondu.</translation>
    </message>
    <message>
        <source>Give the fund a number up to 65535.</source>
        <translation>Prideľte fondu číslo najviac 65535.</translation>
    </message>
    <message>
        <source>There are several vacation funds; the plugin uses any of them.</source>
        <translation>Existuje viac fondov dovolenky; zásuvný modul použije ktorýkoľvek z nich.</translation>
    </message>
    <message>
        <source>Keep only one.</source>
        <translation>Ponechajte len jeden.</translation>
    </message>
    <message>
        <source>Checks whether the attendance database meets the plugin&apos;s requirements: the server, the connection, tables, columns, keys and routines, the rights of the account, and some of the data. Writes nothing: the server itself refuses it.

Check twice. First connect as the plugin does: with its account, its connect options and its time zone (TZ). That account sees only the columns on which it has rights. A column without a default value that the site added makes every new row fail; only a second check finds it, with an account that reads whole tables and --other-account. With --config the check is about the department and the relationship states of that configuration, and otherwise about any.</source>
        <translation>Overí, či dochádzková databáza spĺňa požiadavky zásuvného modulu: server, spojenie, tabuľky, stĺpce, kľúče a uložené procedúry, oprávnenia účtu a časť údajov. Nič nezapisuje: odmietol by to samotný server.

Kontrolu vykonajte dvakrát. Najprv sa pripojte ako zásuvný modul: s jeho účtom, jeho voľbami spojenia a jeho časovým pásmom (TZ). Tento účet vidí len stĺpce, na ktoré má oprávnenia. Ak bol do databázy pridaný stĺpec bez predvolenej hodnoty, zlyhá každý nový riadok; odhalí ho až druhá kontrola, s účtom, ktorý číta celé tabuľky, a s voľbou --other-account. S voľbou --config sa overuje oddelenie a stavy pomeru danej konfigurácie, inak akékoľvek.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin cannot work properly with this database: %Ln requirement(s) are violated.</source>
        <translation>
            <numerusform>Zásuvný modul nemôže s touto databázou správne pracovať: je porušená %Ln požiadavka.</numerusform>
            <numerusform>Zásuvný modul nemôže s touto databázou správne pracovať: sú porušené %Ln požiadavky.</numerusform>
            <numerusform>Zásuvný modul nemôže s touto databázou správne pracovať: je porušených %Ln požiadaviek.</numerusform>
        </translation>
    </message>
    <message>
        <source>As far as this account can see, the database meets the plugin&apos;s requirements.</source>
        <translation>Pokiaľ tento účet vidí, databáza spĺňa požiadavky zásuvného modulu.</translation>
    </message>
    <message numerus="yes">
        <source>As far as this account can see, the plugin can work with this database; %Ln finding(s) need attention.</source>
        <translation>
            <numerusform>Pokiaľ tento účet vidí, zásuvný modul môže s touto databázou pracovať; pozornosť si vyžaduje %Ln nález.</numerusform>
            <numerusform>Pokiaľ tento účet vidí, zásuvný modul môže s touto databázou pracovať; pozornosť si vyžadujú %Ln nálezy.</numerusform>
            <numerusform>Pokiaľ tento účet vidí, zásuvný modul môže s touto databázou pracovať; pozornosť si vyžaduje %Ln nálezov.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database meets the plugin&apos;s requirements.</source>
        <translation>Databáza spĺňa požiadavky zásuvného modulu.</translation>
    </message>
    <message numerus="yes">
        <source>The plugin can work with this database; %Ln finding(s) need attention.</source>
        <translation>
            <numerusform>Zásuvný modul môže s touto databázou pracovať; pozornosť si vyžaduje %Ln nález.</numerusform>
            <numerusform>Zásuvný modul môže s touto databázou pracovať; pozornosť si vyžadujú %Ln nálezy.</numerusform>
            <numerusform>Zásuvný modul môže s touto databázou pracovať; pozornosť si vyžaduje %Ln nálezov.</numerusform>
        </translation>
    </message>
    <message>
        <source>Database %1</source>
        <translation>Databáza %1</translation>
    </message>
    <message>
        <source>The account is not the plugin&apos;s: do not check its rights.</source>
        <translation>Účet nepatrí zásuvnému modulu: jeho oprávnenia sa neoverujú.</translation>
    </message>
    <message>
        <source>On a cluster: ask the other nodes, too, and report what differs.</source>
        <translation>V klastri: overí aj ostatné uzly a ohlási rozdiely.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>súbor</translation>
    </message>
    <message>
        <source>The plugin&apos;s INI file, whose values must fit the columns.</source>
        <translation>INI súbor zásuvného modulu, ktorého hodnoty sa musia zmestiť do stĺpcov.</translation>
    </message>
    <message>
        <source>It refuses statements (state %1)</source>
        <translation>Odmieta príkazy (stav %1)</translation>
    </message>
    <message>
        <source>The server there is not a member of this cluster</source>
        <translation>Server na tejto adrese nie je členom tohto klastra</translation>
    </message>
    <message>
        <source>The address leads to a node that was asked already</source>
        <translation>Adresa vedie k uzlu, ktorý už bol overený</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>of a setting</comment>
        <translation>neznáme</translation>
    </message>
    <message>
        <source>state %1, wsrep_ready = %2</source>
        <translation>stav %1, wsrep_ready = %2</translation>
    </message>
    <message>
        <source>The node has lost the majority of its cluster (wsrep_cluster_status = %1): it refuses every statement on a table with error 1047</source>
        <translation>Uzol stratil spojenie s väčšinou svojho klastra (wsrep_cluster_status = %1): každý príkaz nad tabuľkou odmieta s chybou 1047</translation>
    </message>
    <message>
        <source>The node refuses every statement on a table with error 1047 (%1)</source>
        <translation>Uzol odmieta každý príkaz nad tabuľkou s chybou 1047 (%1)</translation>
    </message>
    <message>
        <source>The node is not in step with the cluster (state %1): what is read here may lack what other nodes have committed.</source>
        <translation>Uzol nie je zosúladený s klastrom (stav %1): v údajoch, ktoré sa tu čítajú, môže chýbať to, čo už potvrdili iné uzly.</translation>
    </message>
    <message>
        <source>binlog_format is %1: a Galera cluster replicates rows only, and other formats can leave the nodes with different data</source>
        <translation>binlog_format je %1: klaster Galera replikuje len riadky a pri iných formátoch môžu mať uzly rozdielne údaje</translation>
    </message>
    <message>
        <source>innodb_autoinc_lock_mode is %1: inserts keep their table&apos;s counter locked, and inserts that arrive from other nodes can block each other until the node stands still</source>
        <translation>innodb_autoinc_lock_mode je %1: vkladanie riadkov drží počítadlo tabuľky zamknuté a vkladanie prichádzajúce z iných uzlov sa môže navzájom blokovať, až sa uzol zastaví</translation>
    </message>
    <message>
        <source>wsrep_retry_autocommit is %1: a statement that conflicts more often with what other nodes write fails with error 1213 (deadlock), and the plugin does not repeat it</source>
        <translation>wsrep_retry_autocommit je %1: príkaz, ktorý sa častejšie dostane do konfliktu so zápismi iných uzlov, zlyhá s chybou 1213 (deadlock) a zásuvný modul ho nezopakuje</translation>
    </message>
    <message>
        <source>wsrep_sync_wait is %1, without the bit 1: a query may miss what other nodes have committed. After a fail-over the plugin may not see what it has just written</source>
        <translation>wsrep_sync_wait je %1, bez bitu 1: dotaz nemusí vidieť to, čo už potvrdili iné uzly. Po prepnutí na iný uzol zásuvný modul nemusí vidieť, čo práve zapísal</translation>
    </message>
    <message>
        <source>wsrep_sst_donor_rejects_queries is ON: a node that is being copied to another one refuses every query meanwhile</source>
        <translation>wsrep_sst_donor_rejects_queries je ON: uzol, z ktorého sa kopírujú údaje do iného, medzitým odmieta každý dotaz</translation>
    </message>
    <message>
        <source>wsrep_sst_method is %1: a node that is being copied to another one makes every write wait until the transfer has ended</source>
        <translation>wsrep_sst_method je %1: na uzle, z ktorého sa kopírujú údaje do iného, čaká každý zápis na koniec prenosu</translation>
    </message>
    <message>
        <source>wsrep_sst_method is %1, which this check does not know: a node that is being copied to another one may make every write wait</source>
        <translation>wsrep_sst_method je %1, čo táto kontrola nepozná: na uzle, z ktorého sa kopírujú údaje do iného, môže každý zápis čakať</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>Klaster</translation>
    </message>
    <message>
        <source>Members of the cluster</source>
        <translation>Počet členov klastra</translation>
    </message>
    <message>
        <source>State of this node</source>
        <translation>Stav tohto uzla</translation>
    </message>
    <message>
        <source>The node is in step with its cluster, and its settings are suitable for the plugin.</source>
        <translation>Uzol je zosúladený so svojím klastrom a jeho nastavenia sú pre zásuvný modul vhodné.</translation>
    </message>
    <message>
        <source>The server has a wsrep_provider, and wsrep_on = OFF for this connection: what it writes stays on this server, and the other nodes of its cluster do not get it</source>
        <translation>Server má wsrep_provider, ale pre toto spojenie platí wsrep_on = OFF: čo sa cez neho zapíše, zostane na tomto serveri a ostatné uzly klastra to nedostanú</translation>
    </message>
    <message>
        <source>The server does not belong to a cluster: there are no other nodes.</source>
        <translation>Server nepatrí do klastra: iné uzly neexistujú.</translation>
    </message>
    <message>
        <source>Tables on the cluster</source>
        <translation>Tabuľky v klastri</translation>
    </message>
    <message>
        <source>Only tables of the engine InnoDB are replicated with their conflicts noticed. These have another one, so that their rows may differ between the nodes: %1</source>
        <translation>Konflikty sa pri replikácii zistia len v tabuľkách s úložiskom (engine) InnoDB. Tieto tabuľky majú iné, takže ich riadky sa môžu na jednotlivých uzloch líšiť: %1</translation>
    </message>
    <message>
        <source>All tables have the engine that the cluster replicates.</source>
        <translation>Všetky tabuľky majú úložisko (engine), ktoré klaster replikuje.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>what %1 holds</source>
        <translation>hodnoty stĺpca %1</translation>
    </message>
    <message>
        <source>The column %1 is %2; the plugin writes numbers into it</source>
        <translation>Stĺpec %1 je %2; zásuvný modul doň zapisuje čísla</translation>
    </message>
    <message>
        <source>The column %1 is %2; the plugin writes %3 into it (%4).</source>
        <translation>Stĺpec %1 je %2; zásuvný modul doň zapisuje %3 (%4).</translation>
    </message>
    <message>
        <source>The column %1 is %2; the plugin writes texts into it</source>
        <translation>Stĺpec %1 je %2; zásuvný modul doň zapisuje texty</translation>
    </message>
    <message numerus="yes">
        <source>The column %1 is %2; the plugin writes up to %Ln character(s) into it.</source>
        <translation>
            <numerusform>Stĺpec %1 je %2; zásuvný modul doň zapisuje najviac %Ln znak.</numerusform>
            <numerusform>Stĺpec %1 je %2; zásuvný modul doň zapisuje najviac %Ln znaky.</numerusform>
            <numerusform>Stĺpec %1 je %2; zásuvný modul doň zapisuje najviac %Ln znakov.</numerusform>
        </translation>
    </message>
    <message>
        <source>The column %1 has the character set %2: letters that it lacks are refused, or stored as question marks where no strict SQL mode is on</source>
        <translation>Stĺpec %1 má znakovú sadu %2: písmená, ktoré v nej chýbajú, server odmietne; ak nie je zapnutý striktný režim SQL, uloží ich ako otázniky</translation>
    </message>
    <message>
        <source>The column %1 (%2) does not allow NULL, which the plugin writes for people who have none</source>
        <translation>Stĺpec %1 (%2) nepripúšťa NULL, ktoré zásuvný modul zapisuje pri osobách bez tohto údaja</translation>
    </message>
    <message>
        <source>The column %1 is %2; it holds only times from %3 to %4, and the plugin may write others into it (%5).</source>
        <translation>Stĺpec %1 je %2; zmestia sa doň len časy od %3 do %4, ale zásuvný modul doň môže zapísať aj iné (%5).</translation>
    </message>
    <message>
        <source>The column %1 is %2; it holds only times from %3 on, and the plugin may write others into it (%4).</source>
        <translation>Stĺpec %1 je %2; zmestia sa doň len časy od %3, ale zásuvný modul doň môže zapísať aj iné (%4).</translation>
    </message>
    <message>
        <source>The column %1 is %2; it holds only times up to %3, and the plugin may write others into it (%4).</source>
        <translation>Stĺpec %1 je %2; zmestia sa doň len časy do %3, ale zásuvný modul doň môže zapísať aj iné (%4).</translation>
    </message>
    <message>
        <source>Values that do not fit are refused, or altered where no strict SQL mode is on</source>
        <translation>Hodnoty, ktoré sa nezmestia, server odmietne; ak nie je zapnutý striktný režim SQL, pozmení ich</translation>
    </message>
    <message>
        <source>Give the column the type of reference-db/schema.sql, or name the plugin&apos;s INI file with --config, if its own value fits.</source>
        <translation>Nastavte stĺpcu typ podľa reference-db/schema.sql, alebo ak sa hodnota z INI súboru zásuvného modulu zmestí, uveďte tento súbor voľbou --config.</translation>
    </message>
    <message>
        <source>Text column</source>
        <translation>Textový stĺpec</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Znakov</translation>
    </message>
    <message>
        <source>Character set</source>
        <translation>Znaková sada</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Stĺpce</translation>
    </message>
    <message>
        <source>The columns can hold what the plugin writes, except for HR&apos;s texts, which check-file checks.</source>
        <translation>Do stĺpcov sa zmestí všetko, čo zásuvný modul zapisuje, okrem textov personálneho oddelenia, ktoré overuje check-file.</translation>
    </message>
    <message>
        <source>The columns can hold what the plugin writes, except for texts: check-file checks HR&apos;s, and --config lets this check those of the INI file.</source>
        <translation>Do stĺpcov sa zmestí všetko, čo zásuvný modul zapisuje, okrem textov: texty personálneho oddelenia overuje check-file a texty z INI súboru overí táto kontrola s voľbou --config.</translation>
    </message>
    <message>
        <source>The column %1 does not allow NULL, which the plugin writes because departmentId is 0 in the configuration</source>
        <translation>Stĺpec %1 nepripúšťa NULL, ktoré zásuvný modul zapisuje, pretože departmentId je v konfigurácii 0</translation>
    </message>
    <message>
        <source>The column %1 is %2 and cannot hold the department of the configuration, %3: nobody is created or updated, or everybody gets another department where no strict SQL mode is on</source>
        <translation>Stĺpec %1 je %2 a oddelenie z konfigurácie, %3, sa doň nezmestí: žiadna osoba sa nevytvorí ani neaktualizuje; ak nie je zapnutý striktný režim SQL, dostanú všetky iné oddelenie</translation>
    </message>
    <message>
        <source>The column %1 is %2; the text of register state %3 in the configuration is longer, %4: people in this state are refused, or their text is cut where no strict SQL mode is on</source>
        <translation>Stĺpec %1 je %2; text evidenčného stavu %3 v konfigurácii je dlhší, %4: osoby v tomto stave server odmietne; ak nie je zapnutý striktný režim SQL, ich text skráti</translation>
    </message>
    <message>
        <source>The column %1 has the character set %2, which lacks letters of the text of register state %3 in the configuration, %4: people in this state are refused, or get question marks where no strict SQL mode is on</source>
        <translation>Stĺpec %1 má znakovú sadu %2, v ktorej chýbajú písmená textu evidenčného stavu %3 z konfigurácie, %4: osoby v tomto stave server odmietne; ak nie je zapnutý striktný režim SQL, uloží namiesto týchto písmen otázniky</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurácia</translation>
    </message>
    <message>
        <source>The columns can hold its department and its relationship states.</source>
        <translation>Jej oddelenie aj stavy pomeru sa do stĺpcov zmestia.</translation>
    </message>
    <message>
        <source>The connection&apos;s character set is not UTF-8 (client %1, connection %2, results %3): accented letters are stored wrongly</source>
        <translation>Znaková sada spojenia nie je UTF-8 (klient %1, spojenie %2, výsledky %3): písmená s diakritikou sa ukladajú nesprávne</translation>
    </message>
    <message>
        <source>Several statements in one text allowed</source>
        <translation>Povolenie viacerých príkazov v jednom texte</translation>
    </message>
    <message>
        <source>The connection refuses several statements in one text. The plugin does not need them, but where the attendance server uses the same classes, a changed time zone does not reach the terminals</source>
        <translation>Spojenie odmieta viac príkazov v jednom texte. Zásuvný modul ich nepotrebuje, ale ak dochádzkový server používa tie isté triedy, zmena časového pásma sa nedostane do terminálov</translation>
    </message>
    <message>
        <source>The connect options contain CLIENT_FOUND_ROWS: the plugin then counts rows that it left unchanged as changed</source>
        <translation>Voľby spojenia obsahujú CLIENT_FOUND_ROWS: zásuvný modul potom počíta medzi zmenené aj riadky, ktoré nechal nezmenené</translation>
    </message>
    <message>
        <source>The connect options that this check was given lack %1. When the attendance server connects like this, a database server that neither answers nor closes the connection freezes the plugin&apos;s tick, and the attendance server when it unloads the plugin</source>
        <translation>Voľby spojenia zadané tejto kontrole neobsahujú %1. Ak sa takto pripája dochádzkový server, databázový server, ktorý neodpovedá ani neukončí spojenie, zablokuje takt zásuvného modulu, a pri odstraňovaní zásuvného modulu z pamäte aj dochádzkový server</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Spojenie</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>The connection works as the plugin requires.</source>
        <translation>Spojenie funguje tak, ako zásuvný modul vyžaduje.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 a %Ln ďalší</numerusform>
            <numerusform>%1 a %Ln ďalšie</numerusform>
            <numerusform>%1 a %Ln ďalších</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no vacation fund (a row of funds with iid 3 and unit 2): vacation balances are not synchronised</source>
        <translation>Fond dovolenky (riadok tabuľky funds s iid 3 a unit 2) neexistuje: zostatky dovolenky sa nesynchronizujú</translation>
    </message>
    <message>
        <source>There are several vacation funds (iid 3, unit 2): %1. The plugin uses the first that the server happens to return</source>
        <translation>Existuje viac fondov dovolenky (iid 3, unit 2): %1. Zásuvný modul použije ten, ktorý server náhodou vráti ako prvý</translation>
    </message>
    <message>
        <source>The vacation fund has the number %1; the plugin keeps 16 bits of it and would write to another fund</source>
        <translation>Fond dovolenky má číslo %1; zásuvný modul z neho použije 16 bitov a zapisoval by do iného fondu</translation>
    </message>
    <message>
        <source>There is no payroll export. The plugin adds new people to one only when there is exactly one key exportPam.N.active in vars, whatever its value</source>
        <translation>Export pre mzdy neexistuje. Zásuvný modul doň pridáva nové osoby, len ak je v tabuľke vars práve jeden kľúč exportPam.N.active, s akoukoľvek hodnotou</translation>
    </message>
    <message>
        <source>There are several payroll exports: %1. The plugin adds new people to one only when there is exactly one key exportPam.N.active in vars, whatever its value</source>
        <translation>Existuje viac exportov pre mzdy: %1. Zásuvný modul pridáva nové osoby do exportu, len ak je v tabuľke vars práve jeden kľúč exportPam.N.active, s akoukoľvek hodnotou</translation>
    </message>
    <message>
        <source>%1 of master group %2</source>
        <translation>%1 z hlavnej skupiny %2</translation>
    </message>
    <message>
        <source>Several calendar groups have the same calendar: %1. People are placed in any of them</source>
        <translation>Viac kalendárových skupín má ten istý kalendár: %1. Osoby sa zaradia do ktorejkoľvek z nich</translation>
    </message>
    <message>
        <source>Several branches have the same number: %1. People of that cost centre are placed in any of them</source>
        <translation>Viac pobočiek má to isté číslo: %1. Osoby z tohto strediska sa zaradia do ktorejkoľvek z nich</translation>
    </message>
    <message>
        <source>The ids of these branches exceed 16 bits: %1. Members are added to another branch, or to none</source>
        <translation>Id týchto pobočiek presahujú 16 bitov: %1. Členovia sa pridajú do inej pobočky alebo do žiadnej</translation>
    </message>
    <message>
        <source>The ids of these administrators exceed 16 bits: %1. The plugin writes them correctly, but other components of the attendance server that use its repository classes keep only 16 bits: people are assigned to another administrator, or to none</source>
        <translation>Id týchto administrátorov presahujú 16 bitov: %1. Zásuvný modul ich zapisuje správne, ale ostatné súčasti dochádzkového servera, ktoré používajú jeho triedy na prístup k databáze, uchovajú len 16 bitov: osoby sa pridelia inému administrátorovi alebo žiadnemu</translation>
    </message>
    <message>
        <source>Several administrators have the same personal number: %1. Any of them gets the requests</source>
        <translation>Viac administrátorov má to isté osobné číslo: %1. Žiadosti dostane ktorýkoľvek z nich</translation>
    </message>
    <message>
        <source>The pid and pamId of these active people disagree: %1. The plugin looks a person up by pamId and writes by pid: it changes nobody, or treats the person as new</source>
        <translation>pid a pamId týchto aktívnych osôb si nezodpovedajú: %1. Zásuvný modul vyhľadáva osobu podľa pamId a zapisuje podľa pid: nezmení nikoho alebo považuje osobu za novú</translation>
    </message>
    <message numerus="yes">
        <source>The column vars.value holds %Ln character(s); the selection of the payroll export would need %1 to name every active person</source>
        <translation>
            <numerusform>Do stĺpca vars.value sa zmestí %Ln znak; výber exportu pre mzdy by ich na uvedenie všetkých aktívnych osôb potreboval %1</numerusform>
            <numerusform>Do stĺpca vars.value sa zmestia %Ln znaky; výber exportu pre mzdy by ich na uvedenie všetkých aktívnych osôb potreboval %1</numerusform>
            <numerusform>Do stĺpca vars.value sa zmestí %Ln znakov; výber exportu pre mzdy by ich na uvedenie všetkých aktívnych osôb potreboval %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Obsah</translation>
    </message>
    <message>
        <source>The data meets the plugin&apos;s requirements.</source>
        <translation>Údaje spĺňajú požiadavky zásuvného modulu.</translation>
    </message>
    <message>
        <source>Set default_tmp_storage_engine to the same engine.</source>
        <translation>Nastavte default_tmp_storage_engine na to isté úložisko (engine).</translation>
    </message>
    <message>
        <source>Turn it off, or set default_tmp_storage_engine to Aria.</source>
        <translation>Vypnite ho alebo nastavte default_tmp_storage_engine na Aria.</translation>
    </message>
    <message>
        <source>Remove the mode from wsrep_mode.</source>
        <translation>Odstráňte tento režim z wsrep_mode.</translation>
    </message>
    <message>
        <source>The server has %1: CREATE TEMPORARY TABLE tmptbl_updateTermsSyncTZ fails with error %2. The plugin does not need it, but where the attendance server uses the same classes, a changed time zone does not reach the terminals</source>
        <translation>Server má nastavené %1: CREATE TEMPORARY TABLE tmptbl_updateTermsSyncTZ zlyhá s chybou %2. Zásuvný modul ho nepotrebuje, ale ak dochádzkový server používa tie isté triedy, zmena časového pásma sa nedostane do terminálov</translation>
    </message>
    <message>
        <source>The server has wsrep_certify_nonPK = OFF, and this account sees no primary key on these tables: %1. Without one, each of the plugin&apos;s writes to them fails with error 1213 (deadlock).</source>
        <translation>Server má nastavené wsrep_certify_nonPK = OFF a tento účet v týchto tabuľkách nevidí primárny kľúč: %1. Bez neho zlyhá každý zápis zásuvného modulu do nich s chybou 1213 (deadlock).</translation>
    </message>
    <message>
        <source>This account sees no primary key on these tables: %1. On a cluster, new rows of two nodes conflict in such a table though they differ, and one of the two is refused with error 1213 (deadlock).</source>
        <translation>Tento účet v týchto tabuľkách nevidí primárny kľúč: %1. V klastri sú nové riadky dvoch uzlov v takej tabuľke v konflikte, hoci sú rozdielne, a jeden z nich sa odmietne s chybou 1213 (deadlock).</translation>
    </message>
    <message>
        <source>Tables without a primary key</source>
        <translation>Tabuľky bez primárneho kľúča</translation>
    </message>
    <message>
        <source>The server accepts them where they are used.</source>
        <translation>Server ich prijíma všade, kde sa používajú.</translation>
    </message>
    <message>
        <source>The table %1 has no unique key on exactly %2: the plugin inserts a second row instead of updating the first</source>
        <translation>Tabuľka %1 nemá jedinečný kľúč práve na %2: zásuvný modul namiesto aktualizácie prvého riadka vloží druhý</translation>
    </message>
    <message>
        <source>The table %1 has no unique key on exactly %2: another component of the attendance server inserts a second row instead of updating the first</source>
        <translation>Tabuľka %1 nemá jedinečný kľúč práve na %2: iná súčasť dochádzkového servera namiesto aktualizácie prvého riadka vloží druhý</translation>
    </message>
    <message>
        <source>The table %1 has no unique key on %2: of two rows with the same value, either may be used</source>
        <translation>Tabuľka %1 nemá jedinečný kľúč na %2: z dvoch riadkov s rovnakou hodnotou sa môže použiť ktorýkoľvek</translation>
    </message>
    <message>
        <source>The table %1 has a unique key %2 on %3: a row that the plugin inserts can collide with another row in it and change that one instead</source>
        <translation>Tabuľka %1 má jedinečný kľúč %2 na %3: riadok, ktorý zásuvný modul vkladá, sa v ňom môže zhodovať s iným riadkom a zmeniť namiesto toho ten</translation>
    </message>
    <message>
        <source>The column %1.%2 is not AUTO_INCREMENT: the plugin leaves its value to the server</source>
        <translation>Stĺpec %1.%2 nie je AUTO_INCREMENT: zásuvný modul necháva jeho hodnotu na server</translation>
    </message>
    <message>
        <source>Unique keys</source>
        <translation>Jedinečné kľúče</translation>
    </message>
    <message>
        <source>The unique keys are as the plugin requires.</source>
        <translation>Jedinečné kľúče sú také, aké zásuvný modul vyžaduje.</translation>
    </message>
    <message>
        <source>The node %1 was not asked: %2</source>
        <translation>Uzol %1 nebol overený: %2</translation>
    </message>
    <message>
        <source>The node %1 differs from this one in its SQL mode: &apos;%2&apos;, not &apos;%3&apos;</source>
        <translation>Uzol %1 sa od tohto líši režimom SQL: „%2“, nie „%3“</translation>
    </message>
    <message>
        <source>The node %1 differs from this one in its auto_increment_increment: &apos;%2&apos;, not &apos;%3&apos;</source>
        <translation>Uzol %1 sa od tohto líši hodnotou auto_increment_increment: „%2“, nie „%3“</translation>
    </message>
    <message>
        <source>The node %1 differs from this one in its version: &apos;%2&apos;, not &apos;%3&apos;</source>
        <translation>Uzol %1 sa od tohto líši verziou: „%2“, nie „%3“</translation>
    </message>
    <message>
        <source>The node %1 is not in step with the cluster (state %2).</source>
        <translation>Uzol %1 nie je zosúladený s klastrom (stav %2).</translation>
    </message>
    <message>
        <source>The node %1 (time zone %2) and this one (%3) disagree about when days begin. After a fail-over, days of attendance and vacation would be missed or duplicated</source>
        <translation>Uzol %1 (časové pásmo %2) a tento (%3) sa nezhodujú v tom, kedy sa začínajú dni. Po prepnutí by dni dochádzky a dovolenky chýbali alebo by sa zdvojili</translation>
    </message>
    <message>
        <source>Other nodes of the cluster</source>
        <translation>Ostatné uzly klastra</translation>
    </message>
    <message numerus="yes">
        <source>The cluster has %Ln member(s) without an address, as an arbitrator is, which was not asked</source>
        <translation>
            <numerusform>Klaster má %Ln člena bez adresy (takým je napríklad arbiter), ktorý nebol overený</numerusform>
            <numerusform>Klaster má %Ln členov bez adresy (takým je napríklad arbiter), ktorí neboli overení</numerusform>
            <numerusform>Klaster má %Ln členov bez adresy (takým je napríklad arbiter), ktorí neboli overení</numerusform>
        </translation>
    </message>
    <message>
        <source>The cluster has no other nodes.</source>
        <translation>Klaster nemá žiadne ďalšie uzly.</translation>
    </message>
    <message>
        <source>All of them have the time zone, SQL mode, auto_increment_increment and version of this one.</source>
        <translation>Všetky majú rovnaké časové pásmo, režim SQL, auto_increment_increment a verziu ako tento uzol.</translation>
    </message>
    <message>
        <source>The account lacks %1 on %2 of the table %3</source>
        <translation>Účtu chýba v tabuľke %3 oprávnenie %1 na: %2</translation>
    </message>
    <message>
        <source>Rights of the account</source>
        <translation>Oprávnenia účtu</translation>
    </message>
    <message>
        <source>The account has rights on the whole server that the plugin does not need: %1. Texts of the export go into the plugin&apos;s statements unescaped, so whoever writes the export can do whatever the account may do</source>
        <translation>Účet má oprávnenia na celý server, ktoré zásuvný modul nepotrebuje: %1. Texty exportu sa do príkazov zásuvného modulu vkladajú neošetrené, takže kto zapisuje export, môže urobiť všetko, čo smie účet</translation>
    </message>
    <message>
        <source>The account has rights on whole databases that the plugin does not need: %1. Texts of the export go into the plugin&apos;s statements unescaped, so whoever writes the export can do whatever the account may do</source>
        <translation>Účet má oprávnenia na celé databázy, ktoré zásuvný modul nepotrebuje: %1. Texty exportu sa do príkazov zásuvného modulu vkladajú neošetrené, takže kto zapisuje export, môže urobiť všetko, čo smie účet</translation>
    </message>
    <message>
        <source>The account has the rights that the plugin needs, and hardly more.</source>
        <translation>Účet má oprávnenia, ktoré zásuvný modul potrebuje, a nie oveľa viac.</translation>
    </message>
    <message>
        <source>The routine %1 does not exist, or the account may not call it</source>
        <translation>Uložená procedúra %1 neexistuje alebo ju účet nesmie volať</translation>
    </message>
    <message>
        <source>The routine %1 takes a different number of arguments from what the plugin passes</source>
        <translation>Uložená procedúra %1 má iný počet argumentov, než jej zásuvný modul odovzdáva</translation>
    </message>
    <message>
        <source>The routine %1 fails: %2</source>
        <translation>Uložená procedúra %1 zlyháva: %2</translation>
    </message>
    <message>
        <source>The function %1 returns a wrong result: %2 gives %3, not %4</source>
        <translation>Funkcia %1 vracia nesprávny výsledok: %2 dáva %3, nie %4</translation>
    </message>
    <message>
        <source>The function %1 fails for days beyond the server&apos;s range (%2). A single such day of attendance, for example with a mistyped year, keeps every month of that person from being filled</source>
        <translation>Funkcia %1 zlyháva pri dňoch mimo rozsahu servera (%2). Jediný taký deň dochádzky, napríklad s preklepom v roku, spôsobí, že sa danej osobe nedoplní žiadny mesiac</translation>
    </message>
    <message>
        <source>This account cannot see the routine %1</source>
        <translation>Tento účet nevidí uloženú procedúru %1</translation>
    </message>
    <message>
        <source>Routines</source>
        <translation>Uložené procedúry</translation>
    </message>
    <message>
        <source>The routines work as the plugin requires.</source>
        <translation>Uložené procedúry fungujú tak, ako zásuvný modul vyžaduje.</translation>
    </message>
    <message>
        <source>The server is %1. There &quot;groups&quot; is a reserved word, and the plugin&apos;s statement that looks up a calendar group, which does not quote it, fails for everybody</source>
        <translation>Server je %1. „groups“ je tam vyhradené slovo a príkaz zásuvného modulu, ktorý vyhľadáva kalendárovú skupinu a neuvádza ho v úvodzovkách, zlyhá pri každej osobe</translation>
    </message>
    <message>
        <source>The server is read-only: every write of the plugin fails</source>
        <translation>Server je len na čítanie: každý zápis zásuvného modulu zlyhá</translation>
    </message>
    <message>
        <source>The SQL mode ONLY_FULL_GROUP_BY is on: the statements that rebuild groups_month and queue a time zone for the terminals fail</source>
        <translation>Je zapnutý režim SQL ONLY_FULL_GROUP_BY: príkazy, ktoré znova vytvárajú groups_month a zaraďujú časové pásmo do frontu terminálov, zlyhajú</translation>
    </message>
    <message>
        <source>The SQL mode EMPTY_STRING_IS_NULL is on: people without a title or telephone cannot be written to columns that do not allow NULL</source>
        <translation>Je zapnutý režim SQL EMPTY_STRING_IS_NULL: osoby bez titulu alebo telefónu sa nedajú zapísať do stĺpcov, ktoré nepripúšťajú NULL</translation>
    </message>
    <message>
        <source>No strict SQL mode is on: texts longer than their column are cut and numbers that do not fit are altered without any message</source>
        <translation>Nie je zapnutý žiadny striktný režim SQL: texty dlhšie ako ich stĺpec sa skrátia a čísla, ktoré sa nezmestia, sa pozmenia bez akéhokoľvek hlásenia</translation>
    </message>
    <message>
        <source>The SQL mode NO_BACKSLASH_ESCAPES is on: a backslash in a text of the export is stored literally. Without the mode it escapes the next character</source>
        <translation>Je zapnutý režim SQL NO_BACKSLASH_ESCAPES: opačná lomka v texte exportu sa uloží tak, ako je. Bez tohto režimu mení význam nasledujúceho znaku</translation>
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
        <translation>Server a jeho režim SQL sú pre zásuvný modul vhodné.</translation>
    </message>
    <message>
        <source>%1, and none on %2</source>
        <translation>%1 ani na %2</translation>
    </message>
    <message numerus="yes">
        <source>The table %1 has no key on %2: for each person or branch the plugin sends %Ln statement(s) that walk up to %3 of its rows. A synchronisation in which all %4 people have changed takes up to about %5 longer, estimated with %6 rows a second</source>
        <translation>
            <numerusform>Tabuľka %1 nemá kľúč na %2: pre každú osobu alebo pobočku posiela zásuvný modul %Ln príkaz, ktorý prechádza až %3 jej riadkov. Predĺženie synchronizácie, pri ktorej sa zmenili všetky osoby (%4), odhadnuté pri %6 riadkoch za sekundu: až %5</numerusform>
            <numerusform>Tabuľka %1 nemá kľúč na %2: pre každú osobu alebo pobočku posiela zásuvný modul %Ln príkazy, ktoré prechádzajú až %3 jej riadkov. Predĺženie synchronizácie, pri ktorej sa zmenili všetky osoby (%4), odhadnuté pri %6 riadkoch za sekundu: až %5</numerusform>
            <numerusform>Tabuľka %1 nemá kľúč na %2: pre každú osobu alebo pobočku posiela zásuvný modul %Ln príkazov, ktoré prechádzajú až %3 jej riadkov. Predĺženie synchronizácie, pri ktorej sa zmenili všetky osoby (%4), odhadnuté pri %6 riadkoch za sekundu: až %5</numerusform>
        </translation>
    </message>
    <message>
        <source>Statements for a person</source>
        <translation>Príkazy pre jednu osobu</translation>
    </message>
    <message>
        <source>The server finds their rows without walking a large table.</source>
        <translation>Server nájde ich riadky bez prechádzania veľkej tabuľky.</translation>
    </message>
    <message>
        <source>The server does not explain all of them: %1.</source>
        <translation>Server nevysvetlil všetky z nich (EXPLAIN): %1.</translation>
    </message>
    <message>
        <source>The table %1 does not exist, or the account has no rights on it</source>
        <translation>Tabuľka %1 neexistuje alebo na ňu účet nemá oprávnenia</translation>
    </message>
    <message>
        <source>The column %1 does not exist, or the account has no rights on it</source>
        <translation>Stĺpec %1 neexistuje alebo naň účet nemá oprávnenia</translation>
    </message>
    <message>
        <source>Missing, or hidden from this account: %1. The plugin does not use them; other components of the attendance server may</source>
        <translation>Chýba alebo tento účet nevidí: %1. Zásuvný modul to nepoužíva; ostatné súčasti dochádzkového servera môžu</translation>
    </message>
    <message>
        <source>The column %1.%2 has no default value and does not allow NULL: in strict SQL modes the plugin&apos;s new rows, which leave it out, are refused</source>
        <translation>Stĺpec %1.%2 nemá predvolenú hodnotu a nepripúšťa NULL: v striktných režimoch SQL sa nové riadky zásuvného modulu, ktoré ho vynechávajú, odmietnu</translation>
    </message>
    <message>
        <source>This account has rights on single columns of these tables and sees no others: %1. This check cannot find a column that the site added there without a default value, which makes every new row fail, nor a unique key on hidden columns</source>
        <translation>Tento účet má oprávnenia na jednotlivé stĺpce týchto tabuliek a iné nevidí: %1. Táto kontrola v nich nenájde dodatočne pridaný stĺpec bez predvolenej hodnoty, pre ktorý zlyhá každý nový riadok, ani jedinečný kľúč na skrytých stĺpcoch</translation>
    </message>
    <message>
        <source>The default of people.status is not 1: people whom the plugin creates are inactive until their line of the export changes</source>
        <translation>Predvolená hodnota people.status nie je 1: osoby, ktoré zásuvný modul vytvorí, sú neaktívne, kým sa nezmení ich riadok v exporte</translation>
    </message>
    <message>
        <source>The table %1 does not support transactions: if a supervisor cannot be set, the previous one loses the person&apos;s requests all the same</source>
        <translation>Tabuľka %1 nepodporuje transakcie: ak sa nadriadený nedá nastaviť, predchádzajúci aj tak príde o žiadosti danej osoby</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabuľky</translation>
    </message>
    <message>
        <source>All tables and columns exist, and new rows can be inserted.</source>
        <translation>Všetky tabuľky a stĺpce existujú a nové riadky sa dajú vložiť.</translation>
    </message>
    <message>
        <source>The server (time zone %1) and this program (%2) disagree about when days begin, such as %3. Days of attendance and vacation would be missed or duplicated</source>
        <translation>Server (časové pásmo %1) a tento program (%2) sa nezhodujú v tom, kedy sa začínajú dni, napríklad %3. Dni dochádzky a dovolenky by chýbali alebo by sa zdvojili</translation>
    </message>
    <message numerus="yes">
        <source>The server&apos;s clock is %Ln second(s) ahead of this machine&apos;s</source>
        <translation>
            <numerusform>Hodiny servera idú oproti tomuto počítaču o %Ln sekundu dopredu</numerusform>
            <numerusform>Hodiny servera idú oproti tomuto počítaču o %Ln sekundy dopredu</numerusform>
            <numerusform>Hodiny servera idú oproti tomuto počítaču o %Ln sekúnd dopredu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server&apos;s clock is %Ln second(s) behind this machine&apos;s</source>
        <translation>
            <numerusform>Hodiny servera meškajú oproti tomuto počítaču o %Ln sekundu</numerusform>
            <numerusform>Hodiny servera meškajú oproti tomuto počítaču o %Ln sekundy</numerusform>
            <numerusform>Hodiny servera meškajú oproti tomuto počítaču o %Ln sekúnd</numerusform>
        </translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Server&apos;s time zone</source>
        <translation>Časové pásmo servera</translation>
    </message>
    <message>
        <source>Time zone of this program</source>
        <translation>Časové pásmo tohto programu</translation>
    </message>
    <message>
        <source>Server knows the time after 19 January 2038</source>
        <translation>Server pozná čas po 19. januári 2038</translation>
    </message>
    <message>
        <source>The server and this program agree about time.</source>
        <translation>Server a tento program sa v čase zhodujú.</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>of a state</comment>
        <translation>neznámy</translation>
    </message>
</context>
</TS>
