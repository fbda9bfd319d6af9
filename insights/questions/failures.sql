-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: failures
-- title: Images that failed, per model and version
-- sentence: How often do images fail, with which camera model and version?
-- read: The share of failed images among all images that the stream counted. Grabs without these
--   counters are not in it.
-- picture: heat x=version y=model by=rate
-- columns: model String, version String, clients UInt64, grabs UInt64, images UInt64, failed
--   UInt64, rate Float64
-- order: others last, rate falling, model, version
-- definition: Grabs whose `Stopped` is in the period, with `TotalBufferCount` and
--   `FailedBufferCount` both 0 or more. Groups are `Model` and `service.version` of the `Stopped`,
--   named by model, then version. images and failed are the sums of the two counters; rate = failed
--   / images. Folds; others has an empty version.
WITH groups AS (
    SELECT model, version, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(grabs) AS grabs,
        sum(images) AS images,
        sum(failed) AS failed
    FROM (
        SELECT client, model, version, sum(counted_grabs) AS grabs, sum(images) AS images,
            sum(failed_images) AS failed
        FROM daily_grabs
        WHERE day >= {since:Date} AND day < {until:Date} AND counted_grabs > 0
        GROUP BY client, model, version)
    GROUP BY model, version
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, model, version
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', model) AS shown_model,
        if(folded, '', version) AS shown_version,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(grabs) AS grabs,
        sum(images) AS images,
        sum(failed) AS failed
    FROM marked
    GROUP BY shown_model, shown_version
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_model AS model, shown_version AS version, clients, grabs, images, failed, if(images = 0, 0, failed / images) AS rate, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY model = 'others', rate DESC, model, version
