// px1206: mid range, 8 cores, kernel 3.18.
//
// CPU      little: 4 x A53 (cpu0-3), 338 to 1500 MHz
//          big: 4 x A53 (cpu4-7), 793 to 1950 MHz
// GPU      Mali-T860, 2 shader cores, 299 to 700 MHz
// DRAM     LPDDR3, 1 channel, 1866 / 1600 / 1333 / 1066 Mbps
// Display  1 DSI link, up to 60 Hz; panels nt35521_wxga_video, otm1906_fhd_video, r63350_fhd_video
// PMIC     rails vproc, vcore, vgpu, vdram, vpa, vs1; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28, vvib,
//          vconn18, vconn33
// Storage  eMMC 5.0
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
    cluster_fix<"big", 1950>,
    big_cap_set<793, 1950>,
    hmp_disable,
    big_isolate<"4-7">,
    cpuidle_disable,
    big_cluster_off_disable,
    cci_fix_max,
    prefetch_disable,
    cpu_clock_gating_disable,
    svs_disable,
    cpu_voltage_offset,
    cpu_throttle_disable,

    // DRAM
    dram_fix<1866>,
    dram_fix<1600>,
    dram_fix<1066>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_skip,
    dram_zq_calibration_disable,
    dram_refresh_2x,
    dram_refresh_per_bank,
    dram_mr4_override<7>,
    dram_self_refresh_disable,
    dram_test_full,

    // EMI: memory controller and buses
    emi_bwmon_enable,
    emi_bwmon_window_set,
    emi_mpu_panic,
    emi_mpu_log,
    bus_hang_enable,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<1125>,
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
    chg_input_500ma,
    gauge_soc_50,
    batt_throttle_disable,

    // GPU
    gpu_fix<700>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
    gpu_policy_coarse_demand,
    enable_gpu_acp,
    gpu_coherency_disable,
    gpu_soft_stop_disable,
    gpu_reset_dump,
    gpu_mmu_fault_panic,
    gpu_exception_mask_set,

    // Display
    lcm_settings,
    panel<"nt35521_wxga_video">,
    panel<"otm1906_fhd_video">,
    panel<"r63350_fhd_video">,
    panel_id_check_skip,
    esd_check_disable,
    dsi_lane_rate_set<1500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    bl_fixed_50,
    bl_pwm_20khz,
    cabc_disable,
    disp_idle_disable,
    disp_underrun_red,
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
    modem_wake_mask,
    soc_idle_disable,
    clk26m_keep,
    idle_self_refresh_disable,
    spm_firmware_skip,
    bus_clock_gating_disable,

    // TOOL: logs, trace and bring-up
    bootloader_log_verbose,
    log_store_enable,
    boot_reason_print,
    boot_profile_enable,
    adb_early_start,
    jtag_pins_enable,
    last_pc_print,
    conn_log_enable,
    trace_buf_16m,
    trace_sched_irq_boot,
    disp_frame_trace,
};

}  // namespace

constinit const hwknobs_plat px1206 = version_0<rows>("px1206");
