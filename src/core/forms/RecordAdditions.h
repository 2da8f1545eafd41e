#pragma once

#include <QMenu>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/RecordKinds.h"

namespace core::forms {

// Additions to every record form by other rooms: reports, receipts, documents, files. A room
// registers an addition once, and every form of such records has it without knowing of it.

/// A record shown on a form; id 0 until it is saved. A building's form shows two: the building,
/// then the unit.
struct Subject {
    RecordKind kind = kNone;
    std::int32_t id = 0;

    friend bool operator==(const Subject&, const Subject&) = default;
};

/// The standard menus of a record form, from left to right. The first has the name of the form's
/// kind, or is the form's own first menu; it begins with Apply and ends with Close.
enum class RecordMenu { Record, Reports, Documents };

/// The arguments of a menu filler. A report or letter shows stored data, so its action calls `save`
/// first and does nothing if that returns false: the user refused the save, or it failed.
struct MenuFilling {
    QMenu& menu;
    const std::vector<Subject>& subjects;
    std::function<bool()> save;
};

/// Adds the actions for these records to the menu, if there are any. It is called when a record is
/// shown and whenever the menu opens, after its former actions were removed.
using MenuFiller = std::function<void(const MenuFilling& filling)>;

/// Registers a filler under a name of its own; the same name replaces it and an empty filler
/// removes it. Fillers of a menu add in the order in which they were registered. A Reports or
/// Documents menu shows only on forms opened after something was registered for it.
void RegisterRecordMenu(RecordMenu menu, const std::string& name, MenuFiller filler);

/// A page of the tab bar named "tabs", on the forms of some kinds. It comes last, or where the
/// bar's property "addedPagesAt" says (the first page is 0).
struct RecordPage {
    std::string caption;
    std::vector<RecordKind> kinds;
    /// Creates the page; the form owns it.
    std::function<QWidget*(QWidget& form)> make;
    /// Shows the records of the form; called when a record is loaded, and once for a new one.
    std::function<void(QWidget& page, const std::vector<Subject>& subjects)> show;
};

/// Registers a page, as RegisterRecordMenu registers a filler; a page without `make` is removed.
void RegisterRecordPage(const std::string& name, RecordPage page);

} // namespace core::forms
