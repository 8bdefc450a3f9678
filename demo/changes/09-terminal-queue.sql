-- The terminal queue: what each terminal has to fetch next (I = new, U = changed).
SELECT q.tid AS terminal, q.type, GROUP_CONCAT(DISTINCT p.surname ORDER BY p.pid SEPARATOR ', ') AS people,
       IF(t.syn & 2, 'yes', 'no') AS `must fetch`
  FROM term_sync q JOIN term t USING (tid) JOIN people p ON p.uid = q.ref_id
 GROUP BY q.tid, q.type
 ORDER BY q.tid, q.type;
