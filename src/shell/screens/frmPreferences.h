#pragma once

#include <memory>

#include "core/forms/Form.h"

class QCheckBox;
class QLineEdit;

namespace Ui {
class frmPreferences;
}

namespace shell::screens {

/// The preferences of this machine. Close saves the entries, Cancel drops them.
class frmPreferences : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmPreferences(QWidget* parent = nullptr);
    ~frmPreferences() override;

    void Setup();
    void SaveAndClose();

  private:
    template <class Flag, class Days>
    void ForEach(Flag flag, Days days);

    std::unique_ptr<Ui::frmPreferences> ui_;
};

} // namespace shell::screens
