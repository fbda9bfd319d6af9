-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_losses
SELECT day, client, loss.1 AS reason, sum(loss.2)
FROM recent ARRAY JOIN losses AS loss
WHERE day >= {first:Date} AND day < {last:Date} + 7
GROUP BY day, client, reason;
