-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: session-lengths
-- title: How long sessions last
-- sentence: How long does a session last?
-- read: From the beginning to the end, or to the last event of a session that never ended.
-- picture: bars x=length y=sessions
-- columns: length String, position UInt8, sessions UInt64, clients UInt64, median_seconds Float64
-- order: others last, position
-- definition: Sessions that begin in the period. The length goes from its `SessionStarted` to the
--   latest event of its run, in whole milliseconds. Groups: `under 1 min`, `1 to 5 min`, `5 to 30
--   min`, `30 to 60 min`, `1 to 4 h`, `4 to 12 h`, `12 h or more` (lower bound included), positions
--   1 to 7, named by position. Folds; others has position 0. median_seconds is the median of all
--   these lengths / 1000, in each row.
WITH groups AS (
    SELECT length, position, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(sessions) AS sessions
    FROM (
        SELECT client, arrayCount(bound -> bound <= last_at - started_at,
                [60000, 300000, 1800000, 3600000, 14400000, 43200000]) + 1 AS position,
            ['under 1 min', '1 to 5 min', '5 to 30 min', '30 to 60 min', '1 to 4 h', '4 to 12 h',
                '12 h or more'][position] AS length, 1 AS sessions
        FROM sessions
        WHERE day >= {since:Date} AND day < {until:Date})
    GROUP BY length, position
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, position
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', length) AS shown_length,
        if(folded, 0, position) AS shown_position,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(sessions) AS sessions
    FROM marked
    GROUP BY shown_length, shown_position
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_length AS length, shown_position AS position, sessions, clients, (SELECT quantileExact(last_at - started_at) FROM sessions
        WHERE day >= {since:Date} AND day < {until:Date}) / 1000 AS median_seconds, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY length = 'others', position
