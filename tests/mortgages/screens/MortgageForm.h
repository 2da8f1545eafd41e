#pragma once

#include "mortgages/screens/MortgageScreens.h"
#include "mortgages/screens/frmMortgage.h"

namespace tests {

/// The mortgage's own screen, and its schedule.
class MortgageScreen : public MortgageScreenTest {
  protected:
    static QPointer<mortgages::screens::frmMortgage> Open(std::int32_t id = kLoan) {
        return support::Show<mortgages::screens::frmMortgage>(id, 10);
    }
    static void GoTo(const QWidget& form, const char* page) {
        Find<QTabWidget>(form, "tabs").setCurrentWidget(&Find<QWidget>(form, page));
    }
    static const core::grid::GridModel& Schedule(const QWidget& form) {
        return Find<core::grid::Grid>(form, "grdAmort").Model();
    }
    static int ScheduleRows(const QWidget& form) { return Schedule(form).rowCount(); }
    static std::string Cell(const QWidget& form, int row, int column) {
        return support::FromScreen(Schedule(form).CellText(row, column));
    }
    static std::string Captions(const QWidget& form) {
        std::string line;
        for (int column = 0; column < Schedule(form).columnCount(); ++column)
            line += support::FromScreen(Schedule(form).Caption(column)) + ";";
        return line;
    }
};

} // namespace tests
