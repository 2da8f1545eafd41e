#pragma once

#include <cstdint>
#include <string_view>

#include "core/ChoiceList.h"
#include "core/RecordKinds.h"

namespace core {

struct FillOptions {
    /// The identifier to select (if several rows have it, the last of them); 0 keeps the identifier
    /// that is selected.
    std::int32_t selectedId = 0;
    /// A first row "[ No ... Selected ]" of identifier 0, if the kind has one.
    bool addNone = false;
    /// The text in the box stays as it was.
    bool keepText = false;
    /// The unit or building whose rows are offered, for the kinds that depend on one.
    std::int32_t parentId = 0;
    /// Offers a record whose text is null by its NameOfRecord, instead of ending there.
    bool nameNulls = false;
};

/// Fills a list with the records of a kind in the order of their text, and selects the first row
/// if nothing else is selected. A kind that has no list leaves it empty. Throws if the list can't
/// be read; without `nameNulls`, a record whose text is null ends the filling with a FieldError.
void FillList(RecordKind kind, ChoiceList& list, const FillOptions& options = {});

/// Adds the pieces between commas, unchanged, that aren't blank.
void FillFromCommaList(ChoiceList& list, std::string_view text);

/// Returns the identifier of the selected row; 0 if no row is selected.
std::int32_t GetSelectedId(const ChoiceList& list);

struct NoMatch {
    /// Selects the first row.
    bool selectFirst = false;
    /// Puts the text that was looked for in the box, which keeps a value no longer offered.
    bool setText = false;
};

/// Selects the first row with this identifier; if there is none, does what `otherwise` says.
void SelectById(ChoiceList& list, std::int32_t id, NoMatch otherwise = {});

/// Selects the first row with this text, ignoring case; if there is none, does what `otherwise`
/// says.
void SelectByText(ChoiceList& list, std::string_view text, NoMatch otherwise = {});

} // namespace core
