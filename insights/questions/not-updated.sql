-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: not-updated
-- title: Machines that have not updated
-- sentence: How many installations still use an older version?
-- read: Clients that were active in the last 28 days, each with the version that it used last.
-- picture: bars x=version y=clients
-- columns: version String, state String, clients UInt64
-- order: others last, newest version first
-- definition: Clients with an event in the last 28 days before `until` (and since `since`), by
--   the version of their last event in that time. The newest version is the largest that
--   `threshold` or more of these clients have, versions compared as lists of the numbers in them
--   (each run of up to 9 digits of the version, in order; a list that is a prefix of another is
--   smaller), then bytewise. state is `newest` for it, `newer` for larger ones, `older` for smaller
--   ones, `unknown` for the version `unknown`, empty for others; if no version has `threshold`
--   clients every state is empty. Groups are the versions. Folds.
WITH groups AS (
    SELECT version, uniqExactState(client) AS who, uniqExact(client) AS clients
    FROM (
        SELECT client, argMax(last_version, day) AS version
        FROM daily_activity
        WHERE day >= {since:Date} AND day < {until:Date} AND day >= {until:Date} - 28
        GROUP BY client)
    GROUP BY version
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, version
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), newest_version AS (
    SELECT max((version_numbers(version), version)) AS newest
    FROM groups
    WHERE clients >= {threshold:UInt32} AND version != 'unknown'
), shown AS (
    SELECT if(folded, 'others', version) AS shown_version,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden
    FROM marked
    GROUP BY shown_version
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_version AS version, 
    multiIf(version = 'others' OR newest.2 = '', '', version = 'unknown', 'unknown',
        (version_numbers(version), version) > newest, 'newer',
        (version_numbers(version), version) < newest, 'older', 'newest') AS state, clients, speaks_for, left_out
FROM counted, newest_version
WHERE clients >= {threshold:UInt32}
ORDER BY version = 'others', version_numbers(version) DESC, version DESC
