-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: first-image
-- title: From connected to the first good image
-- sentence: How long does it take from a connected camera to the first grab that brings a good
--   image?
-- read: From the moment that the camera was found to the start of the first grab with a good
--   image. Cameras that never brought one are not counted. The median is that of all cameras.
-- picture: bars x=wait y=cameras
-- columns: wait String, position UInt8, cameras UInt64, clients UInt64, median_seconds Float64
-- order: others last, position
-- definition: For each camera of a session that begins in the period: from its first `Connected`
--   to the earliest beginning of one of its good grabs that has a known beginning; in whole
--   milliseconds. Cameras without one of the two, or with a negative time, are no case. Groups:
--   `under 2 s`, `2 to 5 s`, `5 to 10 s`, `10 to 30 s`, `30 to 60 s`, `1 to 5 min`, `5 to 30 min`,
--   `30 min or more` (lower bound included), positions 1 to 8, named by position; others has
--   position 0. Folds. median_seconds is the median of all cases / 1000, also of those in groups
--   that are not shown, in each row.
WITH begun AS (
    SELECT client, run
    FROM sessions
    WHERE day >= {since:Date} AND day < {until:Date}
), waits AS (
    SELECT client, run, camera, minIf(connected_at, connected_at > 0) AS connected,
        minIf(first_good_at, first_good_at > 0) AS good, good - connected AS milliseconds
    FROM daily_cameras
    WHERE (client, run) IN (SELECT client, run FROM begun)
    GROUP BY client, run, camera
    HAVING connected > 0 AND good > 0 AND milliseconds >= 0
), groups AS (
    SELECT wait, position, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(cameras) AS cameras
    FROM (
        SELECT client, arrayCount(bound -> bound <= milliseconds,
                [2000, 5000, 10000, 30000, 60000, 300000, 1800000]) + 1 AS position,
            ['under 2 s', '2 to 5 s', '5 to 10 s', '10 to 30 s', '30 to 60 s', '1 to 5 min',
                '5 to 30 min', '30 min or more'][position] AS wait, 1 AS cameras
        FROM waits)
    GROUP BY wait, position
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, position
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', wait) AS shown_wait,
        if(folded, 0, position) AS shown_position,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(cameras) AS cameras
    FROM marked
    GROUP BY shown_wait, shown_position
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_wait AS wait, shown_position AS position, cameras, clients, (SELECT quantileExact(milliseconds) FROM waits) / 1000 AS median_seconds, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY wait = 'others', position
