-- Administrators of a branch look after its new members, too.
SELECT n.aid AS administrator, b.name AS branch,
       GROUP_CONCAT(p.name, ' ', p.surname ORDER BY p.pid SEPARATOR ', ') AS `new people`
  FROM admins_people n
  JOIN people p USING (uid)
  JOIN bradm a ON a.aid = n.aid
  JOIN branches b ON b.bid = a.bid
  JOIN brape m ON m.bid = b.bid AND m.uid = n.uid
 WHERE (n.aid, n.uid) NOT IN (SELECT aid, uid FROM demo_before.admins_people)
   AND (m.bid, m.uid) NOT IN (SELECT bid, uid FROM demo_before.brape)
 GROUP BY n.aid, b.bid
 ORDER BY b.number, n.aid;
