-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- A load was interrupted: nobody knows which weeks it has touched.
INSERT INTO weeks (week, touched) SELECT DISTINCT toMonday(Timestamp), 
    greatest(now64(3), (SELECT max(rolled_up) FROM weeks) + INTERVAL 1 MILLISECOND)
FROM usage_logs;
INSERT INTO loads (load, file, content, state)
SELECT load, file, content, 'interrupted' FROM loads
WHERE load NOT IN (SELECT load FROM loads WHERE state != 'begun');
