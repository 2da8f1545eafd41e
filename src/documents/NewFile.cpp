#include "documents/NewFile.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "platform/values/Errors.h"

namespace documents {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void ThrowReason(const std::filesystem::path& path) {
    throw platform::Error(path.string() + ": " + std::generic_category().message(errno));
}

void Write(File file, const std::filesystem::path& path, std::string_view contents) {
    const bool isWritten =
        std::fwrite(contents.data(), 1, contents.size(), file.get()) == contents.size() &&
        std::fflush(file.get()) == 0;
    if (isWritten) return;
    const int reason = errno;
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    errno = reason;
    ThrowReason(path);
}

} // namespace

std::filesystem::path WriteNewFile(const std::function<std::filesystem::path(int)>& name, int first,
                                   std::string_view contents) {
    for (int n = first;; ++n) {
        std::filesystem::path path = name(n);
        if (File file{std::fopen(path.c_str(), "wbx")}) {
            Write(std::move(file), path, contents);
            return path;
        }
        if (errno != EEXIST) ThrowReason(path);
    }
}

} // namespace documents
