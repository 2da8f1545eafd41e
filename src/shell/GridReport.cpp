#include "shell/GridReport.h"

#include <fmt/core.h>

#include "core/Globals.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"

namespace shell {

std::string GridReportText(std::string_view sql) {
    return fmt::format(
        "[GENERAL]\n"
        "\n"
        "[HEADER]\n"
        "Title=Vestrel Data View\n"
        "\n"
        "[DATA]\n"
        "SQLQuery={}\n"
        "ShowTable\n"
        "\n"
        "[FOOTER]\n"
        "\n",
        sql);
}

std::filesystem::path WriteGridReport(std::string_view sql) {
    const core::Globals& app = core::App();
    std::error_code failure;
    std::filesystem::create_directories(app.ReportPath, failure);
    if (failure) {
        throw platform::Error(
            fmt::format("{} can't be made: {}", app.ReportPath, failure.message()));
    }
    std::filesystem::path file = app.ReportPath + app.SysReportName;
    platform::WriteFileAtomically(file, GridReportText(sql));
    return file;
}

} // namespace shell
