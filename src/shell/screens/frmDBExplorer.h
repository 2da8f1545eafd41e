#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"
#include "shell/PropertyTree.h"

namespace Ui {
class frmDBExplorer;
}

namespace shell::screens {

/// The buildings with their units as a tree, and the units whose building doesn't exist. Units are
/// moved between buildings here.
class frmDBExplorer : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmDBExplorer(QWidget* parent = nullptr);
    ~frmDBExplorer() override;

    void Setup();

    /// Reads the tree again; the selection and expanded nodes stay.
    void RefreshTree();

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

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
