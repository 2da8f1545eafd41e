#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

namespace bench {

/// Tells when a widget has been painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    /// Lets events run until the widget has been painted since the watch began, and all that was
    /// asked to be painted with it.
    void Wait() const {
        while (!isPainted_)
            QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) isPainted_ = true;
        return QObject::eventFilter(watched, event);
    }

  private:
    bool isPainted_ = false;
};

} // namespace bench
