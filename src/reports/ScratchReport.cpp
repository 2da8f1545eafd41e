#include "reports/ScratchReport.h"

#include <system_error>

#include <fmt/core.h>

#include "core/Globals.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace reports {

std::string ScratchReportText(std::string_view title, std::string_view subTitle,
                              std::string_view sql) {
    return fmt::format(
        "[GENERAL]\n"
        "\n"
        "[HEADER]\n"
        "Title={}\n"
        "{}"
        "\n"
        "[DATA]\n"
        "SQLQuery={}\n"
        "ShowTable\n"
        "\n"
        "[FOOTER]\n"
        "\n",
        title,
        subTitle.empty() ? std::string()
                         : fmt::format("SubTitle={}\n", platform::OneLine(subTitle)),
        platform::OneLine(sql));
}

std::filesystem::path WriteScratchReport(std::string_view definition) {
    const core::Globals& app = core::App();
    std::error_code failure;
    std::filesystem::create_directories(app.ReportPath, failure);
    if (failure) {
        throw platform::Error(
            fmt::format("{} can't be made: {}", app.ReportPath, failure.message()));
    }
    std::filesystem::path file = app.ReportPath + app.SysReportName;
    platform::WriteFileAtomically(file, definition);
    return file;
}

} // namespace reports
