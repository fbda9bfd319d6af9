// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/JsonWriter.h"
#include "store/Consent.h"
#include "store/RecordReader.h"

#include <string>
#include <vector>

namespace rui {

// What a record is sent under.
struct Resource
{
    std::string client;
    Product product;
};

// Writes an ExportLogsServiceRequest of OTLP in its JSON form. Records are added in their order;
// neighbours with the same resource share one entry.
class OtlpPayload
{
public:
    // The resource must be that of the record. Leaves the record out and returns false when the
    // text would become longer than maxBytes, unless it is the first one.
    bool add(const Record &record, const Resource &resource, std::size_t maxBytes);

    // Closes the text. Call it once, after the last record.
    std::string finish();

private:
    void write(const Record &record, const Resource &resource);
    void beginResource(const Resource &resource);
    void endResource();

    JsonWriter m_json;
    std::int64_t m_resource = 0;
    bool m_empty = true;
};

} // namespace rui
