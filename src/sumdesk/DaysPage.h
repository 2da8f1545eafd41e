#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "sumdesk/Calculator.h"

namespace Ui {
class DaysPage;
}

class QLabel;

namespace sumdesk {

/// Counts the days between two dates, and finds the date that is some days after another.
class DaysPage : public QWidget {
    Q_OBJECT

  public:
    explicit DaysPage(QWidget* parent = nullptr);
    ~DaysPage() override;

    /// The calculator must outlive the page.
    void SetCalculator(Calculator& calculator) { calculator_ = &calculator; }

    void Clear();

  Q_SIGNALS:
    void TapeChanged();

  private:
    void CountDays();
    void FindDate();
    /// Shows the text that `work` returns and adds it to the tape; or shows why there is none.
    void Answer(QLabel& label, const std::function<std::string()>& work);

    std::unique_ptr<Ui::DaysPage> ui_;
    Calculator* calculator_ = nullptr;
};

} // namespace sumdesk
