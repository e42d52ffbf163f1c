#include "platform/core/MainThread.h"

#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
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

TEST(MainThread, RunsAWorkersCallsInOrderAndWaitsWhereAsked)
{
    std::vector<int> order; // touched by the main thread only
    std::vector<int> seenAfterWait;
    start([&] {
        EXPECT_FALSE(isMainThread());
        for (int i = 0; i < 200; ++i) {
            const bool waits = i % 3 == 0;
            performOnMainThread(
                nullptr,
                [&order, i] {
                    EXPECT_TRUE(isMainThread());
                    order.push_back(i);
                },
                waits ? CallMode::Wait : CallMode::DontWait);
            if (waits)
                seenAfterWait.push_back(order.at(size_t(i)));
        }
    });
    ASSERT_TRUE(serve());
    ASSERT_TRUE(waitFor([&] { return order.size() == 200; }));
    EXPECT_TRUE(std::ranges::is_sorted(order));
    EXPECT_EQ(seenAfterWait.size(), 67U);
    EXPECT_EQ(seenAfterWait.back(), 198);
}

TEST(MainThread, CallsFromTheMainThreadGoStraightThroughOrAreQueued)
{
    EXPECT_TRUE(isMainThread());
    bool waited = false;
    bool queued = false;
    performOnMainThread(
        nullptr, [&] { queued = true; }, CallMode::DontWait);
    performOnMainThread(
        nullptr, [&] { waited = true; }, CallMode::Wait);
    EXPECT_TRUE(waited);
    EXPECT_FALSE(queued);
    EXPECT_TRUE(waitFor([&] { return queued; }));
}

TEST(MainThread, ANestedEventLoopServesLaterCalls)
{
    std::atomic<bool> nestedLoopRuns = false;
    bool secondRan = false;
    start([&] {
        nestedLoopRuns.wait(false);
        performOnMainThread(
            nullptr, [&] { secondRan = true; }, CallMode::Wait);
    });
    start([&] {
        const auto serveNested = [&] {
            nestedLoopRuns = true;
            nestedLoopRuns.notify_all();
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

TEST(MainThread, WhatACallCapturedIsGoneWhenItsCallerGoesOn)
{
    start([] {
        auto captured = std::make_shared<int>(1);
        performOnMainThread(
            nullptr, [captured] {}, CallMode::Wait);
        EXPECT_EQ(captured.use_count(), 1);
    });
    EXPECT_TRUE(serve());
}

TEST(Workers, AreCountedAndServedUntilTheyEndOrTheTimeIsOver)
{
    EXPECT_TRUE(Workers::serveUntilFinished(0ms));
    std::atomic<bool> mayEnd = false;
    std::atomic<int> ended = 0;
    for (int i = 0; i < 3; ++i) {
        start([&] {
            mayEnd.wait(false);
            performOnMainThread(
                nullptr, [&] { ++ended; }, CallMode::Wait);
        });
    }
    EXPECT_EQ(Workers::live(), 3);
    EXPECT_FALSE(Workers::serveUntilFinished(20ms));
    EXPECT_EQ(Workers::live(), 3);
    mayEnd = true;
    mayEnd.notify_all();
    EXPECT_TRUE(serve());
    EXPECT_EQ(ended, 3);
    EXPECT_EQ(Workers::live(), 0);
}
