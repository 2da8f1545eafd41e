#include <memory>

#include "core/FindDatabase.h"
#include "core/RegistryKeys.h"
#include "vestrelctl/Command.h"

namespace vestrelctl {

void AddRegister(CLI::App& line) {
    CLI::App* command =
        line.add_subcommand("register", "Register a database directory under a name");
    auto name = std::make_shared<std::string>(core::kDefaultDatabase);
    auto folder = std::make_shared<std::filesystem::path>();
    command->add_option("--name", *name, "The name to register it by")->capture_default_str();
    command->add_option("directory", *folder, "The database directory")->required();
    command->callback([name, folder] { core::RegisterDatabase(*name, *folder); });
}

} // namespace vestrelctl
