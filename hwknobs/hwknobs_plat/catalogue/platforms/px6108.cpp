// px6108: entry level, 8 cores, kernel 5.10.
//
// CPU      little: 6 x A55 (cpu0-5), 500 to 2000 MHz
//          big: 2 x A76 (cpu6-7), 950 to 2200 MHz
// GPU      Mali-G57, 1 shader core, 320 to 880 MHz
// DRAM     LPDDR4X, 2 channels, 4266 / 3200 / 2400 / 1600 Mbps
// Display  1 DSI link, up to 90 Hz; panels ili9883_hdp_video, nt36672e_fhdp_video, ft8725_fhdp_video
// PMIC     rails vproc1, vproc2, vcore, vgpu, vdram, vs1, vs2, vmodem; LDOs vio18, vio28, vemmc33, vsd33, vusb33,
//          vcam28, vvib, vconn18, vconn33, vrf18, vsim1, vaux18, vufs18; lockout and shutdown levels fixed
// Charger  switching, current limits by register
// Storage  eMMC 5.1
// Modem    5G
// Buses    USB 2 dual role, SD slot (UHS-I), I2C
// Wi-Fi    in the chip
// Debug    JTAG, ETM, ETF, debug latch, bus hang detector, bus tracker, EMI bandwidth monitor
// clang-format off
#include "hwknobs_plat/catalogue/knobs.h"
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr row rows[] = {
    // Kernel: arguments, modules, memory
    {215, kernel_argument_add},
    {1, kaslr_disable},
    {2, kaslr_enable},
    {23, initcall_debug_enable},
    {22, dyndbg_set},
    {218, module_blocklist_set},
    {24, fw_devlink_set},
    {26, clk_ignore_unused},
    {27, regulator_ignore_unused},
    {217, memory_limit_set},
    {25, cma_size_set},
    {30, zram_disable},
    {3, kmemleak_disable},
    {4, kmemleak_enable},
    {6, slub_debug_enable},
    {7, page_owner_enable},
    {8, page_poison_enable},
    {9, debug_pagealloc_enable},
    {10, init_on_alloc_disable},
    {38, cfi_permissive},

    // Kernel: lockups, panic, watchdog, RAM dump
    {11, lockdep_enable},
    {12, hung_task_timeout_set},
    {13, hung_task_panic_enable},
    {14, softlockup_panic_enable},
    {15, rcu_stall_panic_enable},
    {42, pseudo_nmi_enable},
    {40, iommu_fault_panic_enable},
    {31, panic_timeout_set},
    {39, panic_on_oops_disable},
    {32, panic_on_warn_enable},
    {33, panic_print_set<"0x3f">},
    {34, sysrq_enable},
    {41, kgdb_uart_enable},
    {16, watchdog_disable},
    {84, watchdog_timeout_set},
    {17, watchdog_percpu_kick_enable},
    {35, ramdump_full_enable},
    {36, ramdump_mini_enable},
    {37, ramdump_to_usb},
    {53, pstore_all_reasons},

    // Kernel: console
    {18, console_level_set},
    {19, uart_console_disable},
    {20, uart_console_enable},
    {221, earlycon_enable},
    {222, uart_shell_set},
    {223, uart_baud_921600},
    {199, console_suspend_disable},
    {21, log_buf_8m},

    // Kernel: storage, USB, PCIe, I2C, modem
    {83, verity_mode_set},
    {214, emmc_rpm_disable},
    {43, emmc_hs400_disable},
    {44, emmc_clk_50mhz},
    {80, sd_uhs_disable},
    {52, usb_role_set},
    {55, i2c0_100khz},
    {145, modem_off},

    // CPU
    {45, boot_core_only},
    {46, cpu_start_mask_set<"0xff">},
    {48, big_off},
    {49, cpufreq_disable},
    {50, cpu_fix_max},
    {51, cpu_fix_min},
    {54, big_cap_set<950, 2200>},
    {58, iowait_boost_disable},
    {59, eas_disable},
    {61, misfit_disable},
    {60, uclamp_disable},
    {62, big_isolate<"6-7">},
    {64, cpuidle_disable},
    {67, idle_governor_set},
    {65, core_off_disable},
    {66, dsu_off_disable},
    {56, l3_fix_max},
    {68, l3_powerdown_disable},
    {71, cpu_clock_gating_disable},
    {72, cache_ecc_log},
    {73, svs_disable},
    {74, cluster_voltage_offset<"little">},
    {76, cluster_voltage_offset<"big">},
    {77, cpu_throttle_disable},
    {78, cpu_trip_set},
    {79, mitigations_off},

    // DRAM
    {81, dram_fix<4266>},
    {82, dram_fix<1600>},
    {120, dram_max<3200>},
    {85, dram_dvfs_disable},
    {87, dram_train_full},
    {88, dram_train_renew},
    {89, dram_eye_scan_rx},
    {90, dram_eye_scan_tx},
    {91, dram_vdd2_plus_20mv<"VDD2">},
    {146, dram_vdd2_minus_20mv<"VDD2">},
    {92, dram_dqs_osc_disable},
    {93, dram_refresh_2x},
    {94, dram_refresh_all_bank},
    {95, dram_mr4_override<7>},
    {96, dram_self_refresh_disable},
    {97, dram_power_down_disable},
    {98, dram_odt_disable},
    {100, dram_dbi_disable},
    {101, dram_rank0_only},
    {102, dram_channel0_only},
    {103, dram_test_full},

    // EMI: memory controller, buses, system cache
    {104, emi_bwmon_enable},
    {110, emi_clock_gating_disable},
    {106, emi_mpu_panic},
    {107, emi_mpu_log},
    {108, bus_hang_enable},
    {109, bus_hang_panic},

    // VCORE: core rail levels
    {112, vcore_dvfs_disable},
    {113, vcore_fix<725>},
    {57, vcore_fix<550>},
    {115, vcore_req_log},
    {116, vcore_floor_set},
    {117, vcore_floor_disp},
    {118, vcore_dram_decouple},
    {119, vcore_timeout_panic},

    // PMIC and charging
    {121, buck_plus_25mv<"vcore">},
    {122, buck_plus_25mv<"vdram">},
    {123, buck_offset<"vcore">},
    {124, buck_offset<"vdram">},
    {63, buck_offset<"vmodem">},
    {125, buck_pwm_all},
    {127, pmic_lp_mode_disable},
    {128, ldo_vsd33_on},
    {129, pmic_oc_log_only},
    {130, pwrkey_reset_disable},
    {132, pmic_reset_warm},
    {133, pmic_wdt_disable},
    {134, pmic_reg_dump},
    {69, pmic_reg_print},
    {70, pmic_boot_reason_log},
    {136, chg_disable},
    {137, chg_input_500ma},
    {138, chg_current_set},
    {75, chg_jeita_disable},
    {139, gauge_soc_50},
    {141, gauge_temp_set},
    {86, gauge_low_shutdown_disable},
    {142, batt_throttle_disable},

    // GPU
    {143, gpu_fix<880>},
    {47, gpu_fix<320>},
    {147, gpu_dvfs_disable},
    {5, gpu_throttle_disable},
    {148, gpu_voltage_offset},
    {149, gpu_disable},
    {150, gpu_policy_always_on},
    {144, gpu_policy_adaptive_set},
    {152, gpu_clock_gating_disable},
    {153, enable_gpu_acp},
    {154, gpu_coherency_disable},
    {155, gpu_soft_stop_disable},
    {157, gpu_reset_dump},
    {158, gpu_mmu_fault_panic},
    {159, gpu_exception_mask_set},
    {161, gpu_counters_enable},
    {162, gpu_afbc_disable},

    // Display
    {163, lcm_settings},
    {164, panel<"ili9883_hdp_video">},
    {165, panel<"nt36672e_fhdp_video">},
    {166, panel<"ft8725_fhdp_video">},
    {99, panel_id_check_skip},
    {167, esd_check_disable},
    {168, refresh_fix<60>},
    {169, refresh_fix<90>},
    {171, dsi_lane_rate_set<2500>},
    {172, dsi_clk_continuous},
    {173, dsi_ssc_disable},
    {174, bl_boot_level_set},
    {175, cabc_disable},
    {176, disp_idle_disable},
    {178, ovl_single_layer},
    {185, pq_bypass},
    {179, disp_underrun_red},
    {180, disp_underrun_action_set},
    {182, drm_debug_mask_set<"0x3ff">},
    {183, dsi_bist_boot},
    {184, boot_logo_disable},

    // DPSW: power-domain switches
    {192, dpsw_all_on},
    {193, pd_ignore_unused},
    {194, power_domain_on<"disp", "display">},
    {195, power_domain_on<"cam", "camera">},
    {196, power_domain_on<"vdec", "video decoder">},
    {197, dpsw_ack_panic},

    // LPM: low power
    {198, suspend_disable},
    {105, suspend_s2idle},
    {200, pm_print_times},
    {111, pm_debug_messages},
    {201, pm_test_set},
    {114, dpm_watchdog_set},
    {202, wakelock_log},
    {131, wake_reason_log},
    {203, wake_mask_set},
    {204, gic_pending_log},
    {205, soc_idle_disable},
    {206, clk26m_keep},
    {207, idle_self_refresh_disable},
    {208, bus_pll_keep},
    {209, vcore_lp_disable},
    {210, resource_req_log},
    {211, sleep_count_log},
    {212, spm_log_enable},
    {213, bus_clock_gating_disable},
    {126, cam_clocks_on},
    {135, audio_clocks_on},

    // HYP: hypervisor and secure world
    {216, hyp_disable},
    {219, el2_uart_enable},
    {140, hyp_panic_halt},
    {220, el3_log_set},

    // TOOL: logs, trace and bring-up
    {224, bootloader_log_verbose},
    {225, log_store_enable},
    {226, boot_reason_print},
    {227, boot_profile_enable},
    {229, adb_early_start},
    {230, jtag_pins_enable},
    {231, last_pc_print},
    {232, bus_tracker_enable},
    {233, etm_enable<6>},
    {234, etf_enable},
    {236, perf_stat_events},
    {237, perf_paranoid_set},
    {151, pmu_idle_keep},
    {238, dsu_pmu_enable},
    {156, trace_buf_size_set},
    {28, trace_sched_irq_boot},
    {29, trace_dump_on_oops},
    {239, thermal_log_1s},
    {240, conn_log_enable},
};

}  // namespace

constinit const hwknobs_plat px6108 = version_2<rows>("px6108");
