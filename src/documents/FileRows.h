#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"

namespace documents {

/// A file that is attached to a record.
struct FileRow {
    std::int32_t id = 0;
    core::RecordKind dbType = core::kNone; ///< kind of the record
    std::int32_t idOwner = 0;
    std::string description;
    std::string path;
    bool isPicture = false;
};

/// Returns the files of a record, in the order they were attached. Throws on failure.
std::vector<FileRow> FilesOf(core::RecordKind dbType, std::int32_t idOwner);
/// Returns the files of all records.
std::vector<FileRow> AllFiles();

/// Stores another description, cut to the field's length, and notifies the open forms.
void DescribeFile(std::int32_t id, std::string_view description);

struct FileProperty {
    std::string item;
    std::string value;
};

/// Returns the properties of a file in the order they are shown; for a missing file only that it is
/// missing.
std::vector<FileProperty> PropertiesOf(const FileRow& file);

} // namespace documents
