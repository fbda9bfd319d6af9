// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/PolicyText.h"

#include "core/Utf8.h"
#include "store/Database.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace rui {

namespace {

// A list of every product of a large company is far below.
constexpr std::size_t maxBytes = std::size_t{64} * 1024;

class Descriptor
{
public:
    explicit Descriptor(const std::string &path)
        // Not to wait for the other end should the path be a pipe.
        : m_descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {}
    ~Descriptor()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int get() const
    {
        return m_descriptor;
    }

private:
    int m_descriptor;
};

[[noreturn]] void failWithErrno()
{
    throw PolicyError(std::generic_category().message(errno));
}

void requirePlainFile(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        failWithErrno();
    }
    if (!S_ISREG(status.st_mode)) {
        throw PolicyError("is no plain file");
    }
}

std::string readAll(int descriptor)
{
    std::string text(maxBytes + 1, '\0');
    std::size_t length = 0;
    while (length < text.size()) {
        const ssize_t got = read(descriptor, &text[length], text.size() - length);
        if (got < 0 && errno != EINTR) {
            failWithErrno();
        }
        if (got == 0) {
            break;
        }
        length += static_cast<std::size_t>(got < 0 ? 0 : got);
    }
    if (length > maxBytes) {
        throw PolicyError("is larger than 64 KiB");
    }
    text.resize(length);
    return text;
}

// The members of the object at the path, as rows of key, type, value and the path of the value.
constexpr const char *membersSql =
    "SELECT key, type, atom, fullkey FROM json_each(?1, ?2) ORDER BY id";

void requireObject(const Database &json, const std::string &text, const std::string &path)
{
    Statement query = json.prepare("SELECT json_type(?1, ?2)");
    query.bind(1, text).bind(2, path).step();
    if (query.text(0) != "object") {
        throw PolicyError("'" + path.substr(path.rfind('.') + 1) + "' is no object");
    }
}

bool readVerdict(const Statement &member)
{
    const std::string name(member.text(0));
    const std::string_view value = member.text(2);
    if (member.text(1) != "text" || (value != "allowed" && value != "forbidden")) {
        throw PolicyError("'" + name + "' is neither \"allowed\" nor \"forbidden\"");
    }
    return value == "forbidden";
}

struct Rules
{
    std::optional<bool> storing;
    std::optional<bool> delivery;
};

template <typename Value>
void setOnce(std::optional<Value> &place, const Value &value, const std::string &name)
{
    if (place) {
        throw PolicyError("'" + name + "' stands there twice");
    }
    place = value;
}

// False for a member of another name.
bool takeRule(Rules &rules, const Statement &member)
{
    const std::string name(member.text(0));
    if (name != "storing" && name != "delivery") {
        return false;
    }
    setOnce(name == "storing" ? rules.storing : rules.delivery, readVerdict(member), name);
    return true;
}

[[noreturn]] void failAsUnknown(const Statement &member)
{
    throw PolicyError("'" + std::string(member.text(0)) + "' is not known");
}

Rules readProduct(const Database &json, const std::string &text, const std::string &path)
{
    requireObject(json, text, path);
    Rules rules;
    Statement members = json.prepare(membersSql);
    members.bind(1, text).bind(2, path);
    while (members.step()) {
        if (!takeRule(rules, members)) {
            failAsUnknown(members);
        }
    }
    return rules;
}

// Every product is read, so that a mistake is found whichever program looks first.
Rules readProducts(const Database &json, const std::string &text, const std::string &productId)
{
    requireObject(json, text, "$.products");
    std::optional<Rules> found;
    Statement members = json.prepare(membersSql);
    members.bind(1, text).bind(2, "$.products");
    while (members.step()) {
        const std::string id(members.text(0));
        const Rules rules = readProduct(json, text, std::string(members.text(3)));
        if (id == productId) {
            setOnce(found, rules, id);
        }
    }
    return found.value_or(Rules{});
}

void requireJson(const Database &json, const std::string &text)
{
    Statement query = json.prepare("SELECT json_valid(?1)");
    if (!isUtf8(text) || text.find('\0') != std::string::npos) {
        throw PolicyError("is not UTF-8");
    }
    query.bind(1, text).step();
    if (query.integer(0) == 0) {
        throw PolicyError("is no JSON");
    }
    requireObject(json, text, "$");
}

} // namespace

std::optional<std::string> readPolicyText(const std::string &path)
{
    const Descriptor file(path);
    if (file.get() < 0) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return std::nullopt;
        }
        failWithErrno();
    }
    requirePlainFile(file.get());
    return readAll(file.get());
}

Forbidden parsePolicy(const std::string &text, const std::string &productId)
{
    const Database json(":memory:", Database::Access::ReadWrite,
                        std::make_shared<BusyLimit>(std::chrono::milliseconds(0)));
    requireJson(json, text);
    Rules all;
    std::optional<Rules> own;
    Statement members = json.prepare(membersSql);
    members.bind(1, text).bind(2, "$");
    while (members.step()) {
        if (members.text(0) == "products") {
            setOnce(own, readProducts(json, text, productId), "products");
        } else if (!takeRule(all, members)) {
            failAsUnknown(members);
        }
    }
    const Rules product = own.value_or(Rules{});
    Forbidden forbidden;
    forbidden.storing = product.storing.value_or(all.storing.value_or(false));
    forbidden.delivery =
        forbidden.storing || product.delivery.value_or(all.delivery.value_or(false));
    return forbidden;
}

} // namespace rui
