#include <cmath>
#include <limits>
#include <optional>

#include "core/Globals.h"
#include "core/IdStart.h"
#include "core/MessagePump.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/system/Clock.h"

namespace core {

std::int32_t MinutesSince2000() {
    const int days =
        DateDiff(platform::Interval::Day, platform::Date(2000, 1, 1), platform::Today());
    return days * 24 * 60 + static_cast<std::int32_t>(std::floor(platform::SecondOfDay() / 60));
}

std::int32_t NextId() {
    return NextIds(1);
}

std::int32_t NextIds(std::int32_t count) {
    LetMessagesRun();
    if (count < 1) throw platform::Error("fewer than one record identifier was asked for");

    // Another program may take identifiers too, so the read must be part of the write.
    std::optional<platform::UnitOfWork> unit;
    if (!App().Connection.InUnitOfWork()) unit.emplace(App().Connection);
    platform::Recordset rows = Write("SELECT NextId FROM Configuration");
    if (rows.Eof()) {
        throw platform::DatabaseError("no record identifier: Configuration has no row");
    }
    platform::Field next = rows["NextId"];
    const std::int32_t first = next.IsNull() ? MinutesSince2000() : next.AsLong();
    if (first > std::numeric_limits<std::int32_t>::max() - count) {
        throw platform::OverflowError("the record identifiers are used up");
    }
    next.Set(first + count);
    rows.Update();
    if (unit) unit->Commit();
    return first;
}

} // namespace core
