#include "core/forms/PanelCommand.h"

#include <set>

#include "core/forms/ErrorRoll.h"
#include "core/forms/Form.h"

namespace core::forms {

namespace {

/// The windows on which a command of a panel is running, during the lifetime of this object.
class Running {
  public:
    explicit Running(const QWidget& window) : window_(&window) { Windows().insert(window_); }
    ~Running() { Windows().erase(window_); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    static bool IsOn(const QWidget& window) { return Windows().contains(&window); }

  private:
    static std::set<const QWidget*>& Windows() {
        static std::set<const QWidget*> windows;
        return windows;
    }

    const QWidget* window_;
};

} // namespace

bool PerformOn(const QWidget& panel, const std::function<void()>& command) {
    const QWidget& window = *panel.window();
    const auto* const form = qobject_cast<const Form*>(&window);
    if (Running::IsOn(window) || (form != nullptr && form->IsBusy())) return false;
    const Running running(window);
    return Guarded(command);
}

} // namespace core::forms
