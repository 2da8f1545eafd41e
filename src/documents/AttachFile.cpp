#include "documents/AttachFile.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "core/Configuration.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Paths.h"
#include "platform/values/Text.h"

namespace documents {

namespace {

constexpr std::size_t kLongestDescription = 50;
constexpr std::array<std::string_view, 4> kPictureEndings = {"jpeg", "jpg", "gif", "bmp"};

// The limit in the message and the limit that is checked differ on purpose.
constexpr std::string_view kTooLong =
    "The file path for the selected item is too long. There can be a maximum of 260 characters\n"
    "in the path and filename. Please move the file to a different directory or shorten the file\n"
    "name and try saving again.\n"
    "Press OK to continue.";
constexpr std::string_view kFolder = "A folder can't be attached. Please choose the files in it.";

struct NameParts {
    std::string_view stem;
    std::string_view ending; ///< without the dot
};

/// Returns the parts of a file's name. A dot at its start doesn't begin an extension.
NameParts PartsOf(std::string_view path) {
    const std::string_view name = path.substr(platform::PathOf(path).size());
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return {name, {}};
    return {name.substr(0, dot), name.substr(dot + 1)};
}

bool ChoosePath(std::string& path) {
    const auto chosen = platform::TheChoosers().OpenFile(
        {"Select File", core::Config().FileDirectory, {{"All Files", "*.*"}}});
    if (chosen) path = *chosen;
    return chosen.has_value();
}

/// Returns why a path can't be attached; empty if it can.
std::string_view Objection(const std::string& path, Quiet quiet) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) return kFolder;
    const bool isTooLong = platform::LeftCharacters(path, kLongestPath).size() < path.size();
    if (isTooLong && quiet == Quiet::No) return kTooLong;
    return {};
}

void AddRow(core::RecordKind kind, std::int32_t id, const std::string& path) {
    core::RowToWrite row("FileObject", "IdFileObject");
    row["dbType"].Set(kind);
    row["IdOwner"].Set(id);
    row["Description"].Set(DescriptionOfFile(path));
    row["FilePath"].Set(path);
    row["IsPic"].Set(IsPicture(path));
    row.row.Update();
}

} // namespace

bool AttachFile(core::RecordKind kind, std::int32_t id, std::string& path, Quiet quiet) {
    if (path.empty() && !ChoosePath(path)) return false;
    if (const std::string_view objection = Objection(path, quiet); !objection.empty()) {
        if (quiet == Quiet::No) {
            platform::TheDialogs().ShowMessage("Error", objection, platform::Icon::Exclamation);
        }
        return false;
    }
    AddRow(kind, id, path);
    core::NotifyAll(core::kFileObject, core::kRecordsChanged, 0);
    return true;
}

bool IsPicture(std::string_view path) {
    return std::ranges::find(kPictureEndings, platform::ToLower(PartsOf(path).ending)) !=
           kPictureEndings.end();
}

std::string DescriptionOfFile(std::string_view path) {
    return platform::LeftCharacters(PartsOf(path).stem, kLongestDescription);
}

} // namespace documents
