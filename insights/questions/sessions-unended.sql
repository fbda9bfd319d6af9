-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: sessions-unended
-- title: Sessions that never ended
-- sentence: With which versions does the viewer end without saying so, as in a crash?
-- read: A session without its end was killed, crashed, or lost its last event. Sessions of the
--   last 7 days of the period are left out: their end may be on its way.
-- picture: bars x=version y=rate
-- columns: version String, clients UInt64, sessions UInt64, unended UInt64, rate Float64
-- order: others last, rate falling, version
-- definition: Sessions that begin in the period, at least 7 days before `until` (their day is
--   before `until` - 7 days). unended are those whose run has no `SessionEnded`. version is that of
--   the `SessionStarted`. Groups are the versions; rate = unended / sessions. Folds.
WITH groups AS (
    SELECT version, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(sessions) AS sessions,
        sum(unended) AS unended
    FROM (
        SELECT client, version, count() AS sessions, countIf(ended_at = 0) AS unended
        FROM sessions
        WHERE day >= {since:Date} AND day < {until:Date} - 7
        GROUP BY client, version)
    GROUP BY version
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, version
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', version) AS shown_version,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(sessions) AS sessions,
        sum(unended) AS unended
    FROM marked
    GROUP BY shown_version
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_version AS version, clients, sessions, unended, unended / sessions AS rate, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY version = 'others', rate DESC, version
