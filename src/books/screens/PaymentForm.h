#pragma once

#include <functional>

#include "books/Payment.h"
#include "core/RecordKinds.h"
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

/// The screen of a new or stored payment that settles charges of a ledger. A derived screen adds
/// its list of charges and the parts particular to its kind of payment.
class PaymentForm : public core::forms::EntryForm {
    Q_OBJECT

  public:
    ~PaymentForm() override;

  protected:
    explicit PaymentForm(QWidget* parent = nullptr);

    /// Connects the controls created by setupUi, which have the same names on every such screen.
    /// The charges' menu comes last in the menu bar and is also the list's context menu.
    void WirePayment(QAbstractItemView& charges, QMenu* before = nullptr);
    QMenu& ChargeMenu() { return *chargeMenu_; }
    /// Adds an item to a menu; errors of its command are shown.
    QAction* AddItem(QMenu& menu, const char* name, const QString& text,
                     const std::function<void()>& work);

    /// Reads the payment and shows it; the screen doesn't open if `read` throws.
    void OpenPayment(std::int32_t idTransaction, const std::function<void()>& read);
    /// Posts the payment. If another program has changed what it settles, nothing is posted and the
    /// list shows the present charges before the user reads why.
    void Store() final;
    /// Posts the payment as it was entered. Throws ConflictError, and posts nothing, if the charges
    /// aren't in the books as they were read.
    virtual void PostPayment() = 0;
    /// Reads the charges from the books again and lists them; the other entries stay.
    virtual void RereadCharges() = 0;

    /// Shows the whole payment.
    virtual void ShowPayment() = 0;
    /// Fills the lists of payers and receivers.
    virtual void FillParties() = 0;

    /// Shows the entries that all payments have; `types` are the categories to choose from.
    void ShowEntries(const Payment& payment, const std::vector<std::string>& types);
    /// Reads the entries back. The kind of the payer doesn't change.
    void ReadEntries(Payment& payment) const;
    /// Reads the receiver.
    void ReadReceiver(Payment& payment) const;
    /// Lists the records of a kind; a typed name stays a mere name.
    static void FillParty(core::RecordKind kind, QComboBox& combo);

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
