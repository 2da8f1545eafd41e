#include "platform/database/PendingRows.h"

#include "platform/database/DatabaseEngine.h"

namespace platform {

PendingRows::PendingRows(DatabaseEngine& engine, const std::shared_ptr<const StatementPlan>& plan,
                         std::vector<Value> parameters, RowBuffer& rows)
    : engine_(&engine),
      parameters_(std::move(parameters)),
      select_(CachedStatement{plan, PreparedStatement(engine.Handle(), plan->compiled.sql)}),
      rows_(rows),
      width_(static_cast<int>(plan->compiled.columns.size())) {
    DatabaseEngine::Bind(*select_, parameters_);
    // The first row fixes the view of the database in which the others are counted.
    ReadTo(1);
    if (engine_ == nullptr) return;
    CachedStatement counting{
        plan,
        PreparedStatement(engine.Handle(), "SELECT count(*) FROM (" + plan->compiled.sql + ")")};
    DatabaseEngine::Bind(counting, parameters_);
    const StatementRun run(counting.statement);
    counting.statement.Step();
    total_ = static_cast<std::size_t>(counting.statement.Column(0).integer);
    engine_->AddPending(*this);
}

PendingRows::~PendingRows() {
    End();
}

void PendingRows::ReadTo(std::size_t count) {
    try {
        while (engine_ != nullptr && rows_.Size() < count) {
            if (!select_->statement.Step()) {
                End();
                break;
            }
            rows_.Start();
            for (int i = 0; i < width_; ++i)
                rows_.Put(select_->statement.Column(i));
            rows_.Append();
        }
    } catch (...) {
        End();
        throw;
    }
}

void PendingRows::End() {
    if (engine_ == nullptr) return;
    select_.reset();
    engine_->RemovePending(*this);
    engine_ = nullptr;
    total_ = rows_.Size();
}

} // namespace platform
