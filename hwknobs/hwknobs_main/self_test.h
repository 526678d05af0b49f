// The self test of the catalogue.
#pragma once

#include "hwknobs_plat/platform.h"

/// The two checks of the self test. Each tells the reasons of a failure through debug().
bool check_platform(const hwknobs_plat& plat);
bool check_configs(const hwknobs_plat& plat);

/// Runs both for the platform of the running device and prints a report. 2 when one failed, else 0.
int hwknobs_self_test();
