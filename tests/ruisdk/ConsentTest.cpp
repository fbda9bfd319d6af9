// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Consent.h"

#include "core/Failure.h"
#include "store/StoreOpening.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui;
using namespace rui::test;

const Product product{"1", "app", "edition", "language", "7.1.0", "11271"};
const Product update{"1", "app", "edition", "language", "7.2.0", "12000"};

class Consent : public testing::Test
{
protected:
    Membership join(const Product &what)
    {
        return joinConsent(m_database, m_mark, what, 0);
    }

    TemporaryDirectory m_directory;
    WithdrawalMark m_mark{StorePaths(m_directory.path()).consent()};
    Database m_database = openStore(StorePaths(m_directory.path()), {},
                                    std::make_shared<BusyLimit>(std::chrono::milliseconds(100)));
};

TEST_F(Consent, FirstSessionIsUnderTheFirstEpoch)
{
    EXPECT_EQ(join(product).epoch, 1);
}

TEST_F(Consent, SameProductUnderTheSameClientIsOneResource)
{
    const auto first = join(product);
    const auto second = join(product);
    const auto other = join(update);
    EXPECT_EQ(first.resource, second.resource);
    EXPECT_NE(first.resource, other.resource);
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT count(DISTINCT client) FROM resource"), "1");
}

// Two programs that start at once: the second one tries in the middle of the first one.
TEST_F(Consent, SessionsThatBeginAtOnceShareOneClient)
{
    struct Second
    {
        std::string directory;
        bool isRefused = false;
    } second{m_directory.path()};
    const auto tryToJoin = [](unsigned, void *data, void *, void *sql) {
        auto &self = *static_cast<Second *>(data);
        if (std::string_view(static_cast<const char *>(sql)).rfind("UPDATE state SET client", 0)
            == 0) {
            try {
                const auto noWait = std::make_shared<BusyLimit>(std::chrono::milliseconds(0));
                const StorePaths paths(self.directory);
                Database database(paths.database(), Database::Access::ReadWrite, noWait);
                WithdrawalMark mark{paths.consent()};
                joinConsent(database, mark, product, 0);
            } catch (const Failure &failure) {
                self.isRefused = failure.result() == RUI_BUSY;
            }
        }
        return 0;
    };
    sqlite3_trace_v2(m_database.handle(), SQLITE_TRACE_STMT, tryToJoin, &second);
    join(product);
    EXPECT_TRUE(second.isRefused);
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT count(DISTINCT client) FROM resource"), "1");
}

TEST_F(Consent, WithdrawalRaisesTheEpochByOne)
{
    join(product);
    withdrawConsent(m_database, m_mark, &product, 0);
    EXPECT_EQ(join(product).epoch, 2);
}

TEST_F(Consent, RecordOfTheWithdrawalHasItsTime)
{
    join(product);
    withdrawConsent(m_database, m_mark, &product, 1795199937000000000);
    EXPECT_EQ(queryValue(m_directory.path(), "SELECT time FROM notice"), "1795199937000000000");
}

TEST_F(Consent, FailedWithdrawalChangesNothing)
{
    join(product);
    const auto before = query(m_directory.path(), "SELECT * FROM state");
    change(m_directory.path(), "CREATE TRIGGER refuse BEFORE INSERT ON notice BEGIN"
                               " SELECT RAISE(ABORT, 'refused'); END");
    EXPECT_THROW(withdrawConsent(m_database, m_mark, &product, 0), Failure);
    EXPECT_EQ(query(m_directory.path(), "SELECT * FROM state"), before);
}

} // namespace
