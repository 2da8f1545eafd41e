#pragma once

#include <array>
#include <memory>
#include <string>

#include "books/PostTransaction.h"
#include "core/RecordKinds.h"
#include "core/forms/Form.h"

class QListWidget;
class QPushButton;

namespace Ui {
class frmTransCategory;
}

namespace books::screens {

/// The categories of transactions, a list for each class, with buttons to add and remove them.
class frmTransCategory : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmTransCategory(QWidget* parent = nullptr);
    ~frmTransCategory() override;

    void Setup();

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    struct Column {
        Ien ien;
        QListWidget* list;
        QPushButton* add;
    };

    void Fill();
    void ListChosen(QListWidget& list);
    void Add(Ien ien);
    void Remove();

    std::unique_ptr<Ui::frmTransCategory> ui_;
    std::array<Column, 3> columns_;
    QListWidget* current_ = nullptr;
};

} // namespace books::screens
