// Keeps two runs of the tool from writing at once.
#pragma once

#include "hwknobs_base/unique_fd.h"

/// Held from before a command first reads or writes what it changes until it ends; a second command waits. Every
/// setting that is written clears the default partition, so that one is locked first, and then `partition` where it is
/// another file. The locks are advisory (flock). Where there is nothing to lock yet, or the system has no locks, the
/// command goes on without.
class partition_lock {
public:
    explicit partition_lock(const char* partition);

private:
    unique_fd default_partition_;
    unique_fd partition_;
};
