#pragma once

#include <span>
#include <string_view>

#include "core/RecordKinds.h"

namespace core {

/// All that is known of a record kind. A new kind needs one more of these; members that don't apply
/// to a kind are empty.
struct KindInfo {
    RecordKind kind = kNone;
    std::string_view name{};   ///< "Work Order", in messages and on the status line
    std::string_view plural{}; ///< "work orders", inside a sentence
    std::string_view table{};
    std::string_view key{};  ///< the field of `table` that holds the identifier
    std::string_view icon{}; ///< of share/icons

    /// Selects the Description of the record whose identifier is every parameter; null if a part of
    /// it is null.
    std::string_view description{};
    /// The same in the short form, if that differs.
    std::string_view shortDescription{};
    /// Selects the name of such a record for questions about it, if it has no description.
    std::string_view label{};

    /// The row of a kind's list that means that no record is chosen.
    std::string_view noneRow{};
    /// Selects Description and ID of the records to choose from.
    std::string_view list{};
    /// The same for the records of one parent, whose identifier follows.
    std::string_view listOfParent{};
    /// The kind of the listed records, if it is another: some kinds are requests for a part of a
    /// list.
    RecordKind offers = kNone;
    /// The account type that the list is limited to, and that a new account starts with.
    std::string_view accountType{};
    /// Another condition that limits the list.
    std::string_view condition{};
};

/// Returns what is known of a kind; nothing but empty fields for an unknown one.
const KindInfo& InfoOf(RecordKind kind);

/// Returns all kinds in the order of their numbers.
std::span<const KindInfo> AllKinds();

} // namespace core
