// The compile step with more source than a pipe holds: more than any selection makes, so nothing else tries it.
#include "hwknobs_dtc/dt_compiler.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

TEST(Compiler, NeitherSideWaitsForTheOther) {
    const std::string compiler = testing::TempDir() + "hwknobs_test_compiler." + std::to_string(getpid());
    std::ofstream(compiler) << "#!/bin/sh\nhead -c 131072 /dev/zero | tr '\\0' b\ntest $(wc -c) = 200000\n";
    chmod(compiler.c_str(), 0700);
    setenv("DTCBIN", compiler.c_str(), 1);
    std::vector<char> blob(0x20000);
    alarm(20);
    EXPECT_EQ(hwknobs_dt_to_blob(std::string(200000, 's').c_str(), blob), blob.size());
    alarm(0);
    EXPECT_EQ(blob, std::vector<char>(0x20000, 'b'));
    unlink(compiler.c_str());
}
