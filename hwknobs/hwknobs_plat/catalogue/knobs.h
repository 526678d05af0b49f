// All knobs.
#pragma once

#include "hwknobs_plat/catalogue/knobs/cpu.h"
#include "hwknobs_plat/catalogue/knobs/display.h"
#include "hwknobs_plat/catalogue/knobs/dpsw.h"
#include "hwknobs_plat/catalogue/knobs/dram.h"
#include "hwknobs_plat/catalogue/knobs/emi.h"
#include "hwknobs_plat/catalogue/knobs/gpu.h"
#include "hwknobs_plat/catalogue/knobs/hrt.h"
#include "hwknobs_plat/catalogue/knobs/hyp.h"
#include "hwknobs_plat/catalogue/knobs/kernel.h"
#include "hwknobs_plat/catalogue/knobs/lpm.h"
#include "hwknobs_plat/catalogue/knobs/pmic.h"
#include "hwknobs_plat/catalogue/knobs/tool.h"
#include "hwknobs_plat/catalogue/knobs/vcore.h"
