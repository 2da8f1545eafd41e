#pragma once

#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"
#include "platform/values/Date.h"

namespace Ui {
class frmConfig;
class frmConfigGeneral;
class frmConfigAnalysis;
class frmConfigLeases;
class frmConfigOther;
} // namespace Ui

namespace shell::screens {

/// The settings that belong to the books.
class frmConfig : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmConfig(QWidget* parent = nullptr);
    ~frmConfig() override;

    void Setup();

  protected:
    void FindRow(platform::Recordset& row) override;
    void FindRowToWrite(platform::Recordset& row) override;
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void FollowOthers(const core::binding::Controls& touched) override;
    void ShowCaption() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void FillLists();
    void FillAccounts();
    void OfferExpiry();
    void ShowProgram();
    void ShowKeptSince();

    std::unique_ptr<Ui::frmConfig> ui_;
    std::unique_ptr<Ui::frmConfigGeneral> general_;
    std::unique_ptr<Ui::frmConfigAnalysis> analysis_;
    std::unique_ptr<Ui::frmConfigLeases> leases_;
    std::unique_ptr<Ui::frmConfigOther> other_;
    platform::Date keptSince_; ///< as it was read
};

} // namespace shell::screens
