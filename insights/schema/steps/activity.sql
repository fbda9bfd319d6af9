-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_activity
SELECT day, client, argMax(version, (nanoseconds, uid)), count()
FROM recent WHERE day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client;
