#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace platform::qt {

/// Turns what ends a program from outside into one signal in the event loop: SIGTERM, SIGINT,
/// SIGHUP and the end of the desktop session. One at a time in a process.
class QuitRequests : public QObject {
    Q_OBJECT

  public:
    /// Needs the application object.
    QuitRequests();
    /// Gives the signals their old meaning.
    ~QuitRequests() override;

  Q_SIGNALS:
    /// The program is to end now and in order, without asking anything.
    void QuitAsked();

  private:
    void ReadSignal();

    QSocketNotifier notifier_;
};

} // namespace platform::qt
