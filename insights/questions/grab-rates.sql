-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: grab-rates
-- title: Grabs by rate
-- sentence: At which frame rates is grabbed?
-- read: The rate that the status bar showed last. 0 also stands for a camera to which its user
--   gave a name.
-- picture: bars x=rate y=grabs
-- columns: rate String, position UInt8, clients UInt64, grabs UInt64
-- order: others last, position
-- definition: Grabs whose `Stopped` is in the period. The rate is `FPS` of `StatusBarStats`:
--   `unknown` (below 0), `0`, `1 to 5`, `5 to 15`, `15 to 30`, `30 to 60`, `60 to 120`, `120 to
--   500`, `500 or more` (lower bound included; images a second), positions 1 to 9. Groups are the
--   rates, named by position. Folds; others has position 0.
WITH groups AS (
    SELECT rate_text, position, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(grabs) AS grabs
    FROM (
        SELECT client, rate AS position, sum(grabs) AS grabs,
            ['unknown', '0', '1 to 5', '5 to 15', '15 to 30', '30 to 60', '60 to 120', '120 to 500',
                '500 or more'][position] AS rate_text
        FROM daily_grabs
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY client, position)
    GROUP BY rate_text, position
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, position
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', rate_text) AS shown_rate_text,
        if(folded, 0, position) AS shown_position,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(grabs) AS grabs
    FROM marked
    GROUP BY shown_rate_text, shown_position
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_rate_text AS rate, shown_position AS position, clients, grabs, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY rate = 'others', position
