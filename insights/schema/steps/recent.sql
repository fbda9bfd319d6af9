-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- Reads the weeks from {first:Date} to {last:Date}, and the one before them, for grabs that began there.
INSERT INTO recent
SELECT client, uid, toUnixTimestamp64Nano(time), milliseconds, day, run, version, category, name,
    camera, model, kind, stream_features(feature_stream),
    if(name IN (SELECT feature FROM feature_kinds), new_value, ''), code, failure_text,
    failure_count, images_per_second, images, failed_images, packets, lost_packets, resent_packets,
    losses
FROM typed_events
WHERE week >= {first:Date} - 7 AND week <= {last:Date};
