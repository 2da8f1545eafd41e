#pragma once

#include <memory>

#include "core/forms/Form.h"

namespace Ui {
class frmAbout;
}

namespace shell::screens {

/// The program's name and version.
class frmAbout : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

    void Setup();

  private:
    /// Returns the text to copy: the name, the version, and the other facts that a bug report
    /// needs.
    QString Text() const;

    std::unique_ptr<Ui::frmAbout> ui_;
};

} // namespace shell::screens
