#pragma once

#include <QWidget>
#include <memory>

#include "core/RecordKinds.h"
#include "core/binding/ShownFields.h"
#include "records/ContactRows.h"

class QListWidgetItem;

namespace Ui {
class Contacts;
}

namespace records::screens {

/// The contacts of a record: a list of them, and the fields of the selected one. A contact is saved
/// when it is added, when another is selected, and when its record is saved.
class Contacts : public QWidget {
    Q_OBJECT

  public:
    explicit Contacts(QWidget* parent = nullptr);
    ~Contacts() override;

    /// Shows the contacts of a record of kind `dbType`; the panel is disabled if it has no id yet.
    void Load(core::RecordKind dbType, std::int32_t idRelated);
    /// Writes the changed fields within the unit of work that saves the record. Throws on failure.
    /// The changes count as saved once NoteWritten is called after the unit of work.
    void Write() const;
    void NoteWritten();

  Q_SIGNALS:
    /// Emitted if the fields hold something that isn't saved yet.
    void Changed();

  private:
    void Wire();
    void SaveCurrent();
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
