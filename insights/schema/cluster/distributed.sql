-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- What a cluster has besides: the same tables over all shards. A client's events, and so everything
-- that is made of them, lie on one shard: the collector writes to otel_logs here, questions are asked
-- here, and each shard rolls up for itself.
CREATE DATABASE IF NOT EXISTS nerix_insights_all ON CLUSTER '{cluster}';

CREATE TABLE IF NOT EXISTS nerix_insights_all.otel_logs ON CLUSTER '{cluster}' AS nerix_insights.otel_logs
ENGINE = Distributed('{cluster}', nerix_insights, otel_logs, cityHash64(ResourceAttributes['rui.client.id']));

CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_activity ON CLUSTER '{cluster}' AS nerix_insights.daily_activity
ENGINE = Distributed('{cluster}', nerix_insights, daily_activity);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_runs ON CLUSTER '{cluster}' AS nerix_insights.daily_runs
ENGINE = Distributed('{cluster}', nerix_insights, daily_runs);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_cameras ON CLUSTER '{cluster}' AS nerix_insights.daily_cameras
ENGINE = Distributed('{cluster}', nerix_insights, daily_cameras);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_features ON CLUSTER '{cluster}' AS nerix_insights.daily_features
ENGINE = Distributed('{cluster}', nerix_insights, daily_features);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_values ON CLUSTER '{cluster}' AS nerix_insights.daily_values
ENGINE = Distributed('{cluster}', nerix_insights, daily_values);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_streams ON CLUSTER '{cluster}' AS nerix_insights.daily_streams
ENGINE = Distributed('{cluster}', nerix_insights, daily_streams);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_grabs ON CLUSTER '{cluster}' AS nerix_insights.daily_grabs
ENGINE = Distributed('{cluster}', nerix_insights, daily_grabs);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_failures ON CLUSTER '{cluster}' AS nerix_insights.daily_failures
ENGINE = Distributed('{cluster}', nerix_insights, daily_failures);
CREATE TABLE IF NOT EXISTS nerix_insights_all.daily_losses ON CLUSTER '{cluster}' AS nerix_insights.daily_losses
ENGINE = Distributed('{cluster}', nerix_insights, daily_losses);

CREATE TABLE IF NOT EXISTS nerix_insights_all.arrivals ON CLUSTER '{cluster}' AS nerix_insights.arrivals
ENGINE = Distributed('{cluster}', nerix_insights, arrivals);

-- These are whole on every shard.
CREATE OR REPLACE VIEW nerix_insights_all.erased ON CLUSTER '{cluster}' AS SELECT * FROM nerix_insights.erased;
CREATE OR REPLACE VIEW nerix_insights_all.feature_kinds ON CLUSTER '{cluster}' AS
SELECT * FROM nerix_insights.feature_kinds;

-- A run lies on one shard, so each shard can say which sessions it has.
CREATE TABLE IF NOT EXISTS nerix_insights_all.sessions ON CLUSTER '{cluster}' AS nerix_insights.sessions
ENGINE = Distributed('{cluster}', nerix_insights, sessions);
