// px2208: mid range, 8 cores, kernel 4.4.
//
// CPU      little: 4 x A53 (cpu0-3), 494 to 1508 MHz
//          big: 4 x A53 (cpu4-7), 845 to 2106 MHz
// GPU      Mali-T880, 2 shader cores, 270 to 900 MHz
// DRAM     LPDDR3, 1 channel, 1866 / 1600 / 1333 Mbps
// Display  1 DSI link, up to 60 Hz; panels nt36672_fhd_video, ft8716_fhd_video, td4310_fhd_video
// PMIC     rails vproc, vcore, vgpu, vdram, vpa, vs1, vmodem; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28,
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
    kmemleak_disable,
    kmemleak_enable,
    slub_debug_enable,
    page_owner_enable,
    lockdep_enable,
    hung_task_panic_enable,
    softlockup_panic_enable,
    watchdog_disable,
    watchdog_timeout_set,
    watchdog_percpu_kick_enable,
    console_level_set,
    uart_console_disable,
    uart_console_enable,
    log_buf_8m,
    console_suspend_disable,
    earlycon_enable,
    uart_shell_set,
    uart_baud_921600,
    initcall_debug_enable,
    kernel_argument_add,
    memory_limit_set,
    clk_ignore_unused,
    regulator_ignore_unused,
    panic_timeout_set,
    panic_on_warn_enable,
    sysrq_enable,
    ramdump_full_enable,
    ramdump_to_usb,
    lowmemorykiller_disable,
    iommu_fault_panic_enable,
    irq_handler_warn_10ms,
    emmc_hs400_disable,
    emmc_rpm_disable,
    usb_role_set,
    modem_off,

    // CPU
    boot_core_only,
    big_core_off<7, "A53">,
    big_off,
    cpu_hotplug_disable,
    cpufreq_disable,
    cpu_fix_max,
    cpu_fix_min,
    cluster_fix<"big", 2106>,
    big_cap_set<845, 2106>,
    hmp_disable,
    big_isolate<"4-7">,
    cpuidle_disable,
    core_off_disable,
    little_cluster_off_disable,
    big_cluster_off_disable,
    cci_fix_max,
    prefetch_disable,
    cpu_clock_gating_disable,
    svs_disable,
    cpu_voltage_offset,
    cpu_throttle_disable,

    // DRAM
    dram_fix<1866>,
    dram_fix<1333>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_renew,
    dram_eye_scan_rx,
    dram_refresh_2x,
    dram_refresh_per_bank,
    dram_mr4_override<7>,
    dram_self_refresh_disable,
    dram_power_down_disable,
    dram_clock_gating_disable,
    dram_test_full,

    // EMI: memory controller and buses
    emi_bwmon_enable,
    emi_bwmon_window_set,
    emi_mpu_panic,
    emi_mpu_log,
    bus_hang_enable,
    emi_clock_gating_disable,
    dramc_pmu_enable,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<1000>,
    vcore_hold_boot,
    vcore_req_log,

    // PMIC and charging
    buck_plus_25mv<"vcore">,
    buck_plus_25mv<"vdram">,
    buck_offset<"vcore">,
    buck_pwm_all,
    pmic_lp_mode_disable,
    ldo_vsd33_on,
    pmic_oc_log_only,
    pwrkey_reset_disable,
    pwrkey_reset_time<8>,
    pmic_reset_warm,
    pmic_reg_dump,
    pmic_irq_log,
    chg_input_500ma,
    gauge_soc_50,
    batt_throttle_disable,

    // GPU
    gpu_fix<900>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
    gpu_policy_coarse_demand,
    gpu_one_core,
    enable_gpu_acp,
    gpu_coherency_disable,
    gpu_soft_stop_disable,
    gpu_reset_dump,
    gpu_mmu_fault_panic,
    gpu_exception_mask_set,

    // Display
    lcm_settings,
    panel<"nt36672_fhd_video">,
    panel<"ft8716_fhd_video">,
    panel<"td4310_fhd_video">,
    panel_id_check_skip,
    seamless_logo_disable,
    esd_check_disable,
    dsi_lane_rate_set<1500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    bl_fixed_50,
    bl_pwm_20khz,
    cabc_disable,
    disp_idle_disable,
    disp_underrun_red,
    disp_underrun_panic,
    dsi_bist_boot,
    boot_logo_disable,
    pq_bypass,

    // LPM: low power
    suspend_disable,
    pm_print_times,
    pm_async_disable,
    pm_test_set,
    wakelock_log,
    wake_reason_log,
    soc_idle_disable,
    clk26m_keep,
    idle_self_refresh_disable,
    vcore_lp_disable,
    sleep_count_log,
    spm_firmware_skip,
    bus_clock_gating_disable,

    // TOOL: logs, trace and bring-up
    bootloader_log_verbose,
    log_store_enable,
    boot_profile_enable,
    adb_early_start,
    jtag_pins_enable,
    last_pc_print,
    etm_enable<4>,
    etb_enable,
    perf_stat_events,
    trace_buf_16m,
    trace_sched_irq_boot,
    disp_frame_trace,
};

}  // namespace

constinit const hwknobs_plat px2208 = version_0<rows>("px2208");
