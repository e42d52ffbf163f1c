#include "platform/core/MainThread.h"

#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <vector>

using namespace std::chrono_literals;

namespace {

void start(std::function<void()> work)
{
    ASSERT_TRUE(Workers::start(std::move(work)));
}

bool serve()
{
    return Workers::serveUntilFinished(60s);
}

} // namespace

TEST(MainThread, RunsCallsInOrderAndWaitsWhereAsked)
{
    std::vector<int> order; // touched by the main thread only
    const auto call = [&order](int number, CallMode mode) {
        performOnMainThread(
            nullptr,
            [&order, number] {
                EXPECT_TRUE(isMainThread());
                order.push_back(number);
            },
            mode);
    };
    start([&] {
        EXPECT_FALSE(isMainThread());
        for (int i = 0; i < 200; ++i) {
            call(i, i % 3 == 0 ? CallMode::Wait : CallMode::DontWait);
            EXPECT_TRUE(i % 3 != 0 || order.size() == size_t(i) + 1);
        }
    });
    ASSERT_TRUE(serve());
    ASSERT_EQ(order.size(), 200);
    EXPECT_TRUE(std::ranges::is_sorted(order));
    call(201, CallMode::DontWait);
    call(202, CallMode::Wait); // straight through
    EXPECT_EQ(order.back(), 202);
    EXPECT_TRUE(waitFor([&] { return order.back() == 201; }));
}

TEST(MainThread, ANestedEventLoopServesLaterCalls)
{
    bool secondRan = false;
    start([&] {
        const auto serveNested = [&] {
            start([&] {
                performOnMainThread(
                    nullptr, [&] { secondRan = true; }, CallMode::Wait);
            });
            EXPECT_TRUE(waitFor([&] { return secondRan; }));
        };
        performOnMainThread(nullptr, serveNested, CallMode::Wait);
    });
    EXPECT_TRUE(serve());
    EXPECT_TRUE(secondRan);
}

TEST(MainThread, CallsWithoutEndLeaveTimersTheirTurn)
{
    bool isOver = false;
    std::function<void()> callAgain = [&] {
        if (!isOver)
            performOnMainThread(nullptr, callAgain, CallMode::DontWait);
    };
    callAgain();
    QTimer::singleShot(1ms, [&] { isOver = true; });
    EXPECT_TRUE(waitFor([&] { return isOver; }));
    QCoreApplication::processEvents(); // the last call
}

TEST(Workers, AreCountedAndServedUntilTheyEndOrTheTimeIsOver)
{
    std::atomic<bool> mayEnd = false;
    int ended = 0;
    for (int i = 0; i < 3; ++i) {
        start([&] {
            mayEnd.wait(false);
            performOnMainThread(
                nullptr, [&] { ++ended; }, CallMode::Wait);
        });
    }
    EXPECT_FALSE(Workers::serveUntilFinished(20ms));
    EXPECT_EQ(Workers::live(), 3);
    mayEnd = true;
    mayEnd.notify_all();
    EXPECT_TRUE(serve());
    EXPECT_EQ(ended, 3);
    performOnMainThread(
        nullptr, [&] { ++ended; }, CallMode::DontWait);
    EXPECT_TRUE(serve());
    EXPECT_EQ(ended, 4) << "what the last one left to be called";
}
