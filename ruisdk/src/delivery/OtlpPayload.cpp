// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/OtlpPayload.h"

namespace rui {

namespace {

// The standard's number for an ordinary piece of information.
constexpr std::int64_t severityInfo = 9;

void writeText(JsonWriter &json, std::string_view text)
{
    json.beginObject().key("stringValue").string(text).endObject();
}

void writeAttribute(JsonWriter &json, std::string_view name, std::string_view value)
{
    json.beginObject().key("key").string(name).key("value");
    writeText(json, value);
    json.endObject();
}

void writeResource(JsonWriter &json, const Resource &resource)
{
    json.beginObject().key("attributes").beginArray();
    writeAttribute(json, "service.name", resource.product.application);
    writeAttribute(json, "service.version", resource.product.version);
    writeAttribute(json, "rui.product.id", resource.product.productId);
    writeAttribute(json, "rui.product.build", resource.product.build);
    writeAttribute(json, "rui.product.edition", resource.product.edition);
    writeAttribute(json, "rui.product.language", resource.product.language);
    writeAttribute(json, "rui.client.id", resource.client);
    json.endArray().endObject();
}

void writeRecord(JsonWriter &json, const Record &record)
{
    json.beginObject();
    json.key("timeUnixNano").integerText(record.time);
    json.key("observedTimeUnixNano").integerText(record.time);
    json.key("severityNumber").integer(severityInfo);
    json.key("eventName").string("rui." + record.category + "." + record.name);
    if (record.text) {
        json.key("body");
        writeText(json, *record.text);
    }
    json.key("attributes").beginArray();
    writeAttribute(json, "log.record.uid", record.uid);
    writeAttribute(json, "rui.event.category", record.category);
    writeAttribute(json, "rui.event.name", record.name);
    writeAttribute(json, "rui.session.id", record.session);
    if (!record.run.empty()) {
        writeAttribute(json, "rui.run.id", record.run);
    }
    json.endArray().endObject();
}

} // namespace

void OtlpPayload::beginResource(const Resource &resource)
{
    m_json.beginObject().key("resource");
    writeResource(m_json, resource);
    m_json.key("scopeLogs").beginArray().beginObject();
    m_json.key("scope").beginObject();
    m_json.key("name").string("ruiSDK").key("version").string(RUI_VERSION).endObject();
    m_json.key("logRecords").beginArray();
}

void OtlpPayload::endResource()
{
    m_json.endArray().endObject().endArray().endObject();
}

void OtlpPayload::write(const Record &record, const Resource &resource)
{
    if (m_empty) {
        m_json.beginObject().key("resourceLogs").beginArray();
    } else if (record.resource != m_resource) {
        endResource();
    }
    if (m_empty || record.resource != m_resource) {
        beginResource(resource);
        m_resource = record.resource;
    }
    m_empty = false;
    writeRecord(m_json, record);
}

bool OtlpPayload::add(const Record &record, const Resource &resource, std::size_t maxBytes)
{
    // Brackets that close everything.
    constexpr std::size_t closing = 8;
    const bool first = m_empty;
    const std::int64_t before = m_resource;
    const JsonWriter::Mark mark = m_json.mark();
    write(record, resource);
    if (!first && m_json.text().size() + closing > maxBytes) {
        m_json.revert(mark);
        m_resource = before;
        return false;
    }
    return true;
}

std::string OtlpPayload::finish()
{
    endResource();
    m_json.endArray().endObject();
    return m_json.text();
}

} // namespace rui
