#pragma once

#include <memory>

#include "records/screens/FurnishingForm.h"

namespace Ui {
class frmRoom;
}

namespace records::screens {

/// One room of a unit.
class frmRoom : public FurnishingForm {
    Q_OBJECT

  public:
    explicit frmRoom(QWidget* parent = nullptr);
    ~frmRoom() override;

  protected:
    QString Name() const override;
    std::vector<std::string> Errors() override;

  private:
    std::unique_ptr<Ui::frmRoom> ui_;
};

} // namespace records::screens
