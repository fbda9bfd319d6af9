-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- Erases the clients in `erasing`, whose ids stand in no statement: statements are kept on disk. All
-- tables at once; they are waited for then.
ALTER TABLE usage_logs DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_activity DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_runs DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_cameras DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_features DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_values DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_streams DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_grabs DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_failures DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
ALTER TABLE daily_losses DELETE WHERE client IN (SELECT client FROM erasing) SETTINGS mutations_sync = 0;
