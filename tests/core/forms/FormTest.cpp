#include "core/forms/Form.h"

#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/Settings.h"
#include "core/binding/EnableContainer.h"
#include "core/binding/Tags.h"
#include "core/forms/FitScreen.h"
#include "core/forms/FormPlace.h"
#include "core/forms/Help.h"
#include "core/forms/OpenForms.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::FormRectangle;
using core::FormSizing;
using core::forms::Form;

class SampleForm : public Form {
  public:
    explicit SampleForm(FormSizing sizing = FormSizing::Resizable) : Form(nullptr, sizing) {
        setObjectName(QStringLiteral("frmSample"));
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(new QLineEdit(this));
        resize(300, 200);
    }
    using Form::Open;
};

class FormTest : public ScreenTest {
  protected:
    static void Store(std::string_view place, std::int32_t state = 0) {
        core::SetRegString(R"(SOFTWARE\Vestrel\FormPosition)", "frmSample", place);
        core::SetRegNumber(R"(SOFTWARE\Vestrel\FormState)", "frmSample", state);
    }
    static std::string StoredPlace() {
        return core::GetRegString(R"(SOFTWARE\Vestrel\FormPosition)", "frmSample", "none");
    }
    static std::int32_t StoredState() {
        return core::GetRegNumber(R"(SOFTWARE\Vestrel\FormState)", "frmSample", -1);
    }
};

TEST_F(FormTest, OpensWhereItWasClosed) {
    auto* form = new SampleForm;
    form->Open();
    form->move(40, 50);
    form->resize(320, 240);
    form->close();
    EXPECT_EQ(StoredPlace(), "40,50,320,240");
    EXPECT_EQ(StoredState(), 0);

    form = new SampleForm;
    form->Open();
    EXPECT_EQ(form->pos(), QPoint(40, 50));
    EXPECT_EQ(form->size(), QSize(320, 240));
}

TEST_F(FormTest, AFixedFormTakesOnlyItsPlace) {
    Store("40,50,700,600");
    auto* const form = new SampleForm(FormSizing::Fixed);
    form->Open();
    EXPECT_EQ(form->pos(), QPoint(40, 50));
    EXPECT_NE(form->size(), QSize(700, 600));
}

TEST_F(FormTest, AMaximisedFormKeepsItsLastNormalPlace) {
    Store("40,50,320,240");
    auto* const form = new SampleForm;
    form->Open();
    form->showMaximized();
    form->close();
    EXPECT_EQ(StoredPlace(), "40,50,320,240");
    EXPECT_EQ(StoredState(), 2);
    auto* const again = new SampleForm;
    again->Open();
    EXPECT_TRUE(again->isMaximized());
}

TEST_F(FormTest, APlaceOffEveryScreenIsRescued) {
    Store("90000,-7000,320,240");
    auto* const form = new SampleForm;
    form->Open();
    EXPECT_TRUE(form->screen()->availableGeometry().contains(form->pos()));
}

TEST_F(FormTest, AStoredPlaceThatIsNoneIsPassedOver) {
    for (const char* const place : {"here", "1,2,3", ""}) {
        Store(place);
        auto* const form = new SampleForm;
        form->Open();
        EXPECT_EQ(form->size(), QSize(300, 200)) << place;
        form->close();
    }
}

/// As a wizard is laid out: rows that hold layouts, and a row of buttons at the end.
TEST_F(FormTest, AFormTooLargeForTheScreenScrollsWithAllItHolds) {
    auto* const form = new SampleForm;
    auto* const page = qobject_cast<QVBoxLayout*>(form->layout());
    auto* const upper = new QHBoxLayout;
    auto* const wide = new QLineEdit;
    wide->setMinimumSize(3000, 2000);
    upper->addWidget(wide);
    page->addLayout(upper);
    auto* const label = new QLabel(QStringLiteral("Below"));
    page->addWidget(label);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* const next = new QPushButton(QStringLiteral("Next"));
    buttons->addWidget(next);
    page->addLayout(buttons);
    form->Open();
    SettleEvents();
    const auto* const area = form->findChild<QScrollArea*>(QStringLiteral("scroll"));
    ASSERT_NE(area, nullptr);
    EXPECT_TRUE(area->isAncestorOf(wide));
    EXPECT_TRUE(area->isAncestorOf(label));
    EXPECT_FALSE(area->isAncestorOf(next)) << "the buttons stay";
    const QSize room = form->screen()->availableGeometry().size();
    EXPECT_LE(form->width(), room.width());
    EXPECT_TRUE(form->rect().contains(next->geometry()));
}

TEST_F(FormTest, EscapeClosesAndF1OpensThePageOfTheForm) {
    QString asked;
    core::forms::SetHelpOpener([&](QWidget*, const QString& topic) { asked = topic; });
    auto* const form = new SampleForm;
    form->Open();
    core::forms::ShowHelp(*form);
    EXPECT_EQ(asked, QStringLiteral("frmSample"));
    core::forms::SetHelpOpener({});
    core::forms::ShowHelp(*form);
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FormTest, ARecordOpensOnceAndComesToTheFront) {
    core::forms::RegisterOpenForms();
    int opened = 0;
    core::RegisterOpener(core::kOwner, [&](const core::EditRequest&) { ++opened; });
    auto* const form = new SampleForm;
    core::binding::SetTag(*form, "42");
    form->Open();
    core::EditRecord(core::kOwner, 42);
    EXPECT_EQ(opened, 0);
    core::EditRecord(core::kOwner, 43);
    EXPECT_EQ(opened, 1);
    core::EditRecord(core::kOwner, 0);
    EXPECT_EQ(opened, 2) << "a new record always opens";
    form->close();
    SettleEvents();
    core::EditRecord(core::kOwner, 42);
    EXPECT_EQ(opened, 3);
    core::RegisterOpener(core::kOwner, [](const core::EditRequest&) {});
}

TEST_F(FormTest, AllFormsCloseTheLastOpenedFirst) {
    std::vector<int> order;
    for (const int number : {1, 2, 3}) {
        auto* const form = new SampleForm;
        QObject::connect(form, &QObject::destroyed, form,
                         [&order, number] { order.push_back(number); });
        form->Open();
    }
    core::forms::CloseAllForms();
    SettleEvents();
    EXPECT_EQ(order, (std::vector{3, 2, 1}));
    EXPECT_FALSE(core::forms::BringToFront(42));
}

struct PlaceCase {
    const char* what;
    FormRectangle wanted;
    FormRectangle place;
};

TEST(FormPlace, KeepsWhatCanBeHeldAndRescuesTheRest) {
    const std::vector<FormRectangle> screens = {{0, 0, 1280, 800}, {1280, 0, 1920, 1080}};
    for (const PlaceCase& one : {
             PlaceCase{"inside", {10, 20, 300, 200}, {10, 20, 300, 200}},
             PlaceCase{"across both", {1200, 20, 300, 200}, {1200, 20, 300, 200}},
             PlaceCase{"mostly off, yet to be held", {-200, 20, 300, 200}, {-200, 20, 300, 200}},
             PlaceCase{"too little to hold", {-290, 20, 300, 200}, {0, 20, 300, 200}},
             PlaceCase{"title above the screen", {10, -100, 300, 200}, {10, 0, 300, 200}},
             PlaceCase{"on a screen that was removed", {5000, 20, 300, 200}, {2900, 20, 300, 200}},
             PlaceCase{"below", {10, 900, 300, 200}, {10, 600, 300, 200}},
             PlaceCase{"larger than the screen", {-9000, 0, 4000, 3000}, {0, 0, 1280, 800}},
             PlaceCase{
                 "numbers of any size", {2147483647, -2147483647, 300, 200}, {2900, 0, 300, 200}},
         }) {
        EXPECT_EQ(core::forms::RescuedPlace(one.wanted, screens), one.place) << one.what;
    }
    EXPECT_EQ(core::forms::RescuedPlace({1, 2, 3, 4}, {}), (FormRectangle{1, 2, 3, 4}));
}

TEST(LetFormScroll, TakesTheControlsOfInnerLayoutsAlong) {
    QWidget form;
    auto* const column = new QVBoxLayout(&form);
    auto* const large = new QLineEdit(&form);
    large->setMinimumSize(4000, 100);
    column->addWidget(large);
    auto* const row = new QHBoxLayout;
    column->addLayout(row);
    auto* const box = new QLineEdit(&form);
    row->addWidget(box);
    ASSERT_TRUE(core::forms::LetFormScroll(form));
    EXPECT_EQ(box->parentWidget(), large->parentWidget()) << "it would lie under the page";
    EXPECT_NE(box->parentWidget(), &form);
}

TEST(EnableContainer, ReachesIntoFramesAndLeavesTheContainer) {
    QFrame container;
    auto* const frame = new QFrame(&container);
    auto* const box = new QLineEdit(frame);
    core::binding::EnableContainer(container, false);
    EXPECT_TRUE(container.isEnabled());
    EXPECT_FALSE(frame->isEnabled());
    core::binding::EnableContainer(container, true);
    EXPECT_TRUE(box->isEnabled());
}

} // namespace
} // namespace support
