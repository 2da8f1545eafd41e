#pragma once

#include <filesystem>
#include <vector>

namespace store {

/// A database file in the making: it is built under another name beside its own, and gets
/// its own name only when it is whole.
class NewFile {
  public:
    /// An Error when anything of the name `file` already exists.
    explicit NewFile(std::filesystem::path file);
    /// Removes the draft, unless it was published.
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const std::filesystem::path& Draft() const { return draft_; }
    /// Gives the closed draft its name; throws an Error if that name was taken in the meantime.
    void Publish();

  private:
    void RemoveDraft() const;

    std::filesystem::path file_;
    std::filesystem::path draft_;
};

/// A folder, made private to the user if it is missing, with those above it. What was made goes
/// again with its contents unless kept.
class NewFolder {
  public:
    explicit NewFolder(const std::filesystem::path& folder);
    ~NewFolder();
    NewFolder(const NewFolder&) = delete;
    NewFolder& operator=(const NewFolder&) = delete;

    void Keep() { made_.clear(); }

  private:
    void RemoveMade() const;

    std::vector<std::filesystem::path> made_;
};

} // namespace store
