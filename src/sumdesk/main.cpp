#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <span>
#include <string_view>

#include "core/Globals.h"
#include "core/Preferences.h"
#include "core/forms/frmHelp.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtDialogs.h"
#include "platform/system/Version.h"
#include "sumdesk/frmSumDesk.h"

namespace {

constexpr const char* kHelp =
    "A calculator with a tape: sums, loans, and the days between dates.\n"
    "Usage: SumDesk [OPTIONS]\n"
    "\n"
    "Options:\n"
    "  -h,--help                   Print this help and exit\n"
    "  --version                   Print the version and exit\n";

bool PrintHelpIfAsked(std::span<char* const> words) {
    const auto asks = [](std::string_view word) { return word == "--help" || word == "-h"; };
    if (!std::ranges::any_of(words, asks)) return false;
    std::fputs(kHelp, stdout);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const std::span all(argv, static_cast<std::size_t>(argc));
    if (platform::PrintVersionIfAsked("SumDesk", all) || PrintHelpIfAsked(all)) return 0;
    try {
        const QApplication application(argc, argv);
        QApplication::setApplicationName(QStringLiteral("SumDesk"));
        QApplication::setDesktopFileName(QStringLiteral("vestrel"));
        QApplication::setWindowIcon(platform::qt::LoadIcon(QStringLiteral("calculator")));
        core::InitGlobals({});
        const platform::qt::DesktopAppearance appearance;
        core::LoadPreferences();
        platform::qt::ApplyAppearance(platform::qt::Appearance{core::Preferences().Appearance});
        platform::SetDialogs(platform::qt::MakeDialogs());
        core::forms::RegisterHelpWindow();

        (new sumdesk::frmSumDesk)->Setup();
        return QApplication::exec();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "SumDesk: %s\n", failure.what());
        return 1;
    }
}
