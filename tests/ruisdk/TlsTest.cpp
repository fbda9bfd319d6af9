// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Whom the library sends to over TLS.
#include "Child.h"
#include "delivery/CurlTransport.h"
#include "delivery/Gzip.h"
#include "TemporaryDirectory.h"
#include "TestServer.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace rui;
using namespace rui::test;

class Tls : public testing::Test
{
protected:
    // Starts a server whose certificate is for this name, as in "IP:127.0.0.1".
    void startServer(const std::string &name)
    {
        const Outcome made = runProgram(
            {"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
             "-nodes", "-days", "1", "-subj", "/CN=test", "-addext", "subjectAltName=" + name,
             "-keyout", m_directory.path("key"), "-out", m_directory.path("certificate")});
        ASSERT_EQ(made.status, 0) << made.errors;
        m_server = std::make_unique<Child>(std::vector<std::string>{
            "python3", RUI_TLS_SERVER, m_directory.path("certificate"), m_directory.path("key")});
        ASSERT_TRUE(m_server->readLine(m_port));
    }

    Response post(const std::string &caFile)
    {
        TransportOptions options;
        options.caFile = caFile;
        CurlTransport transport(parseServerAddress("https://127.0.0.1:" + m_port), m_limits,
                                options);
        return transport.post(gzip("{}"));
    }

    TemporaryDirectory m_directory;
    DeliveryLimits m_limits;
    std::unique_ptr<Child> m_server;
    std::string m_port;
};

TEST_F(Tls, ServerWithATrustedCertificateForItsNameIsSentTo)
{
    startServer("IP:127.0.0.1");
    EXPECT_EQ(post(m_directory.path("certificate")).status, 200);
    std::string line;
    EXPECT_TRUE(m_server->readLine(line));
    EXPECT_EQ(line, "POST /v1/logs HTTP/1.1");
}

TEST_F(Tls, CertificateForAnotherNameIsNoConnection)
{
    startServer("DNS:wrong.example.com");
    const Response response = post(m_directory.path("certificate"));
    EXPECT_EQ(response.status, 0);
    EXPECT_NE(response.error, "");
}

TEST_F(Tls, CertificateOfAnUnknownAuthorityIsNoConnection)
{
    startServer("IP:127.0.0.1");
    const Response response = post("");
    EXPECT_EQ(response.status, 0);
    EXPECT_NE(response.error, "");
}

TEST_F(Tls, ServerThatSpeaksPlainHttpIsNoConnection)
{
    // Both sides wait for the other one to begin.
    m_limits.connectTimeout = std::chrono::milliseconds(300);
    const TestServer plain;
    m_port = plain.url().substr(plain.url().rfind(':') + 1);
    EXPECT_EQ(post("").status, 0);
    EXPECT_EQ(plain.requests().size(), 0U);
}

} // namespace
