#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// A file that is attached to a record.
struct FileRow {
    std::int32_t id = 0;
    std::int16_t dbType = 0; ///< kind of the record
    std::int32_t idOwner = 0;
    std::string description;
    std::string path;
    bool isPicture = false;
};

/// The files of a record, in the order they were attached. Failures are thrown.
std::vector<FileRow> FilesOf(std::int16_t dbType, std::int32_t idOwner);
/// The files of all records.
std::vector<FileRow> AllFiles();

/// Writes another description, as long as the field takes it, and tells the open screens.
void DescribeFile(std::int32_t id, std::string_view description);

struct FileProperty {
    std::string item;
    std::string value;
};

/// What is known of a file, in the order it is shown; of one that is missing only that it is.
std::vector<FileProperty> PropertiesOf(const FileRow& file);

} // namespace documents
