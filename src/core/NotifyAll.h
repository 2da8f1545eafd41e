#pragma once

#include <cstdint>
#include <functional>

namespace core {

/// What a broadcast says happened to records of a kind: 1 is "written or removed".
inline constexpr std::int16_t kRecordsChanged = 1;

using NotifyListener = std::function<void(std::int16_t kind, std::int16_t action, std::int32_t id)>;

/// Adds a listener to the broadcast; destroying the token ends that.
class NotifyToken {
  public:
    explicit NotifyToken(NotifyListener listener);
    ~NotifyToken();
    NotifyToken(const NotifyToken&) = delete;
    NotifyToken& operator=(const NotifyToken&) = delete;

  private:
    int id_;
};

/// Tells every listener, at once and in the order they came, that records of `kind` changed; the
/// settings in memory are read again first when they are the kind. A listener's failure is ignored.
void NotifyAll(std::int16_t kind, std::int16_t action, std::int32_t id);

} // namespace core
