#include "core/forms/frmWizard.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/Settings.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "ui_frmWizard.h"

namespace core::forms {

namespace {

constexpr std::string_view kWizardsKey = R"(SOFTWARE\Vestrel\Kestrom\Wizards)";

} // namespace

frmWizard::frmWizard(std::string name, QWidget* parent)
    : Form(parent), name_(std::move(name)), ui_(std::make_unique<Ui::frmWizard>()) {
    ui_->setupUi(this);
    SetFinishText(tr("&Finish"));
    QFont heading = ui_->lblHeading->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.25);
    ui_->lblHeading->setFont(heading);
    for (QPushButton* const button : {ui_->cmdHelp, ui_->cmdCancel, ui_->cmdBack, ui_->cmdNext}) {
        connect(button, &QPushButton::clicked, this,
                [this, button] { Act(binding::TagOf(*button)); });
    }
}

frmWizard::~frmWizard() = default;

QFrame& frmWizard::AddStep(const QString& word, const QString& heading) {
    const int number = static_cast<int>(steps_.size());
    auto* const step = new QFrame;
    step->setObjectName(QStringLiteral("fraStep%1").arg(number));
    step->setAccessibleName(heading);
    ui_->fraStep->addWidget(step);

    auto* const button = new QToolButton(ui_->fraList);
    button->setObjectName(QStringLiteral("cmdStep%1").arg(number));
    button->setText(QStringLiteral("%1. %2").arg(number + 1).arg(word));
    button->setToolTip(heading);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setProperty("noDirty", true);
    binding::SetTag(*button, "STEP" + std::to_string(number));
    ui_->stepList->insertWidget(number, button);
    connect(button, &QToolButton::clicked, this, [this, button] {
        Act(binding::TagOf(*button));
        ShowButtons(); // a click on the step that stays has unchecked it
    });
    steps_.push_back(button);
    return *step;
}

void frmWizard::AddTextStep(const QString& word, const QString& heading, const QString& text,
                            const char* label, QWidget* below) {
    QFrame& step = AddStep(word, heading);
    auto* const shown = new QLabel(text, &step);
    shown->setObjectName(QLatin1String(label));
    shown->setWordWrap(true);
    auto* const column = new QVBoxLayout(&step);
    column->addWidget(shown);
    if (below) column->addWidget(below);
    column->addStretch();
}

void frmWizard::WireSteps() {
    binding::WireControls(*this);
    // The buttons were created before the controls of the steps, so the tab order is set here.
    QWidget* last = ui_->fraStep;
    for (QWidget* const button : std::initializer_list<QWidget*>{
             ui_->chkSkip, ui_->cmdHelp, ui_->cmdCancel, ui_->cmdBack, ui_->cmdNext}) {
        setTabOrder(last, button);
        last = button;
    }
}

void frmWizard::Begin() {
    const bool skips = GetRegNumber(kWizardsKey, name_ + "_SkipIntro", 0) != 0;
    ui_->chkSkip->setChecked(skips);
    Show(skips && LastStep() > 0 ? 1 : 0);
    Open();
}

int frmWizard::Step() const {
    return ui_->fraStep->currentIndex();
}

void frmWizard::GoTo(int step) {
    if (step < 0 || step > LastStep()) return;
    for (int passed = Step(); passed < step; ++passed) {
        if (ShowErrorRoll(StepErrors(passed))) continue;
        Show(passed);
        return;
    }
    Show(step);
}

std::vector<std::string> frmWizard::StepErrors(int /*step*/) {
    return {};
}

void frmWizard::SetFinishText(const QString& text) {
    finish_ = text;
}

void frmWizard::ShowStep(int /*step*/) {}

void frmWizard::closeEvent(QCloseEvent* event) {
    SetRegNumber(kWizardsKey, name_ + "_SkipIntro", ui_->chkSkip->isChecked() ? 1 : 0);
    Form::closeEvent(event);
}

/// A button is identified by the first four letters of its command.
void frmWizard::Act(const std::string& tag) {
    const std::string word = tag.substr(0, 4);
    if (word == "CANC") close();
    if (word == "FINI") FinishAndClose();
    Perform([&] {
        if (word == "HELP") ShowHelp(*this);
        if (word == "BACK") GoTo(Step() - 1);
        if (word == "NEXT") GoTo(Step() + 1);
        if (word == "STEP") GoTo(platform::StrToInt32(tag.substr(4)));
    });
}

void frmWizard::Show(int step) {
    ShowStep(step);
    ui_->fraStep->setCurrentIndex(step);
    ui_->lblHeading->setText(steps_[static_cast<std::size_t>(step)]->toolTip());
    ShowButtons();
    // The focus goes to the step's first entry, not to its last button.
    QWidget* const first = ui_->fraStep->currentWidget()->nextInFocusChain();
    if (step > 0 && ui_->fraStep->currentWidget()->isAncestorOf(first)) first->setFocus();
}

void frmWizard::ShowButtons() {
    for (int number = 0; number <= LastStep(); ++number)
        steps_[static_cast<std::size_t>(number)]->setChecked(number == Step());
    const bool isLast = Step() == LastStep();
    ui_->cmdNext->setText(isLast ? finish_ : tr("&Next"));
    binding::SetTag(*ui_->cmdNext, isLast ? "FINISH" : "NEXT");
    ui_->cmdBack->setEnabled(Step() > 0);
    ui_->chkSkip->setVisible(Step() == 0);
}

void frmWizard::FinishAndClose() {
    bool finished = false;
    Perform([&] {
        if (!ShowErrorRoll(StepErrors(Step())) || !Agreed()) return;
        Finish();
        finished = true;
    });
    if (finished) close();
}

int frmWizard::LastStep() const {
    return static_cast<int>(steps_.size()) - 1;
}

} // namespace core::forms
