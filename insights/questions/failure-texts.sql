-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: failure-texts
-- title: What failures say
-- sentence: With which errors do images fail?
-- read: Codes and the first text of each, as the viewer told it; paths are masked there.
-- picture: table
-- columns: code String, text String, clients UInt64, images UInt64
-- order: others last, clients falling, code, text
-- definition: `Grab` `Failed` in the period. code and text are `ExceptionCode` and
--   `ExceptionText` (cut), empty if missing; images is the sum of `ExceptionCount` where that is 0
--   or more. Groups are code and text, named by code, then text. Folds; others has an empty text.
WITH groups AS (
    SELECT code, text, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(images) AS images
    FROM (
        SELECT client, code, text, sum(images) AS images
        FROM daily_failures
        WHERE day >= {since:Date} AND day < {until:Date}
        GROUP BY client, code, text)
    GROUP BY code, text
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, code, text
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', code) AS shown_code,
        if(folded, '', text) AS shown_text,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(images) AS images
    FROM marked
    GROUP BY shown_code, shown_text
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_code AS code, shown_text AS text, clients, images, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY code = 'others', clients DESC, code, text
