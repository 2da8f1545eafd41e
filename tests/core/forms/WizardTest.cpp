#include <QFrame>
#include <QVBoxLayout>

#include "core/Settings.h"
#include "core/forms/frmWizard.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

/// Three steps, of which those named in `wrong` are refused.
class SampleWizard : public core::forms::frmWizard {
  public:
    SampleWizard() : frmWizard("frmSampleWizard") {
        setObjectName(QStringLiteral("frmSampleWizard"));
        setWindowTitle(QStringLiteral("Sample"));
        for (const auto* word : {"Begin", "Middle", "End"}) {
            QFrame& step =
                AddStep(QLatin1String(word), QLatin1String("Step ") + QLatin1String(word));
            auto* const box = new QLineEdit(&step);
            box->setObjectName(QLatin1String("txt") + QLatin1String(word));
            box->setAccessibleName(QLatin1String(word));
            (new QVBoxLayout(&step))->addWidget(box);
        }
        WireSteps();
    }
    void Setup() { Begin(); }

    std::vector<int> wrong;
    std::vector<int> shown;
    bool fails = false;
    int* finished = nullptr;
    std::function<void()> meanwhile;

  protected:
    std::vector<std::string> StepErrors(int step) override {
        if (std::find(wrong.begin(), wrong.end(), step) == wrong.end()) return {};
        return {"Step " + std::to_string(step) + " is wrong."};
    }
    void ShowStep(int step) override { shown.push_back(step); }
    void Finish() override {
        if (fails) throw std::runtime_error("no room");
        ++*finished;
        if (meanwhile) meanwhile();
    }
};

class WizardTest : public ScreenTest {
  protected:
    QPointer<SampleWizard> Open() {
        QPointer<SampleWizard> wizard(new SampleWizard);
        wizard->finished = &finished_;
        wizard->Setup();
        return wizard;
    }
    static std::string NextText(const QWidget& wizard) {
        return Find<QPushButton>(wizard, "cmdNext").text().toStdString();
    }

    int finished_ = 0;
};

TEST_F(WizardTest, GoesOnAndBackAndFinishesOnItsLastStep) {
    const auto wizard = Open();
    EXPECT_EQ(wizard->Step(), 0);
    EXPECT_FALSE(Find<QPushButton>(*wizard, "cmdBack").isEnabled());
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(NextText(*wizard), "&Next");
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(wizard->Step(), 2);
    EXPECT_EQ(NextText(*wizard), "&Finish");
    ClickAction(*wizard, "BACK");
    EXPECT_EQ(wizard->Step(), 1);
    EXPECT_EQ(NextText(*wizard), "&Next");
    ClickAction(*wizard, "STEP2");
    ClickAction(*wizard, "FINISH");
    EXPECT_EQ(finished_, 1);
    EXPECT_FALSE(wizard && wizard->isVisible());
    EXPECT_EQ(Heard(), Said{});
}

TEST_F(WizardTest, TestsEveryStepItLeavesForward) {
    const auto wizard = Open();
    wizard->wrong = {1};
    ClickAction(*wizard, "STEP2");
    EXPECT_EQ(wizard->Step(), 1) << "the first wrong step stays";
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\nStep 1 is wrong.\n"});
    EXPECT_TRUE(Find<QToolButton>(*wizard, "cmdStep1").isChecked());
    EXPECT_FALSE(Find<QToolButton>(*wizard, "cmdStep2").isChecked());
    ClickAction(*wizard, "STEP0");
    EXPECT_EQ(wizard->Step(), 0);
    EXPECT_EQ(Heard(), Said{}) << "the way back is free";
    wizard->wrong = {2};
    ClickAction(*wizard, "STEP2");
    EXPECT_EQ(wizard->Step(), 2);
    ClickAction(*wizard, "FINISH");
    EXPECT_EQ(finished_, 0);
    EXPECT_TRUE(wizard && wizard->isVisible());
}

TEST_F(WizardTest, ASecondClickOnFinishDoesNothing) {
    const auto wizard = Open();
    ClickAction(*wizard, "STEP2");
    wizard->meanwhile = [&] {
        ClickAction(*wizard, "FINISH");
        ClickAction(*wizard, "CANCEL");
        EXPECT_TRUE(wizard->isVisible()) << "it closes when it has finished";
    };
    QWidget* const button = &Find<QPushButton>(*wizard, "cmdNext");
    ClickOn(*button);
    EXPECT_FALSE(wizard->isVisible());
    ClickOn(*button);
    EXPECT_EQ(finished_, 1);
}

TEST_F(WizardTest, AFailureAtTheEndKeepsItOpen) {
    const auto wizard = Open();
    wizard->fails = true;
    ClickAction(*wizard, "STEP2");
    ClickAction(*wizard, "FINISH");
    EXPECT_EQ(Heard(), Said{"Vestrel: no room"});
    EXPECT_TRUE(wizard && wizard->isVisible());
}

TEST_F(WizardTest, RemembersToPassOverItsIntroduction) {
    const std::string key = R"(SOFTWARE\Vestrel\Kestrom\Wizards)";
    auto wizard = Open();
    ClickOn(Find<QCheckBox>(*wizard, "chkSkip"));
    EXPECT_EQ(core::GetRegNumber(key, "frmSampleWizard_SkipIntro", -1), -1) << "not before it ends";
    ClickAction(*wizard, "CANCEL");
    EXPECT_EQ(core::GetRegNumber(key, "frmSampleWizard_SkipIntro", -1), 1);
    wizard = Open();
    EXPECT_EQ(wizard->Step(), 1);
    ClickAction(*wizard, "BACK");
    ClickOn(Find<QCheckBox>(*wizard, "chkSkip"));
    QTest::keyClick(wizard, Qt::Key_Escape);
    EXPECT_EQ(core::GetRegNumber(key, "frmSampleWizard_SkipIntro", -1), 0);
}

TEST_F(WizardTest, ShowsAStepBeforeItIsSeenAndReadsInOrder) {
    const auto wizard = Open();
    ClickAction(*wizard, "NEXT");
    EXPECT_EQ(wizard->shown, (std::vector<int>{0, 1}));
    EXPECT_EQ(MnemonicFaults(*wizard), Said{});
    EXPECT_EQ(TabOrderFaults(*wizard), Said{});
    EXPECT_EQ(NameFaults(*wizard), Said{});
}

} // namespace
} // namespace support
