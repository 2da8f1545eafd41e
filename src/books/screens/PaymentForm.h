#pragma once

#include <functional>

#include "books/Payment.h"
#include "core/forms/EntryForm.h"

class QAbstractItemView;
class QAction;
class QComboBox;
class QLineEdit;
class QMenu;

namespace core::binding {
class DateEdit;
}

namespace books::screens {

/// The screen of a payment that settles charges of a ledger, new or stored. A derived screen adds
/// its list of charges, and what its kind of payment has besides.
class PaymentForm : public core::forms::EntryForm {
    Q_OBJECT

  public:
    ~PaymentForm() override;

  protected:
    explicit PaymentForm(QWidget* parent = nullptr);

    /// Connects what setupUi made; the boxes have the same names on every such screen. The menu bar
    /// ends with the charges, whose menu is the list's context menu too.
    void WirePayment(QAbstractItemView& charges, QMenu* before = nullptr);
    QMenu& ChargeMenu() { return *chargeMenu_; }
    /// Adds an item to a menu; what it throws is shown.
    QAction* AddItem(QMenu& menu, const char* name, const QString& text,
                     const std::function<void()>& work);

    /// Reads the payment and shows it; the screen doesn't open if `read` throws.
    void OpenPayment(std::int32_t idTransaction, const std::function<void()>& read);
    /// Shows all of the payment.
    virtual void ShowPayment() = 0;
    /// Fills the lists of payers and receivers.
    virtual void FillParties() = 0;

    /// Shows the entries that all payments have; the payment may have one of these types.
    void ShowEntries(const Payment& payment, const std::vector<std::string>& types);
    /// Reads them back. The kind of the payer stays.
    void ReadEntries(Payment& payment) const;
    /// Reads the receiver.
    void ReadReceiver(Payment& payment) const;
    /// Lists the records of a kind; a name that was typed stays, and nobody is chosen for it.
    static void FillParty(int kind, QComboBox& combo);

  private:
    struct Boxes {
        QComboBox* from = nullptr;
        QComboBox* to = nullptr;
        QComboBox* type = nullptr;
        core::binding::DateEdit* day = nullptr;
        QLineEdit* check = nullptr;
        QLineEdit* description = nullptr;
    };

    Boxes boxes_;
    QMenu* chargeMenu_;
    QAbstractItemView* charges_ = nullptr;
};

} // namespace books::screens
