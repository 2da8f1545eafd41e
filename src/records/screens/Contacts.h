#pragma once

#include <QWidget>
#include <memory>

#include "core/binding/ShownFields.h"
#include "records/ContactRows.h"

class QListWidgetItem;

namespace Ui {
class Contacts;
}

namespace records::screens {

/// The people and firms that belong to a record: their list, and the fields of one of them. A
/// contact is written when it is added, when another is selected, and when its record is saved.
class Contacts : public QWidget {
    Q_OBJECT

  public:
    explicit Contacts(QWidget* parent = nullptr);
    ~Contacts() override;

    /// Shows the contacts of a record of kind `dbType`; without an id there is nothing to do here.
    void Load(std::int16_t dbType, std::int32_t idRelated);
    /// Writes what was changed in the fields. Failures are thrown, the changes stay.
    void SaveCurrent();

  Q_SIGNALS:
    /// Something in the fields isn't saved yet.
    void Changed();

  private:
    void Wire();
    void Add();
    void Remove();
    void MoveTo(QListWidgetItem* to);
    void FillContacts(std::int32_t idSelected);
    void ShowCurrent();

    std::unique_ptr<Ui::Contacts> ui_;
    core::binding::ShownFields fields_;
    RelatedOwner owner_;
    std::int32_t id_ = 0; ///< of the contact in the fields
    bool changed_ = false;
    bool showing_ = false;
};

} // namespace records::screens
