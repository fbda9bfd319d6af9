-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: active-clients
-- title: Active clients a week
-- sentence: How many installations are used, week by week?
-- read: One point a week. The first and the last week of a period may not be whole; events of the
--   last days may still be on their way.
-- picture: line x=week y=clients
-- columns: week Date, clients UInt64, events UInt64
-- order: week
-- definition: For each week, the clients with an event of any kind in the period, and the number of
--   these events. Groups are the weeks. Leaves out.
WITH weeks AS (
    SELECT toMonday(day) AS week, uniqExact(client) AS clients, uniqExactState(client) AS who,
        sum(events) AS events
    FROM daily_activity
    WHERE day >= {since:Date} AND day < {until:Date}
    GROUP BY week
), counted AS (
    SELECT *, uniqExactMergeIf(who, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        countIf(clients < {threshold:UInt32}) OVER () AS left_out
    FROM weeks
)
SELECT week, clients, events, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY week
