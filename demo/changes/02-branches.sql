-- Branches: the HR cost centre decides which branch a person is a member of.
SELECT b.number AS `cost centre`, b.name AS branch, CONCAT(p.name, ' ', p.surname) AS `new member`
  FROM brape JOIN branches b USING (bid) JOIN people p USING (uid)
 WHERE (brape.bid, brape.uid) NOT IN (SELECT bid, uid FROM demo_before.brape)
 ORDER BY b.number, p.pid;
