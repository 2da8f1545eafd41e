#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"

class QTableWidgetItem;

namespace Ui {
class frmDocMgmt;
}

namespace documents::screens {

/// The list of letter templates: the files, and the kinds of records that each is offered for.
/// Ticks are saved immediately.
class frmDocMgmt : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmDocMgmt(QWidget* parent = nullptr);
    ~frmDocMgmt() override;

    void Setup();

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void Connect();
    void ConnectOptions();
    void ShowPaths(bool isOn);
    void Fill();
    void ShowSelected();
    void ShowShipped();
    void FlagTicked(const QTableWidgetItem& item);
    void Add();
    void AddShipped();
    void Edit();
    void Delete();
    void LoadOptions();
    void SaveOptions();
    std::int32_t SelectedDoc() const;

    std::unique_ptr<Ui::frmDocMgmt> ui_;
    bool isFilling_ = false;
};

} // namespace documents::screens
