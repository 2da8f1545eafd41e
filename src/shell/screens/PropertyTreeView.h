#pragma once

#include <QTreeWidget>
#include <unordered_map>
#include <vector>

#include "shell/PropertyTree.h"

namespace shell::screens {

/// Shows the property tree. A unit can be dragged to a building; the view itself moves nothing, its
/// form decides.
class PropertyTreeView : public QTreeWidget {
    Q_OBJECT

  public:
    explicit PropertyTreeView(QWidget* parent = nullptr);

    /// Applies the changes in order; the selection and expanded nodes stay.
    void Apply(const std::vector<TreeChange>& changes);
    /// Moves a unit's node to a building's.
    void MoveUnder(const PropertyNode& unit, const PropertyNode& building);

    /// Returns the selected node; the folder "Buildings" if nothing is selected.
    PropertyNode Selected() const;
    void Select(const PropertyNode& node);

  Q_SIGNALS:
    void NodeChosen(shell::PropertyNode node);
    void DeleteAsked(shell::PropertyNode node);
    void UnitDropped(std::int32_t idUnit, std::int32_t idBuilding);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void Remove(const PropertyNode& node);
    void PutUnder(const PropertyNode& unit, const PropertyNode& building);
    void AddFolder(PropertyKind kind, const QString& text);
    QTreeWidgetItem* ItemOf(const PropertyNode& node) const;
    QTreeWidgetItem* BuildingUnder(const QDropEvent& event) const;
    void ShowFolderIcon(QTreeWidgetItem& folder);
    void LoadIcons();

    struct HashNode {
        std::size_t operator()(const PropertyNode& node) const;
    };
    std::unordered_map<PropertyNode, QTreeWidgetItem*, HashNode> items_;
    QIcon openFolder_;
    QIcon closedFolder_;
    QIcon building_;
    QIcon unit_;
};

} // namespace shell::screens
