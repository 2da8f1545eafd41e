#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/database/Connection.h"
#include "platform/values/Value.h"

namespace platform {

enum class CursorMode {
    ReadOnly,
    Updatable,
    AppendOnly, ///< opened to add rows: the statement names a table, whose rows aren't fetched
    /// Read-only, and rows are read only as they are asked for. They are still the rows as they
    /// were at opening: the rest is read before anything is written, and before the connection
    /// closes. A failure that comes later is thrown when a row is asked for.
    ReadAsNeeded,
};

/// How many rows ReadAsNeeded reads at first.
inline constexpr int kFirstRowsRead = 500;

class Recordset;

/// One field of a row set's current row. It stays valid while the row set is open, and always
/// refers to the row that is current at the time of the call.
class Field {
  public:
    const std::string& Name() const;
    FieldType Type() const;

    bool IsNull() const;
    /// Returns true for null and for an empty text.
    bool IsBlank() const;
    platform::Value Value() const;
    /// Keeps the value, converted to the field's type, for Update. Throws FieldError if it doesn't
    /// convert or fit, or if the statement computes the field.
    void Set(const platform::Value& value);

    // Each function returns the value as one type. Throws FieldError, which names the field, if it
    // isn't of that type.
    bool AsBoolean() const;
    std::int16_t AsInteger() const;
    std::int32_t AsLong() const;
    double AsDouble() const;
    Currency AsCurrency() const;
    Date AsDate() const;
    std::string AsText() const;

  private:
    friend class Recordset;
    Field(Recordset& rows, std::size_t index) : rows_(&rows), index_(index) {}

    Recordset* rows_;
    std::size_t index_;
};

/// The rows of one select as they were when it was opened, with one current row; `Eof` if there is
/// none. Throws DatabaseError and FieldError on failure. Values that were set and not written by
/// Update are dropped when another row becomes current.
class Recordset {
  public:
    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    /// Opens a select, or a table by its bare name; moves to the first row. Closes first what was
    /// open. `connection` must outlive the row set's open time.
    void Open(Connection& connection, std::string_view sql, CursorMode mode = CursorMode::ReadOnly,
              std::span<const Value> parameters = {});
    void Open(Connection& connection, std::string_view sql, CursorMode mode,
              std::initializer_list<Value> parameters);
    void Close();
    bool IsOpen() const;

    std::int64_t RecordCount() const;
    bool Eof() const;
    void MoveFirst();
    void MoveNext();
    /// Returns the position of the current row: 1 for the first row in the present order, 0 if
    /// there is no current row. A new row comes after all others.
    std::int64_t AbsolutePosition() const;
    /// Moves to the row at this position; if there is none, there is no current row afterwards.
    void SetAbsolutePosition(std::int64_t position);

    /// Orders the rows by "Field [ASC|DESC], ..." (names may be in square brackets) and moves to
    /// the first; nulls first, texts ignoring case, equal rows in the order they had. An empty text
    /// restores the order of the statement. Throws FieldError if a field isn't there; the order
    /// stays.
    void Sort(std::string_view order);

    std::size_t FieldCount() const;
    Field operator[](std::size_t index);
    /// Returns a field by its name, ignoring case. Throws FieldError if the row set has no such
    /// field.
    Field operator[](std::string_view name);
    bool HasField(std::string_view name) const;

    /// Starts a new row, which becomes current; its fields are null until set. Like Update and
    /// Delete, throws DatabaseError if the rows can't be written: the row set was opened for
    /// reading, or its statement's rows don't belong to one table.
    void AddNew();
    /// Writes the new row, or the changed fields of the current one; returns false if there was
    /// nothing to write. The row then shows what is stored, the table's defaults included. Throws
    /// ConflictError if the row was deleted or any of the fields read was changed since: the
    /// changes stay, unwritten.
    bool Update();
    /// Drops the values that were set; after AddNew, the previous row becomes current again.
    void CancelUpdate();
    /// Deletes the current row in the database and here; the next row becomes current.
    void Delete();

  private:
    friend class Field;
    struct State;

    /// Throws DatabaseError if it isn't open.
    State& Opened() const;

    std::unique_ptr<State> state_;
};

} // namespace platform
