#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/Globals.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// A process that has just started: its own program directory, an empty registry, no database, and
/// the day 05/17/2024.
class CoreProcess : public testing::Test {
  public:
    ~CoreProcess() override;

  protected:
    CoreProcess();

    /// Makes a file below the program directory.
    void MakeFile(std::string_view name, std::string_view contents = "");
    std::string PathTo(std::string_view name) const { return (folder_ / name).string(); }
    const std::filesystem::path& Folder() const { return folder_.Path(); }

  private:
    support::TemporaryFolder folder_;
};

/// The same with the session open on empty books.
class CoreBooks : public CoreProcess {
  protected:
    CoreBooks();

    static void Run(std::string_view sql);
    /// The first column of the first row as text; "NULL" for a null, "-" without a row.
    static std::string Ask(std::string_view sql);
};

} // namespace tests
