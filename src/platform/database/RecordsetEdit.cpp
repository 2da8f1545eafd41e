#include <algorithm>

#include "platform/database/DatabaseEngine.h"
#include "platform/database/RecordsetState.h"
#include "platform/database/dialect/EngineSql.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

using dialect::EngineName;
using Edits = std::vector<std::optional<Value>>;

// Returns the key of a statement that writes rows: its kind, the select that the rows were read by,
// the fields that it sets. No statement's text starts with a zero byte.
std::string KeyOf(char kind, const StatementPlan& plan, const Edits& edits) {
    std::string key{'\0', kind};
    for (unsigned shift = 0; shift < 64; shift += 8)
        key += static_cast<char>((plan.number >> shift) & 0xFF);
    for (const auto& edit : edits)
        key += edit ? '1' : '0';
    return key;
}

template <typename Write>
void WriteList(std::string& sql, const Edits& edits, Write write) {
    const char* separator = "";
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (!edits[i]) continue;
        sql += separator;
        write(i);
        separator = ", ";
    }
}

// Adds the condition for the row as it was read: its number, and every field that it was read with.
void WriteWhere(std::string& sql, const dialect::CompiledStatement& select) {
    sql += " WHERE rowid = ?";
    for (const std::string& source : select.sources) {
        if (!source.empty()) sql += " AND " + EngineName(source) + " COLLATE BINARY IS ?";
    }
}

std::string InsertSql(const dialect::CompiledStatement& select, const Edits& edits) {
    std::string names;
    std::string marks;
    WriteList(names, edits, [&](std::size_t i) { names += EngineName(select.sources[i]); });
    WriteList(marks, edits, [&](std::size_t) { marks += '?'; });
    return "INSERT INTO " + EngineName(select.table) +
           (names.empty() ? " DEFAULT VALUES" : " (" + names + ") VALUES (" + marks + ")");
}

// Returns the statement that reads the row again. That costs less than having the insert return it,
// for which the engine would make a temporary table.
std::string ReadBackSql(const dialect::CompiledStatement& select) {
    std::string sql = "SELECT ";
    for (const std::string& source : select.sources)
        sql += (source.empty() ? "NULL" : EngineName(source)) + ", ";
    return sql + "rowid FROM " + EngineName(select.table) + " WHERE rowid = ?";
}

std::string UpdateSql(const dialect::CompiledStatement& select, const Edits& edits) {
    std::string sql = "UPDATE " + EngineName(select.table) + " SET ";
    WriteList(sql, edits, [&](std::size_t i) { sql += EngineName(select.sources[i]) + " = ?"; });
    WriteWhere(sql, select);
    return sql;
}

std::string DeleteSql(const dialect::CompiledStatement& select) {
    std::string sql = "DELETE FROM " + EngineName(select.table);
    WriteWhere(sql, select);
    return sql;
}

// Returns an edit's value in the form of its field, so that later on no text has to be made of
// another type of value.
Cell StoredForm(const Value& edit, FieldType type) {
    std::string unused;
    return StoreCell(edit, type, unused);
}

int BindEdits(PreparedStatement& statement, const dialect::CompiledStatement& select,
              const Edits& edits) {
    int index = 0;
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (!edits[i]) continue;
        statement.Bind(++index, StoredForm(*edits[i], select.columns[i].type),
                       PreparedStatement::TextLife::UntilReset);
    }
    return index;
}

[[noreturn]] void ThrowConflict(const std::string& table) {
    throw ConflictError("The row of " + table + " was changed or deleted since it was read.");
}

} // namespace

void Recordset::State::CheckWritable() const {
    if (IsReadOnly()) {
        throw DatabaseError("The row set was opened for reading only.");
    }
    if (Compiled().table.empty()) {
        throw DatabaseError(
            "The rows of this statement can't be written: they don't belong to "
            "one table.");
    }
}

void Recordset::State::Edit(std::size_t field, Value value) {
    edits.resize(FieldCount());
    edited = true;
    const bool changes =
        adding || StoredForm(value, Compiled().columns[field].type) != Stored(field);
    if (changes) {
        edits[field] = std::move(value);
    } else {
        edits[field].reset();
    }
}

void Recordset::State::DropEdits() {
    adding = false;
    if (!edited) return;
    edited = false;
    edits.clear();
}

void Recordset::State::WriteNewRow() {
    DatabaseEngine& engine = connection->Engine();
    edits.resize(FieldCount());
    CachedStatement& insert =
        engine.PrepareOwn(KeyOf('I', *plan, edits), [&] { return InsertSql(Compiled(), edits); });
    BindEdits(insert.statement, Compiled(), edits);
    if (engine.Run(insert) == 0) throw DatabaseError("The row was not added.");
    const Cell number = Cell::OfInteger(engine.LastRowNumber());
    PreparedStatement& row =
        engine.PrepareOwn(KeyOf('R', *plan, {}), [&] { return ReadBackSql(Compiled()); }).statement;
    const StatementRun run(row);
    row.Bind(1, number, PreparedStatement::TextLife::UntilReset);
    if (!row.Step()) ThrowConflict(Compiled().table);
    rows.Start();
    for (int i = 0; i < row.ColumnCount(); ++i)
        rows.Put(row.Column(i));
    rows.Append();
    if (ordered) order.push_back(static_cast<std::uint32_t>(rows.Size() - 1));
    MoveTo(Count() - 1);
}

void Recordset::State::BindOriginal(PreparedStatement& statement, int index) {
    statement.Bind(++index, Stored(FieldCount()), PreparedStatement::TextLife::UntilReset);
    for (std::size_t i = 0; i < FieldCount(); ++i) {
        if (!IsComputed(i))
            statement.Bind(++index, Stored(i), PreparedStatement::TextLife::UntilReset);
    }
}

void Recordset::State::WriteChanges() {
    DatabaseEngine& engine = connection->Engine();
    CachedStatement& prepared =
        engine.PrepareOwn(KeyOf('U', *plan, edits), [&] { return UpdateSql(Compiled(), edits); });
    BindOriginal(prepared.statement, BindEdits(prepared.statement, Compiled(), edits));
    if (engine.Run(prepared) == 0) ThrowConflict(Compiled().table);
    rows.Start();
    for (std::size_t i = 0; i <= FieldCount(); ++i) {
        const bool changed = i < FieldCount() && edits[i];
        rows.Put(changed ? StoredForm(*edits[i], Compiled().columns[i].type) : Stored(i));
    }
    rows.Replace(CurrentRow());
    MoveTo(current);
}

void Recordset::State::DeleteRow() {
    DatabaseEngine& engine = connection->Engine();
    CachedStatement& prepared =
        engine.PrepareOwn(KeyOf('D', *plan, {}), [&] { return DeleteSql(Compiled()); });
    BindOriginal(prepared.statement, 0);
    if (engine.Run(prepared) == 0) ThrowConflict(Compiled().table);
    WriteOutOrder();
    order.erase(order.begin() + static_cast<std::ptrdiff_t>(current));
    MoveTo(current);
}

void Recordset::AddNew() {
    State& state = Opened();
    state.CheckWritable();
    state.DropEdits();
    state.adding = true;
}

bool Recordset::Update() {
    State& state = Opened();
    if (!state.adding && !state.edited) return false;
    state.CheckWritable();
    if (state.adding) {
        state.WriteNewRow();
        return true;
    }
    const bool changes =
        std::ranges::any_of(state.edits, [](const auto& edit) { return edit.has_value(); });
    if (changes) state.WriteChanges();
    return changes;
}

void Recordset::CancelUpdate() {
    Opened().DropEdits();
}

void Recordset::Delete() {
    State& state = Opened();
    state.CheckWritable();
    if (state.adding || !state.HasRow()) throw DatabaseError("There is no row to delete.");
    state.DeleteRow();
}

} // namespace platform
