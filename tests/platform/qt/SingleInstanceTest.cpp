#include "platform/qt/SingleInstance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QStandardPaths>

#include "support/TemporaryFolder.h"

namespace {

using platform::qt::SingleInstance;

class SingleInstanceTest : public testing::Test {
  protected:
    SingleInstanceTest() {
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder_.Path().string()));
        QFile::setPermissions(QString::fromStdString(folder_.Path().string()),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    ~SingleInstanceTest() override { qunsetenv("XDG_RUNTIME_DIR"); }

    support::TemporaryFolder folder_;
    const QString name_ = QStringLiteral("vestrel-test");
};

TEST_F(SingleInstanceTest, TheSecondAsksTheFirstToShowItself) {
    const SingleInstance first(name_);
    QSignalSpy asked(&first, &SingleInstance::ShowAsked);
    const SingleInstance second(name_);
    EXPECT_TRUE(first.IsFirst());
    EXPECT_FALSE(second.IsFirst());
    EXPECT_TRUE(second.AskFirstToShow());
    QCoreApplication::processEvents();
    EXPECT_EQ(asked.count(), 1);
}

TEST_F(SingleInstanceTest, TheNameIsFreeAgainWhenTheFirstEnds) {
    {
        const SingleInstance first(name_);
        EXPECT_TRUE(first.IsFirst());
    }
    const SingleInstance next(name_);
    EXPECT_TRUE(next.IsFirst());
    const SingleInstance other(QStringLiteral("another"));
    EXPECT_TRUE(other.IsFirst());
}

TEST_F(SingleInstanceTest, WhatACrashLeftIsNoHolder) {
    const pid_t child = ::fork();
    if (child == 0) {
        // Ends without a destructor, as a crash does.
        const auto* const holder = new SingleInstance(name_);
        ::_exit(holder->IsFirst() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0) << "the child held the name";
    ASSERT_TRUE(std::filesystem::exists(folder_ / "vestrel-test.lock"));
    const SingleInstance first(name_);
    EXPECT_TRUE(first.IsFirst());
    const SingleInstance second(name_);
    EXPECT_TRUE(second.AskFirstToShow());
}

TEST_F(SingleInstanceTest, NobodyToAskIsNoAnswer) {
    const SingleInstance first(name_);
    QFile::remove(QString::fromStdString((folder_ / "vestrel-test").string()));
    const SingleInstance second(name_);
    EXPECT_FALSE(second.AskFirstToShow());
}

} // namespace
