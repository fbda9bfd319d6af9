-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: grab-lengths
-- title: Grabs by kind and length
-- sentence: Which kinds of grabs are made, and how long do they last?
-- read: The kind is the acquisition mode. A grab of unknown length has lost its beginning.
-- picture: stacked x=length y=grabs by=kind
-- columns: kind String, length String, position UInt8, clients UInt64, grabs UInt64
-- order: others last, kind, position
-- definition: Grabs whose `Stopped` is in the period; the length is `Stopped` minus its
--   beginning, in whole milliseconds of their times, unknown if negative. kind is `GrabType`.
--   Lengths: `under 1 s`, `1 to 10 s`, `10 to 60 s`, `1 to 10 min`, `10 to 60 min`, `1 h or more`
--   (lower bound included), positions 1 to 6, and `unknown`, 7. Groups are kind and length, named
--   by kind, then position. Folds; others has an empty length and position 0.
WITH groups AS (
    SELECT kind, length, length_text, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(grabs) AS grabs
    FROM (
        SELECT client, kind, length, sum(grabs) AS grabs,
            ['under 1 s', '1 to 10 s', '10 to 60 s', '1 to 10 min', '10 to 60 min', '1 h or more',
                'unknown'][length] AS length_text
        FROM daily_grabs
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY client, kind, length)
    GROUP BY kind, length, length_text
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, kind, length, length_text
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', kind) AS shown_kind,
        if(folded, 0, length) AS shown_length,
        if(folded, '', length_text) AS shown_length_text,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(grabs) AS grabs
    FROM marked
    GROUP BY shown_kind, shown_length, shown_length_text
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_kind AS kind, shown_length_text AS length, shown_length AS position, clients, grabs, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY kind = 'others', kind, position
