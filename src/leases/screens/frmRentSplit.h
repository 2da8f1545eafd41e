#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "core/forms/EntryForm.h"
#include "leases/RentSplit.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

namespace core::binding {
class DateEdit;
class MoneyEdit;
} // namespace core::binding

namespace Ui {
class frmRentSplit;
}

namespace leases::screens {

/// Splits a charge in two, so that part of it can be paid.
class frmRentSplit : public core::forms::EntryForm {
    Q_OBJECT

  public:
    explicit frmRentSplit(QWidget* parent = nullptr);
    ~frmRentSplit() override;

    void Setup(std::int32_t idRentLog);

  Q_SIGNALS:
    /// Emitted when the charge was replaced by its parts; 0 for a part that was left out.
    void Saved(std::int32_t idRentLog, const std::array<std::int32_t, 2>& parts);

  protected:
    void Store() override;
    bool Agreed() override;
    std::vector<std::string> Errors() override;
    void closeEvent(QCloseEvent* event) override;

  private:
    /// The controls of one part.
    struct Line {
        core::binding::DateEdit* date;
        QComboBox* category;
        core::binding::MoneyEdit* amount;
        QLineEdit* description;
        QRadioButton* isRent;
    };

    void ShowSplit();
    void ShowPart(const Line& line, const SplitPart& part);
    static SplitPart ReadPart(const Line& line);
    void ReadParts();
    void AmountChanged(std::size_t part);
    void ShowDifference();

    std::unique_ptr<Ui::frmRentSplit> ui_;
    std::array<Line, 2> lines_;
    RentSplit split_;
};

} // namespace leases::screens
