-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- The usage events as typed rows, each once: docs/events.md says what they mean. What is missing is
-- empty, a number -1, a model, kind or version "unknown". First one view of all of them, so that a
-- pass over the whole records makes every roll-up; then one for each kind.

CREATE OR REPLACE FUNCTION short_text AS (text) -> substringUTF8(text, 1, 200);

CREATE OR REPLACE FUNCTION is_feature_name AS (text) -> match(text, '^[A-Za-z_][A-Za-z0-9_:.]{0,127}$');

-- Names of the features in a stream, each once. The first line counts them, a cut one ends broken.
CREATE OR REPLACE FUNCTION stream_features AS (stream) -> arraySort(arrayDistinct(arrayFilter(
    feature -> is_feature_name(feature),
    arrayMap(line -> if(position(line, '\t') > 0, substring(line, 1, position(line, '\t') - 1), ''),
        arraySlice(splitByChar('\n', stream), 2, if(endsWith(stream, '[...cut]'), -1, NULL))))));

CREATE OR REPLACE VIEW events AS
SELECT client,
    toFixedString(concat(reverse(substring(reinterpretAsFixedString(
        toUnixTimestamp64Milli(Timestamp) + uid_lag), 1, 6)), uid_random), 16) AS uid,
    Timestamp AS time, toUnixTimestamp64Milli(Timestamp) AS milliseconds,
    toDate(Timestamp) AS day, toMonday(Timestamp) AS week, run,
    or_unknown(ResourceAttributes['service.version']) AS version,
    ResourceAttributes['rui.product.edition'] AS edition,
    ResourceAttributes['rui.product.language'] AS language,
    category, name, Body AS text
FROM usage_logs FINAL;

-- The text of a grab's end is no JSON: the two inner objects stand at its end, and what is in front
-- of them is JSON once its last comma is replaced by a bracket.
CREATE OR REPLACE VIEW typed_events AS
WITH
    category = 'Grab' AND name = 'Stopped' AS is_end,
    extractGroups(if(is_end, text, ''),
        '^(.*),"StatusBarStats":"(\\{[^{}]*\\})","StreamStats":"(\\{[^{}]*\\})"\\}$') AS parts,
    multiIf(is_end, if(empty(parts), '', concat(parts[1], '}')),
        category IN ('Camera', 'Grab', 'ParameterValueChanged'), text, '') AS members,
    JSONExtract(members, 'Tuple(CameraNr Nullable(Int64), Model String, GrabType String,
        FeatureStreamStats String, InitialValue String, ParameterValue String,
        ExceptionCode String, ExceptionText String, ExceptionCount Nullable(Int64))') AS told,
    JSONExtract(parts[2], 'Tuple(BPS Nullable(Int64), FPS Nullable(Int64),
        ImagesGrabbedCount Nullable(Int64), ImagesFailedCount Nullable(Int64))') AS status,
    JSONExtract(parts[3], 'Tuple(TotalBufferCount Nullable(Int64),
        FailedBufferCount Nullable(Int64), MissedFrameCount Nullable(Int64),
        TotalPacketCount Nullable(Int64), FailedPacketCount Nullable(Int64),
        ResendPacketCount Nullable(Int64), ResendRequestCount Nullable(Int64),
        ResynchronizationCount Nullable(Int64))') AS stream
SELECT
    client, uid, time, milliseconds, day, week, run, version, edition, language, category, name,
    greatest(ifNull(told.CameraNr, -1), -1) AS camera,
    or_unknown(short_text(told.Model)) AS model,
    or_unknown(short_text(told.GrabType)) AS kind,
    told.FeatureStreamStats AS feature_stream,
    told.InitialValue AS old_value,
    told.ParameterValue AS new_value,
    short_text(told.ExceptionCode) AS code,
    short_text(told.ExceptionText) AS failure_text,
    ifNull(told.ExceptionCount, -1) AS failure_count,
    ifNull(status.BPS, -1) AS bytes_per_second,
    ifNull(status.FPS, -1) AS images_per_second,
    ifNull(status.ImagesGrabbedCount, -1) AS images_shown,
    ifNull(status.ImagesFailedCount, -1) AS failed_images_shown,
    ifNull(stream.TotalBufferCount, -1) AS images,
    ifNull(stream.FailedBufferCount, -1) AS failed_images,
    ifNull(stream.MissedFrameCount, -1) AS missed_images,
    ifNull(stream.TotalPacketCount, -1) AS packets,
    ifNull(stream.FailedPacketCount, -1) AS lost_packets,
    ifNull(stream.ResendPacketCount, -1) AS resent_packets,
    ifNull(stream.ResendRequestCount, -1) AS resend_requests,
    ifNull(stream.ResynchronizationCount, -1) AS resynchronizations,
    arrayFilter(loss -> loss.1 IN ('maxEvents', 'maxBytes', 'maxAge', 'eventSize', 'storage',
            'damagedDatabase', 'rejected', 'requestSize', 'partlyRejected', 'purged') AND loss.2 > 0,
        JSONExtractKeysAndValues(if(category = 'ruiSDK' AND name = 'EventsLost', text, ''), 'Int64'))
        AS losses
FROM events;

CREATE OR REPLACE VIEW openings AS
SELECT client, run, time, day, version, camera, model, feature_stream
FROM typed_events WHERE category = 'Camera' AND name = 'Opened';

CREATE OR REPLACE VIEW closings AS
SELECT client, run, time, day, version, camera, model, feature_stream
FROM typed_events WHERE category = 'Camera' AND name = 'Closed';

CREATE OR REPLACE VIEW connections AS
SELECT client, run, time, day, version, camera, model
FROM typed_events WHERE category = 'Camera' AND name = 'Connected';

CREATE OR REPLACE VIEW removals AS
SELECT client, run, time, day, version, camera, model
FROM typed_events WHERE category = 'Camera' AND name = 'Removed';

CREATE OR REPLACE VIEW grabs AS
SELECT client, run, time, day, version, camera, model, kind
FROM typed_events WHERE category = 'Grab' AND name = 'Started';

CREATE OR REPLACE VIEW statistics AS
SELECT client, run, time, day, version, camera, model, kind, bytes_per_second, images_per_second,
    images_shown, failed_images_shown, images, failed_images, missed_images, packets, lost_packets,
    resent_packets, resend_requests, resynchronizations
FROM typed_events WHERE category = 'Grab' AND name = 'Stopped';

CREATE OR REPLACE VIEW failures AS
SELECT client, run, time, day, version, camera, code, failure_text AS text, failure_count AS images
FROM typed_events WHERE category = 'Grab' AND name = 'Failed';

CREATE OR REPLACE VIEW feature_choices AS
SELECT client, run, time, day, version, name AS feature
FROM typed_events WHERE category = 'FeatureChosen';

CREATE OR REPLACE VIEW value_changes AS
SELECT client, run, time, day, version, camera, name AS feature, old_value, new_value
FROM typed_events WHERE category = 'ParameterValueChanged';

CREATE OR REPLACE VIEW losses AS
SELECT client, time, day, version, loss.1 AS reason, loss.2 AS lost
FROM typed_events ARRAY JOIN losses AS loss;

-- Of an opt-out only its day is known: the client is erased.
CREATE OR REPLACE VIEW opt_outs AS
SELECT min(erased.day) AS day FROM erased WHERE erased.day > toDate(0) GROUP BY client_hash;
