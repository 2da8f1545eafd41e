#pragma once

#include <filesystem>
#include <vector>

namespace store {

/// Lets one program at a time make a file. The lock is a file beside it, which disappears with the
/// lock; one that a crash has left behind locks nothing.
class MakersLock {
  public:
    /// Waits until no other program has the lock. Throws an Error if the folder can't be written.
    explicit MakersLock(const std::filesystem::path& file);
    ~MakersLock();
    MakersLock(const MakersLock&) = delete;
    MakersLock& operator=(const MakersLock&) = delete;

  private:
    std::filesystem::path path_;
    int handle_ = -1;
};

/// A database file in the making: it is built under another name beside its own, and gets
/// its own name only when it is whole. Another program that makes the same file waits, and is then
/// refused.
class NewFile {
  public:
    /// Throws an Error if anything named `file` already exists.
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
    MakersLock lock_;
};

/// What happens to the files in a new folder that isn't kept.
enum class UnkeptFiles { Stay, AreRemoved };

/// A folder that is made, private to the user, if it is missing, and those above it. Folders that
/// were made are removed again unless this one is kept; a folder in which files stay isn't removed.
class NewFolder {
  public:
    explicit NewFolder(const std::filesystem::path& folder, UnkeptFiles files = UnkeptFiles::Stay);
    ~NewFolder();
    NewFolder(const NewFolder&) = delete;
    NewFolder& operator=(const NewFolder&) = delete;

    void Keep() { made_.clear(); }

  private:
    void RemoveMade() const;

    UnkeptFiles files_;
    std::vector<std::filesystem::path> made_;
};

} // namespace store
