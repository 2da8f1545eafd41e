#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace platform::qt {

/// Turns requests from outside to end the program into one signal in the event loop: SIGTERM,
/// SIGINT, SIGHUP and the end of the desktop session. A process has one of these at a time.
class QuitRequests : public QObject {
    Q_OBJECT

  public:
    /// The application object must exist.
    QuitRequests();
    /// Restores the default handling of the signals.
    ~QuitRequests() override;

  Q_SIGNALS:
    /// Emitted if the program must end now, in order and without questions.
    void QuitAsked();

  private:
    void ReadSignal();

    QSocketNotifier notifier_;
};

} // namespace platform::qt
