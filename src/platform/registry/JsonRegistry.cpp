#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>
#include <nlohmann/json.hpp>
#include <tuple>
#include <utility>

#include "platform/registry/Registry.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

// Returns the member of this name whatever its case, or nothing.
const Json* Member(const Json& object, std::string_view name) {
    if (!object.is_object()) return nullptr;
    for (const auto& item : object.items()) {
        if (EqualIgnoringCase(item.key(), name)) return &item.value();
    }
    return nullptr;
}

Json& MemberForWriting(Json& object, std::string_view name) {
    for (auto& item : object.items()) {
        if (EqualIgnoringCase(item.key(), name)) return item.value();
    }
    return object[std::string(name)];
}

/// Keeps other processes from writing between our reading and our replacing of the file. The lock
/// is on the folder, since each write replaces the file itself.
class FolderLock {
  public:
    explicit FolderLock(const fs::path& folder)
        : folder_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (folder_ >= 0) flock(folder_, LOCK_EX);
    }
    ~FolderLock() {
        if (folder_ >= 0) close(folder_);
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    FolderLock(FolderLock&&) = delete;
    FolderLock& operator=(FolderLock&&) = delete;

  private:
    int folder_;
};

class JsonRegistry : public Registry {
  public:
    explicit JsonRegistry(fs::path file) : file_(std::move(file)) {}

    std::optional<std::string> ReadText(std::string_view key, std::string_view name) override {
        const Json* value = Find(key, name);
        if (value == nullptr || !value->is_string()) return std::nullopt;
        return value->get<std::string>();
    }

    std::optional<std::int32_t> ReadNumber(std::string_view key, std::string_view name) override {
        const Json* value = Find(key, name);
        if (value == nullptr || !value->is_number_integer()) return std::nullopt;
        if (value->is_number_unsigned() &&
            value->get<std::uint64_t>() > std::numeric_limits<std::int32_t>::max()) {
            return std::nullopt;
        }
        const auto number = value->get<std::int64_t>();
        if (number < std::numeric_limits<std::int32_t>::min()) return std::nullopt;
        return static_cast<std::int32_t>(number);
    }

    bool WriteText(std::string_view key, std::string_view name, std::string_view value) override {
        return Write([&](Json& contents) { Put(contents, key, name, std::string(value)); });
    }

    bool WriteNumber(std::string_view key, std::string_view name, std::int32_t value) override {
        return Write([&](Json& contents) { Put(contents, key, name, value); });
    }

    bool WriteTexts(std::span<const RegistryText> texts) override {
        return Write([&](Json& contents) {
            for (const RegistryText& text : texts)
                Put(contents, text.key, text.name, text.value);
        });
    }

    bool IsDamaged() override {
        Load();
        return state_ == State::Damaged || state_ == State::Unreadable;
    }

  private:
    enum class State { Missing, Sound, Damaged, Unreadable };
    // Distinguishes one version of the file from the next: each is a file of its own.
    using Version = std::tuple<ino_t, off_t, time_t, long>;

    const Json* Find(std::string_view key, std::string_view name) {
        Load();
        const Json* values = Member(contents_, key);
        return values != nullptr ? Member(*values, name) : nullptr;
    }

    // Reads the file into contents_; they are empty unless the file is sound.
    void Load() {
        struct stat now {};
        if (stat(file_.c_str(), &now) != 0) {
            Forget(errno == ENOENT || errno == ENOTDIR ? State::Missing : State::Unreadable);
            return;
        }
        const Version version{now.st_ino, now.st_size, now.st_mtim.tv_sec, now.st_mtim.tv_nsec};
        if (version_ == version) return;
        try {
            contents_ = Json::parse(ReadWholeFile(file_), nullptr, false);
        } catch (const Error&) {
            Forget(State::Unreadable);
            return;
        }
        if (!contents_.is_object()) {
            Forget(State::Damaged);
            return;
        }
        state_ = State::Sound;
        version_ = version;
    }

    void Forget(State state) {
        contents_ = Json::object();
        version_.reset();
        state_ = state;
    }

    static void Put(Json& contents, std::string_view key, std::string_view name, Json value) {
        Json& values = MemberForWriting(contents, key);
        if (!values.is_object()) values = Json::object();
        MemberForWriting(values, name) = std::move(value);
    }

    template <class Change>
    bool Write(Change&& change) {
        try {
            MakeFolder();
            const FolderLock lock(file_.parent_path());
            version_.reset();
            Load();
            if (state_ == State::Unreadable) return false;
            Json changed = contents_;
            change(changed);
            if (state_ == State::Sound && changed == contents_) return true;
            // Text that isn't UTF-8 fails here, before anything is touched.
            const std::string text = changed.dump(2) + "\n";
            if (state_ == State::Damaged) {
                fs::copy_file(file_, file_.string() + ".damaged",
                              fs::copy_options::overwrite_existing);
            }
            WriteFileAtomically(file_, text);
        } catch (const std::exception&) {
            return false;
        }
        version_.reset();
        return true;
    }

    void MakeFolder() const {
        const fs::path folder = file_.parent_path();
        if (fs::create_directories(folder)) fs::permissions(folder, fs::perms::owner_all);
    }

    fs::path file_;
    Json contents_ = Json::object();
    std::optional<Version> version_;
    State state_ = State::Missing;
};

} // namespace

std::unique_ptr<Registry> OpenJsonRegistry(fs::path file) {
    return std::make_unique<JsonRegistry>(std::move(file));
}

} // namespace platform
