#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/database/PendingRows.h"
#include "platform/database/Recordset.h"
#include "platform/database/RowBuffer.h"
#include "platform/database/StatementCache.h"

namespace platform {

/// The contents of a row set: its rows as they are stored, their present order, and what was set on
/// the current one.
struct Recordset::State {
    Connection* connection = nullptr;
    CursorMode mode = CursorMode::ReadOnly;
    std::shared_ptr<const StatementPlan> plan; // null when it is closed

    RowBuffer rows;
    std::unique_ptr<PendingRows> pending; // rows that are read as they are asked for; mostly null
    bool ordered = false;                 // otherwise the rows are in the order read
    std::vector<std::uint32_t> order;
    std::size_t current = 0; // a place in the order

    std::vector<std::uint32_t> places; // of the current row's values, once they were asked for
    bool located = false;

    bool adding = false;
    bool edited = false;
    std::vector<std::optional<Value>> edits;

    const dialect::CompiledStatement& Compiled() const { return plan->compiled; }
    std::size_t FieldCount() const { return plan->compiled.columns.size(); }
    /// Returns the field's index, the first if several have this name; nothing if there is none.
    std::optional<std::size_t> Find(std::string_view name) const;
    /// The places where names were last found, by their spelling: every row is read by the same few
    /// names.
    mutable std::array<std::uint16_t, 128> found{};

    std::size_t Count() const {
        if (ordered) return order.size();
        return pending ? pending->Total() : rows.Size();
    }
    void ReadAll();
    bool HasRow() const { return adding || current < Count(); }
    std::size_t CurrentRow() const { return ordered ? order[current] : current; }
    void MoveTo(std::size_t place);
    /// Makes the order a list of its own, which can be changed.
    void WriteOutOrder();

    /// Returns the current row's stored value at `index`: of a field, or of the row's number after
    /// them.
    Cell Stored(std::size_t index);

    bool IsReadOnly() const {
        return mode == CursorMode::ReadOnly || mode == CursorMode::ReadAsNeeded;
    }
    bool IsWritable() const { return !IsReadOnly() && !Compiled().table.empty(); }
    void CheckWritable() const;
    bool IsComputed(std::size_t field) const { return Compiled().sources[field].empty(); }
    void Edit(std::size_t field, Value value);
    void DropEdits();
    void WriteNewRow();
    void WriteChanges();
    void DeleteRow();
    /// Binds the values the row was read with, after the parameter at `index`.
    void BindOriginal(PreparedStatement& statement, int index);
};

} // namespace platform
