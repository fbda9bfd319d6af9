// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CStreamCounters.h"

#include <set>
#include <string>

namespace CameraPool {
namespace {

// Each counter is the sum of what Aravis counts under one or two names. Nothing in Aravis counts
// how often a stream had to find the beginning of an image again.
struct Definition
{
    const char *name;
    const char *first;
    const char *second;
};
constexpr std::array<Definition, CStreamCounters::Count> Definitions{{
    {"Statistic_Total_Buffer_Count", "n_completed_buffers", "n_failures"},
    {"Statistic_Failed_Buffer_Count", "n_failures", nullptr},
    {"Statistic_Total_Packet_Count", "n_received_packets", nullptr},
    {"Statistic_Resend_Request_Count", "n_resend_requests", nullptr},
    {"Statistic_Resend_Packet_Count", "n_resent_packets", nullptr},
    {"Statistic_Failed_Packet_Count", "n_missing_packets", "n_error_packets"},
    {"Statistic_Missed_Frame_Count", "n_missing_frames", nullptr},
    {"Statistic_Resynchronization_Count", nullptr, nullptr},
}};

std::set<std::string> countedBy(ArvStream *stream)
{
    std::set<std::string> names;
    for (guint i = 0; i < arv_stream_get_n_infos(stream); ++i) {
        names.insert(arv_stream_get_info_name(stream, i));
    }
    return names;
}

std::set<std::string> countedByTransport(bool isGigE)
{
    std::set<std::string> names{"n_completed_buffers", "n_failures"};
    if (isGigE) {
        names.insert({"n_received_packets", "n_resend_requests", "n_resent_packets",
                      "n_missing_packets", "n_error_packets", "n_missing_frames"});
    }
    return names;
}

bool isCounted(const Definition &definition, const std::set<std::string> &names)
{
    return definition.first && names.count(definition.first) != 0
           && (!definition.second || names.count(definition.second) != 0);
}

qint64 value(const Definition &definition, ArvStream *stream)
{
    guint64 sum = arv_stream_get_info_uint64_by_name(stream, definition.first);
    if (definition.second) {
        sum += arv_stream_get_info_uint64_by_name(stream, definition.second);
    }
    return qint64(sum);
}

} // namespace

const char *CStreamCounters::name(int index)
{
    return Definitions.at(std::size_t(index)).name;
}

CStreamCounters CStreamCounters::none(bool isGigE)
{
    CStreamCounters counters;
    const std::set<std::string> names = countedByTransport(isGigE);
    for (std::size_t i = 0; i < Definitions.size(); ++i) {
        if (isCounted(Definitions.at(i), names)) {
            counters.m_values.at(i) = 0;
        }
    }
    return counters;
}

CStreamCounters CStreamCounters::of(ArvStream *stream)
{
    CStreamCounters counters;
    const std::set<std::string> names = countedBy(stream);
    for (std::size_t i = 0; i < Definitions.size(); ++i) {
        if (isCounted(Definitions.at(i), names)) {
            counters.m_values.at(i) = value(Definitions.at(i), stream);
        }
    }
    return counters;
}

} // namespace CameraPool
