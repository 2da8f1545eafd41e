#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "books/AutoEvent.h"
#include "books/EventSchedule.h"
#include "books/screens/PartyBoxes.h"
#include "books/screens/ReferenceBoxes.h"
#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

namespace Ui {
class frmAutoEvent;
}

namespace books::screens {

/// An automated event: what starts it and what it does.
class frmAutoEvent : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmAutoEvent(QWidget* parent = nullptr);
    ~frmAutoEvent() override;

    /// Opens an event, or a new one for id 0.
    void Setup(std::int32_t id);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void FillLists();
    void ShowAvailable();
    EventType Type() const;
    EventSchedule Schedule() const;
    /// Returns whether the interval of a stored event was changed: it starts again like a new one.
    bool StartsAgain() const;
    void ShowLastRun();

    std::unique_ptr<Ui::frmAutoEvent> ui_;
    std::unique_ptr<PartyBoxes> trigger_;
    std::unique_ptr<PartyBoxes> from_;
    std::unique_ptr<PartyBoxes> to_;
    std::unique_ptr<ReferenceBoxes> references_;
    /// The schedule as it was read; empty for a new event and for a triggered one.
    std::optional<EventSchedule> stored_;
    QString lastRun_;
};

} // namespace books::screens
