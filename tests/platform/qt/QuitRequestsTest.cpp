#include "platform/qt/QuitRequests.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <csignal>

namespace {

TEST(QuitRequests, EachEndingSignalAsksInTheEventLoop) {
    const platform::qt::QuitRequests requests;
    QSignalSpy asked(&requests, &platform::qt::QuitRequests::QuitAsked);
    int expected = 0;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        std::raise(number);
        EXPECT_EQ(asked.count(), expected) << "not inside the signal";
        QCoreApplication::processEvents();
        EXPECT_EQ(asked.count(), ++expected);
    }
    std::raise(SIGTERM);
    std::raise(SIGTERM);
    QCoreApplication::processEvents();
    EXPECT_EQ(asked.count(), expected + 1) << "two at once are one request";
}

} // namespace
