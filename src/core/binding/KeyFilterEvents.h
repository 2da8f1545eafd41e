#pragma once

#include <QObject>

class QLineEdit;

namespace core::binding {

/// Runs what is typed into a line edit through FilterKey, by the edit's property "tag". What is
/// pasted passes; the reading of the box judges it.
class KeyFilterEvents : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Filters the keys of every line edit inside `form` whose tag asks for it.
void InstallKeyFilter(QWidget& form);

} // namespace core::binding
