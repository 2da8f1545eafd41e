#include "platform/database/Connection.h"
#include "platform/database/DatabaseEngine.h"

namespace platform {

UnitOfWork::UnitOfWork(Connection& connection)
    : connection_(connection), level_(connection.Engine().Begin()) {}

UnitOfWork::~UnitOfWork() {
    if (connection_.engine_) connection_.engine_->RollBack(level_);
}

void UnitOfWork::Commit() {
    connection_.Engine().Commit(level_);
    level_ = 0;
}

} // namespace platform
