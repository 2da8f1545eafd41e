#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/RecordKinds.h"

namespace removal {

// Records of the analysis program that shares the books.
inline constexpr core::RecordKind kAnalysis{71};
inline constexpr core::RecordKind kNoteAnalysis{73};

/// Records that are removed together with another, counted by the field that refers to it.
struct Counted {
    std::string_view table;
    std::string_view field;
    std::string_view words; ///< follows the count in the question
};

/// Records that are removed first, each as if it were removed by itself.
struct Children {
    core::RecordKind kind;
    std::string_view select; ///< selects their ids by the id of the removed record
};

/// The questions and statements of the removal of a record kind; a kind without them isn't removed.
struct KindRemoval {
    core::RecordKind kind = core::kNone;
    std::string_view title = "Confirm Delete";
    /// The question before a removal, unless it is a question that counts.
    std::string_view question{};
    /// How a question that counts calls the record and its references; for a tenant, it says that
    /// the references are those to an account.
    std::string_view thing{};
    std::string_view referred{};
    std::span<const Counted> counted{};
    std::span<const Children> children{};
    /// Run before the record's own row is deleted, each with its id as the only parameter.
    std::span<const std::string_view> statements{};
    /// The kind whose records show this one, so that their screens are notified too.
    core::RecordKind shownBy = core::kNone;
};

/// Returns the entry of a kind; null for a kind that isn't removed.
const KindRemoval* RemovalOf(core::RecordKind kind);

} // namespace removal
