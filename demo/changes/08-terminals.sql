-- Terminals of a branch accept the cards of its new members.
SELECT t.tid AS terminal, b.name AS branch,
       GROUP_CONCAT(p.name, ' ', p.surname ORDER BY p.pid SEPARATOR ', ') AS `new people`
  FROM people_term n
  JOIN people p USING (uid)
  JOIN term t USING (tid)
  JOIN branches b ON b.bid = t.bid
 WHERE (n.tid, n.uid) NOT IN (SELECT tid, uid FROM demo_before.people_term)
 GROUP BY t.tid
 ORDER BY t.tid;
