#include "reports/SampleBooks.h"

#include <cstdlib>
#include <string>

#include "core/Configuration.h"
#include "platform/values/Errors.h"
#include "store/CreateDatabase.h"

namespace reports {

SampleBooks::SampleBooks() {
    std::string name = (std::filesystem::temp_directory_path() / "vestrel-check-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw platform::Error("No temporary folder can be made in " +
                              std::filesystem::temp_directory_path().string());
    folder_ = name;
    session_.Open(folder_ / "check.mdb", platform::OpenMode::Create);
    store::CreateTables(session_);
}

SampleBooks::~SampleBooks() {
    session_.Close();
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

} // namespace reports
