-- Attendance: days that a change reaches back to are marked, and the attendance system calculates
-- again from there. Closed days and days edited by hand stay as they are.
SELECT CONCAT(p.name, ' ', p.surname) AS person, COALESCE(marked.days, '') AS `days marked`,
       DATE(FROM_UNIXTIME(b.lastCalc)) AS `calculated until`,
       DATE(FROM_UNIXTIME(p.lastCalc)) AS `now until`
  FROM people p
  JOIN demo_before.people b USING (uid)
  LEFT JOIN (SELECT a.uid, GROUP_CONCAT(DATE(FROM_UNIXTIME(a.date)) ORDER BY a.date SEPARATOR ', ') AS days
               FROM atten a JOIN demo_before.atten o USING (uid, date)
              WHERE a.ok <> o.ok
              GROUP BY a.uid) marked USING (uid)
 WHERE marked.uid IS NOT NULL OR p.lastCalc <> b.lastCalc
 ORDER BY p.pid;
