#pragma once

#include <QApplication>

namespace kestrom {

/// The event loop's owner. An error that reaches it from an event is shown, and the program goes
/// on.
class Application : public QApplication {
    Q_OBJECT

  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void Show(const std::exception& failure);

    bool showing_ = false;
};

} // namespace kestrom
