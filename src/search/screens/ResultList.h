#pragma once

#include <QString>
#include <QTreeWidget>
#include <cstddef>
#include <vector>

#include "search/Finder.h"

namespace search::screens {

/// The hits of a search, in groups. The current row is always a hit, or a line that shows more of a
/// group.
class ResultList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit ResultList(QWidget* parent = nullptr);

    /// Shows the results of a search; the same search as before keeps its row and its open groups.
    void Show(std::vector<HitGroup> groups, const QString& search);
    int HitCount() const;

    /// Moves to the next or the previous row that can be chosen, skipping the headings.
    void Move(int rows);
    /// Opens the group of a line that shows more; otherwise sends Chosen.
    void ChooseCurrent();

  Q_SIGNALS:
    void Chosen(const search::Hit& hit);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Fill();
    void AddGroup(std::size_t number);
    QList<QTreeWidgetItem*> Rows() const;
    const Hit* HitOf(const QTreeWidgetItem* row) const;

    std::vector<HitGroup> groups_;
    QString search_;
    QStringList opened_; ///< the groups that are shown whole
};

} // namespace search::screens
