// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Printer.h"

#include "core/JsonWriter.h"
#include "core/TimeText.h"
#include "Printable.h"
#include "TablePrinter.h"

namespace rui::tool {

namespace {

class StreamPrinter : public Printer
{
public:
    explicit StreamPrinter(std::ostream &out)
        : m_out(out)
    {}

    void flush() override
    {
        m_out.flush();
    }

protected:
    std::ostream &m_out;
};

class JsonPrinter : public StreamPrinter
{
public:
    using StreamPrinter::StreamPrinter;

    void print(const Record &record) override
    {
        JsonWriter json;
        json.beginObject().key("seq").integer(record.seq).key("state").string(record.state);
        json.key("time").string(timeText(record.time)).key("uid").string(record.uid);
        json.key("category").string(record.category).key("name").string(record.name);
        json.key("session").string(record.session).key("run").string(record.run).key("text");
        if (record.text) {
            json.string(*record.text);
        } else {
            json.null();
        }
        m_out << json.endObject().text() << '\n';
    }
};

// RFC 4180: a field with a comma, a quote or a line break is quoted, and its quotes doubled.
std::string csvField(const std::string &value)
{
    const std::string text = withoutFormula(value);
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char character : text) {
        quoted += character;
        if (character == '"') {
            quoted += '"';
        }
    }
    return quoted + '"';
}

class CsvPrinter : public StreamPrinter
{
public:
    using StreamPrinter::StreamPrinter;

    void begin() override
    {
        m_out << "seq,state,time,uid,category,name,session,text\r\n";
    }

    void print(const Record &record) override
    {
        m_out << record.seq << ',' << record.state << ',' << timeText(record.time) << ','
              << record.uid << ',' << csvField(record.category) << ',' << csvField(record.name)
              << ',' << csvField(record.session) << ',' << csvField(record.text.value_or(""))
              << "\r\n";
    }
};

class RawPrinter : public StreamPrinter
{
public:
    using StreamPrinter::StreamPrinter;

    void print(const Record &record) override
    {
        m_out << record.category << '\t' << record.name << '\t' << record.text.value_or("") << '\n';
    }
};

} // namespace

std::unique_ptr<Printer> makePrinter(Format format, std::ostream &out)
{
    switch (format) {
    case Format::Json:
        return std::make_unique<JsonPrinter>(out);
    case Format::Csv:
        return std::make_unique<CsvPrinter>(out);
    case Format::Raw:
        return std::make_unique<RawPrinter>(out);
    case Format::Table:
        break;
    }
    return std::make_unique<TablePrinter>(out);
}

} // namespace rui::tool
