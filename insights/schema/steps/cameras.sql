-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- A good grab counts on the day of its end, with the time of its beginning.
INSERT INTO fresh_cameras
SELECT day, client, run, camera, model, sum(opening), minIf(connected, connected > 0),
    minIf(good, good > 0)
FROM
(
    SELECT day, client, run, camera, model, toUInt64(name = 'Opened') AS opening,
        if(name = 'Connected', milliseconds, 0) AS connected, toInt64(0) AS good
    FROM recent
    WHERE category = 'Camera' AND name IN ('Opened', 'Connected') AND run != '' AND camera >= 0
    UNION ALL
    SELECT day, client, run, camera, model, 0, 0, begun_at
    FROM grab_ends
    WHERE begun AND images > failed_images AND failed_images >= 0
)
WHERE day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client, run, camera, model;
