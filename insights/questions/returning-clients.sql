-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: returning-clients
-- title: Returning clients
-- sentence: Do clients come back in the weeks after their first one?
-- read: A row is the week in which clients were first seen, a column how many weeks later they
--   were active again. Cells from which one could tell fewer clients than allowed, that came or
--   stayed away, are empty.
-- picture: heat x=weeks_later y=first_week by=rate
-- columns: first_week Date, weeks_later UInt16, clients UInt64, of UInt64, rate Float64
-- order: first_week, weeks_later
-- definition: A client's first week is that of its first event ever (not only in the period).
--   Cohorts are the first weeks whose Monday is in the period. Cells are cohort and weeks_later (0,
--   1, ...), for each week with an event before `until` of at least one of the cohort; clients are
--   those of the cohort with an event in that week, on a day before `until`. of is the size of the
--   cohort (weeks_later 0), rate = clients / of. A cell is shown if clients is `threshold` or more
--   and of - clients is 0, or `threshold` or more. Leaves out.
WITH first_weeks AS (
    SELECT client, toMonday(min(day)) AS first_week
    FROM daily_activity
    GROUP BY client
    HAVING first_week >= {since:Date} AND first_week < {until:Date}
), cells AS (
    SELECT first_week, toUInt16(dateDiff('day', first_week, toMonday(day)) / 7) AS weeks_later,
        uniqExact(client) AS clients, uniqExactState(client) AS who
    FROM daily_activity
    INNER JOIN first_weeks USING (client)
    WHERE day >= {since:Date} AND day < {until:Date}
    GROUP BY first_week, weeks_later
), sized AS (
    SELECT *, max(clients) OVER (PARTITION BY first_week) AS of,
        clients >= {threshold:UInt32} AND (of = clients OR of - clients >= {threshold:UInt32}) AS tells
    FROM cells
), counted AS (
    SELECT *, uniqExactMergeIf(who, tells) OVER () AS speaks_for, countIf(NOT tells) OVER () AS left_out
    FROM sized
)
SELECT first_week, weeks_later, clients, of, clients / of AS rate, speaks_for, left_out
FROM counted
WHERE tells
ORDER BY first_week, weeks_later
