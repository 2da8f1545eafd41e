#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>
#include <string>

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

/// The list of one kind of records: what it shows can be chosen above it, searched, and sorted by a
/// click on a caption. It remembers for each kind how it was left.
class ViewPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ViewPanel(QWidget* parent = nullptr);
    ~ViewPanel() override;

    /// Shows the records of a kind, as that kind was left.
    void ShowKind(std::int16_t kind);
    /// Remembers how the present kind is left; nothing before ShowKind, or for a kind without a
    /// view.
    void Remember() const;
    /// Lets go of the rows, which end with the session.
    void Release();

    /// What reads the rows again: the person's choice, or a broadcast. After a broadcast the
    /// selected id stays as it was though its record may be gone.
    enum class Cause { Choice, Broadcast };
    void Reload(Cause cause);

    void FindText();
    void CopyRows() const;

    std::int32_t SelectedId() const { return selectedId_; }
    /// The statement of the present view without the id column, for printing.
    std::string PrintSql() const;
    /// What the status bar says of the list.
    QString Status() const;
    QString NarrowedStatus() const;
    core::grid::Grid& List() const;

  Q_SIGNALS:
    void SelectionMoved();
    void StatusChanged();
    /// A double click or Enter on the selected record.
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
    void ReadTransactions();
    void ColorCells();
    void ShowSortArrow();
    void Select(std::int32_t id, Cause cause);
    void SearchChanged();
    void Narrow();
    void ShowEmptyText();

    std::unique_ptr<Ui::ViewPanel> ui_;
    QTimer* search_;
    std::int16_t kind_ = 0;
    std::int32_t selectedId_ = 0;
    std::int64_t count_ = 0; ///< -1 when the statement failed
    ViewState state_;
    bool loading_ = false;
};

} // namespace shell::screens
