-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: features-chosen
-- title: Features most chosen
-- sentence: Which features do users select in the feature tree?
-- read: Clients that selected the feature at least once, and how often all of them did.
-- picture: bars x=feature y=clients
-- columns: feature String, clients UInt64, times UInt64
-- order: others last, clients falling, feature
-- definition: `FeatureChosen` events; the feature is `rui.event.name`, in the period. Groups are
--   the features (see Features). Folds.
WITH groups AS (
    SELECT feature, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(times) AS times
    FROM (
        SELECT client, feature, sum(chosen) AS times
        FROM daily_features
        WHERE day >= {since:Date} AND day < {until:Date} AND chosen > 0
        GROUP BY client, feature)
    GROUP BY feature
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, feature
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', feature) AS shown_feature,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(times) AS times
    FROM marked
    GROUP BY shown_feature
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_feature AS feature, clients, times, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY feature = 'others', clients DESC, feature
