-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_grabs
WITH images >= 0 AND failed_images >= 0 AS counted,
    packets >= 0 AND lost_packets >= 0 AND resent_packets >= 0 AS packets_counted
SELECT day, client, version, model, kind,
    if(begun, arrayCount(bound -> bound <= milliseconds - begun_at,
        [1000, 10000, 60000, 600000, 3600000]) + 1, 7) AS length,
    if(images_per_second < 0, 1, arrayCount(bound -> bound <= images_per_second,
        [1, 5, 15, 30, 60, 120, 500]) + 2) AS rate,
    count(), countIf(counted), sumIf(images, counted), sumIf(failed_images, counted),
    countIf(packets_counted), sumIf(packets, packets_counted), sumIf(lost_packets, packets_counted),
    sumIf(resent_packets, packets_counted)
FROM grab_ends WHERE day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client, version, model, kind, length, rate;
