// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TestServer.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>

namespace rui::test {

namespace {

sockaddr *generic(sockaddr_in &address)
{
    return reinterpret_cast<sockaddr *>(&address);
}

std::string readUntilHeadEnds(int connection)
{
    std::string data;
    std::array<char, 65536> chunk{};
    while (data.find("\r\n\r\n") == std::string::npos) {
        const ssize_t got = recv(connection, chunk.data(), chunk.size(), 0);
        if (got <= 0) {
            return {};
        }
        data.append(chunk.data(), static_cast<std::size_t>(got));
    }
    return data;
}

Request parseHead(const std::string &head)
{
    std::istringstream lines(head);
    Request request;
    std::getline(lines, request.line);
    request.line.pop_back();
    for (std::string line; std::getline(lines, line) && line.size() > 1;) {
        const std::size_t colon = line.find(':');
        std::string name = line.substr(0, colon);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        request.headers[name] = line.substr(colon + 2, line.size() - colon - 3);
    }
    return request;
}

void readBody(int connection, Request &request, std::string body)
{
    const auto length = static_cast<std::size_t>(std::stoul(request.headers["content-length"]));
    std::array<char, 65536> chunk{};
    while (body.size() < length) {
        const ssize_t got = recv(connection, chunk.data(), chunk.size(), 0);
        if (got <= 0) {
            break;
        }
        body.append(chunk.data(), static_cast<std::size_t>(got));
    }
    request.body = gunzip(body);
}

void sendAll(int connection, const std::string &text)
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t sent = send(connection, text.data() + done, text.size() - done, MSG_NOSIGNAL);
        if (sent <= 0) {
            return;
        }
        done += static_cast<std::size_t>(sent);
    }
}

// The other side sees a connection that breaks, not one that ends.
void reset(int connection)
{
    const linger abort = {1, 0};
    setsockopt(connection, SOL_SOCKET, SO_LINGER, &abort, sizeof abort);
    close(connection);
}

} // namespace

std::string gunzip(const std::string &packed)
{
    z_stream stream = {};
    std::string out;
    std::array<char, 65536> chunk{};
    inflateInit2(&stream, 15 + 16);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    int result = Z_OK;
    while (result == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef *>(chunk.data());
        stream.avail_out = chunk.size();
        result = inflate(&stream, Z_NO_FLUSH);
        out.append(chunk.data(), chunk.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END ? out : std::string();
}

TestServer::TestServer()
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    std::array<int, 2> wake{};
    m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (m_listener < 0 || bind(m_listener, generic(address), size) != 0
        || listen(m_listener, 64) != 0 || getsockname(m_listener, generic(address), &size) != 0
        || pipe2(wake.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no test server");
    }
    m_port = ntohs(address.sin_port);
    m_wakeRead = wake[0];
    m_wakeWrite = wake[1];
    m_thread = std::thread([this] { run(); });
}

TestServer::~TestServer()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_end = true;
        m_changed.notify_all();
    }
    close(m_wakeWrite);
    m_thread.join();
    for (const int connection : m_hanging) {
        close(connection);
    }
    close(m_wakeRead);
    close(m_listener);
}

std::string TestServer::url() const
{
    return "http://127.0.0.1:" + std::to_string(m_port);
}

void TestServer::add(const Answer &answer)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_script.push_back(answer);
}

void TestServer::setRule(Rule rule)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_rule = std::move(rule);
}

void TestServer::setDown(bool down)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_down = down;
}

std::vector<Request> TestServer::requests() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_requests;
}

bool TestServer::waitForRequests(std::size_t count)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::minutes(1),
                              [&] { return m_requests.size() >= count; });
}

bool TestServer::waitForEnd(int milliseconds)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds), [&] { return m_end; });
}

void TestServer::run()
{
    while (true) {
        std::array<pollfd, 2> ready = {{{m_listener, POLLIN, 0}, {m_wakeRead, POLLIN, 0}}};
        poll(ready.data(), ready.size(), -1);
        if (ready[1].revents != 0) {
            return;
        }
        const int connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0) {
            serve(connection);
        }
    }
}

Answer TestServer::nextAnswer(const Request &request)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_requests.push_back(request);
    m_changed.notify_all();
    if (m_script.empty()) {
        return m_rule ? m_rule(request) : Answer{};
    }
    const Answer answer = m_script.front();
    m_script.pop_front();
    return answer;
}

void TestServer::serve(int connection)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_down) {
            reset(connection);
            return;
        }
    }
    const std::string data = readUntilHeadEnds(connection);
    if (data.empty()) {
        close(connection);
        return;
    }
    const std::size_t headEnd = data.find("\r\n\r\n") + 4;
    Request request = parseHead(data.substr(0, headEnd));
    readBody(connection, request, data.substr(headEnd));
    reply(connection, nextAnswer(request));
}

void TestServer::reply(int connection, const Answer &answer)
{
    if (answer.manner == Answer::Manner::Reset) {
        reset(connection);
        return;
    }
    if (answer.manner == Answer::Manner::Hang) {
        m_hanging.push_back(connection);
        return;
    }
    const std::string text = "HTTP/1.1 " + std::to_string(answer.status) + " Status\r\n"
                             + answer.headers
                             + "Content-Length: " + std::to_string(answer.body.size())
                             + "\r\nConnection: close\r\n\r\n" + answer.body;
    if (answer.manner == Answer::Manner::Slow) {
        for (const char byte : text) {
            sendAll(connection, std::string(1, byte));
            waitForEnd(1);
        }
    } else {
        sendAll(connection, text);
    }
    close(connection);
}

} // namespace rui::test
