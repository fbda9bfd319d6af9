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
CREATE TABLE IF NOT EXISTS judged AS otel_logs ENGINE = Null;
ALTER TABLE judged ADD COLUMN IF NOT EXISTS reason LowCardinality(String);

CREATE MATERIALIZED VIEW IF NOT EXISTS judge TO judged AS
WITH
    ResourceAttributes['rui.client.id'] AS client_text,
    toUUIDOrZero(client_text) AS client
SELECT otel_logs.*,
    multiIf(
        ServiceName != 'nerixViewer' OR ScopeName != 'ruiSDK', 'foreign',
        NOT match(client_text, '^[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}$')
            OR NOT match(LogAttributes['log.record.uid'], '^[0-7][0-9A-HJKMNP-TV-Z]{25}$')
            OR LogAttributes['rui.event.category'] = '', 'no_identity',
        LogAttributes['rui.event.category'] = 'ruiSDK'
            AND LogAttributes['rui.event.name'] = 'OptOut', 'opt_out',
        length(Body) > longest_text(), 'too_large',
        Timestamp < oldest_time() OR Timestamp > latest_time(), 'absurd_time',
        client_hash(client) IN (SELECT client_hash FROM erased), 'erased',
        toMonday(Timestamp) < oldest_week()
            OR toMonday(Timestamp) IN (SELECT week FROM closed_weeks), 'too_late',
        '') AS reason
FROM otel_logs;

CREATE MATERIALIZED VIEW IF NOT EXISTS keep_events TO usage_logs AS
SELECT * EXCEPT (Load, reason) FROM judged WHERE reason = '';

CREATE MATERIALIZED VIEW IF NOT EXISTS touch_weeks TO weeks AS
SELECT toMonday(Timestamp) AS week, toDate(now('UTC')) AS opened, now64(3, 'UTC') AS touched
FROM judged WHERE reason = ''
GROUP BY week;

CREATE MATERIALIZED VIEW IF NOT EXISTS count_arrivals TO arrivals AS
SELECT Load AS load, if(reason = '', 'kept', reason) AS what, count() AS records
FROM judged
GROUP BY load, what;

CREATE MATERIALIZED VIEW IF NOT EXISTS count_lines TO arrivals AS
SELECT load, multiIf(JSONType(line) != 'Object', 'not_json',
        JSONType(line, 'resourceLogs') != 'Array', 'not_otlp', 'lines') AS what, count() AS records
FROM incoming
GROUP BY load, what;

-- A withdrawal without a believable time is no part of the statistics, but erases.
CREATE MATERIALIZED VIEW IF NOT EXISTS remember_withdrawals TO erased AS
SELECT client_hash(toUUIDOrZero(ResourceAttributes['rui.client.id'])) AS client_hash,
    if(Timestamp >= oldest_time() AND Timestamp <= latest_time(), toDate(Timestamp), toDate(0)) AS day
FROM judged WHERE reason = 'opt_out';

CREATE MATERIALIZED VIEW IF NOT EXISTS ask_for_erasure TO erasing AS
SELECT DISTINCT toUUIDOrZero(ResourceAttributes['rui.client.id']) AS client
FROM judged WHERE reason = 'opt_out';
