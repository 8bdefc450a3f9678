-- Supervisors: the requests of a person go to the supervisor that HR names, and to nobody else.
SELECT CONCAT(p.name, ' ', p.surname) AS person,
       CONCAT(s.name, ' ', s.surname) AS supervisor,
       IF(n.request, 'gets the requests', 'no longer gets them') AS `change`
  FROM admins_people n
  JOIN people p USING (uid)
  JOIN admins a USING (aid)
  JOIN people s ON s.pamId = CONCAT(a.personalNumber, '.1')
  LEFT JOIN demo_before.admins_people o ON o.aid = n.aid AND o.uid = n.uid
 WHERE n.request <> COALESCE(o.request, 0)
 ORDER BY p.pid, n.request;
