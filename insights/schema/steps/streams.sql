-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
INSERT INTO fresh_streams
SELECT DISTINCT day, client, features
FROM recent WHERE notEmpty(features) AND day >= {first:Date} AND day < {last:Date} + 7;
