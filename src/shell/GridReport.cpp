#include "shell/GridReport.h"

#include "reports/ScratchReport.h"

namespace shell {

std::filesystem::path WriteGridReport(std::string_view sql) {
    return reports::WriteScratchReport(reports::ScratchReportText("Vestrel Data View", "", sql));
}

} // namespace shell
