-- Payroll: new people are in the payroll export's selection, with the settings of their contract.
SELECT CONCAT(p.name, ' ', p.surname) AS person, n.id AS settings,
       IF(FIND_IN_SET(p.pid, (SELECT value FROM vars WHERE name = 'exportPam.1.selPeople')), 'yes', 'no')
           AS `in the selection`
  FROM people_pam n JOIN people p USING (uid)
 WHERE n.uid NOT IN (SELECT uid FROM demo_before.people_pam)
 ORDER BY p.pid;
