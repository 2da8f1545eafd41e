#pragma once

#include <QWidget>
#include <memory>
#include <string>

#include "reports/SqlConsole.h"

namespace Ui {
class DataBrowser;
}

namespace reports::screens {

/// The SQL console: a panel that runs typed statements, shows their rows and prints them.
class DataBrowser : public QWidget {
    Q_OBJECT

  public:
    explicit DataBrowser(QWidget* parent = nullptr);
    ~DataBrowser() override;

  protected:
    /// Shows whether a database is open.
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Execute();
    void ShowTables();
    void Print();
    void Show(ConsoleAnswer answer);
    void Say(const std::string& message, ConsoleColor color, const std::string& reason = {});
    void ShowColor();

    std::unique_ptr<Ui::DataBrowser> ui_;
    std::string lastQuery_;
    ConsoleColor color_ = ConsoleColor::Plain;
};

} // namespace reports::screens
