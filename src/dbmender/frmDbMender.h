#pragma once

#include <QDialog>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dbmender/Diagnosis.h"
#include "dbmender/MenderLine.h"
#include "dbmender/Remedies.h"
#include "dbmender/frmWelcome.h"

class QRadioButton;

namespace Ui {
class frmDbMender;
}

namespace dbmender {

/// Starts a program that outlives this one; returns false if it can't be started.
using StartProgram = std::function<bool(const std::filesystem::path& program,
                                        const std::vector<std::string>& arguments)>;

/// Shows what is wrong with a registered database, offers remedies, applies one and starts the
/// window program again.
class frmDbMender : public QDialog {
    Q_OBJECT

  public:
    frmDbMender(MenderLine line, StartProgram start, QWidget* parent = nullptr);
    ~frmDbMender() override;

    void Setup();
    /// Opens on what the user chose on the welcome page. Cancel calls `back`, which shows that page
    /// again.
    void SetupFor(Beginning beginning, std::function<void()> back);

    /// Handles Escape and Cancel: while a sample is being made, they only stop that.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void ShowFinding();
    void OfferRemedies();
    void RemedyChosen();
    void ShowObjection();
    void MakeRoom();
    void Browse();
    void Restore();
    /// Opens restored books read-only, and proposes to use them.
    void OpenRestored(const std::filesystem::path& folder);
    void Mend();
    void StartAgain();
    std::string Program() const;
    void SetWorking(bool working);
    Choice Chosen() const;
    QRadioButton& ButtonOf(Remedy remedy) const;

    std::unique_ptr<Ui::frmDbMender> ui_;
    MenderLine line_;
    StartProgram start_;
    std::function<void()> back_;
    Diagnosis diagnosis_;
    QString proposed_; ///< the folder that was put into the box last
    bool working_ = false;
    bool cancelled_ = false;
};

} // namespace dbmender
