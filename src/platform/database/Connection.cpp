#include "platform/database/Connection.h"

#include "platform/database/DatabaseEngine.h"

namespace platform {

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::Open(const std::filesystem::path& file, OpenMode mode) {
    Close();
    engine_ = std::make_unique<DatabaseEngine>(file, mode);
    file_ = file;
}

void Connection::Close() {
    engine_.reset();
    file_.clear();
}

bool Connection::IsOpen() const {
    return engine_ != nullptr;
}

bool Connection::IsReadOnly() const {
    return engine_ && engine_->IsReadOnly();
}

const std::filesystem::path& Connection::File() const {
    return file_;
}

DatabaseEngine& Connection::Engine() const {
    if (!engine_) throw DatabaseError("No database is open.");
    return *engine_;
}

std::int64_t Connection::Execute(std::string_view sql, std::span<const Value> parameters) {
    DatabaseEngine& engine = Engine();
    CachedStatement& statement = engine.Prepare(sql);
    DatabaseEngine::Bind(statement, parameters);
    return engine.Run(statement);
}

std::int64_t Connection::Execute(std::string_view sql, std::initializer_list<Value> parameters) {
    return Execute(sql, std::span(parameters.begin(), parameters.size()));
}

std::optional<Value> Connection::Scalar(std::string_view sql, std::span<const Value> parameters) {
    DatabaseEngine& engine = Engine();
    CachedStatement& statement = engine.Prepare(sql);
    const dialect::CompiledStatement& compiled = statement.plan->compiled;
    if (compiled.kind != dialect::StatementKind::Select) {
        throw DatabaseError("Only a SELECT can be opened.");
    }
    engine.CheckUnit();
    DatabaseEngine::Bind(statement, parameters);
    const StatementRun run(statement.statement);
    if (!statement.statement.Step()) return std::nullopt;
    try {
        return ReadCell(statement.statement.Column(0), compiled.columns.front().type);
    } catch (const OverflowError& error) {
        throw DatabaseError(compiled.columns.front().name + ": " + error.what());
    }
}

std::optional<Value> Connection::Scalar(std::string_view sql,
                                        std::initializer_list<Value> parameters) {
    return Scalar(sql, std::span(parameters.begin(), parameters.size()));
}

const dialect::Catalog& Connection::Tables() {
    return Engine().Tables();
}

void Connection::RunScript(std::string_view script) {
    Engine().RunScript(script);
}

bool Connection::InUnitOfWork() const {
    return engine_ && engine_->UnitLevel() > 0;
}

} // namespace platform
