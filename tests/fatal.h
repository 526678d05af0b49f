// Tests of what ends the process.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

/// Runs the statement in a child: it exits with status 1 and prints exactly `output`.
#define EXPECT_FATAL(statement, output)         \
    EXPECT_EXIT(                                \
        {                                       \
            dup2(STDERR_FILENO, STDOUT_FILENO); \
            statement;                          \
        },                                      \
        testing::ExitedWithCode(1), testing::StrEq(std::string(output)))

/// The same for error(), whose message is given.
#define EXPECT_ERROR(statement, message) EXPECT_FATAL(statement, "ERROR: " + std::string(message) + "\n")
