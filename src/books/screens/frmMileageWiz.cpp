#include "books/screens/frmMileageWiz.h"

#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include <fmt/core.h>

#include "books/TripWizard.h"
#include "books/screens/PlanPages.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/binding/DayErrors.h"
#include "core/forms/ErrorRoll.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "ui_PlanPeriod.h"

namespace books::screens {

using core::forms::Guarded;
using platform::Date;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

enum class Page { Welcome, Period, Vehicles, Buildings, Preview };

std::uint32_t SeedOfTheClock() {
    constexpr double kTicksPerSecond = 1000;
    const auto day = static_cast<std::uint32_t>(platform::Today().Serial());
    return day * 86'400'000U +
           static_cast<std::uint32_t>(platform::SecondOfDay() * kTicksPerSecond);
}

template <class PageType>
PageType* PutInto(QFrame& step) {
    auto* const page = new PageType(&step);
    auto* const column = new QVBoxLayout(&step);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(page);
    return page;
}

} // namespace

frmMileageWiz::frmMileageWiz(QWidget* parent, std::optional<std::uint32_t> seed)
    : frmWizard("frmMileageWiz", parent),
      period_(std::make_unique<Ui::PlanPeriod>()),
      chance_(seed.value_or(SeedOfTheClock())) {
    setObjectName(QStringLiteral("frmMileageWiz"));
    setWindowTitle(tr("Mileage Log Wizard"));
    SetFinishText(tr("&Submit"));
    MakeSteps();
    WireSteps();
    Connect();
}

frmMileageWiz::~frmMileageWiz() = default;

void frmMileageWiz::MakeSteps() {
    AddTextStep(
        tr("Welcome"), tr("Reconstruct a Mileage Log"),
        tr("This wizard makes up a mileage log from the transactions of a period: one trip to the "
           "building of each transaction.\n\nSuch a log is reconstructed, not measured. The "
           "odometer readings are spread evenly over the period, and the length of each trip "
           "varies by chance around the distance that you give.\n\nYou answer for the log. Check "
           "each trip before you submit it, change what was different, and delete trips that were "
           "never made. Ask your tax advisor whether a reconstructed log may be used."));
    period_->setupUi(&AddStep(tr("Period"), tr("Choose the period and the transactions")));
    vehicles_ = PutInto<VehiclesPage>(
        AddStep(tr("Vehicles"), tr("Enter the readings and the share of each vehicle")));
    buildings_ = PutInto<BuildingsPage>(
        AddStep(tr("Buildings"), tr("Enter the distance of a trip to each building")));
    trips_ = PutInto<TripsPage>(AddStep(tr("Preview"), tr("Check the trips before you submit")));
}

void frmMileageWiz::Connect() {
    period_->cmdInit->setAutoDefault(false);
    connect(period_->cmdInit, &QPushButton::clicked, this, [this] { Guarded([this] { Init(); }); });
    for (const auto* const box : {period_->dpStart, period_->dpEnd}) {
        connect(box, &QLineEdit::textChanged, this, [this] { Guarded([this] { PeriodTyped(); }); });
    }
    connect(trips_, &PlanList::Changed, this, [this] { isChanged_ = true; });
    connect(trips_, &TripsPage::PreviewAsked, this,
            [this] { Perform([this] { PreviewAgain(); }); });
}

void frmMileageWiz::Setup() {
    const int year = platform::Today().Year();
    Guarded([this] { buildings_->FillChoices(); });
    period_->dpStart->SetDay(Date(year, 1, 1));
    period_->dpEnd->SetDay(Date(year, 12, 31));
    Begin();
}

/// The lists aren't read for a date that is still being typed.
void frmMileageWiz::PeriodTyped() {
    const auto from = period_->dpStart->Day();
    const auto to = period_->dpEnd->Day();
    constexpr int kWhole = 10; // mm/dd/yyyy
    const bool isWhole =
        period_->dpStart->text().size() == kWhole && period_->dpEnd->text().size() == kWhole;
    if (!isWhole || !from || !to || (*from == from_ && *to == to_)) return;
    Init();
}

void frmMileageWiz::Init() {
    const Date from = period_->dpStart->Day().value_or(Date());
    const Date to = period_->dpEnd->Day().value_or(Date());
    // A period that ends before it begins is refused when the user leaves the page.
    if (!from.IsSet() || !to.IsSet() || to < from) return;
    FillCategories(PlanCategories(from, to));

    std::vector<PlanVehicle> vehicles = vehicles_->Vehicles();
    if (!from_.IsSet()) vehicles = PlanVehicles(from, to);
    for (PlanVehicle& vehicle : vehicles) {
        if (vehicle.from == from_) vehicle.from = from;
        if (vehicle.to == to_) vehicle.to = to;
    }
    vehicles_->Show(std::move(vehicles));

    std::vector<PlanBuilding> buildings = PlanBuildings(from, to);
    for (PlanBuilding& building : buildings) {
        const auto& before = buildings_->Buildings();
        const auto same = std::ranges::find(before, building.id, &PlanBuilding::id);
        if (same != before.end()) building = *same;
    }
    buildings_->Show(std::move(buildings));
    from_ = from;
    to_ = to;
}

/// All categories are ticked at first; those that the user unticked stay unticked.
void frmMileageWiz::FillCategories(const std::vector<std::string>& categories) {
    QStringList unticked;
    QListWidget& list = *period_->lstCategories;
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->checkState() != Qt::Checked) unticked += list.item(row)->text();
    }
    list.clear();
    for (const std::string& category : categories) {
        auto* const item = new QListWidgetItem(ToScreen(category), &list);
        item->setCheckState(unticked.contains(item->text()) ? Qt::Unchecked : Qt::Checked);
    }
    period_->lblNone->setVisible(categories.empty());
}

TripPlan frmMileageWiz::Plan() const {
    TripPlan plan;
    plan.from = period_->dpStart->Day().value_or(Date());
    plan.to = period_->dpEnd->Day().value_or(Date());
    for (int row = 0; row < period_->lstCategories->count(); ++row) {
        const QListWidgetItem& item = *period_->lstCategories->item(row);
        if (item.checkState() == Qt::Checked) plan.categories.push_back(FromScreen(item.text()));
    }
    plan.vehicles = vehicles_->Vehicles();
    plan.buildings = buildings_->Buildings();
    plan.variance = buildings_->Variance();
    return plan;
}

std::vector<std::string> frmMileageWiz::StepErrors(int step) {
    switch (Page{step}) {
        case Page::Welcome:
            return {};
        case Page::Period: {
            std::vector<std::string> lines =
                core::binding::DayErrors(*period_->lstCategories->parentWidget());
            return lines.empty() ? PeriodErrors(Plan()) : lines;
        }
        case Page::Vehicles:
            return VehicleErrors(Plan());
        case Page::Buildings:
            return BuildingErrors(Plan());
        case Page::Preview:
            break;
    }
    if (trips_->Planned().empty()) return {"There are no trips to submit."};
    return {};
}

void frmMileageWiz::ShowStep(int step) {
    // Manual changes are kept as long as nothing in the plan changes.
    if (Page{step} == Page::Preview && !(hasPreview_ && shown_ == Plan())) Preview();
}

void frmMileageWiz::Preview() {
    const TripPlan plan = Plan();
    const std::vector<TripOccasion> occasions = PlanOccasions(plan);
    std::vector<PlannedTrip> planned = PlanTrips(plan, occasions, std::ref(chance_));
    const std::size_t leftOut = occasions.size() - planned.size();
    trips_->Show(plan, std::move(planned), leftOut);
    shown_ = plan;
    hasPreview_ = true;
    isChanged_ = false;
}

void frmMileageWiz::PreviewAgain() {
    if (isChanged_ && !platform::TheDialogs().AskYesNo(
                          "Confirm Preview",
                          "You have changed trips of this preview. Throw them away and make a new "
                          "preview?",
                          platform::Icon::Question))
        return;
    Preview();
}

bool frmMileageWiz::Agreed() {
    logged_ = LoggedTrips(shown_.from, shown_.to);
    const std::size_t count = trips_->Planned().size();
    std::string text =
        fmt::format("Submit {} {} to the mileage log?\n\n", count, count == 1 ? "trip" : "trips");
    if (logged_ > 0)
        text +=
            fmt::format("The log already holds {} {} of this period, which {} there.\n\n", logged_,
                        logged_ == 1 ? "trip" : "trips", logged_ == 1 ? "stays" : "stay");
    text += "The trips are reconstructed, not measured, and you answer for them.";
    return platform::TheDialogs().AskYesNo("Confirm Submit", text, platform::Icon::Question);
}

void frmMileageWiz::Finish() {
    SubmitTrips(shown_, trips_->Planned(), logged_);
    isSubmitted_ = true;
}

bool frmMileageWiz::MayClose() {
    if (isSubmitted_ || !isChanged_ || !core::Preferences().ConfirmCancel) return true;
    return platform::TheDialogs().AskYesNo("Whoa!", "Close without saving changes?",
                                           platform::Icon::Question);
}

void frmMileageWiz::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/,
                                 std::int32_t /*id*/) {
    if (kind == core::kBuilding) buildings_->FillChoices();
}

} // namespace books::screens
