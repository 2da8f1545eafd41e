#include "kestrom/Application.h"

#include <QScopedValueRollback>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "core/forms/ErrorRoll.h"

namespace kestrom {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        Show(failure);
    } catch (...) {
        Show(std::runtime_error("An unknown error occurred."));
    }
    return false;
}

/// Shows one box at a time: otherwise a window that fails while it is painted would fail again
/// behind the box, endlessly.
void Application::Show(const std::exception& failure) {
    std::fprintf(stderr, "kestrom: %s\n", failure.what());
    if (showing_) return;
    const QScopedValueRollback showing(showing_, true);
    core::forms::ShowFailure(failure);
}

} // namespace kestrom
