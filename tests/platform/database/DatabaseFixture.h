#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "support/TemporaryFolder.h"

namespace platform {

/// A database in a folder of its own, with a table `Person` of every field type and a table `Town`
/// whose fields have defaults.
class DatabaseFixture : public testing::Test {
  protected:
    DatabaseFixture();

    std::filesystem::path File() const { return folder_ / "Books.mdb"; }
    /// Adds a person by number and name, the other fields null.
    void AddPerson(int id, const Value& name);
    /// The only value of a select, as text; "null" for a null.
    std::string Single(std::string_view sql);
    /// A field of every row in the present order, each followed by a blank; nulls as "-".
    static std::string Column(Recordset& rows, std::string_view field);

    support::TemporaryFolder folder_;
    Connection connection_;
};

/// Runs `action`, which must throw a DatabaseError (or one of its kinds), and returns what the
/// error says.
template <typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.what();
    }
    return "no error";
}

} // namespace platform
