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

/// The base of all wizards: consecutive steps with buttons to move back, forward and to any step,
/// and a choice to skip the introduction (step 0) from now on.
///
/// A derived wizard calls AddStep for each step, puts its controls into the returned frames, then
/// calls WireSteps; its own Setup fills the controls and calls Begin.
class frmWizard : public Form {
    Q_OBJECT

  public:
    ~frmWizard() override;

    int Step() const;
    /// Goes to a step. On the way forward each step is validated first; the first one with errors
    /// is shown with its error list instead.
    void GoTo(int step);

  protected:
    /// `name` is the key under which skipping the introduction is remembered.
    explicit frmWizard(std::string name, QWidget* parent = nullptr);

    /// Adds a step at the end. Its heading is shown above it, and `word` in the list of steps.
    QFrame& AddStep(const QString& word, const QString& heading);
    /// Adds a step that shows a text named `label`, with a control below it if there is one.
    void AddTextStep(const QString& word, const QString& heading, const QString& text,
                     const char* label = "lblIntro", QWidget* below = nullptr);
    /// Connects the controls of all steps.
    void WireSteps();
    /// Shows the wizard at its first step, or after the introduction if that is skipped.
    void Begin();

    /// Returns the errors of a step, a line each.
    virtual std::vector<std::string> StepErrors(int step);
    /// Asks any questions before Finish, once there are no errors; returns false to keep the wizard
    /// open.
    virtual bool Agreed() { return true; }
    /// Sets the last step's button; "Finish" by default.
    void SetFinishText(const QString& text);
    /// Called before a step is shown, to fill a summary for example.
    virtual void ShowStep(int step);
    /// Does the wizard's work, after which it closes. If it throws, the error is shown and the
    /// wizard stays open.
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
