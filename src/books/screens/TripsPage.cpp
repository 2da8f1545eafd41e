#include <fmt/core.h>

#include "books/screens/OdometerBoxes.h"
#include "books/screens/PlanPages.h"
#include "core/binding/DayErrors.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "ui_PlanTrips.h"

namespace books::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

QString Miles(double miles) {
    return ToScreen(platform::FormatNumber(miles, "#,###.0"));
}

std::string Text(const QLineEdit& box) {
    return FromScreen(box.text().trimmed());
}

} // namespace

TripsPage::TripsPage(QWidget* parent) : PlanRows(parent), ui_(std::make_unique<Ui::PlanTrips>()) {
    ui_->setupUi(this);
    constexpr int kPurpose = 6;
    Connect(*ui_->lvwTrips, kPurpose, nullptr, *ui_->cmdTripUpdate, *ui_->cmdTripDelete);
    ui_->cmdPreview->setAutoDefault(false);
    connect(ui_->cmdPreview, &QPushButton::clicked, this, &TripsPage::PreviewAsked);
    connect(this, &PlanList::Changed, this, &TripsPage::ShowTotals);
    odometer_ =
        std::make_unique<OdometerBoxes>(*ui_->txtTripBegin, *ui_->txtTripEnd, *ui_->txtTripMileage);
}

TripsPage::~TripsPage() = default;

void TripsPage::Show(const TripPlan& plan, std::vector<PlannedTrip> trips, std::size_t leftOut) {
    plan_ = plan;
    leftOut_ = leftOut;
    SetRows(std::move(trips));
    ShowTotals();
}

void TripsPage::ShowTotals() {
    double miles = 0;
    for (const PlannedTrip& trip : Rows())
        miles += trip.mileage;
    std::string text =
        fmt::format("{} {}, {} miles.", Rows().size(), Rows().size() == 1 ? "trip" : "trips",
                    platform::FormatNumber(miles, "#,##0.0"));
    if (leftOut_ > 0)
        text += fmt::format(" {} {} left out: no vehicle was in use on the day.", leftOut_,
                            leftOut_ == 1 ? "transaction is" : "transactions are");
    ui_->lblTotals->setText(ToScreen(text));
}

QStringList TripsPage::Cells(int row) const {
    const PlannedTrip& trip = At(row);
    return {ToScreen(trip.date.ToText()),
            ToScreen(trip.vehicle),
            Miles(trip.begin),
            Miles(trip.end),
            Miles(trip.mileage),
            ToScreen(trip.destination),
            ToScreen(trip.purpose)};
}

void TripsPage::ShowBoxes(int row) {
    const PlannedTrip& trip = At(row);
    ui_->dpTripDate->SetDay(trip.date);
    ui_->txtTripVehicle->setText(ToScreen(trip.vehicle));
    ui_->txtTripDestination->setText(ToScreen(trip.destination));
    ui_->txtTripPurpose->setText(ToScreen(trip.purpose));
    odometer_->Show(Odometer::Of(trip.begin, trip.end));
}

std::vector<std::string> TripsPage::Errors(int /*row*/) const {
    std::vector<std::string> lines = core::binding::DayErrors(*this);
    const auto day = ui_->dpTripDate->Day();
    if (day && (*day < plan_.from || plan_.to < *day))
        lines.emplace_back("The date must be within the period.");
    if (Text(*ui_->txtTripVehicle).empty()) lines.emplace_back("A vehicle must be entered.");
    if (!odometer_->Readings().Distance()) lines.emplace_back(kEndsBelowStart);
    return lines;
}

void TripsPage::Store(int row) {
    PlannedTrip& trip = At(row);
    trip.date = ui_->dpTripDate->Day().value_or(trip.date);
    trip.vehicle = Text(*ui_->txtTripVehicle);
    trip.begin = odometer_->Readings().Begin();
    trip.end = odometer_->Readings().End();
    trip.mileage = odometer_->Readings().Distance().value_or(0);
    trip.destination = Text(*ui_->txtTripDestination);
    trip.purpose = Text(*ui_->txtTripPurpose);
}

} // namespace books::screens
