-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: features-untouched
-- title: Features that hardly anybody touches
-- sentence: Which features do the opened cameras have that nobody, or almost nobody, selects or
--   sets?
-- read: Features that fewer clients touch than an answer may tell of, those with the most owners
--   first. None of these counts is told.
-- picture: table
-- columns: feature String, clients UInt64
-- order: clients falling, feature
-- definition: For each feature's name in a `FeatureStreamStats` of an `Opened` or `Closed` in the
--   period, the clients with such a stream. Groups are the features of which fewer than `threshold`
--   clients have a `FeatureChosen` or `ParameterValueChanged` in the period. Leaves out.
WITH owners AS (
    SELECT arrayJoin(stream) AS feature, client
    FROM (
        SELECT client, any(features) AS stream
        FROM daily_streams
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY client, cityHash64(features)
    )
), touched AS (
    SELECT feature
    FROM daily_features
    WHERE day >= {since:Date} AND day < {until:Date}
    GROUP BY feature
    HAVING uniqExact(client) >= {threshold:UInt32}
), groups AS (
    SELECT feature, uniqExact(client) AS clients, uniqExactState(client) AS who
    FROM owners
    WHERE feature NOT IN (SELECT feature FROM touched)
    GROUP BY feature
), counted AS (
    SELECT *, uniqExactMergeIf(who, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        countIf(clients < {threshold:UInt32}) OVER () AS left_out
    FROM groups
)
SELECT feature, clients, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY clients DESC, feature
