#pragma once

#include <filesystem>

#include "platform/database/Connection.h"

namespace reports {

/// New, empty books to try statements on, deleted with the object. Throws an Error if they can't be
/// created.
class SampleBooks {
  public:
    SampleBooks();
    ~SampleBooks();
    SampleBooks(const SampleBooks&) = delete;
    SampleBooks& operator=(const SampleBooks&) = delete;

    platform::Connection& Session() { return session_; }

  private:
    std::filesystem::path folder_;
    platform::Connection session_;
};

} // namespace reports
