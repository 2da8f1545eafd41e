#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "leases/LeaseTerms.h"
#include "platform/values/Date.h"

namespace Ui {
class frmChargeFrom;
}

namespace leases::screens {

/// Asks from which day a lease that is entered late is charged, and shows the rows that each answer
/// will post.
class frmChargeFrom : public QDialog {
    Q_OBJECT

  public:
    /// `since` is the day to propose.
    frmChargeFrom(LeaseTerms terms, platform::Date since, QWidget* parent = nullptr);
    ~frmChargeFrom() override;

    /// Returns the next due date that the answer gives the lease; nothing if the day entered isn't
    /// valid.
    std::optional<platform::Date> NextDue() const;

  private:
    void ShowAnswer();

    std::unique_ptr<Ui::frmChargeFrom> ui_;
    LeaseTerms terms_;
    platform::Date since_;
};

/// Asks the question if a lease with these terms raises it. Returns the next due date to give the
/// lease, unset if there was nothing to ask; nothing if the user cancelled.
std::optional<platform::Date> AskChargeFrom(const LeaseTerms& terms, QWidget& form);

} // namespace leases::screens
