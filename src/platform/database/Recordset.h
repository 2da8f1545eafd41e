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
    /// Only read, and no further than rows are asked for. They are as they were when it was opened
    /// all the same: before anything is written, and before the connection closes, the rest is read
    /// at once. A failure that comes later is thrown where a row is asked for.
    ReadAsNeeded,
};

/// How many rows ReadAsNeeded reads at first.
inline constexpr int kFirstRowsRead = 500;

class Recordset;

/// One field of a row set's current row. It stays valid while the row set is open, and always
/// speaks of the row that is current when it is asked.
class Field {
  public:
    const std::string& Name() const;
    FieldType Type() const;

    bool IsNull() const;
    /// Null, or an empty text.
    bool IsBlank() const;
    platform::Value Value() const;
    /// The value as the field's type holds it is kept for Update; one that doesn't convert or fit
    /// is a FieldError, as is writing a field that the statement computes.
    void Set(const platform::Value& value);

    // Readings as of Value; what fails is a FieldError that names the field.
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

/// The rows of one select, held by the client: as they were when it was opened. With one current
/// row; `Eof` when there is none. Failures are thrown as DatabaseError and FieldError. What was set
/// and not written by Update is dropped when another row becomes current.
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
    /// 1 for the first row in the present order, 0 when there is no current row. A new row stands
    /// behind all others.
    std::int64_t AbsolutePosition() const;
    /// Where no row stands there is no current row afterwards.
    void SetAbsolutePosition(std::int64_t position);

    /// Orders the rows by "Field [ASC|DESC], ..." (names may stand in square brackets) and moves to
    /// the first; nulls first, texts without regard to case, equal rows in the order they had. An
    /// empty text restores the order of the statement. A FieldError for a field that isn't there,
    /// the order stays.
    void Sort(std::string_view order);

    std::size_t FieldCount() const;
    Field operator[](std::size_t index);
    /// By name, without regard to case; a FieldError when there is none.
    Field operator[](std::string_view name);
    bool HasField(std::string_view name) const;

    /// Starts a new row, which becomes current; its fields are null until set. A DatabaseError, as
    /// of Update and Delete, when the rows can't be written: opened to be read, or of a statement
    /// whose rows aren't those of one table.
    void AddNew();
    /// Writes the new row, or the changed fields of the current one; nothing when there are none.
    /// The row then shows what is stored, the table's defaults included. A ConflictError when the
    /// row has gone or any of the fields read was changed since: the changes stay, unwritten.
    void Update();
    /// Drops what was set; after AddNew the row that was current before is so again.
    void CancelUpdate();
    /// Deletes the current row in the database and here; the next row becomes current.
    void Delete();

  private:
    friend class Field;
    struct State;

    /// A DatabaseError when it isn't open.
    State& Opened() const;

    std::unique_ptr<State> state_;
};

} // namespace platform
