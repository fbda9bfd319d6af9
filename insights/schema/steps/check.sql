-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- The quality of the data: numbers of records and files, nothing about a client.
WITH
    counted AS (
        SELECT what, sum(records) AS number FROM arrivals
        WHERE load = 0 OR load IN (SELECT load FROM loads WHERE state = 'finished')
        GROUP BY what
    ),
    explained AS (
        SELECT * FROM values('position UInt8, what String, explanation String',
            (1, 'lines', 'lines of files that were requests'),
            (2, 'kept', 'records that count, doubles included'),
            (3, 'opt_out', 'withdrawals, doubles included'),
            (4, 'not_json', 'lines kept out: no JSON object'),
            (5, 'not_otlp', 'lines kept out: no export request'),
            (6, 'foreign', 'records kept out: of another program'),
            (7, 'no_identity', 'records kept out: no client, identifier or category'),
            (8, 'too_large', 'records kept out: text above 1 MiB'),
            (9, 'absurd_time', 'records kept out: before 2025 or in the future'),
            (10, 'erased', 'records kept out: the client has withdrawn or was erased'),
            (11, 'too_late', 'records kept out: their week is closed'))
    )
SELECT what, number, explanation
FROM
(
    SELECT position, what, counted.number AS number, explanation
    FROM explained LEFT JOIN counted USING (what)
    UNION ALL
    SELECT 20, 'events', sum(events), 'events of the roll-ups, each once' FROM daily_activity
    UNION ALL
    SELECT 21, 'without_run', sum(events) - (SELECT sum(events) FROM daily_runs),
        'events of no run: they are in no answer about sessions' FROM daily_activity
    UNION ALL
    SELECT 22, 'whole_records', count(), 'records that are still stored whole' FROM usage_logs FINAL
    UNION ALL
    SELECT 23, 'closed_weeks', count(), 'weeks whose whole records have been deleted' FROM closed_weeks
    UNION ALL
    SELECT 24, 'files', countIf(state = 'finished'), 'files loaded' FROM loads
    UNION ALL
    SELECT 25, 'interrupted', countIf(state = 'interrupted'), 'loads that were interrupted' FROM loads
)
ORDER BY position;
