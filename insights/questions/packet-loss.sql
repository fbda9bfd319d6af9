-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
-- name: packet-loss
-- title: Packets lost and resent, per model
-- sentence: With which cameras does the network lose packets?
-- read: Shares of all packets. Grabs whose transport does not count packets are not in it.
-- picture: bars x=model y=lost_rate
-- columns: model String, clients UInt64, grabs UInt64, packets UInt64, lost UInt64, resent
--   UInt64, lost_rate Float64, resent_rate Float64
-- order: others last, lost_rate falling, model
-- definition: Grabs whose `Stopped` is in the period, with `TotalPacketCount`,
--   `FailedPacketCount` and `ResendPacketCount` all 0 or more. Groups are the models. packets, lost
--   and resent are the sums of these; lost_rate = lost / packets, resent_rate = resent / packets.
--   Folds.
WITH groups AS (
    SELECT model, uniqExactState(client) AS who, uniqExact(client) AS clients,
        sum(grabs) AS grabs,
        sum(packets) AS packets,
        sum(lost) AS lost,
        sum(resent) AS resent
    FROM (
        SELECT client, model, sum(packet_grabs) AS grabs, sum(packets) AS packets,
            sum(lost_packets) AS lost, sum(resent_packets) AS resent
        FROM daily_grabs
        WHERE day >= {since:Date} AND day < {until:Date} AND packet_grabs > 0
        GROUP BY client, model)
    GROUP BY model
), marked AS (
    SELECT *, is_folded(clients, uniqExactMerge(who) OVER smaller,
        countIf(clients < {threshold:UInt32}) OVER (), {threshold:UInt32}) AS folded
    FROM groups
    WINDOW smaller AS (ORDER BY clients, model
        ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)
), shown AS (
    SELECT if(folded, 'others', model) AS shown_model,
        uniqExactMerge(who) AS clients, uniqExactMergeState(who) AS whole, sum(folded) AS hidden,
        sum(grabs) AS grabs,
        sum(packets) AS packets,
        sum(lost) AS lost,
        sum(resent) AS resent
    FROM marked
    GROUP BY shown_model
), counted AS (
    SELECT *, uniqExactMergeIf(whole, clients >= {threshold:UInt32}) OVER () AS speaks_for,
        sum(hidden) OVER () AS left_out
    FROM shown
)
SELECT shown_model AS model, clients, grabs, packets, lost, resent, if(packets = 0, 0, lost / packets) AS lost_rate, if(packets = 0, 0, resent / packets) AS resent_rate, speaks_for, left_out
FROM counted
WHERE clients >= {threshold:UInt32}
ORDER BY model = 'others', lost_rate DESC, model
