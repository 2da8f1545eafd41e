#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "core/RecordKinds.h"

class QMenu;

namespace shell::screens {

/// The selection that a command works on: the kind of the view, and the id in the row that was
/// selected last, 0 if there is none.
struct Selection {
    core::RecordKind kind = core::kNone;
    std::int32_t id = 0;
    /// The ids in all selected rows, from top to bottom.
    std::vector<std::int32_t> ids = {};
};

using Command = std::function<void(const Selection& selection)>;
/// Adds the items of a submenu when it opens; `selection` returns what is selected when one of them
/// is chosen.
using SubmenuFiller = std::function<void(QMenu& menu, const std::function<Selection()>& selection)>;

/// The functions behind menu items whose work is done by other rooms, by the items' names. An item
/// without a function is disabled.
class Commands {
  public:
    void Add(const QString& item, Command command) { commands_[item] = std::move(command); }
    /// Turns an item into a submenu.
    void AddSubmenu(const QString& item, SubmenuFiller filler) {
        submenus_[item] = std::move(filler);
    }
    bool Has(const QString& item) const {
        return commands_.contains(item) || submenus_.contains(item);
    }
    void Run(const QString& item, const Selection& selection) const {
        const auto found = commands_.find(item);
        if (found != commands_.end()) found->second(selection);
    }
    /// Returns the filler of a submenu; empty for any other item.
    SubmenuFiller Submenu(const QString& item) const {
        const auto found = submenus_.find(item);
        return found == submenus_.end() ? SubmenuFiller() : found->second;
    }

  private:
    std::map<QString, Command> commands_;
    std::map<QString, SubmenuFiller> submenus_;
};

} // namespace shell::screens
