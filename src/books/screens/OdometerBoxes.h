#pragma once

#include <QObject>

#include "books/Odometer.h"

class QLineEdit;

namespace books::screens {

/// The boxes of a trip's readings and of its distance. While the user types in one of them, the
/// others follow.
class OdometerBoxes : public QObject {
  public:
    OdometerBoxes(QLineEdit& begin, QLineEdit& end, QLineEdit& distance);

    const Odometer& Readings() const { return readings_; }
    /// Takes over readings that the boxes already show, or are about to show.
    void Take(const Odometer& readings) { readings_ = readings; }
    /// Does the same, and also shows the readings.
    void Show(const Odometer& readings);

  private:
    /// Shows the readings in all boxes except `typed`, in which the user is typing.
    void ShowBoxes(const QLineEdit* typed);

    QLineEdit& begin_;
    QLineEdit& end_;
    QLineEdit& distance_;
    Odometer readings_;
};

} // namespace books::screens
