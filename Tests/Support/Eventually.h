#pragma once

#include <QTest>

#include <gtest/gtest.h>

/// Conditions that the event loop makes true sooner or later. The macros of QtTest that wait do not fail a test of
/// GoogleTest: they end it, and it passes.
constexpr int EventuallyMs = 30000;

#define ASSERT_EVENTUALLY(condition)                                                                                   \
    ASSERT_TRUE(QTest::qWaitFor([&] { return static_cast<bool>(condition); }, EventuallyMs))

#define ASSERT_EVENTUALLY_EQ(actual, expected)                                                                         \
    do {                                                                                                               \
        (void)QTest::qWaitFor([&] { return (actual) == (expected); }, EventuallyMs);                                   \
        ASSERT_EQ(actual, expected);                                                                                   \
    } while (false)
