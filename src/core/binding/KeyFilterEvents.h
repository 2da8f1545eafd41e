#pragma once

#include <QObject>

class QLineEdit;

namespace core::binding {

/// Runs text typed into a line edit through FilterKey, by the edit's property "tag". Pasted text
/// isn't filtered; it is checked when the box is read.
class KeyFilterEvents : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Filters the keys of every line edit inside `form` whose tag asks for it.
void InstallKeyFilter(QWidget& form);

} // namespace core::binding
