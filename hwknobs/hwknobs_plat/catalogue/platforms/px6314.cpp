// px6314: flagship, 8 cores, kernel 5.10.
//
// CPU      little: 4 x A55 (cpu0-3), 500 to 2000 MHz
//          mid: 3 x A78 (cpu4-6), 774 to 2600 MHz
//          big: 1 x A78 (cpu7), 902 to 3000 MHz
//          clocks set by DVFS firmware; big cluster with turbo and droop detector
// GPU      Mali-G77, 9 shader cores, 370 to 890 MHz
// DRAM     LPDDR4X, 4 channels, 4266 / 3733 / 3200 / 2400 / 1600 Mbps; system level cache
// Display  2 DSI links, DisplayPort, up to 144 Hz, DSC; panels s6e3hc3_wqhdp_cmd, nt37801_wqhdp_cmd
// PMIC     on SPMI; rails vproc1, vproc2, vproc3, vcore, vmodem, vgpu11, vgpu12, vsram_core, vdram1, vdram2, vs1, vs2,
//          vs3, vapu; LDOs vio18, vio28, vemmc33, vusb33, vcam28, vvib, vconn18, vconn33, vrf18, vsim1, vaux18,
//          vufs18, vefuse, vbatif28, vrf12, vtcxo22
// Charger  switching, current limits by register
// Storage  UFS 3.1
// Modem    5G
// Buses    USB 3 dual role, no SD slot, PCIe 3.0, I2C
// Wi-Fi    on PCIe
// Sensors  sensor hub
// Debug    JTAG, ETM, ETF, ETR, debug latch, bus hang detector, bus tracker, EMI bandwidth monitor with latency
//          histogram, DRAM controller counters
// clang-format off
#include "hwknobs_plat/catalogue/knobs.h"
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr row rows[] = {
    // Kernel: KASLR, arguments
    {1, kaslr_disable},
    {2, kaslr_enable},
    {3, kernel_argument_add},

    // Kernel: memory debugging
    {4, kmemleak_disable},
    {5, kmemleak_enable},
    {11, slub_debug_enable},
    {12, page_owner_enable},
    {13, page_poison_enable},
    {14, debug_pagealloc_enable},
    {15, init_on_alloc_disable},

    // Kernel: lockups, panic
    {17, hung_task_timeout_set},
    {18, hung_task_panic_enable},
    {19, softlockup_panic_enable},
    {20, lockdep_enable},
    {21, rcu_stall_panic_enable},
    {23, pseudo_nmi_enable},
    {24, iommu_fault_panic_enable},
    {25, cfi_permissive},
    {26, panic_timeout_set},
    {27, panic_on_oops_disable},
    {28, panic_on_warn_enable},
    {29, panic_print_set<"0x3f">},
    {31, sysrq_enable},
    {32, kgdb_uart_enable},

    // Kernel: watchdog, RAM dump
    {33, watchdog_disable},
    {34, watchdog_timeout_set},
    {35, watchdog_percpu_kick_enable},
    {36, ramdump_full_enable},
    {37, ramdump_mini_enable},
    {38, ramdump_to_usb},
    {39, pstore_all_reasons},

    // Kernel: console
    {41, console_level_set},
    {42, uart_console_disable},
    {43, uart_console_enable},
    {44, earlycon_enable},
    {45, uart_shell_set},
    {46, uart_baud_921600},
    {47, console_suspend_disable},
    {48, log_buf_8m},

    // Kernel: boot, modules, memory size
    {49, deferred_probe_timeout_set},
    {50, initcall_debug_enable},
    {51, dyndbg_set},
    {52, module_blocklist_set},
    {53, fw_devlink_set},
    {54, clk_ignore_unused},
    {55, regulator_ignore_unused},
    {56, memory_limit_set},
    {57, cma_size_set},
    {58, zram_disable},
    {60, selinux_permissive},

    // Kernel: storage
    {61, verity_mode_set},
    {65, ufs_gear_1},
    {66, ufs_hibern8_disable},
    {67, ufs_clock_gating_disable},
    {68, ufs_write_booster_disable},

    // Kernel: USB, PCIe, I2C, modem
    {72, usb_role_set},
    {73, usb_high_speed},
    {74, pcie_gen_1},
    {75, pcie_aspm_disable},
    {76, i2c0_100khz},
    {77, modem_off},

    // CPU
    {78, boot_core_only},
    {79, cpu_start_mask_set<"0xff">},
    {80, big_off},
    {81, cpufreq_disable},
    {82, cpu_fix_max},
    {83, cpu_fix_min},
    {84, big_cap_set<902, 3000>},
    {85, big_turbo_disable},
    {86, cpufreq_sw_dvfs},
    {87, iowait_boost_disable},
    {88, eas_disable},
    {89, uclamp_disable},
    {91, big_isolate<"7">},
    {92, cpuidle_disable},
    {93, idle_governor_set},
    {94, core_off_disable},
    {95, dsu_off_disable},
    {96, l3_fix_max},
    {97, l3_powerdown_disable},
    {100, cpu_clock_gating_disable},
    {101, cache_ecc_log},
    {102, svs_disable},
    {103, cluster_voltage_offset<"little">},
    {104, cluster_voltage_offset<"mid">},
    {105, cluster_voltage_offset<"big">},
    {106, droop_disable},
    {107, cpu_throttle_disable},
    {108, cpu_trip_set},
    {109, mitigations_off},

    // DRAM
    {118, dram_fix<4266>},
    {119, dram_fix<1600>},
    {120, dram_max<3733>},
    {121, dram_dvfs_disable},
    {122, dram_train_full},
    {123, dram_train_renew},
    {124, dram_eye_scan_rx},
    {125, dram_eye_scan_tx},
    {126, dram_vdd2_plus_20mv<"VDD2">},
    {127, dram_vdd2_minus_20mv<"VDD2">},
    {128, dram_dqs_osc_disable},
    {131, dram_refresh_2x},
    {132, dram_refresh_all_bank},
    {133, dram_mr4_override<7>},
    {135, dram_self_refresh_disable},
    {136, dram_power_down_disable},
    {137, dram_odt_disable},
    {138, dram_dbi_disable},
    {142, dram_rank0_only},
    {143, dram_channel0_only},
    {144, dram_test_full},

    // EMI: memory controller, buses, system cache
    {146, emi_bwmon_enable},
    {147, dramc_pmu_enable},
    {148, emi_clock_gating_disable},
    {149, emi_hash_disable},
    {150, emi_mpu_panic},
    {151, emi_mpu_log},
    {152, bus_hang_enable},
    {153, bus_hang_panic},
    {154, emi_latency_hist},
    {155, slc_disable},
    {156, slc_gpu_ways_set},

    // VCORE: core rail levels
    {158, vcore_dvfs_disable},
    {159, vcore_fix<725>},
    {160, vcore_fix_550mv},
    {161, vcore_req_log},
    {162, vcore_floor_set},
    {163, vcore_floor_disp},
    {164, vcore_dram_decouple},
    {165, vcore_timeout_panic},

    // PMIC and charging
    {167, buck_plus_25mv<"vcore">},
    {168, buck_plus_25mv<"vdram1">},
    {169, buck_plus_25mv<"vdram2">},
    {171, buck_offset<"vcore">},
    {172, buck_offset<"vmodem">},
    {173, buck_offset<"vgpu12">},
    {174, buck_offset<"vdram1">},
    {175, buck_offset<"vdram2">},
    {176, buck_offset<"vapu">},
    {178, buck_pwm_all},
    {179, pmic_lp_mode_disable},
    {181, pmic_oc_log_only},
    {183, pmic_uvlo_2600mv},
    {184, pmic_thermal_shutdown_disable},
    {185, pwrkey_reset_disable},
    {186, pmic_reset_warm},
    {187, pmic_wdt_disable},
    {188, pmic_reg_dump},
    {189, pmic_reg_print},
    {190, pmic_boot_reason_log},
    {191, spmi_parity_panic},
    {192, chg_disable},
    {193, chg_input_500ma},
    {194, chg_current_set},
    {195, chg_jeita_disable},
    {196, gauge_soc_50},
    {197, gauge_temp_set},
    {198, gauge_low_shutdown_disable},
    {199, batt_throttle_disable},

    // GPU
    {201, gpu_fix<890>},
    {202, gpu_fix<370>},
    {203, gpu_dvfs_disable},
    {204, gpu_throttle_disable},
    {205, gpu_voltage_offset},
    {207, gpu_avs_disable},
    {208, gpu_disable},
    {210, gpu_policy_always_on},
    {211, gpu_policy_adaptive_set},
    {212, gpu_one_core},
    {213, gpu_clock_gating_disable},
    {215, enable_gpu_acp},
    {216, gpu_coherency_disable},
    {217, gpu_soft_stop_disable},
    {221, gpu_reset_dump},
    {222, gpu_mmu_fault_panic},
    {223, gpu_exception_mask_set},
    {224, gpu_counters_enable},
    {225, gpu_afbc_disable},

    // Display
    {228, lcm_settings},
    {229, panel<"s6e3hc3_wqhdp_cmd">},
    {230, panel<"nt37801_wqhdp_cmd">},
    {232, panel_id_check_skip},
    {233, esd_check_disable},
    {234, refresh_fix<60>},
    {235, refresh_fix<144>},
    {236, dsi_lane_rate_set<2500>},
    {237, dsi_clk_continuous},
    {238, dsi_ssc_disable},
    {239, dsi_ulps_disable},
    {240, dsi1_disable},
    {241, dsc_disable},
    {242, dp_disable},
    {243, dp_rate_hbr},
    {244, bl_boot_level_set},
    {247, disp_idle_disable},
    {248, disp_partial_disable},
    {249, te_ignore},
    {250, ovl_single_layer},
    {252, pq_bypass},
    {253, disp_underrun_red},
    {254, disp_underrun_action_set},
    {255, drm_debug_mask_set<"0x3ff">},
    {256, dsi_bist_boot},

    // HRT: hard real-time bandwidth
    {261, hrt_check_disable},
    {262, hrt_dvfs_floor_max},
    {263, hrt_cam_floor_max},
    {264, hrt_over_log},
    {265, hrt_margin_set},

    // DPSW: power-domain switches
    {269, dpsw_all_on},
    {270, pd_ignore_unused},
    {271, power_domain_on<"disp", "display">},
    {272, power_domain_on<"cam", "camera">},
    {273, power_domain_on<"vdec", "video decoder">},
    {274, power_domain_on<"apu", "AI processor">},
    {275, dpsw_ack_panic},

    // LPM: low power
    {279, suspend_disable},
    {280, suspend_s2idle},
    {281, pm_print_times},
    {282, pm_debug_messages},
    {283, pm_test_set},
    {284, dpm_watchdog_set},
    {285, wakelock_log},
    {286, wake_reason_log},
    {287, wake_mask_set},
    {288, gic_pending_log},
    {289, soc_idle_disable},
    {290, clk26m_keep},
    {291, idle_self_refresh_disable},
    {292, bus_pll_keep},
    {293, vcore_lp_disable},
    {294, resource_req_log},
    {295, sleep_count_log},
    {296, spm_log_enable},
    {297, bus_clock_gating_disable},
    {298, cam_clocks_on},
    {299, audio_clocks_on},

    // HYP: hypervisor and secure world
    {302, hyp_disable},
    {308, el2_uart_enable},
    {309, hyp_panic_halt},
    {312, el3_log_set},

    // TOOL: logs, trace and bring-up
    {316, bootloader_log_verbose},
    {317, log_store_enable},
    {318, boot_reason_print},
    {319, boot_profile_enable},
    {320, adb_early_start},
    {321, jtag_pins_enable},
    {322, last_pc_print},
    {323, bus_tracker_enable},
    {324, etm_enable<7>},
    {326, etf_enable},
    {327, etr_enable},
    {329, perf_stat_events},
    {331, pmu_idle_keep},
    {332, dsu_pmu_enable},
    {334, trace_buf_size_set},
    {335, trace_sched_irq_boot},
    {336, trace_dump_on_oops},
    {337, thermal_log_1s},
    {343, conn_log_enable},
    {344, sensorhub_log_enable},
};

}  // namespace

constinit const hwknobs_plat px6314 = version_2<rows>("px6314");
