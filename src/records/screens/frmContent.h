#pragma once

#include <memory>

#include "records/screens/FurnishingForm.h"

namespace Ui {
class frmContent;
}

namespace records::screens {

/// A furnishing or movable item of a unit.
class frmContent : public FurnishingForm {
    Q_OBJECT

  public:
    explicit frmContent(QWidget* parent = nullptr);
    ~frmContent() override;

  protected:
    QString Name() const override;
    std::vector<std::string> Errors() override;

  private:
    std::unique_ptr<Ui::frmContent> ui_;
};

} // namespace records::screens
