-- People: new employees got a row of their own; where HR knows better, the row was corrected.
SELECT p.pamId, CONCAT_WS(' ', NULLIF(p.title, ''), p.name, p.surname, NULLIF(p.title2, '')) AS person,
       DATE(FROM_UNIXTIME(p.begin)) AS `from`,
       COALESCE(DATE(FROM_UNIXTIME(p.`end`)), '') AS `to`,
       CASE WHEN b.uid IS NULL THEN 'new'
            ELSE CONCAT_WS(', ',
                IF(p.title <=> b.title, NULL, CONCAT('title "', b.title, '" -> "', p.title, '"')),
                IF(p.surname <=> b.surname, NULL, CONCAT('surname "', b.surname, '" -> "', p.surname, '"')),
                IF(p.phone <=> b.phone, NULL, CONCAT('phone "', b.phone, '" -> "', p.phone, '"')),
                IF(p.bid <=> b.bid, NULL, 'branch'),
                IF(p.calendarID <=> b.calendarID, NULL,
                   CONCAT('calendar ', b.calendarID, ' -> ', p.calendarID)),
                IF(p.`end` <=> b.`end`, NULL, 'leaves'),
                IF(p.rsText <=> b.rsText, NULL, CONCAT('state "', p.rsText, '"')))
       END AS `change`
  FROM people p LEFT JOIN demo_before.people b USING (uid)
 WHERE NOT (p.title, p.name, p.surname, p.title2, p.phone, p.`end`, p.rsText, p.bid, p.calendarID)
       <=> (b.title, b.name, b.surname, b.title2, b.phone, b.`end`, b.rsText, b.bid, b.calendarID)
 ORDER BY p.pid;
