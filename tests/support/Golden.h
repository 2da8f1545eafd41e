#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/system/Paths.h"

namespace support {

/// Compares with expected/NAME. The output is in actual/NAME of the build's test folder: to renew
/// the expectation, look at it and copy it.
inline void ExpectGolden(const std::string& name, const std::string& text) {
    namespace fs = std::filesystem;
    const fs::path actual = fs::absolute("actual/" + name);
    fs::create_directories(actual.parent_path());
    std::ofstream(actual, std::ios::binary) << text;
    const fs::path expected = fs::path(VESTREL_TEST_DATA) / "expected" / name;
    ASSERT_TRUE(fs::exists(expected)) << "see " << actual;
    EXPECT_EQ(text, platform::ReadWholeFile(expected)) << "see " << actual;
}

} // namespace support
