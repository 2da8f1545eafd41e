#pragma once

#include <QStringList>
#include <QWidget>
#include <memory>

#include "sumdesk/Calculator.h"

namespace Ui {
class CalculatorPage;
}

class QPushButton;

namespace sumdesk {

/// A line for sums with its result, the memory, and a keypad.
class CalculatorPage : public QWidget {
    Q_OBJECT

  public:
    explicit CalculatorPage(QWidget* parent = nullptr);
    ~CalculatorPage() override;

    /// The calculator must outlive the page.
    void SetCalculator(Calculator& calculator) { calculator_ = &calculator; }

    void Clear();

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void TapeChanged();

  private:
    using MemoryCommand = std::string (Calculator::*)(std::string_view sum);

    void MakeKeypad();
    void ConnectMemory();
    /// Puts a sign or number where the caret is. After a result, a sign goes on from it, and
    /// anything else replaces it.
    void Insert(const QString& text);
    void Enter();
    void Remember(MemoryCommand command);
    /// Does work that may end in a SumError, and shows its result or the fault.
    void Run(const std::function<std::string()>& work);
    void ShowPreview();
    void ShowMemory();
    /// Shows an earlier sum: -1 the one before, 1 the one after.
    void Browse(int step);

    std::unique_ptr<Ui::CalculatorPage> ui_;
    Calculator* calculator_ = nullptr;
    QString result_; ///< the last one as it is shown
    QStringList sums_;
    qsizetype browsed_ = 0;
};

} // namespace sumdesk
