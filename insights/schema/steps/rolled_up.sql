-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- Up to which arrival the weeks are rolled up now, asked before they are read. On a server others
-- insert meanwhile, and what they insert is seen a moment after its time: {margin:UInt32} seconds.
SELECT week, if({margin:UInt32} = 0, max(touched),
    least(max(touched), now64(3) - toIntervalSecond({margin:UInt32}))) AS up_to
FROM weeks WHERE week >= {first:Date} AND week <= {last:Date}
GROUP BY week;
