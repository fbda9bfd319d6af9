-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- Every limit, in one place, and what several files below need.

-- No event is older than the product.
CREATE OR REPLACE FUNCTION oldest_time AS () -> toDateTime64('2025-01-01 00:00:00', 9, 'UTC');
-- Clocks of users' machines may be a little fast.
CREATE OR REPLACE FUNCTION latest_time AS () -> now64(9, 'UTC') + INTERVAL 2 DAY;
-- The library takes no larger text.
CREATE OR REPLACE FUNCTION longest_text AS () -> 1048576;
-- Whole records live so long, from the first arrival in their week.
CREATE OR REPLACE FUNCTION raw_days AS () -> 90;
-- Roll-ups of weeks before this day are dropped.
CREATE OR REPLACE FUNCTION oldest_week AS () -> toMonday(toDate(now('UTC')) - INTERVAL 13 MONTH);

-- One way, and of a random number: nobody finds the client from it.
CREATE OR REPLACE FUNCTION client_hash AS (client) -> SHA256(toString(client));

-- 26 characters of Crockford's base 32 are 130 bits, the first two of them 0: with six more characters
-- they are 20 whole bytes, of which the last 16 are the number.
CREATE OR REPLACE FUNCTION ulid_bytes AS (text) -> toFixedString(substring(base32Decode(concat('AAAAAA',
    translate(text, '0123456789ABCDEFGHJKMNPQRSTVWXYZ', 'ABCDEFGHIJKLMNOPQRSTUVWXYZ234567'))), 5, 16), 16);

CREATE OR REPLACE FUNCTION or_unknown AS (text) -> if(text = '', 'unknown', text);

-- Whether a group goes into "others": `before` are the different clients of all smaller groups,
-- `small` is how many groups are too small.
CREATE OR REPLACE FUNCTION is_folded AS (clients, before, small, threshold) ->
    small > 0 AND (clients < threshold OR before < threshold);

CREATE OR REPLACE FUNCTION version_numbers AS (version) ->
    arrayMap(digits -> toUInt32(digits), extractAll(version, '[0-9]{1,9}'));
