-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: camera-models
-- title: Camera models in use
-- sentence: Which camera models are used, and how many of them does a client have?
-- read: A camera counts once it was opened. Cameras are numbered anew in each run, so the most of
--   one run stand for a client.
-- picture: bars x=model y=clients
-- columns: model String, clients UInt64, cameras UInt64
-- order: others last, clients falling, model
-- definition: For each client and model, the largest number of different cameras with that Model
--   and an `Opened` in the period that one run has. Groups are the models; clients are those with
--   at least one such camera; cameras is the sum of these numbers. `Model` is that of the `Opened`
--   itself. Folds.
WITH groups AS (
    SELECT model, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(cameras) AS cameras
    FROM (
        SELECT client, model, max(seen) AS cameras
        FROM (
            SELECT client, run, model, uniqExact(camera) AS seen
            FROM daily_cameras
            WHERE day >= {since:Date} AND day < {until:Date} AND opens > 0
            GROUP BY client, run, model
        )
        GROUP BY client, model)
    GROUP BY model
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, model
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', model) AS shown_model,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(cameras) AS cameras
    FROM marked
    GROUP BY shown_model
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_model AS model, clients, cameras, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY model = 'others', clients DESC, model
