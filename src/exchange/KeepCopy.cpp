#include "exchange/KeepCopy.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "core/Globals.h"
#include "platform/database/DatabaseCopy.h"
#include "platform/system/DiskFile.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kCopiesKept = 5;
constexpr std::string_view kExtension = ".mdb";

std::string_view WordOf(CopyReason reason) {
    switch (reason) {
        case CopyReason::Import:
            return "import";
        case CopyReason::Removal:
            break;
    }
    return "removal";
}

/// Returns the numbers of the existing copies in ascending order.
std::vector<int> NumbersOf(const fs::path& folder, const std::string& stem) {
    std::vector<int> numbers;
    std::error_code failure;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure)) {
        std::string name = entry.path().filename().string();
        if (!name.starts_with(stem) || !name.ends_with(kExtension)) continue;
        name = name.substr(stem.size(), name.size() - stem.size() - kExtension.size());
        const bool isNumber =
            !name.empty() && name.size() < 10 &&
            std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
        if (isNumber) numbers.push_back(std::stoi(name));
    }
    std::ranges::sort(numbers);
    return numbers;
}

void WriteCopy(const fs::path& database, const fs::path& copy) {
    platform::DiskFile out(copy, platform::DiskFile::Start::New);
    try {
        platform::DatabaseCopy(database).WriteTo(out, 0, {});
        out.Sync();
    } catch (...) {
        std::error_code ignored;
        fs::remove(copy, ignored);
        throw;
    }
}

} // namespace

fs::path KeepCopyOf(const fs::path& database, CopyReason reason) {
    const fs::path folder = database.parent_path();
    const std::string stem = fmt::format("{} before {} ", database.stem().string(), WordOf(reason));
    const auto nameOf = [&](int number) {
        return folder / fmt::format("{}{}{}", stem, number, kExtension);
    };
    std::vector<int> numbers = NumbersOf(folder, stem);
    numbers.push_back(numbers.empty() ? 1 : numbers.back() + 1);
    const fs::path copy = nameOf(numbers.back());
    const fs::path draft = copy.string() + ".new";
    std::error_code failure;
    fs::remove(draft, failure);
    WriteCopy(database, draft);
    fs::rename(draft, copy, failure);
    if (failure) {
        throw platform::Error(fmt::format("Can't write {}: {}.", copy.string(), failure.message()));
    }
    platform::SyncFolder(folder);
    for (std::size_t i = 0; i + kCopiesKept < numbers.size(); ++i)
        fs::remove(nameOf(numbers[i]), failure);
    return copy;
}

fs::path KeepCopy(CopyReason reason) {
    return KeepCopyOf(core::App().DbFile, reason);
}

} // namespace exchange
