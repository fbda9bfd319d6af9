-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: cameras-per-client
-- title: Cameras a client has
-- sentence: How many cameras does a client work with?
-- read: The most cameras that were opened in one run of the viewer.
-- picture: bars x=cameras y=clients
-- columns: cameras String, clients UInt64
-- order: others last, fewest cameras first
-- definition: For each client, the largest number of different cameras with an `Opened` in the
--   period that one run has. Groups: `1`, `2`, `3`, `4`, `5 to 8`, `9 or more`. Folds (names
--   compare bytewise).
WITH groups AS (
    SELECT cameras, uniqExactState(client) AS who, uniqExact(client) AS clients
    FROM (
        SELECT client,
            multiIf(max(seen) <= 4, toString(max(seen)), max(seen) <= 8, '5 to 8', '9 or more') AS cameras
        FROM (
            SELECT client, run, uniqExact(camera) AS seen
            FROM daily_cameras
            WHERE day >= {since:Date} AND day < {until:Date} AND opens > 0
            GROUP BY client, run
        )
        GROUP BY client)
    GROUP BY cameras
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, cameras
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', cameras) AS shown_cameras,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden
    FROM marked
    GROUP BY shown_cameras
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_cameras AS cameras, clients, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY cameras = 'others', cameras
