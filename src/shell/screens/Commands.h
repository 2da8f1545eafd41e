#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <map>

namespace shell::screens {

/// What a command works on: the kind of the view, and the id in its selected row, 0 for none.
struct Selection {
    std::int16_t kind = 0;
    std::int32_t id = 0;
};

using Command = std::function<void(const Selection& selection)>;

/// The work of menu items that other rooms do, by the items' names. An item without work is
/// disabled.
class Commands {
  public:
    void Add(const QString& item, Command command) { commands_[item] = std::move(command); }
    bool Has(const QString& item) const { return commands_.contains(item); }
    void Run(const QString& item, const Selection& selection) const {
        const auto found = commands_.find(item);
        if (found != commands_.end()) found->second(selection);
    }

  private:
    std::map<QString, Command> commands_;
};

} // namespace shell::screens
