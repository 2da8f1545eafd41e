#pragma once

#include <memory>

#include "core/forms/Form.h"

namespace Ui {
class frmAbout;
}

namespace shell::screens {

/// What this program is, and which version.
class frmAbout : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

    void Setup();

  private:
    std::unique_ptr<Ui::frmAbout> ui_;
};

} // namespace shell::screens
