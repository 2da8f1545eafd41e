#include <QApplication>
#include <array>
#include <cstdio>
#include <exception>
#include <span>

#include "core/Globals.h"
#include "core/forms/ProgramLook.h"
#include "core/forms/frmHelp.h"
#include "platform/qt/QtDialogs.h"
#include "platform/system/ProgramHelp.h"
#include "sumdesk/frmSumDesk.h"

namespace {

constexpr std::array kOptions = {
    platform::kHelpOption,
    platform::kVersionOption,
};

constexpr std::array kSections = {platform::HelpSection{"Options", kOptions}};

constexpr platform::ProgramHelp kHelp = {
    .name = "SumDesk",
    .summary = "Works out sums on a tape, loans, and the days between dates.",
    .usage = "[OPTIONS]",
    .sections = kSections,
};

} // namespace

int main(int argc, char** argv) {
    const std::span all(argv, static_cast<std::size_t>(argc));
    if (platform::AnswerIfAsked(kHelp, all)) return 0;
    try {
        const QApplication application(argc, argv);
        core::InitGlobals({});
        const core::forms::ProgramLook look("SumDesk", "calculator");
        platform::SetDialogs(platform::qt::MakeDialogs());
        core::forms::RegisterHelpWindow();

        (new sumdesk::frmSumDesk)->Setup();
        return QApplication::exec();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "SumDesk: %s\n", failure.what());
        return 1;
    }
}
