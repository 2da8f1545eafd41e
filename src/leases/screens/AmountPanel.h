#pragma once

#include <QWidget>
#include <optional>

#include "leases/AmountPayment.h"

class QCheckBox;
class QPushButton;

namespace core::binding {
class MoneyEdit;
}

namespace leases::screens {

class PreviewList;

/// The panel in which the user enters an amount that came in, with the rows that it will write.
/// Without an amount the preview is hidden, and whole charges are paid.
class AmountPanel : public QWidget {
    Q_OBJECT

  public:
    explicit AmountPanel(QWidget* parent = nullptr);

    /// Returns whether an amount, or something else, was typed.
    bool IsUsed() const;
    /// Returns the amount; nothing if the text isn't one.
    std::optional<platform::Currency> Received() const;
    RentPart Part() const;
    void ShowPreview(const PreviewRows& rows);

  Q_SIGNALS:
    void Changed();
    /// Emitted to pay the charge in focus one place earlier (-1) or later (1).
    void MoveAsked(int step);

  private:
    void Follow();

    core::binding::MoneyEdit* received_;
    QPushButton* earlier_;
    QPushButton* later_;
    QCheckBox* part_;
    PreviewList* preview_;
};

} // namespace leases::screens
