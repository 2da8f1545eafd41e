#pragma once

#include <QWidget>
#include <cstdint>
#include <string_view>

#include "core/grid/Grid.h"
#include "platform/database/Recordset.h"

class QHBoxLayout;
class QToolButton;

namespace core::grid {

/// A list of records below buttons to add, open and delete one (Insert, Enter, Delete), for panels
/// of the records that belong to another. As a panel its controls aren't the form's.
class RecordList : public QWidget {
    Q_OBJECT

  public:
    explicit RecordList(QWidget* parent = nullptr);
    ~RecordList() override;

    /// Puts a caption or tabs beside the buttons.
    void SetHead(QWidget* head);

    /// Shows rows with their id in the first column, in a grid that stores its widths under
    /// `gridKey`. The selected record stays selected.
    void ShowRows(platform::Recordset rows, std::string_view gridKey);
    /// Shows no rows, but the reason for that.
    void ShowNothing(const QString& reason);
    /// Sets which buttons apply at all; Edit and Delete also need a selected row.
    void Allow(bool add, bool edit, bool remove);

    Grid& List() { return *grid_; }

  Q_SIGNALS:
    void AddAsked();
    void EditAsked(std::int32_t id);
    void DeleteAsked(std::int32_t id);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QToolButton* MakeButton(const char* icon, const QString& text, const QString& name);
    void Connect();
    void AskToEdit();
    void AskToDelete();
    void ShowAvailable();
    void KeepWidths();

    Grid* grid_ = nullptr;
    QHBoxLayout* head_;
    QToolButton* add_;
    QToolButton* edit_;
    QToolButton* delete_;
    bool wasSeen_ = false;
    bool mayAdd_ = false;
    bool mayEdit_ = false;
    bool mayDelete_ = false;
};

} // namespace core::grid
