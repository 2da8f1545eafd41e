#include <exception>
#include <utility>

#include "platform/database/Connection.h"
#include "platform/database/DatabaseEngine.h"

namespace platform {

void Connection::AfterUnitOfWork(std::function<void(UnitEnd)> work) {
    if (!InUnitOfWork()) throw DatabaseError("No unit of work is open.");
    afterUnit_.push_back(std::move(work));
}

void Connection::UnitEnded(UnitEnd end) {
    for (const auto& work : std::exchange(afterUnit_, {}))
        work(end);
}

UnitOfWork::UnitOfWork(Connection& connection)
    : connection_(connection), level_(connection.Engine().Begin()) {}

UnitOfWork::~UnitOfWork() {
    if (connection_.engine_) connection_.engine_->RollBack(level_);
    if (level_ != 1) return;
    try {
        connection_.UnitEnded(UnitEnd::RolledBack);
    } catch (const std::exception&) {
        // The unit of work has ended, whatever its followers do.
    }
}

void UnitOfWork::Commit() {
    connection_.Engine().Commit(level_);
    if (std::exchange(level_, 0) == 1) connection_.UnitEnded(UnitEnd::Kept);
}

} // namespace platform
