-- Calendars: the HR calendar becomes a calendar group of the branch, from a month on.
SELECT CONCAT(p.name, ' ', p.surname) AS person, g.calendarID AS `HR calendar`, gp.gid AS `group`,
       gp.since AS `since month`
  FROM groups_plan gp JOIN people p USING (uid) JOIN `groups` g ON g.gid = gp.gid
 WHERE (gp.gid, gp.uid, gp.since) NOT IN (SELECT gid, uid, since FROM demo_before.groups_plan)
 ORDER BY p.pid, gp.since;
