#pragma once

#include <cstdint>
#include <memory>

#include <QDialog>

#include "platform/printing/PageSetup.h"

namespace Ui {
class frmPageSetup;
}

namespace reports::screens {

/// Whether the orientation can be chosen; a definition may fix it.
enum class OrientationChoice : std::uint8_t { Free, Fixed };

/// Asks for the paper, the orientation and the margins of reports. Deletes itself when it closes.
class frmPageSetup : public QDialog {
    Q_OBJECT

  public:
    explicit frmPageSetup(QWidget* parent = nullptr);
    ~frmPageSetup() override;

    void Setup(const platform::PageSetup& setup, OrientationChoice choice);
    platform::PageSetup Chosen() const;

  private:
    void ShowRoom();

    std::unique_ptr<Ui::frmPageSetup> ui_;
};

} // namespace reports::screens
