-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: session-funnel
-- title: How sessions go
-- sentence: How far do sessions come: connect, open, change, grab?
-- read: Each session stands at the furthest step that it reached with all steps before it.
--   reached counts also those that went on from there.
-- picture: bars x=step y=reached
-- columns: step String, position UInt8, sessions UInt64, reached UInt64, clients UInt64
-- order: others last, position
-- definition: Sessions that begin in the period. Steps: `started`, `connected` (the run has a
--   `Connected`), `opened` (an `Opened`), `changed` (a `ParameterValueChanged`), `grabbed` (a
--   `Stopped` of `Grab`), positions 1 to 5; a session stands at the last step that it reached
--   without missing one before. Groups are the steps, named by position. Folds; others has position
--   0. reached is the sum of sessions of this and all later rows but others; for others its own
--   sessions.
WITH groups AS (
    SELECT step, position, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(sessions) AS sessions
    FROM (
        SELECT client, 1 + connected + connected * opened + connected * opened * changed
                + connected * opened * changed * grabbed AS position,
            ['started', 'connected', 'opened', 'changed', 'grabbed'][position] AS step, 1 AS sessions
        FROM sessions
        WHERE day >= {since:Date} AND day < {until:Date})
    GROUP BY step, position
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, position
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', step) AS shown_step,
        if(folded, 0, position) AS shown_position,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(sessions) AS sessions
    FROM marked
    GROUP BY shown_step, shown_position
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_step AS step, shown_position AS position, sessions, if(step = 'others', sessions, sum(if(step = 'others', 0, sessions)) OVER (ORDER BY position DESC)) AS reached, clients, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY step = 'others', position
