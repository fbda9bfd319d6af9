-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: values-set
-- title: Values that are set
-- sentence: To which values do users set a feature?
-- read: Numbers stand in ranges, choices and switches as they are. Values of texts, serial
--   numbers and addresses are never shown.
-- picture: bars x=value y=clients by=feature
-- columns: feature String, value String, position Int16, clients UInt64, times UInt64
-- order: feature, others last, position, value
-- definition: `ParameterValueChanged` in the period whose feature has a known kind and whose
--   `ParameterValue` may be shown (see Features). Groups are the values as shown, with their
--   position (0 for choices, switches and `others`), named by position (as a number), then value.
--   Folds by feature.
WITH groups AS (
    SELECT feature, value, position, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(times) AS times
    FROM (
        SELECT client, feature, position, value, sum(changes) AS times
        FROM daily_values
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY client, feature, position, value)
    GROUP BY feature, value, position
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (PARTITION BY feature), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (PARTITION BY feature ORDER BY clients, position, value
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT feature, if(folded, 'others', value) AS shown_value,
        if(folded, 0, position) AS shown_position,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(times) AS times
    FROM marked
    GROUP BY feature, shown_value, shown_position
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT feature, shown_value AS value, shown_position AS position, clients, times, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY feature, value = 'others', position, value
