#include <QApplication>
#include <array>
#include <cstdio>
#include <exception>
#include <span>
#include <string>
#include <vector>

#include "core/forms/ProgramLook.h"
#include "photoreel/frmPhotoReel.h"
#include "platform/system/ProgramHelp.h"

namespace {

constexpr std::array kOptions = {
    platform::kHelpOption,
    platform::kVersionOption,
    platform::HelpEntry{"/loadfile FILE",
                        "Show the pictures listed in this file: a title, then a\n"
                        "picture a line"},
};

constexpr std::array kSections = {platform::HelpSection{"Options", kOptions}};

constexpr platform::ProgramHelp kHelp = {
    .name = "PhotoReel",
    .summary = "Shows pictures one after another.",
    .usage = "[OPTIONS]",
    .sections = kSections,
};

} // namespace

int main(int argc, char** argv) {
    const std::span all(argv, static_cast<std::size_t>(argc));
    if (platform::AnswerIfAsked(kHelp, all)) return 0;
    try {
        const QApplication application(argc, argv);
        const core::forms::ProgramLook look("PhotoReel", "picture");
        const std::span words(argv, static_cast<std::size_t>(argc));
        const std::vector<std::string> arguments(words.begin() + 1, words.end());

        photoreel::frmPhotoReel window;
        window.Setup(photoreel::ListFileOf(arguments));
        return QApplication::exec();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "PhotoReel: %s\n", failure.what());
        return 1;
    }
}
