#pragma once

#include <QWidget>
#include <cstdint>
#include <string_view>

#include "core/grid/Grid.h"
#include "platform/database/Recordset.h"

class QHBoxLayout;
class QToolButton;

namespace core::grid {

/// A list of records under buttons to add, open and delete one (Insert, Enter, Delete), for the
/// panels that show what hangs from a record. It is a panel: the form around it doesn't know its
/// controls.
class RecordList : public QWidget {
    Q_OBJECT

  public:
    explicit RecordList(QWidget* parent = nullptr);
    ~RecordList() override;

    /// Puts a caption or tabs beside the buttons.
    void SetHead(QWidget* head);

    /// Shows rows, their id in the first column, in a grid that keeps its widths under `gridKey`.
    /// The record that was selected stays so.
    void ShowRows(platform::Recordset rows, std::string_view gridKey);
    /// Nothing to show, and why.
    void ShowNothing(const QString& reason);
    /// Which of the buttons there is something for; one is available only with a row besides.
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
