// The compile step with more source than a pipe holds: more than any selection makes, so nothing else tries it.
#include "hwknobs_dtc/dt_compiler.h"

#include "fatal.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

// Compiles 200000 bytes with a compiler of this body, for 20 seconds at most.
std::size_t compile(const char* body, std::vector<char>& blob) {
    const std::string compiler = testing::TempDir() + "hwknobs_test_compiler." + std::to_string(getpid());
    std::ofstream(compiler) << "#!/bin/sh\n" << body << '\n';
    chmod(compiler.c_str(), 0700);
    setenv("DTCBIN", compiler.c_str(), 1);
    alarm(20);
    const std::size_t size = hwknobs_dt_to_blob(std::string(200000, 's').c_str(), blob);
    alarm(0);
    unlink(compiler.c_str());
    return size;
}

TEST(Compiler, NeitherSideWaitsForTheOther) {
    std::vector<char> blob(0x20000);
    EXPECT_EQ(compile(R"(head -c 131072 /dev/zero | tr '\0' b; exec >&- 2>&-; test $(wc -c) = 200000)", blob),
              blob.size());
    EXPECT_EQ(blob, std::vector<char>(0x20000, 'b'));
    EXPECT_EXIT(compile("sleep 0.2; exec <&-; rm $0; exit 3", blob), testing::ExitedWithCode(1), "");
}

}  // namespace
