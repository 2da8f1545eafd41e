#pragma once

#include <memory>

#include "core/screens/Form.h"

namespace Ui {
class frmAbout;
}

namespace core::screens {

/// What this program is, and which version.
class frmAbout : public Form {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

    void Setup();

  private:
    std::unique_ptr<Ui::frmAbout> ui_;
};

} // namespace core::screens
