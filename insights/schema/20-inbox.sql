-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- The way in. Tables with the engine Null keep nothing: they hand each block of rows on to the views
-- behind them.
--
--   line of a file -> incoming -> otel_logs -> judged -> usage_logs   what counts, whole
--   OpenTelemetry Collector ------^              |---> arrivals     how much, and what was kept out
--                                                |---> weeks        which weeks it touches
--                                                +---> erased, erasing   who withdrew

CREATE TABLE IF NOT EXISTS incoming (load UInt64, line String) ENGINE = Null;

-- What the collector's exporter fills, with its columns; `Load` is ours.
CREATE TABLE IF NOT EXISTS otel_logs
(
    Timestamp DateTime64(9, 'UTC'),
    TimestampTime DateTime('UTC') DEFAULT toDateTime(Timestamp),
    TraceId String,
    SpanId String,
    TraceFlags UInt8,
    SeverityText LowCardinality(String),
    SeverityNumber UInt8,
    ServiceName LowCardinality(String),
    Body String,
    ResourceSchemaUrl LowCardinality(String),
    ResourceAttributes Map(LowCardinality(String), String),
    ScopeSchemaUrl LowCardinality(String),
    ScopeName String,
    ScopeVersion LowCardinality(String),
    ScopeAttributes Map(LowCardinality(String), String),
    LogAttributes Map(LowCardinality(String), String),
    EventName String,
    Load UInt64 DEFAULT 0
)
ENGINE = Null;

-- Members that are missing or of another type are empty.
CREATE MATERIALIZED VIEW IF NOT EXISTS read_lines TO otel_logs AS
WITH
    'Array(Tuple(
        resource Tuple(attributes Array(Tuple(key String, value Tuple(stringValue String)))),
        scopeLogs Array(Tuple(
            scope Tuple(name String, version String),
            logRecords Array(Tuple(timeUnixNano String, observedTimeUnixNano String,
                severityNumber UInt8, eventName String, body Tuple(stringValue String),
                attributes Array(Tuple(key String, value Tuple(stringValue String)))))))))' AS shape,
    fromUnixTimestamp64Nano(toInt64OrZero(record.timeUnixNano), 'UTC') AS told,
    fromUnixTimestamp64Nano(toInt64OrZero(record.observedTimeUnixNano), 'UTC') AS observed
SELECT
    load AS Load,
    if((told < oldest_time() OR told > latest_time())
        AND observed >= oldest_time() AND observed <= latest_time(), observed, told) AS Timestamp,
    toDateTime(Timestamp) AS TimestampTime,
    record.severityNumber AS SeverityNumber,
    ResourceAttributes['service.name'] AS ServiceName,
    record.body.stringValue AS Body,
    ResourceAttributes,
    scope.scope.name AS ScopeName,
    scope.scope.version AS ScopeVersion,
    mapFromArrays(record.attributes.key, record.attributes.value.stringValue)
        ::Map(LowCardinality(String), String) AS LogAttributes,
    record.eventName AS EventName
FROM
(
    SELECT load, ResourceAttributes, scope, arrayJoin(scope.logRecords) AS record
    FROM
    (
        SELECT load, arrayJoin(part.scopeLogs) AS scope,
            mapFromArrays(part.resource.attributes.key, part.resource.attributes.value.stringValue)
                ::Map(LowCardinality(String), String) AS ResourceAttributes
        FROM (SELECT load, arrayJoin(JSONExtract(line, 'resourceLogs', shape)) AS part FROM incoming)
    )
);

-- Each record with the first reason for which it is kept out, empty for an event that counts.
CREATE TABLE IF NOT EXISTS judged
(
    load UInt64,
    reason LowCardinality(String),
    week Date,
    client UUID,
    uid String,
    Timestamp DateTime64(9, 'UTC'),
    run String,
    category LowCardinality(String),
    name LowCardinality(String),
    SeverityNumber UInt8,
    ScopeVersion LowCardinality(String),
    Body String,
    ResourceAttributes Map(LowCardinality(String), String),
    LogAttributes Map(LowCardinality(String), String)
)
ENGINE = Null;

CREATE MATERIALIZED VIEW IF NOT EXISTS judge TO judged AS
WITH ResourceAttributes['rui.client.id'] AS client_text
SELECT Load AS load,
    multiIf(
        ServiceName != 'nerixViewer' OR ScopeName != 'ruiSDK', 'foreign',
        NOT match(client_text, '^[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}$')
            OR NOT match(uid, '^[0-7][0-9A-HJKMNP-TV-Z]{25}$') OR category = '', 'no_identity',
        category = 'ruiSDK' AND name = 'OptOut', 'opt_out',
        length(Body) > longest_text(), 'too_large',
        Timestamp < oldest_time() OR Timestamp > latest_time(), 'absurd_time',
        client_hash(client) IN (SELECT client_hash FROM erased), 'erased',
        week < oldest_week() OR week IN (SELECT week FROM closed_weeks), 'too_late',
        '') AS reason,
    toMonday(Timestamp) AS week,
    toUUIDOrZero(client_text) AS client,
    LogAttributes['log.record.uid'] AS uid,
    Timestamp,
    LogAttributes['rui.run.id'] AS run,
    LogAttributes['rui.event.category'] AS category,
    LogAttributes['rui.event.name'] AS name,
    SeverityNumber, ScopeVersion, Body, ResourceAttributes, LogAttributes
FROM otel_logs;

CREATE MATERIALIZED VIEW IF NOT EXISTS keep_events TO usage_logs AS
WITH ulid_bytes(uid) AS bytes
SELECT client,
    reinterpretAsInt64(reverse(substring(bytes, 1, 6))) - toUnixTimestamp64Milli(Timestamp) AS uid_lag,
    toFixedString(substring(bytes, 7, 10), 10) AS uid_random, Timestamp, run, category, name, SeverityNumber, ScopeVersion,
    Body, mapFilter((key, value) -> key != 'rui.client.id', ResourceAttributes) AS ResourceAttributes,
    mapFilter((key, value) -> key NOT IN ('log.record.uid', 'rui.event.category', 'rui.event.name',
        'rui.run.id', 'rui.session.id') OR (key = 'rui.session.id' AND value != ''),
        LogAttributes) AS LogAttributes
FROM judged WHERE reason = '';

CREATE MATERIALIZED VIEW IF NOT EXISTS touch_weeks TO weeks AS
SELECT week, toDate(now('UTC')) AS opened,
    -- Also when the clock went back.
    greatest(now64(3, 'UTC'), (SELECT max(rolled_up) FROM weeks) + INTERVAL 1 MILLISECOND) AS touched
FROM judged WHERE reason = ''
GROUP BY week;

CREATE MATERIALIZED VIEW IF NOT EXISTS count_arrivals TO arrivals AS
SELECT load, if(reason = '', 'kept', reason) AS what, count() AS records
FROM judged
GROUP BY load, what;

CREATE MATERIALIZED VIEW IF NOT EXISTS count_lines TO arrivals AS
SELECT load, multiIf(JSONType(line, 'resourceLogs') = 'Array', 'lines',
        JSONType(line) = 'Object', 'not_otlp', 'not_json') AS what, count() AS records
FROM incoming
GROUP BY load, what;

-- A withdrawal without a believable time is no part of the statistics, but erases.
CREATE MATERIALIZED VIEW IF NOT EXISTS remember_withdrawals TO erased AS
SELECT client_hash(client) AS client_hash,
    if(Timestamp >= oldest_time() AND Timestamp <= latest_time(), toDate(Timestamp), toDate(0)) AS day
FROM judged WHERE reason = 'opt_out';

CREATE MATERIALIZED VIEW IF NOT EXISTS ask_for_erasure TO erasing AS
SELECT DISTINCT client FROM judged WHERE reason = 'opt_out';
