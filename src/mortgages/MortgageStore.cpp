#include "core/Rows.h"
#include "mortgages/DoubleList.h"
#include "mortgages/clsMortgage.h"
#include "platform/database/FieldReadings.h"

namespace mortgages {

using platform::Recordset;

namespace {

/// Whether a field that can't be read throws or is skipped.
enum class Fault { Thrown, PassedOver };

/// Reads fields of the current row into variables; a null leaves its variable unchanged.
class TermsReader {
  public:
    TermsReader(Recordset& row, Fault fault) : row_(row), fault_(fault) {}

    template <class T>
    void operator()(std::string_view name, T& value) {
        if (auto read = Read<T>(name)) value = std::move(*read);
    }

    /// Returns the number of the list's entries; nothing for a null.
    std::optional<std::size_t> List(std::string_view name, std::vector<double>& numbers) {
        const auto text = Read<std::string>(name);
        if (!text) return {};
        return SplitDoubleList(*text, numbers);
    }

  private:
    template <class T>
    std::optional<T> Read(std::string_view name) {
        try {
            const platform::Field field = row_[name];
            if (!field.IsNull()) return platform::As<T>(field);
        } catch (const platform::Error&) {
            if (fault_ == Fault::Thrown) throw;
        }
        return {};
    }

    Recordset& row_;
    Fault fault_;
};

/// Reads the fields that both ways of loading share.
void ReadTerms(TermsReader& read, LoanTerms& terms) {
    read("Description", terms.Description);
    read("CurrentPeriod", terms.CurrentPeriod);
    read("OrigPV", terms.OrigPV);
    read("OrigPer", terms.OrigPer);
    read("OrigRate", terms.OrigRate);
    read("OrigPmt", terms.OrigPmt);
    read("IntOnly", terms.IntOnly);
    read("FirstDue", terms.FirstDue);
    read("BalloonPer", terms.BalloonPer);
    read("BalloonPmt", terms.BalloonPmt);
    read("PPM", terms.PPM);
    read("PPMPct", terms.PPMPct);
    read("PPMTrigger", terms.PPMTrigger);
    read("PPMPer", terms.PPMPer);
    read("xPriAll", terms.xPriAll);
    read("ARM", terms.ARM);
    read("ARMLockedPer", terms.ARMLockedPer);
    read("ARMAdjPer", terms.ARMAdjPer);
    read("ARMLifeCap", terms.ARMLifeCap);
    read("ARMPerCap", terms.ARMPerCap);
}

/// Writes the fields that both ways of saving share.
void WriteTerms(Recordset& row, const LoanTerms& terms, const std::vector<double>& xPri,
                const std::vector<double>& xRate) {
    row["Description"].Set(terms.Description);
    row["CurrentPeriod"].Set(terms.CurrentPeriod);
    row["OrigPV"].Set(terms.OrigPV);
    row["OrigPer"].Set(terms.OrigPer);
    row["OrigRate"].Set(terms.OrigRate);
    row["OrigPmt"].Set(terms.OrigPmt);
    row["IntOnly"].Set(terms.IntOnly);
    row["FirstDue"].Set(terms.FirstDue);
    row["BalloonMtg"].Set(terms.Balloon);
    row["BalloonPer"].Set(terms.BalloonPer);
    row["BalloonPmt"].Set(terms.BalloonPmt);
    row["PPM"].Set(terms.PPM);
    row["PPMPct"].Set(terms.PPMPct);
    row["PPMTrigger"].Set(terms.PPMTrigger);
    row["PPMPer"].Set(terms.PPMPer);
    row["xPri"].Set(JoinDoubleList(xPri));
    row["xRate"].Set(JoinDoubleList(xRate));
    row["xPriAll"].Set(terms.xPriAll);
    row["ARM"].Set(terms.ARM);
    row["ARMLockedPer"].Set(terms.ARMLockedPer);
    row["ARMAdjPer"].Set(terms.ARMAdjPer);
    row["ARMLifeCap"].Set(terms.ARMLifeCap);
    row["ARMPerCap"].Set(terms.ARMPerCap);
}

/// Writes the fields of the current period; `at` is null if it lies outside the schedule.
void WriteCurrent(Recordset& row, const AmortPeriod* at, double AmortPeriod::*balance,
                  int remaining) {
    row["NextDue"].Set(at == nullptr ? std::string_view() : at->Due.View());
    row["CurrentPV"].Set(at == nullptr ? 0 : at->*balance);
    row["CurrentI"].Set(at == nullptr ? 0 : at->Rate);
    row["CurrentPmt"].Set(at == nullptr ? 0 : at->Pmt);
    row["RemainingT"].Set(at == nullptr ? 0 : remaining);
}

} // namespace

bool clsMortgage::LoadMtg(std::int32_t idMortgage) {
    Recordset row = core::Read("SELECT * FROM Mortgage WHERE IdMortgage = ?", {idMortgage});
    if (row.Eof()) return false;
    TermsReader read(row, Fault::Thrown);
    ReadTerms(read, terms_);
    read("BalloonMtg", terms_.Balloon);
    read.List("xPri", xPri_);
    if (const auto count = read.List("xRate", xRate_)) {
        arraySize_ = static_cast<int>(*count);
    } else {
        ClearRate();
    }
    return true;
}

bool clsMortgage::LoadRS(Recordset& row) {
    TermsReader read(row, Fault::PassedOver);
    ReadTerms(read, terms_);
    // The books have no field of this name. The run and the screens depend on that: a loan whose
    // balloon isn't paid continues to be charged.
    read("Balloon", terms_.Balloon);
    if (const auto count = read.List("xPri", xPri_)) arraySize_ = static_cast<int>(*count);
    if (const auto count = read.List("xRate", xRate_)) {
        arraySize_ = static_cast<int>(*count);
    } else {
        // Without a stored list every rate is the loan's own, not a rate left in this object by
        // another loan.
        ClearRate();
    }
    return true;
}

void clsMortgage::SaveMtg(std::int32_t idMortgage) const {
    if (idMortgage == 0) return; // no mortgage's id: a new row would get an id of its own
    core::RowToWrite stored("Mortgage", "IdMortgage", idMortgage);
    WriteTerms(stored.row, terms_, xPri_, xRate_);
    WriteCurrent(stored.row, Row(0), &AmortPeriod::EndBal, GetPeriodsRemaining());
    stored.row.Update();
}

void clsMortgage::SaveRS(Recordset& row) const {
    WriteTerms(row, terms_, xPri_, xRate_);
    WriteCurrent(row, Row(0), &AmortPeriod::BeginBal, GetPeriodsRemaining());
}

} // namespace mortgages
