#include "platform/database/Recordset.h"

#include <numeric>

#include "platform/database/DatabaseEngine.h"
#include "platform/database/RecordsetState.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsSameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerAscii(a[i]) == LowerAscii(b[i])) continue;
        return static_cast<unsigned char>(a[i]) >= 0x80 && EqualIgnoringCase(a, b);
    }
    return true;
}

/// Returns a number that is rarely the same for two names of a table.
std::size_t PlaceOf(std::string_view name) {
    if (name.empty()) return 0;
    const auto letter = [&](std::size_t i) -> std::size_t {
        return static_cast<unsigned char>(name[i]);
    };
    return name.size() * 5 + letter(0) * 3 + letter(name.size() / 2) * 31 +
           letter(name.size() - 1) * 7;
}

} // namespace

std::optional<std::size_t> Recordset::State::Find(std::string_view name) const {
    const auto& columns = Compiled().columns;
    if (columns.empty()) return std::nullopt;
    std::uint16_t& last = found[PlaceOf(name) % found.size()];
    if (IsSameName(columns[last].name, name)) return last;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!IsSameName(columns[i].name, name)) continue;
        last = static_cast<std::uint16_t>(i);
        return i;
    }
    return std::nullopt;
}

void Recordset::State::MoveTo(std::size_t place) {
    DropEdits();
    current = place;
    located = false;
}

void Recordset::State::ReadAll() {
    if (!pending) return;
    pending->ReadTo(pending->Total());
    pending.reset();
}

void Recordset::State::WriteOutOrder() {
    if (ordered) return;
    ReadAll();
    order.resize(rows.Size());
    std::iota(order.begin(), order.end(), std::uint32_t{0});
    ordered = true;
}

Cell Recordset::State::Stored(std::size_t index) {
    if (adding) return {};
    if (!located) {
        if (pending) {
            pending->ReadTo(CurrentRow() + 1);
            if (CurrentRow() >= rows.Size()) return {}; // it could not be read to its end
        }
        rows.Locate(CurrentRow(), FieldCount() + (IsWritable() ? 1 : 0), places);
        located = true;
    }
    return rows.Read(CurrentRow(), places[index]);
}

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Recordset::State& Recordset::Opened() const {
    if (!IsOpen()) throw DatabaseError("The row set is not open.");
    return *state_;
}

void Recordset::Open(Connection& connection, std::string_view sql, CursorMode mode,
                     std::span<const Value> parameters) {
    Close();
    DatabaseEngine& engine = connection.Engine();
    CachedStatement& prepared = engine.Prepare(sql);
    const dialect::CompiledStatement& compiled = prepared.plan->compiled;
    if (compiled.kind != dialect::StatementKind::Select) {
        throw DatabaseError("Only a SELECT can be opened.");
    }
    if (mode == CursorMode::AppendOnly && compiled.table.empty()) {
        throw DatabaseError("Rows can be added only to a table.");
    }
    if (!state_) state_ = std::make_unique<State>();
    State& state = *state_;
    state.connection = &connection;
    state.mode = mode;
    if (mode == CursorMode::ReadAsNeeded) {
        engine.CheckUnit();
        state.pending = std::make_unique<PendingRows>(
            engine, prepared.plan, std::vector(parameters.begin(), parameters.end()), state.rows);
        state.pending->ReadTo(kFirstRowsRead);
    } else if (mode != CursorMode::AppendOnly) {
        engine.CheckUnit();
        DatabaseEngine::Bind(prepared, parameters);
        const bool writable = mode == CursorMode::Updatable && !compiled.table.empty();
        const int width = static_cast<int>(compiled.columns.size()) + (writable ? 1 : 0);
        const StatementRun run(prepared.statement);
        while (prepared.statement.Step()) {
            state.rows.Start();
            for (int i = 0; i < width; ++i)
                state.rows.Put(prepared.statement.Column(i));
            state.rows.Append();
        }
    }
    state.plan = prepared.plan;
}

void Recordset::Open(Connection& connection, std::string_view sql, CursorMode mode,
                     std::initializer_list<Value> parameters) {
    Open(connection, sql, mode, std::span(parameters.begin(), parameters.size()));
}

void Recordset::Close() {
    if (!state_) return;
    State& state = *state_;
    state.plan.reset();
    state.found.fill(0);
    state.pending.reset();
    state.rows.Clear();
    state.ordered = false;
    state.order.clear();
    state.MoveTo(0);
}

bool Recordset::IsOpen() const {
    return state_ && state_->plan;
}

std::int64_t Recordset::RecordCount() const {
    return static_cast<std::int64_t>(Opened().Count());
}

bool Recordset::Eof() const {
    return !Opened().HasRow();
}

void Recordset::MoveFirst() {
    Opened().MoveTo(0);
}

void Recordset::MoveNext() {
    State& state = Opened();
    state.MoveTo(std::min(state.current + 1, state.Count()));
}

std::int64_t Recordset::AbsolutePosition() const {
    const State& state = Opened();
    if (state.adding) return static_cast<std::int64_t>(state.Count()) + 1;
    return state.HasRow() ? static_cast<std::int64_t>(state.current) + 1 : 0;
}

void Recordset::SetAbsolutePosition(std::int64_t position) {
    State& state = Opened();
    if (position == AbsolutePosition() && !state.edited && !state.adding) return;
    const bool stands = position >= 1 && position <= RecordCount();
    state.MoveTo(stands ? static_cast<std::size_t>(position - 1) : state.Count());
}

std::size_t Recordset::FieldCount() const {
    return Opened().FieldCount();
}

Field Recordset::operator[](std::size_t index) {
    if (index >= FieldCount()) {
        throw FieldError("There is no field number " + std::to_string(index + 1) + ".");
    }
    return {*this, index};
}

Field Recordset::operator[](std::string_view name) {
    const auto index = Opened().Find(name);
    if (!index) throw FieldError("There is no field " + std::string(name) + ".");
    return {*this, *index};
}

bool Recordset::HasField(std::string_view name) const {
    return Opened().Find(name).has_value();
}

} // namespace platform
