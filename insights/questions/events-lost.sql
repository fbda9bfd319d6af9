-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: events-lost
-- title: Events lost, by reason
-- sentence: Which events never arrived, and why?
-- read: What clients told of events that they had to drop. The reasons stand in the page on the
--   analytics library.
-- picture: bars x=reason y=events
-- columns: reason String, clients UInt64, events UInt64
-- order: others last, events falling, reason
-- definition: The events `EventsLost` of category `ruiSDK` in the period. For each of
--   `maxEvents`, `maxBytes`, `maxAge`, `eventSize`, `storage`, `damagedDatabase`, `rejected`,
--   `requestSize`, `partlyRejected`, `purged` in its text that is a whole number above 0, that many
--   events. Other members are ignored. Groups are the reasons. Folds.
WITH groups AS (
    SELECT reason, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(events) AS events
    FROM (
        SELECT client, reason, sum(lost) AS events
        FROM daily_losses
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY client, reason)
    GROUP BY reason
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, reason
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', reason) AS shown_reason,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(events) AS events
    FROM marked
    GROUP BY shown_reason
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_reason AS reason, clients, events, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY reason = 'others', events DESC, reason
