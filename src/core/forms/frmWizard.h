#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/forms/Form.h"

class QFrame;
class QToolButton;

namespace Ui {
class frmWizard;
}

namespace core::forms {

/// The frame that wizards share: steps one after the other, with the way back, on and to any of
/// them, and the choice to pass over the introduction (step 0) from now on.
///
/// A derived wizard is made so: AddStep for each step, its controls into the frames that are
/// answered, then WireSteps; its own Setup fills the controls and calls Begin.
class frmWizard : public Form {
    Q_OBJECT

  public:
    ~frmWizard() override;

    int Step() const;
    /// Goes to a step. On the way forward each step before it is tested, and the first with
    /// something wrong stays, with the error roll.
    void GoTo(int step);

  protected:
    /// `name` is what the choice about the introduction is remembered under.
    explicit frmWizard(std::string name, QWidget* parent = nullptr);

    /// A new last step. The heading stands above it, the word in the list of steps.
    QFrame& AddStep(const QString& word, const QString& heading);
    /// Connects the controls of all steps.
    void WireSteps();
    /// Shows the wizard at its first step, or at the one behind the introduction.
    void Begin();

    /// What is wrong with a step, a line each.
    virtual std::vector<std::string> StepErrors(int step);
    /// Asks what there is to ask before Finish, once nothing is wrong; false keeps the wizard open.
    virtual bool Agreed() { return true; }
    /// What the button of the last step says; "Finish" unless this is called.
    void SetFinishText(const QString& text);
    /// A step is about to show, a summary for one.
    virtual void ShowStep(int step);
    /// Does what the wizard is for; the wizard closes then. What it throws is shown and keeps the
    /// wizard open.
    virtual void Finish() = 0;

    void closeEvent(QCloseEvent* event) override;

  private:
    void Act(const std::string& tag);
    void Show(int step);
    void ShowButtons();
    void FinishAndClose();
    int LastStep() const;

    std::string name_;
    std::unique_ptr<Ui::frmWizard> ui_;
    std::vector<QToolButton*> steps_;
    QString finish_;
};

} // namespace core::forms
