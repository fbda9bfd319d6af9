-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_failures
SELECT day, client, code, failure_text, sumIf(failure_count, failure_count >= 0)
FROM recent WHERE category = 'Grab' AND name = 'Failed' AND day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client, code, failure_text;
