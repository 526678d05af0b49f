// px4108: entry level, 8 cores, kernel 4.14.
//
// CPU      little: 4 x A53 (cpu0-3), 650 to 1700 MHz
//          big: 4 x A53 (cpu4-7), 825 to 2000 MHz
// GPU      Mali-G52, 1 shader core, 300 to 680 MHz
// DRAM     LPDDR4X, 1 channel, 3200 / 2400 / 1600 Mbps
// Display  1 DSI link, up to 60 Hz; panels ili9882_hdp_video, nt36525b_hdp_video, hx83112_fhdp_video
// PMIC     rails vproc1, vproc2, vcore, vgpu, vdram, vs1, vs2; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28,
//          vvib, vconn18, vconn33, vrf18, vsim1, vaux18
// Storage  eMMC 5.1
// Modem    LTE
// clang-format off
#include "hwknobs_plat/catalogue/knobs.h"
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr knob rows[] = {
    // Kernel debugging and behavior
    kaslr_disable,
    kaslr_enable,
    kmemleak_disable,
    kmemleak_enable,
    slub_debug_enable,
    page_owner_enable,
    page_poison_enable,
    debug_pagealloc_enable,
    lockdep_enable,
    hung_task_timeout_set,
    hung_task_panic_enable,
    softlockup_panic_enable,
    watchdog_disable,
    watchdog_timeout_set,
    console_level_set,
    uart_console_disable,
    uart_console_enable,
    console_suspend_disable,
    earlycon_enable,
    uart_shell_set,
    uart_baud_921600,
    dyndbg_set,
    initcall_debug_enable,
    kernel_argument_add,
    memory_limit_set,
    clk_ignore_unused,
    regulator_ignore_unused,
    panic_timeout_set,
    panic_on_warn_enable,
    sysrq_enable,
    ramdump_full_enable,
    ramdump_mini_enable,
    ramdump_to_usb,
    cfi_permissive,
    iommu_fault_panic_enable,
    emmc_hs400_disable,
    emmc_clk_50mhz,
    usb_role_set,
    modem_off,
    emmc_rpm_disable,
    verity_mode_set,

    // CPU
    boot_core_only,
    cpu_start_mask_set<"0xff">,
    big_off,
    core_ctl_disable,
    cpufreq_disable,
    cpu_fix_max,
    cpu_fix_min,
    big_cap_set<825, 2000>,
    iowait_boost_disable,
    eas_disable,
    walt_disable,
    schedtune_disable,
    big_isolate<"4-7">,
    cpuidle_disable,
    big_cluster_off_disable,
    cci_fix_max,
    prefetch_disable,
    cpu_clock_gating_disable,
    svs_disable,
    cluster_voltage_offset<"little">,
    cluster_voltage_offset<"big">,
    cpu_throttle_disable,
    cpu_trip_set,
    kpti_disable,

    // DRAM
    dram_fix<3200>,
    dram_fix<1600>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_renew,
    dram_eye_scan_rx,
    dram_eye_scan_tx,
    dram_vdd2_plus_20mv<"VDD2">,
    dram_vdd2_minus_20mv<"VDD2">,
    dram_dqs_osc_disable,
    dram_refresh_2x,
    dram_mr4_override<7>,
    dram_self_refresh_disable,
    dram_power_down_disable,
    dram_odt_disable,
    dram_rank0_only,
    dram_test_full,

    // EMI: memory controller and buses
    emi_bwmon_enable,
    emi_mpu_panic,
    bus_hang_enable,
    bus_hang_panic,
    emi_clock_gating_disable,
    dramc_pmu_enable,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<825>,
    vcore_hold_boot,
    vcore_req_log,
    vcore_floor_disp,
    vcore_timeout_panic,

    // PMIC and charging
    buck_plus_25mv<"vcore">,
    buck_plus_25mv<"vdram">,
    buck_offset<"vcore">,
    buck_offset<"vdram">,
    buck_pwm_all,
    pmic_lp_mode_disable,
    ldo_vsd33_on,
    pmic_oc_log_only,
    pwrkey_reset_disable,
    pwrkey_reset_time<14>,
    pmic_reset_warm,
    pmic_wdt_disable,
    pmic_reg_dump,
    chg_input_500ma,
    gauge_soc_50,
    batt_throttle_disable,

    // GPU
    gpu_fix<680>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
    gpu_policy_coarse_demand,
    gpu_clock_gating_disable,
    enable_gpu_acp,
    gpu_coherency_disable,
    gpu_soft_stop_disable,
    gpu_reset_dump,
    gpu_mmu_fault_panic,
    gpu_exception_mask_set,
    gpu_counters_enable,

    // Display
    lcm_settings,
    panel<"ili9882_hdp_video">,
    panel<"nt36525b_hdp_video">,
    panel<"hx83112_fhdp_video">,
    esd_check_disable,
    dsi_lane_rate_set<2500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    bl_boot_level_set,
    cabc_disable,
    disp_idle_disable,
    ovl_single_layer,
    disp_underrun_red,
    disp_underrun_action_set,
    dsi_bist_boot,
    boot_logo_disable,
    pq_bypass,

    // HRT: hard real-time bandwidth
    hrt_check_disable,
    hrt_dvfs_floor_max,

    // DPSW: power-domain switches
    dpsw_all_on,
    pd_ignore_unused,
    power_domain_on<"disp", "display">,
    dpsw_ack_panic,

    // LPM: low power
    suspend_disable,
    pm_print_times,
    pm_test_set,
    wakelock_log,
    wake_mask_set,
    gic_pending_log,
    soc_idle_disable,
    clk26m_keep,
    idle_self_refresh_disable,
    bus_pll_keep,
    vcore_lp_disable,
    resource_req_log,
    sleep_count_log,
    spm_log_enable,
    bus_clock_gating_disable,

    // TOOL: logs, trace and bring-up
    bootloader_log_verbose,
    log_store_enable,
    boot_profile_enable,
    adb_early_start,
    jtag_pins_enable,
    last_pc_print,
    bus_tracker_enable,
    etm_enable<4>,
    etf_enable,
    perf_stat_events,
    perf_paranoid_set,
    trace_sched_irq_boot,
    disp_frame_trace,
};

}  // namespace

constinit const hwknobs_plat px4108 = version_0<rows>("px4108");
