#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>
#include <string>

#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"
#include "shell/ViewState.h"
#include "shell/Views.h"

class QTimer;

namespace core::grid {
class Grid;
}
namespace Ui {
class ViewPanel;
}

namespace shell::screens {

/// The list of one kind of records, with filters and a search above it, sorted by clicks on its
/// captions. The state of each kind's list is stored.
class ViewPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ViewPanel(QWidget* parent = nullptr);
    ~ViewPanel() override;

    /// Shows the records of a kind, with the state of that kind's list.
    void ShowKind(core::RecordKind kind);
    /// Stores the state of the present kind's list; does nothing before ShowKind and for a kind
    /// without a view.
    void Remember() const;
    /// Releases the rows before the session is closed.
    void Release();

    /// Why the rows are read again: the user's choice, or a broadcast. After a broadcast SelectedId
    /// stays as it was even if its record was deleted; no row is selected then.
    enum class Cause { Choice, Broadcast };
    void Reload(Cause cause);

    void FindText();
    void CopyRows() const;

    /// Returns the id of the row that was selected last.
    std::int32_t SelectedId() const { return selectedId_; }
    /// Returns the statement of the present view without the id column, for printing.
    std::string PrintSql() const;
    /// Returns the status bar's text about the list.
    QString Status() const;
    QString NarrowedStatus() const;
    core::grid::Grid& List() const;

  Q_SIGNALS:
    void SelectionMoved();
    void StatusChanged();
    /// Emitted by a double click or Enter on the selected record.
    void RecordChosen();
    void MenuAsked(const QPoint& globalPosition);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FillChoices();
    void Connect();
    ViewFilter Filter() const;
    void FilterFieldChanged();
    void Sort(const QString& caption);
    void ReadRows();
    void OpenRows(platform::Recordset& rows, platform::CursorMode mode);
    void ReadTransactions();
    void ColorCells();
    void ShowSortArrow();
    void Select(std::int32_t id, Cause cause);
    void SearchChanged();
    void Narrow();
    void ShowEmptyText();

    std::unique_ptr<Ui::ViewPanel> ui_;
    QTimer* search_;
    core::RecordKind kind_ = core::kNone;
    std::int32_t selectedId_ = 0;
    int selectedRow_ = 0;    ///< of the row that was selected last
    std::int64_t count_ = 0; ///< -1 if the statement failed
    std::string fault_;      ///< why it failed
    ViewState state_;
    bool loading_ = false;
};

} // namespace shell::screens
