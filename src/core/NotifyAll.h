#pragma once

#include <cstdint>
#include <functional>

#include "core/RecordKinds.h"

namespace core {

/// The action of a broadcast about records of a kind: 1 is "written or removed".
inline constexpr std::int16_t kRecordsChanged = 1;

using NotifyListener = std::function<void(RecordKind kind, std::int16_t action, std::int32_t id)>;

/// Adds a listener to the broadcast; destroying the token removes it.
class NotifyToken {
  public:
    explicit NotifyToken(NotifyListener listener);
    ~NotifyToken();
    NotifyToken(const NotifyToken&) = delete;
    NotifyToken& operator=(const NotifyToken&) = delete;

  private:
    int id_;
};

/// Notifies every listener, in the order they were added, that records of `kind` changed; for the
/// settings, those in memory are read again first. A listener's failure is ignored.
///
/// Inside a unit of work the messages wait until the whole unit is committed. Each then goes out
/// once, in the order of its last announcement; if the unit is rolled back, none does.
void NotifyAll(RecordKind kind, std::int16_t action, std::int32_t id);
/// Does the same for every kind: any record may have changed, and the settings too.
void NotifyOfAllKinds();

} // namespace core
