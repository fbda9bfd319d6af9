-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_runs
WITH name = 'SessionStarted' AND category = 'GeneralEvent' AS is_start,
    name = 'SessionEnded' AND category = 'GeneralEvent' AS is_end
SELECT day, client, run, argMinIf(version, (nanoseconds, uid), is_start),
    minIf(milliseconds, is_start), maxIf(milliseconds, is_end), max(milliseconds),
    count(),
    max(category = 'Camera' AND name = 'Connected'), max(category = 'Camera' AND name = 'Opened'),
    max(category = 'ParameterValueChanged'), max(category = 'Grab' AND name = 'Stopped')
FROM recent WHERE run != '' AND day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client, run;
