#pragma once

#include <QWidget>
#include <functional>

#include "alerts/PortfolioPicture.h"

class QLabel;
class QPushButton;

namespace alerts::screens {

class FigurePanel;

/// The home page as a picture: how many units are let, this month's rent, a year of income and
/// expenses, and who owes most. Each figure opens the report with its details; the picture can be
/// copied and printed.
class PicturePage : public QWidget {
    Q_OBJECT

  public:
    explicit PicturePage(QWidget* parent = nullptr);

    /// Reads the figures again.
    void Refresh();
    /// Puts the picture on the clipboard.
    void Copy();
    /// Prints it on one page, on the printer that the user chooses.
    void Print();

  private:
    void Lay();
    void Connect();
    void ShowOccupancy();
    void ShowRent();
    void ShowFlow();
    void ShowDebts();
    void OpenReport(std::string_view description, platform::Date month) const;

    QPushButton* copy_;
    QPushButton* print_;
    QWidget* board_;
    QLabel* asOf_; ///< within the picture, so that a copy and a print say it too
    FigurePanel* occupancy_;
    FigurePanel* rent_;
    FigurePanel* flow_;
    FigurePanel* debts_;
    PortfolioPicture figures_;
    bool isPrinting_ = false;
};

} // namespace alerts::screens
