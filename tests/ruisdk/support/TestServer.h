// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace rui::test {

// What the server does with one request.
struct Answer
{
    enum class Manner {
        Reply,
        Reset, // closes the connection after it was accepted
        Hang,  // reads the request and never answers
        Slow   // answers byte by byte
    };

    int status = 200;
    std::string headers = {}; // each line ends with "\r\n"
    std::string body = "{}";
    Manner manner = Manner::Reply;
};

struct Request
{
    std::string line;                           // as in "POST /v1/logs HTTP/1.1"
    std::map<std::string, std::string> headers; // names in lower case
    std::string body;                           // unpacked
};

// An HTTP server on the loopback that follows a script, a request an answer. When the script is
// over it answers as the rule says, 200 when there is none. Every connection carries one request.
class TestServer
{
public:
    TestServer();
    ~TestServer();
    TestServer(const TestServer &) = delete;
    TestServer &operator=(const TestServer &) = delete;

    // As in "http://127.0.0.1:41234".
    std::string url() const;

    void add(const Answer &answer);
    using Rule = std::function<Answer(const Request &)>;
    void setRule(Rule rule);
    // While it is down, every connection is reset.
    void setDown(bool down);

    std::vector<Request> requests() const;
    // False when they do not come within a minute.
    bool waitForRequests(std::size_t count);

private:
    void run();
    void serve(int connection);
    Answer nextAnswer(const Request &request);
    void reply(int connection, const Answer &answer);
    bool waitForEnd(int milliseconds);

    int m_listener = -1;
    int m_wakeRead = -1;
    int m_wakeWrite = -1;
    unsigned short m_port = 0;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Answer> m_script;
    Rule m_rule;
    std::vector<Request> m_requests;
    std::vector<int> m_hanging;
    bool m_down = false;
    bool m_end = false;
    std::thread m_thread;
};

// The text that gzip has packed; empty when it is not in that format.
std::string gunzip(const std::string &packed);

} // namespace rui::test
