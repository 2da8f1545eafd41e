#include "shell/PropertyTree.h"

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace shell {

namespace {

using Action = TreeChange::Action;

constexpr PropertyNode kBuildings{PropertyKind::Buildings, 0};
constexpr PropertyNode kUnclaimed{PropertyKind::Unclaimed, 0};

PropertyNode BuildingNode(std::int32_t id) {
    return {PropertyKind::Building, id};
}

PropertyNode UnitNode(std::int32_t id) {
    return {PropertyKind::Unit, id};
}

std::string UnitText(const std::string& unit) {
    return unit.empty() ? "Unlabeled Unit" : "Unit " + unit;
}

/// Confirms a node that exists; renames it if its text has changed.
template <class Node>
void Confirm(Node& node, std::string text, PropertyNode key, std::vector<TreeChange>& changes) {
    // If two rows have the same id, the first gives the text.
    if (node.isConfirmed) return;
    node.isConfirmed = true;
    if (node.text == text) return;
    node.text = text;
    changes.push_back({Action::Rename, key, {}, std::move(text)});
}

} // namespace

std::string KeyOf(const PropertyNode& node) {
    switch (node.kind) {
        case PropertyKind::Buildings:
            return "root";
        case PropertyKind::Unclaimed:
            return "unclaimed";
        case PropertyKind::Building:
            return "b+" + std::to_string(node.id);
        case PropertyKind::Unit:
            break;
    }
    return "u+" + std::to_string(node.id);
}

std::vector<TreeChange> PropertyTree::Refresh() {
    PropertyTree next = *this;
    for (auto& [id, building] : next.buildings_)
        building.isConfirmed = false;
    for (auto& [id, unit] : next.units_)
        unit.isConfirmed = false;
    std::vector<TreeChange> changes;
    next.ReadBuildings(changes);
    next.ReadUnits(changes);
    next.DropTheUnconfirmed(changes);
    *this = std::move(next);
    return changes;
}

void PropertyTree::ReadBuildings(std::vector<TreeChange>& changes) {
    platform::Recordset rows =
        core::Read("SELECT IdBuilding, Address FROM Building ORDER BY Address ");
    const platform::Field idField = rows["IdBuilding"];
    const platform::Field address = rows["Address"];
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::int32_t id = platform::IdOf(idField);
        if (id == 0) continue; // units of no building are unclaimed
        std::string text = platform::TextOf(address);
        const auto [at, isNew] = buildings_.try_emplace(id, Building{text, true});
        if (isNew) {
            changes.push_back({Action::Add, BuildingNode(id), kBuildings, std::move(text)});
        } else {
            Confirm(at->second, std::move(text), BuildingNode(id), changes);
        }
    }
}

void PropertyTree::ReadUnits(std::vector<TreeChange>& changes) {
    platform::Recordset rows =
        core::Read("SELECT IdBuilding, IdUnit, Status, Unit FROM Unit ORDER BY Unit ");
    const platform::Field idField = rows["IdUnit"];
    const platform::Field buildingField = rows["IdBuilding"];
    const platform::Field unitField = rows["Unit"];
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::int32_t id = platform::IdOf(idField);
        std::string text = UnitText(platform::TextOf(unitField));
        if (const auto known = units_.find(id); known != units_.end()) {
            Confirm(known->second, std::move(text), UnitNode(id), changes);
            continue;
        }
        const auto building = buildings_.find(platform::IdOf(buildingField));
        const bool isClaimed = building != buildings_.end() && building->second.isConfirmed;
        const PropertyNode parent = isClaimed ? BuildingNode(building->first) : kUnclaimed;
        units_.emplace(id, Unit{text, parent.id, true});
        changes.push_back({Action::Add, UnitNode(id), parent, std::move(text)});
    }
}

void PropertyTree::DropTheUnconfirmed(std::vector<TreeChange>& changes) {
    const auto hasNode = [this](std::int32_t idBuilding) {
        const auto building = buildings_.find(idBuilding);
        return building != buildings_.end() && building->second.isConfirmed;
    };
    for (auto& [id, unit] : units_) {
        if (!unit.isConfirmed) {
            changes.push_back({Action::Remove, UnitNode(id), {}, {}});
        } else if (unit.idBuilding != 0 && !hasNode(unit.idBuilding)) {
            unit.idBuilding = 0;
            changes.push_back({Action::Move, UnitNode(id), kUnclaimed, {}});
        }
    }
    for (const auto& [id, building] : buildings_) {
        if (!building.isConfirmed) changes.push_back({Action::Remove, BuildingNode(id), {}, {}});
    }
    std::erase_if(units_, [](const auto& entry) { return !entry.second.isConfirmed; });
    std::erase_if(buildings_, [](const auto& entry) { return !entry.second.isConfirmed; });
}

void PropertyTree::Move(std::int32_t idUnit, std::int32_t idBuilding) {
    if (!buildings_.contains(idBuilding)) return;
    if (const auto unit = units_.find(idUnit); unit != units_.end())
        unit->second.idBuilding = idBuilding;
}

} // namespace shell
