#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

namespace platform::qt {

/// Lets only one process of a user hold a name. A second process asks the first to come to the
/// front.
class SingleInstance : public QObject {
    Q_OBJECT

  public:
    /// Takes the name if it is free, also if its last holder crashed.
    explicit SingleInstance(const QString& name);

    bool IsFirst() const { return isFirst_; }
    /// In a second process: asks the first to show itself; returns false if it doesn't respond.
    bool AskFirstToShow() const;

  Q_SIGNALS:
    /// Emitted in the first process when the program is started again.
    void ShowAsked();

  private:
    QString name_;
    QLockFile lock_;
    QLocalServer server_;
    bool isFirst_ = false;
};

/// Returns a name that is the same for every process of this executable and user.
QString InstanceName();

} // namespace platform::qt
