-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- What answers are made of: a row for each day and client, without any value that could tell who it
-- is. One partition a week, replaced as a whole when the week is rolled up (rollup/).

-- A client that was active. `last_version` is that of the day's last event.
CREATE TABLE IF NOT EXISTS daily_activity
(day Date, client UUID, last_version LowCardinality(String), events UInt64)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (client, day);

-- What a run did on a day. Times are milliseconds since 1970, 0 for never; version that of its start.
CREATE TABLE IF NOT EXISTS daily_runs
(
    day Date, client UUID, run String, version LowCardinality(String), started_at Int64,
    ended_at Int64, last_at Int64, events UInt64, connected UInt8, opened UInt8, changed UInt8,
    grabbed UInt8
)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (client, run, day);

CREATE TABLE IF NOT EXISTS daily_cameras
(
    day Date, client UUID, run String, camera Int64, model LowCardinality(String), opens UInt64,
    connected_at Int64, first_good_at Int64
)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (client, run, camera, day);

CREATE TABLE IF NOT EXISTS daily_features
(day Date, client UUID, feature LowCardinality(String), chosen UInt64, changed UInt64)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (feature, client, day);

CREATE TABLE IF NOT EXISTS daily_values
(
    day Date, client UUID, feature LowCardinality(String), position Int16,
    value LowCardinality(String), changes UInt64
)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (feature, position, value, client, day);

-- The features that a client's opened cameras had: their names alone.
CREATE TABLE IF NOT EXISTS daily_streams
(day Date, client UUID, features Array(LowCardinality(String)))
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (client, day);

-- `length` and `rate` are positions, as the questions name them. Images and packets are those of the
-- grabs that count them: counted_grabs, packet_grabs.
CREATE TABLE IF NOT EXISTS daily_grabs
(
    day Date, client UUID, version LowCardinality(String), model LowCardinality(String),
    kind LowCardinality(String), length UInt8, rate UInt8, grabs UInt64, counted_grabs UInt64,
    images UInt64, failed_images UInt64, packet_grabs UInt64, packets UInt64, lost_packets UInt64,
    resent_packets UInt64
)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (client, day, model, version);

CREATE TABLE IF NOT EXISTS daily_failures
(day Date, client UUID, code LowCardinality(String), text String, images UInt64)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (code, text, client, day);

CREATE TABLE IF NOT EXISTS daily_losses
(day Date, client UUID, reason LowCardinality(String), lost UInt64)
ENGINE = MergeTree PARTITION BY toMonday(day) ORDER BY (reason, client, day);

-- The same once more: weeks are made there, and then put in their place in one step.
CREATE TABLE IF NOT EXISTS fresh_activity AS daily_activity;
CREATE TABLE IF NOT EXISTS fresh_runs AS daily_runs;
CREATE TABLE IF NOT EXISTS fresh_cameras AS daily_cameras;
CREATE TABLE IF NOT EXISTS fresh_features AS daily_features;
CREATE TABLE IF NOT EXISTS fresh_values AS daily_values;
CREATE TABLE IF NOT EXISTS fresh_streams AS daily_streams;
CREATE TABLE IF NOT EXISTS fresh_grabs AS daily_grabs;
CREATE TABLE IF NOT EXISTS fresh_failures AS daily_failures;
CREATE TABLE IF NOT EXISTS fresh_losses AS daily_losses;

-- The typed events of the weeks that are being rolled up, read once for all roll-ups; empty after.
CREATE TABLE IF NOT EXISTS recent
(
    client UUID, uid FixedString(16), nanoseconds Int64, milliseconds Int64, day Date, run String,
    version LowCardinality(String), category LowCardinality(String), name LowCardinality(String),
    camera Int64, model LowCardinality(String), kind LowCardinality(String),
    features Array(LowCardinality(String)), value String, code LowCardinality(String), failure_text String,
    failure_count Int64, images_per_second Int64, images Int64, failed_images Int64, packets Int64,
    lost_packets Int64, resent_packets Int64, losses Array(Tuple(String, Int64))
)
ENGINE = MergeTree ORDER BY category;

-- A session is a run that has begun. Its day is that of its beginning.
CREATE OR REPLACE VIEW sessions AS
SELECT client, run, toDate(fromUnixTimestamp64Milli(first_start, 'UTC')) AS day, first_start AS started_at,
    first_version AS version, last_end AS ended_at, last_event AS last_at,
    did_connect AS connected, did_open AS opened, did_change AS changed, did_grab AS grabbed
FROM
(
    SELECT client, run, minIf(started_at, started_at > 0) AS first_start,
        argMinIf(version, started_at, started_at > 0) AS first_version, max(ended_at) AS last_end,
        max(last_at) AS last_event, max(connected) AS did_connect, max(opened) AS did_open,
        max(changed) AS did_change, max(grabbed) AS did_grab
    FROM daily_runs
    GROUP BY client, run
    HAVING first_start > 0
);

-- The ends of grabs with their beginnings, while weeks are being rolled up.
CREATE OR REPLACE VIEW grab_ends AS
SELECT * EXCEPT begun, begun AND camera >= 0 AND run != '' AS begun
FROM
(
    SELECT *, lagInFrame(name) OVER w = 'Started' AND lagInFrame(nanoseconds) OVER w
            >= toUnixTimestamp64Nano(toDateTime64(toMonday(day) - 7, 9, 'UTC')) AS begun,
        lagInFrame(milliseconds) OVER w AS begun_at
    FROM recent
    WHERE category = 'Grab' AND name IN ('Started', 'Stopped')
    WINDOW w AS (PARTITION BY client, run, camera ORDER BY nanoseconds, uid
        ROWS BETWEEN 1 PRECEDING AND CURRENT ROW)
)
WHERE name = 'Stopped';
