#pragma once

#include "support/PrivateBus.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>

/// Every test program runs in a home and on a session bus of its own, so that no test reads or
/// writes the user's files, talks to the user's programs or is heard by them.
template <typename Application>
int runTests(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("XDG_CONFIG_HOME");
    Application application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    std::unique_ptr<PrivateBus> bus;
    if (!GTEST_FLAG_GET(list_tests))
        bus = std::make_unique<PrivateBus>();
    return RUN_ALL_TESTS();
}
