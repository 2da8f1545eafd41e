#include "core/Rows.h"

#include "core/CoreFixture.h"
#include "core/Session.h"
#include "platform/values/Errors.h"

namespace {

using Rows = tests::CoreBooks;

TEST_F(Rows, OfARecordComeBackUnderItsIdAndStartUnderANewOne) {
    Run("INSERT INTO Users (IdUser, UserName) VALUES (1, 'Ann')");
    Run("INSERT INTO Configuration (NextId) VALUES (100)");
    const auto save = [](std::int32_t id, std::string_view name) {
        core::RowToWrite user("Users", "IdUser", id);
        user["UserName"].Set(name);
        user.row.Update();
        return std::pair(user.id, user.isNew);
    };
    EXPECT_EQ(save(1, "Anne"), std::pair(1, false));
    EXPECT_EQ(save(7, "Bob"), std::pair(7, true));
    const auto [id, isNew] = save(0, "Cem");
    EXPECT_TRUE(isNew);
    EXPECT_EQ(core::NextId(), id + 1);
    EXPECT_EQ(core::ReadValue("SELECT Count(*) FROM Users").AsLong(), 3);
    EXPECT_EQ(core::ReadValue("SELECT UserName FROM Users WHERE IdUser = ?", {id}).AsText(), "Cem");
    EXPECT_TRUE(core::Exists("SELECT IdUser FROM Users WHERE IdUser = 1 AND UserName = 'Anne'"));
    EXPECT_FALSE(core::Exists("SELECT IdUser FROM Users WHERE IdUser = 2"));
    EXPECT_TRUE(core::ReadValue("SELECT UserName FROM Users WHERE IdUser = 2").IsNull());
}

TEST_F(Rows, AreOfAnotherDatabaseIfOneIsNamed) {
    platform::Connection other;
    other.Open(PathTo("other.mdb"), platform::OpenMode::Create);
    other.RunScript("CREATE TABLE Users (IdUser INTEGER); INSERT INTO Users VALUES (5)");
    EXPECT_TRUE(core::Read("Users").Eof());
    EXPECT_EQ(core::Read("Users", {}, other)["IdUser"].AsLong(), 5);
    EXPECT_EQ(core::Execute("DELETE * FROM Users", {}, other), 1);
    EXPECT_THROW(core::Read("SELECT * FROM Nowhere"), platform::DatabaseError);
    EXPECT_THROW(core::Write("Nowhere"), platform::DatabaseError);
}

} // namespace
