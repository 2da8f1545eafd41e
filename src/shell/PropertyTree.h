#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace shell {

/// A node of the property tree: one of the two top folders, a building or a unit.
enum class PropertyKind : std::uint8_t { Buildings, Unclaimed, Building, Unit };

struct PropertyNode {
    PropertyKind kind = PropertyKind::Buildings;
    std::int32_t id = 0; ///< 0 for a folder

    friend bool operator==(const PropertyNode&, const PropertyNode&) = default;
};

/// Returns "root", "unclaimed", "b+12" or "u+31".
std::string KeyOf(const PropertyNode& node);

/// A step that brings a displayed tree up to date. The steps are applied in order.
struct TreeChange {
    enum class Action : std::uint8_t {
        Add,    ///< as the last child of `parent`
        Rename, ///< to `text`
        Move,   ///< to the end of `parent`
        Remove, ///< with all children that it still has
    };
    Action action = Action::Add;
    PropertyNode node;
    PropertyNode parent;
    std::string text;
};

/// The buildings with their units, and the units whose building doesn't exist, as last read. It
/// knows no widget: a screen applies the changes.
class PropertyTree {
  public:
    /// Reads the books again and returns the changes, so that the screen's selection and expanded
    /// nodes stay. An existing node isn't moved even if its unit belongs to another building now;
    /// only a unit whose building's node is removed moves to "Unclaimed". Throws on failure; the
    /// tree is then unchanged.
    std::vector<TreeChange> Refresh();

    /// Records that a unit's node was moved to a building's.
    void Move(std::int32_t idUnit, std::int32_t idBuilding);

    std::size_t UnitCount() const { return units_.size(); }

  private:
    struct Building {
        std::string text;
        bool isConfirmed = false;
    };
    struct Unit {
        std::string text;
        std::int32_t idBuilding = 0; ///< whose node is the parent, 0 under "Unclaimed"
        bool isConfirmed = false;
    };

    void ReadBuildings(std::vector<TreeChange>& changes);
    void ReadUnits(std::vector<TreeChange>& changes);
    void DropTheUnconfirmed(std::vector<TreeChange>& changes);

    std::unordered_map<std::int32_t, Building> buildings_;
    std::unordered_map<std::int32_t, Unit> units_;
};

} // namespace shell
