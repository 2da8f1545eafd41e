#include <iostream>
#include <memory>

#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "shell/ResetSample.h"
#include "shell/SampleLife.h"
#include "store/CreateDatabase.h"
#include "store/References.h"
#include "vestrelctl/Command.h"

namespace vestrelctl {

namespace {

struct InitOptions {
    bool sample = false;
    bool reset = false;
    int units = shell::kSampleUnits;
    std::filesystem::path folder;
};

/// Makes the tables of zip codes and tax offices, which are beside the program, once for all
/// databases. If that fails, the database is made without them.
void MakeReferences() {
    if (core::App().HasReferences) return;
    try {
        store::CreateReferences(core::App().AppPath);
    } catch (const platform::Error& error) {
        std::cerr << "vestrelctl: no look-ups: " << error.what() << '\n';
    }
}

} // namespace

void AddInit(CLI::App& line) {
    CLI::App* command =
        line.add_subcommand("init", "Make an empty database, or a sample portfolio");
    auto init = std::make_shared<InitOptions>();
    CLI::Option* sample = command->add_flag("--sample", init->sample,
                                            "Make a sample portfolio with two years of history");
    command->add_option("--units", init->units, "Units of the sample portfolio")
        ->check(CLI::Range(1, 100'000))
        ->needs(sample)
        ->capture_default_str();
    command->add_flag("--reset", init->reset, "Replace the sample in this directory by a new one")
        ->needs(sample);
    command->add_option("directory", init->folder, "Where to make it")->required();
    command->callback([init] {
        if (init->reset) {
            shell::ResetSample(init->folder, init->units, platform::Today());
        } else if (init->sample) {
            shell::MakeSamplePortfolio(init->folder, init->units, platform::Today());
        } else {
            store::CreateDatabase(init->folder);
        }
        MakeReferences();
    });
}

} // namespace vestrelctl
