-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: consent
-- title: Consent given and withdrawn
-- sentence: How many installations begin to send events, and how many withdraw?
-- read: Who withdrew is erased, and counts in no week as given; only the number of withdrawals is
--   kept.
-- picture: line x=week y=clients by=what
-- columns: week Date, what String, clients UInt64
-- order: week, what
-- definition: `given`: the clients whose first event ever lies in that week, with its day in the
--   period. `withdrawn`: the clients with an `OptOut`, by the week of the day of their earliest
--   one, that day being in the period; an erasure that was asked for is none. The time of an opt-
--   out is its `timeUnixNano` or `observedTimeUnixNano` as for events; one with no time within the
--   bounds erases and is not counted here. Groups are week and what. Leaves out. speaks_for is the
--   sum of clients over the rows: who withdrew is known no more.
WITH groups AS (
    SELECT toMonday(first_day) AS week, 'given' AS what, count() AS clients
    FROM (SELECT client, min(day) AS first_day FROM daily_activity GROUP BY client)
    WHERE first_day >= {since:Date} AND first_day < {until:Date}
    GROUP BY week
    UNION ALL
    SELECT toMonday(withdrawn_on) AS week, 'withdrawn' AS what, count() AS clients
    FROM (SELECT min(day) AS withdrawn_on FROM erased WHERE day > toDate(0) GROUP BY client_hash)
    WHERE withdrawn_on >= {since:Date} AND withdrawn_on < {until:Date}
    GROUP BY week
), counted AS (
    SELECT *, sumIf(clients, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        countIf(clients < {threshold:UInt32}) OVER () AS left_out
    FROM groups
)
SELECT week, what, clients, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY week, what
