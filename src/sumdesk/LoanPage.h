#pragma once

#include <QWidget>
#include <memory>

#include "sumdesk/Calculator.h"
#include "sumdesk/LoanSum.h"

namespace Ui {
class LoanPage;
}

class QLineEdit;

namespace sumdesk {

/// Finds the payment, the rate or the term of a loan, and its balance after some payments.
class LoanPage : public QWidget {
    Q_OBJECT

  public:
    explicit LoanPage(QWidget* parent = nullptr);
    ~LoanPage() override;

    /// The calculator must outlive the page.
    void SetCalculator(Calculator& calculator) { calculator_ = &calculator; }

    void Clear();

  Q_SIGNALS:
    void TapeChanged();

  private:
    LoanField Wanted() const;
    QLineEdit& BoxOf(LoanField field) const;
    void ChooseWanted();
    void Calculate();
    void ShowAnswer(const LoanAnswer& answer);

    std::unique_ptr<Ui::LoanPage> ui_;
    Calculator* calculator_ = nullptr;
};

} // namespace sumdesk
