#include "platform/database/ChangeWatch.h"

#include "platform/database/DatabaseFile.h"
#include "platform/database/PreparedStatement.h"

namespace platform {

ChangeWatch::ChangeWatch(const std::filesystem::path& database)
    : database_(OpenDatabaseFile(database, OpenMode::ReadOnly)) {}

ChangeWatch::~ChangeWatch() = default;

std::int64_t ChangeWatch::Version() const {
    PreparedStatement version(database_->getHandle(), "PRAGMA data_version");
    return version.Step() ? version.Column(0).integer : 0;
}

} // namespace platform
