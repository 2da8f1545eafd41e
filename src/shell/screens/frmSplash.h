#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmSplash;
}

namespace shell::screens {

/// Shown while the program starts.
class frmSplash : public QWidget {
    Q_OBJECT

  public:
    frmSplash();
    ~frmSplash() override;

    /// Shows it in the middle of the screen and paints it immediately.
    void Setup();

  private:
    std::unique_ptr<Ui::frmSplash> ui_;
};

} // namespace shell::screens
