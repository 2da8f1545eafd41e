#include "platform/qt/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

#include "platform/system/Paths.h"

namespace platform::qt {

namespace {

constexpr int kAnswerPatienceMs = 2000;

QString RuntimeFile(const QString& name) {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) folder = QDir::tempPath();
    return folder + QLatin1Char('/') + name;
}

} // namespace

SingleInstance::SingleInstance(const QString& name)
    : name_(RuntimeFile(name)), lock_(name_ + QStringLiteral(".lock")) {
    // A lock is stale if its process has ended, never by its age.
    lock_.setStaleLockTime(0);
    isFirst_ = lock_.tryLock(0);
    if (!isFirst_) return;
    // The lock is ours, so a socket of this name can only be left over from a crash.
    QLocalServer::removeServer(name_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* const socket = server_.nextPendingConnection()) {
            socket->deleteLater();
            Q_EMIT ShowAsked();
        }
    });
    server_.listen(name_);
}

bool SingleInstance::AskFirstToShow() const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    return socket.waitForConnected(kAnswerPatienceMs);
}

QString InstanceName() {
    const QByteArray path = QByteArray::fromStdString(platform::ExecutablePath().string());
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
    const QString user = QDir::home().dirName();
    return QStringLiteral("vestrel-%1-%2").arg(user, QString::fromLatin1(hash.first(12)));
}

} // namespace platform::qt
