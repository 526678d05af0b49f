#pragma once

/// Prints the status word that the boot side leaves in the partition when boot-failure recovery is on. Whether there
/// was one; a failed seek ends the process.
bool hwknobs_boot_status(const char* partition);
