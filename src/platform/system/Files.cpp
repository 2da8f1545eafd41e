#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
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

bool HasThisName(int descriptor, const fs::path& file) {
    struct stat opened {};
    struct stat named {};
    return fstat(descriptor, &opened) == 0 && stat(file.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

int OpenOrMake(const fs::path& file, fs::perms mode) {
    constexpr int kFlags = O_RDWR | O_APPEND | O_CLOEXEC;
    const int found = open(file.c_str(), kFlags);
    if (found >= 0 || errno != ENOENT) return found;
    const int made = open(file.c_str(), kFlags | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (made < 0) return errno == EEXIST ? open(file.c_str(), kFlags) : made;
    constexpr auto kReadAndWrite = static_cast<mode_t>(0666);
    fchmod(made, static_cast<mode_t>(mode) & kReadAndWrite);
    return made;
}

/// Opens a file to which several programs add lines, and locks it if the file system can. It is
/// opened again if another program has replaced it while this one waited.
int OpenShared(const fs::path& file, int lock, fs::perms mode) {
    for (;;) {
        const int opened = OpenOrMake(file, mode);
        if (opened < 0) return opened;
        while (flock(opened, lock) != 0 && errno == EINTR) {
        }
        if (HasThisName(opened, file)) return opened;
        close(opened);
    }
}

// Returns the file that a link points to, so that the link itself stays.
fs::path Target(const fs::path& file) {
    std::error_code failure;
    if (!fs::is_symlink(file, failure)) return file;
    const fs::path target = fs::canonical(file, failure);
    return failure ? file : target;
}

} // namespace

int MakePrivateFile(const fs::path& file) {
    const int made = open(file.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made < 0) return errno;
    close(made);
    return 0;
}

void WriteFileAtomically(const fs::path& file, std::string_view contents, fs::perms mode) {
    const fs::path target = Target(file);
    std::string draft = target.string() + ".XXXXXX";
    const Descriptor out(mkostemp(draft.data(), O_CLOEXEC));
    if (!out.IsOpen()) Fail("write", file, errno);
    // Synced to the disk before it gets its name: after a power cut, the name must not belong to an
    // empty file.
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

void AppendLine(const fs::path& file, std::string_view line, fs::perms mode) {
    const Descriptor out(OpenShared(file, LOCK_SH, mode));
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

void KeepLines(const fs::path& file, const std::function<bool(std::string_view line)>& keeps) {
    const Descriptor lock(
        OpenShared(file, LOCK_EX, fs::perms::owner_read | fs::perms::owner_write));
    if (!lock.IsOpen()) Fail("write", file, errno);
    const std::string text = ReadWholeFile(file);
    std::string kept;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        const std::string_view line(text.data() + begin, end - begin);
        if (keeps(line)) kept += line;
        begin = end;
    }
    if (kept.size() == text.size()) return;
    struct stat stored {};
    if (fstat(lock.Number(), &stored) != 0) Fail("write", file, errno);
    WriteFileAtomically(file, kept, static_cast<fs::perms>(stored.st_mode) & fs::perms::mask);
}

} // namespace platform
