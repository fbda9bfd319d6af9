-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: versions
-- title: Versions over time
-- sentence: Which versions of the viewer are in use, and how fast does a new one arrive?
-- read: Each client counts once a week, with the version that it used last in that week.
-- picture: stacked x=week y=clients by=version
-- columns: week Date, version String, clients UInt64
-- order: week, others last, version (bytewise)
-- definition: For each week and each client with an event in the period in it, the version
--   (`service.version`) of the client's last event of that week. Groups are the versions. Folds by
--   week.
WITH groups AS (
    SELECT week, version, uniqExactState(client) AS who, uniqExact(client) AS clients
    FROM (
        SELECT toMonday(day) AS week, client, argMax(last_version, day) AS version
        FROM daily_activity
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY week, client)
    GROUP BY week, version
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (PARTITION BY week), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (PARTITION BY week ORDER BY clients, version
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT week, if(folded, 'others', version) AS shown_version,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden
    FROM marked
    GROUP BY week, shown_version
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT week, shown_version AS version, clients, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY week, version = 'others', version
