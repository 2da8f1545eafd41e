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
    /// Goes on from readings that the boxes show already, or are about to.
    void Take(const Odometer& readings) { readings_ = readings; }
    /// The same, and shows them.
    void Show(const Odometer& readings);

  private:
    /// The box that is typed in stays as it is.
    void ShowBoxes(const QLineEdit* typed);

    QLineEdit& begin_;
    QLineEdit& end_;
    QLineEdit& distance_;
    Odometer readings_;
};

} // namespace books::screens
