#include "core/RecordNotices.h"

#include <string_view>

#include "platform/dialogs/Dialogs.h"

namespace core {

namespace {

constexpr std::string_view kNoRecord =
    "No record was loaded.\r\n\r\n"
    "It is possible this data was deleted while being accessed\r\n"
    "or a screen was not refreshed after deletion. This is not\r\n"
    "a fatal error but you should make sure data loss has not\r\n"
    "occured.\r\n\r\n"
    "Press OK to continue.";

constexpr std::string_view kDuplicateRecord =
    "Multiple records were found with the same ID.\r\n\r\n"
    "This is not a fatal error but be aware some data may not\r\n"
    "appear as selected. The first record found will be shown.\r\n"
    "If this data is incorrect, delete the record shown and\r\n"
    "try again.\r\n\r\n"
    "The most likely cause for this error is if data was imported\r\n"
    "into the database and appended to existing records, and there\r\n"
    "was duplicate ID's added to the same table.\r\n\r\n"
    "Press OK to continue.";

} // namespace

bool OneRecordFound(std::int64_t count) {
    auto& dialogs = platform::TheDialogs();
    if (count < 1) {
        dialogs.ShowMessage("No Record Found", kNoRecord, platform::Icon::Information);
        return false;
    }
    if (count > 1) {
        dialogs.ShowMessage("Duplicate Record Found", kDuplicateRecord,
                            platform::Icon::Information);
    }
    return true;
}

} // namespace core
