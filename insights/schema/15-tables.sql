-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- What is kept whole, and the books about it. One partition a week (UTC, by its Monday).

-- Events that count, whole: what every record has in columns of its own, the rest in the two maps.
-- Rows of one event are equal, lie in one partition, and become one when parts are merged; until then
-- FINAL makes one of them. A ULID is milliseconds, mostly those of Timestamp (uid_lag is how much they
-- differ), and ten random bytes.
CREATE TABLE IF NOT EXISTS usage_logs
(
    client UUID CODEC(ZSTD(1)),
    uid_lag Int64 CODEC(ZSTD(1)),
    uid_random FixedString(10) CODEC(NONE),
    Timestamp DateTime64(9, 'UTC') CODEC(Delta, ZSTD(1)),
    run LowCardinality(String) CODEC(ZSTD(1)),
    category LowCardinality(String) CODEC(ZSTD(1)),
    name LowCardinality(String) CODEC(ZSTD(1)),
    SeverityNumber UInt8,
    ScopeVersion LowCardinality(String),
    Body String CODEC(ZSTD(6)),
    ResourceAttributes Map(LowCardinality(String), LowCardinality(String)) CODEC(ZSTD(1)),
    LogAttributes Map(LowCardinality(String), String) CODEC(ZSTD(1))
)
ENGINE = ReplacingMergeTree
PARTITION BY toMonday(Timestamp)
ORDER BY (client, toUnixTimestamp64Milli(Timestamp) + uid_lag, uid_random);

-- When the first event of a week came, when the last one did, and up to which arrival it is rolled up.
CREATE TABLE IF NOT EXISTS weeks
(
    week Date,
    opened SimpleAggregateFunction(min, Date) DEFAULT toDate(now('UTC')),
    touched SimpleAggregateFunction(max, DateTime64(3, 'UTC')),
    rolled_up SimpleAggregateFunction(max, DateTime64(3, 'UTC'))
)
ENGINE = AggregatingMergeTree ORDER BY week;

-- The whole records of these weeks have been dropped, so their roll-ups are final.
CREATE OR REPLACE VIEW closed_weeks AS
SELECT week FROM weeks
GROUP BY week HAVING min(opened) < toDate(now('UTC')) - raw_days() AND max(rolled_up) >= max(touched);

CREATE OR REPLACE VIEW open_weeks AS
SELECT week, max(touched) > max(rolled_up) AS is_stale FROM weeks
WHERE week NOT IN (SELECT week FROM closed_weeks)
GROUP BY week;

-- Of a grab that began in one week and ended in the next, the next one tells.
CREATE OR REPLACE VIEW weeks_to_roll_up AS
SELECT open_weeks.week AS week, stored.records AS records
FROM open_weeks
LEFT JOIN
(
    SELECT toDate(partition) AS week, sum(rows) AS records FROM system.parts
    WHERE database = currentDatabase() AND table = 'usage_logs' AND active
    GROUP BY week
) AS stored ON open_weeks.week = stored.week
WHERE is_stale OR open_weeks.week - 7 IN (SELECT week FROM open_weeks WHERE is_stale);

-- Records that arrived, by load (0 from a collector) and what became of them.
CREATE TABLE IF NOT EXISTS arrivals (load UInt64, what LowCardinality(String), records UInt64)
ENGINE = SummingMergeTree ORDER BY (load, what);

-- Files that were begun and finished: a load that has no end was interrupted.
CREATE TABLE IF NOT EXISTS loads
(
    load UInt64,
    file String,
    content FixedString(64),
    state Enum8('begun' = 1, 'finished' = 2, 'interrupted' = 3),
    at DateTime('UTC') DEFAULT now()
)
ENGINE = MergeTree ORDER BY (content, load);

-- Who withdrew, or was erased on request (day 0), by a one-way hash: what comes later is kept out.
CREATE TABLE IF NOT EXISTS erased (client_hash FixedString(32), day Date)
ENGINE = MergeTree ORDER BY client_hash;

-- Who is to be erased; empty as soon as that is done.
CREATE TABLE IF NOT EXISTS erasing (client UUID) ENGINE = MergeTree ORDER BY client;

CREATE OR REPLACE VIEW weeks_to_drop AS
SELECT DISTINCT toDate(partition) AS week FROM system.parts
WHERE database = currentDatabase() AND table = 'usage_logs' AND active
    AND week IN (SELECT week FROM closed_weeks);

CREATE OR REPLACE VIEW rollups_to_drop AS
SELECT DISTINCT table, toDate(partition) AS week FROM system.parts
WHERE database = currentDatabase() AND startsWith(table, 'daily_') AND active
    AND week < oldest_week();
