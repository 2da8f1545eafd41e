#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/forms/Form.h"
#include "exchange/Port.h"

namespace Ui {
class frmPort;
}

namespace exchange::screens {

/// Exports tables to a text file and imports them.
class frmPort : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmPort(QWidget* parent = nullptr);
    ~frmPort() override;

    void Setup();

  protected:
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
    /// Runs `work` with the controls disabled; an error is shown.
    void Run(const std::function<void()>& work);

    std::unique_ptr<Ui::frmPort> ui_;
};

} // namespace exchange::screens
