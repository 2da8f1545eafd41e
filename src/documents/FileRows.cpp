#include "documents/FileRows.h"

#include <filesystem>

#include "core/Descriptions.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Paths.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace documents {

namespace {

constexpr std::size_t kLongestText = 255; // as the field holds it

std::vector<FileRow> ReadRows(std::string_view sql,
                              std::initializer_list<platform::Value> parameters) {
    platform::Recordset rows = core::Read(sql, parameters);
    std::vector<FileRow> files;
    for (; !rows.Eof(); rows.MoveNext()) {
        files.push_back({.id = rows["IdFileObject"].AsLong(),
                         .dbType = platform::As<core::RecordKind>(rows["dbType"]),
                         .idOwner = rows["IdOwner"].AsLong(),
                         .description = platform::TextOf(rows["Description"]),
                         .path = platform::TextOf(rows["FilePath"]),
                         .isPicture = platform::FlagOf(rows["IsPic"])});
    }
    return files;
}

std::string YesNo(bool is) {
    return is ? "Yes" : "No";
}

bool IsReadOnly(const std::string& path) {
    using std::filesystem::perms;
    constexpr perms kWrite = perms::owner_write | perms::group_write | perms::others_write;
    std::error_code ignored;
    return (std::filesystem::status(path, ignored).permissions() & kWrite) == perms::none;
}

std::string SizeOf(const std::string& path) {
    std::error_code failure;
    const auto bytes = std::filesystem::file_size(path, failure);
    if (failure) return {};
    return platform::Format(static_cast<double>(bytes), "#,###");
}

} // namespace

std::vector<FileRow> FilesOf(core::RecordKind dbType, std::int32_t idOwner) {
    return ReadRows("SELECT * FROM FileObject WHERE (DBType = ?) AND (IdOwner = ?) ",
                    {dbType, idOwner});
}

std::vector<FileRow> AllFiles() {
    return ReadRows("SELECT * FROM FileObject ", {});
}

void DescribeFile(std::int32_t id, std::string_view description) {
    core::Execute("UPDATE FileObject SET Description = ? WHERE IdFileObject = ?",
                  {platform::LeftCharacters(description, kLongestText), id});
    core::NotifyAll(core::kFileObject, core::kRecordsChanged, 0);
}

std::vector<FileProperty> PropertiesOf(const FileRow& file) {
    if (!platform::FileExists(file.path)) return {{"File Exists", YesNo(false)}};
    const std::string name = file.path.substr(platform::PathOf(file.path).size());
    return {{"File Exists", YesNo(true)},
            {"Full Path", file.path},
            {"Database Type", std::string(core::RecordKindName(file.dbType))},
            {"Database Item", core::GetDescription(file.dbType, file.idOwner, 0, false)},
            {"File Size", SizeOf(file.path)},
            {"Read Only", YesNo(IsReadOnly(file.path))},
            {"Hidden", YesNo(name.starts_with('.'))}};
}

} // namespace documents
