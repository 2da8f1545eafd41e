#pragma once

#include <QApplication>

namespace kestrom {

/// Owns the event loop. Shows an error that escapes from an event handler, and continues.
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
