// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

/** Settings of every query, in both sizes. */
export const settings = {
    // Lines may have 10 MB each: blocks are bounded by bytes, not by the 65,000 rows of the default.
    input_format_max_block_size_bytes: 16 << 20,
    max_block_size: 8192,
    max_insert_block_size: 8192,
    min_insert_block_size_rows: 262144,
    min_insert_block_size_bytes: 64 << 20,
    min_insert_block_size_rows_for_materialized_views: 262144,
    min_insert_block_size_bytes_for_materialized_views: 64 << 20,
    // Equal rows become one when parts are merged; looking for them in each block costs a third.
    optimize_on_insert: 0,
    // A fleet's first load may touch every week of a year.
    max_partitions_per_insert_block: 0,
    // Equal rows lie in one partition.
    do_not_merge_across_partitions_select_final: 1,
    // A week that has lost its last event has none in its roll-up either.
    allow_replace_partition_from_empty_source: 1,
    // On a cluster, tables over all shards are asked for lists that come from all shards too.
    distributed_product_mode: "global",
    // Deleting is done when the command has ended.
    mutations_sync: 2,
    output_format_json_quote_64bit_integers: 0,
    session_timezone: "UTC",
};
