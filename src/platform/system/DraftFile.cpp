#include "platform/system/DraftFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include "platform/system/FileProbe.h"
#include "platform/values/Errors.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kWriteSize = 1 << 18;

[[noreturn]] void FailToMake(const fs::path& file, const std::string& reason) {
    throw Error("Can't write " + file.string() + ": " + reason + ".");
}

/// Returns the file to write for `file`: the file that a link points to, so that the link stays a
/// link.
fs::path TargetOf(const fs::path& file) {
    std::error_code failure;
    if (file.filename().empty()) FailToMake(file, "it names no file");
    const fs::file_status status = fs::status(file, failure);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        FailToMake(file, fs::is_directory(status) ? "it is a folder" : "it is not a file");
    }
    if (!fs::is_symlink(fs::symlink_status(file, failure))) return file;
    const fs::path target = fs::canonical(file, failure);
    if (failure) FailToMake(file, "it is a link to a file that doesn't exist");
    return target;
}

int MakeDraft(const fs::path& target, std::string& draft) {
    ProbeFile();
    draft = target.string() + ".XXXXXX";
    const int descriptor = mkostemp(draft.data(), O_CLOEXEC);
    if (descriptor < 0) FailToMake(target, std::generic_category().message(errno));
    // Whoever could read the former file can read this one.
    struct stat former {};
    if (stat(target.c_str(), &former) == 0) {
        static_cast<void>(fchmod(descriptor, former.st_mode & 0777U));
    }
    return descriptor;
}

} // namespace

DraftFile::DraftFile(const fs::path& file)
    : target_(TargetOf(file)), out_(target_, MakeDraft(target_, draft_)) {
    collected_.reserve(2 * kWriteSize);
}

DraftFile::~DraftFile() {
    if (!published_ || replaced_) unlink(draft_.c_str());
}

void DraftFile::Write(std::string_view bytes) {
    collected_ += bytes;
    if (collected_.size() >= kWriteSize) Flush();
}

void DraftFile::Flush() {
    out_.Write(collected_);
    collected_.clear();
}

// The two names are exchanged, so that TakeBack can restore the former file; on a file system that
// can't do that, the new file simply replaces it.
void DraftFile::Publish() {
    Flush();
    out_.Sync();
    ProbeFile();
    const char* const target = target_.c_str();
    replaced_ = renameat2(AT_FDCWD, draft_.c_str(), AT_FDCWD, target, RENAME_EXCHANGE) == 0;
    if (!replaced_ && rename(draft_.c_str(), target) != 0) {
        FailToMake(target_, std::generic_category().message(errno));
    }
    published_ = true;
    SyncFolder(target_.parent_path());
}

void DraftFile::TakeBack() {
    if (!published_) return;
    if (replaced_) {
        replaced_ = rename(draft_.c_str(), target_.c_str()) != 0;
    } else {
        unlink(target_.c_str());
    }
    published_ = false;
    SyncFolder(target_.parent_path());
}

} // namespace platform
