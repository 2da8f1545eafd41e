#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

namespace platform::qt {

/// Lets only one process of a user hold a name. A second one asks the first to come to the front.
class SingleInstance : public QObject {
    Q_OBJECT

  public:
    /// Takes the name if it is free, also after a holder that died.
    explicit SingleInstance(const QString& name);

    bool IsFirst() const { return isFirst_; }
    /// From a second process: asks the first to show itself; false when it does not listen.
    bool AskFirstToShow() const;

  Q_SIGNALS:
    /// To the first: somebody started the program again.
    void ShowAsked();

  private:
    QString name_;
    QLockFile lock_;
    QLocalServer server_;
    bool isFirst_ = false;
};

/// A name that is the same for every process of this executable and user.
QString InstanceName();

} // namespace platform::qt
