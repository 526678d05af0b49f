// Runs the target that the environment variable FUZZ_TARGET names, and stands in for those parts of the tool that end
// the process, run the compiler or write.
#include "harness.h"

#include "hwknobs_base/diagnostics.h"
#include "hwknobs_dtc/dt_compiler.h"
#include "hwknobs_img/partition_writer.h"

#include <array>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

fuzz_target target = nullptr;

void format(const char* fmt, va_list args) {
    std::array<char, 256> message;
    static_cast<void>(std::vsnprintf(message.data(), message.size(), fmt, args));
}

}  // namespace

bool hwknobs_verbose = true;

void debug(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    format(fmt, args);
    va_end(args);
}

void error(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    format(fmt, args);
    va_end(args);
    throw process_end();
}

// NOLINTNEXTLINE(bugprone-reserved-identifier)
void __error(const char* /*expr*/, const char* /*file*/, int /*line*/, const char* /*function*/) {
    throw process_end();
}

// The reader repeats this line without end, which is known and intended.
extern "C" int puts(const char* text) {
    if (std::strcmp(text, "warn: unknown option id, skip") == 0) throw process_end();
    return 0;
}

// What the compiler makes of a blob may be any text: the one in the blob's place.
char* hwknobs_blob_to_dts(const char* blob, long length) { return strndup(blob, static_cast<std::size_t>(length)); }

void hwknobs_generate_partimage(const char* /*partition*/, const char* /*name*/, const char* /*plat*/,
                                const plenv_map& plenv, const char* /*dts*/, bool /*boot_failure_recovery*/) {
    hwknobs_plenv_build(plenv);
}

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    const char* const name = std::getenv("FUZZ_TARGET");
    target = find_target(name != nullptr ? name : "");
    if (target == nullptr || std::freopen("/dev/null", "w", stdout) == nullptr) std::exit(2);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        target({reinterpret_cast<const char*>(data), size});
    } catch (const process_end&) {
    }
    return 0;
}
