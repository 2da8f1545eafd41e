#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmWelcome;
}

namespace dbmender {

/// How a user who has no books yet begins.
enum class Beginning { Create, OpenExisting, Sample, Restore };

/// The first thing that a new user sees: four ways to begin.
class frmWelcome : public QDialog {
    Q_OBJECT

  public:
    explicit frmWelcome(QWidget* parent = nullptr);
    ~frmWelcome() override;

  Q_SIGNALS:
    void Chosen(dbmender::Beginning beginning);

  private:
    std::unique_ptr<Ui::frmWelcome> ui_;
};

} // namespace dbmender
