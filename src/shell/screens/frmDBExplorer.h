#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>

#include "core/forms/Form.h"
#include "shell/PropertyTree.h"

namespace Ui {
class frmDBExplorer;
}

namespace shell::screens {

/// The property side of the books as a tree: buildings with their units, and the units whose
/// building can't be found. Units are moved from one building to another here.
class frmDBExplorer : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmDBExplorer(QWidget* parent = nullptr);
    ~frmDBExplorer() override;

    void Setup();

    /// Reads the tree again; what is selected and expanded stays.
    void RefreshTree();

  protected:
    void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id) override;

  private:
    void MakeMenu();
    void Connect();
    QAction* Action(const char* name) const;
    void NodeChosen(const PropertyNode& node);
    void DeleteNode(const PropertyNode& node);
    void EditNode(const PropertyNode& node);
    void MoveToBuilding();
    void Move(std::int32_t idUnit, std::int32_t idBuilding);

    std::unique_ptr<Ui::frmDBExplorer> ui_;
    PropertyTree tree_;
    QPointer<QWidget> moveForm_;
};

} // namespace shell::screens
