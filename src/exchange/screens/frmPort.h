#pragma once

#include <functional>
#include <memory>

#include "core/forms/Form.h"
#include "exchange/Port.h"

namespace Ui {
class frmPort;
}

namespace exchange::screens {

/// Moves the contents of tables to a text file and back.
class frmPort : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmPort(QWidget* parent = nullptr);
    ~frmPort() override;

    void Setup();

  protected:
    bool MayClose() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Connect();
    void ShowTables();
    void TabChanged();
    void ChooseFile();
    void Execute();
    void Export();
    void Import(ImportMode mode);
    PortWatcher Watcher();
    /// Does `work` while the screen takes no other command; a failure is shown.
    void RunAlone(const std::function<void()>& work);

    std::unique_ptr<Ui::frmPort> ui_;
    bool busy_ = false;
};

} // namespace exchange::screens
