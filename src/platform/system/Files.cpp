#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "platform/system/AppendToFile.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const char* what, const fs::path& file, int reason) {
    throw Error("Can't " + std::string(what) + " " + file.string() + ": " +
                std::generic_category().message(reason) + ".");
}

/// An open file, closed at the end of its scope.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

  private:
    int number_;
};

bool WriteAll(int file, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = write(file, contents.data(), contents.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The file that a link points to, so that the link itself stays.
fs::path Target(const fs::path& file) {
    std::error_code failure;
    if (!fs::is_symlink(file, failure)) return file;
    const fs::path target = fs::canonical(file, failure);
    return failure ? file : target;
}

} // namespace

void WriteFileAtomically(const fs::path& file, std::string_view contents, fs::perms mode) {
    const fs::path target = Target(file);
    std::string draft = target.string() + ".XXXXXX";
    const Descriptor out(mkostemp(draft.data(), O_CLOEXEC));
    if (!out.IsOpen()) Fail("write", file, errno);
    // On the disk before it takes the name: a power cut must not leave an empty file.
    if (!WriteAll(out.Number(), contents) || fchmod(out.Number(), static_cast<mode_t>(mode)) != 0 ||
        fsync(out.Number()) != 0 || rename(draft.c_str(), target.c_str()) != 0) {
        const int reason = errno;
        unlink(draft.c_str());
        Fail("write", file, reason);
    }
    const fs::path parent = target.has_parent_path() ? target.parent_path() : fs::path(".");
    const Descriptor folder(open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen()) fsync(folder.Number());
}

std::string ReadWholeFile(const fs::path& file) {
    const Descriptor in(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!in.IsOpen()) Fail("read", file, errno);
    std::string contents;
    std::array<char, 65'536> piece{};
    for (;;) {
        const ssize_t got = read(in.Number(), piece.data(), piece.size());
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) Fail("read", file, errno);
        if (got == 0) return contents;
        contents.append(piece.data(), static_cast<std::size_t>(got));
    }
}

void AppendLine(const fs::path& file, std::string_view line) {
    const Descriptor out(
        open(file.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!out.IsOpen()) Fail("write", file, errno);
    struct stat before {};
    char last = '\n';
    if (fstat(out.Number(), &before) != 0 ||
        (before.st_size > 0 && pread(out.Number(), &last, 1, before.st_size - 1) != 1))
        Fail("write", file, errno);
    std::string text = last == '\n' ? "" : "\n";
    text.append(line).append("\n");
    if (!WriteAll(out.Number(), text)) Fail("write", file, errno);
}

} // namespace platform
