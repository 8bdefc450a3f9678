-- Vacation: one correcting move brings the balance to what HR says.
SELECT CONCAT(p.name, ' ', p.surname) AS person,
       FORMAT(n.value / 100 - m.value / 100, 2) AS `days before`,
       FORMAT(m.value / 100, 2) AS correction,
       FORMAT(n.value / 100, 2) AS `days now`
  FROM funds_move m
  JOIN people p USING (uid)
  JOIN (SELECT uid, fid, SUM(value) AS value FROM funds_move GROUP BY uid, fid) n
    ON n.uid = m.uid AND n.fid = m.fid
 WHERE (m.uid, m.fid, m.day, m.type) NOT IN (SELECT uid, fid, day, type FROM demo_before.funds_move)
 ORDER BY p.pid;
