#pragma once

#include <QWidget>
#include <cstdint>

#include "core/NotifyAll.h"
#include "mortgages/LogRows.h"

class QMenu;
class QPushButton;
class QTabBar;

namespace mortgages::screens {

class LogList;

/// The log of a mortgage on its screen: charges due and payments made, with their commands. It
/// follows every change of the log, wherever it was made.
class MtgLog : public QWidget {
    Q_OBJECT

  public:
    explicit MtgLog(QWidget* parent = nullptr);

    /// Shows the log of a mortgage; the panel is disabled for a new one (0).
    void Load(std::int32_t idMortgage);

  private:
    void MakeButtons();
    QPushButton* MakeButton(const QString& text, const QString& hint, const char* name,
                            const char* tag);
    void MakeMenu();
    void Connect();
    LogPart Part() const;
    void ShowRows();
    void ShowAvailable();

    void Add();
    void Edit(std::int32_t id);
    void Delete();
    void Pay();

    std::int32_t idMortgage_ = 0;
    /// The rows shown, as they were read.
    std::vector<LogRow> rows_;
    QTabBar* tabs_;
    LogList* list_;
    QMenu* menu_;
    QPushButton* add_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* delete_ = nullptr;
    QPushButton* pay_ = nullptr;
    core::NotifyToken token_;
};

} // namespace mortgages::screens
