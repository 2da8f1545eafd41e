#include <memory>

#include "core/RegistryKeys.h"
#include "platform/registry/Registry.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"

namespace vestrelctl {

void AddRegister(CLI::App& line) {
    CLI::App* command =
        line.add_subcommand("register", "Name a database directory to the programs");
    auto name = std::make_shared<std::string>(core::kDefaultDatabase);
    auto folder = std::make_shared<std::filesystem::path>();
    command->add_option("--name", *name, "The name to register it by")->capture_default_str();
    command->add_option("directory", *folder, "The database directory")->required();
    command->callback([name, folder] {
        const std::string path =
            platform::AddBackslash(std::filesystem::absolute(*folder).lexically_normal().string());
        if (!platform::TheRegistry().WriteText(core::kDatabasesKey, *name, path)) {
            throw platform::Error("the registry can't be written");
        }
    });
}

} // namespace vestrelctl
