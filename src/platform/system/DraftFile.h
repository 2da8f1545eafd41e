#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/system/DiskFile.h"

namespace platform {

/// A file in the making: it is written under a temporary name beside its own, and gets its own name
/// when it is whole and on the disk. Until then a file that has the name already stays untouched;
/// a draft that is not published is removed. Every failure is an Error with the reason.
class DraftFile {
  public:
    /// Makes the draft, private to the user. Fails if `file` is something other than a file.
    explicit DraftFile(const std::filesystem::path& file);
    ~DraftFile();
    DraftFile(const DraftFile&) = delete;
    DraftFile& operator=(const DraftFile&) = delete;
    DraftFile(DraftFile&&) = delete;
    DraftFile& operator=(DraftFile&&) = delete;

    /// Adds bytes to the end; they are collected into large writes.
    void Write(std::string_view bytes);

    /// Gives the finished file its name.
    void Publish();
    /// Undoes Publish: removes the file and restores the one that had its name before.
    void TakeBack();

  private:
    void Flush();

    std::filesystem::path target_;
    std::string draft_;
    DiskFile out_;
    std::string collected_;
    bool published_ = false;
    bool replaced_ = false; // the former file has the draft's name since Publish
};

} // namespace platform
