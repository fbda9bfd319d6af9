-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- Numbers as the ranges that they lie in.
INSERT INTO fresh_values
WITH
    ['0.000001', '0.000002', '0.000005', '0.00001', '0.00002', '0.00005', '0.0001', '0.0002',
        '0.0005', '0.001', '0.002', '0.005', '0.01', '0.02', '0.05', '0.1', '0.2', '0.5', '1', '2',
        '5', '10', '20', '50', '100', '200', '500', '1000', '2000', '5000', '10000', '20000',
        '50000', '100000', '200000', '500000', '1000000', '2000000', '5000000', '10000000',
        '20000000', '50000000', '100000000', '200000000', '500000000', '1000000000', '2000000000',
        '5000000000', '10000000000', '20000000000', '50000000000', '100000000000', '200000000000',
        '500000000000', '1000000000000'] AS bounds,
    arrayMap(bound -> toFloat64(bound), bounds) AS numbers,
    toFloat64OrZero(value) AS number,
    toInt64(arrayCount(bound -> bound <= abs(number), numbers)) AS below,
    kind = 'number' AS is_number,
    multiIf(NOT is_number OR number = 0, toInt64(0), number < 0, -1 - below, 1 + below) AS place,
    multiIf(NOT is_number, value, number = 0, '0', concat(if(number < 0, 'minus ', ''),
        multiIf(below = 0, 'under 0.000001', below = length(bounds), 'from 1000000000000',
            concat(bounds[below], ' to ', bounds[below + 1])))) AS shown
SELECT day, client, name, place, shown, count()
FROM (SELECT * EXCEPT kind FROM recent WHERE category = 'ParameterValueChanged' AND day >= {first:Date} AND day < {last:Date} + 7) AS changes
INNER JOIN feature_kinds ON name = feature
WHERE (is_number AND match(value, '^[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]{1,3})?$'))
    OR (kind = 'switch' AND value IN ('true', 'false'))
    OR (kind = 'choice' AND match(value, '^[A-Za-z0-9_]{1,64}$'))
GROUP BY day, client, name, place, shown;
