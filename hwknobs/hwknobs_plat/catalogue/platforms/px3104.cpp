// px3104: entry level, 4 cores, kernel 4.9.
//
// CPU      cpu: 4 x A53 (cpu0-3), 575 to 2001 MHz
// GPU      Mali-G31, 1 shader core, 320 to 650 MHz
// DRAM     LPDDR3, 1 channel, 1866 / 1600 / 1333 / 1066 Mbps
// Display  1 DSI link, up to 60 Hz; panels ili9881_hdp_video, nt36525_hdp_video, hx83102_hdp_video
// PMIC     rails vproc, vcore, vgpu, vdram, vpa, vs1; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28, vvib,
//          vconn18, vconn33, vrf18, vsim1, vaux18
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
    iommu_fault_panic_enable,
    emmc_hs400_disable,
    emmc_clk_50mhz,
    usb_role_set,
    modem_off,
    emmc_rpm_disable,

    // CPU
    boot_core_only,
    cpu_start_mask_set<"0xf">,
    cpufreq_disable,
    cpu_fix<2001>,
    cpu_fix<575>,
    cpu_cap_set<575, 2001>,
    boot_opp_max,
    iowait_boost_disable,
    walt_disable,
    schedtune_disable,
    cpuidle_disable,
    core_off_disable,
    cluster_off_disable,
    prefetch_disable,
    cpu_clock_gating_disable,
    svs_disable,
    cpu_voltage_offset,
    cpu_throttle_disable,
    cpu_trip_set,
    erratum_skip<"A53", 845719, "32-bit loads">,
    kpti_disable,
    el0_32bit_disable,

    // DRAM
    dram_fix<1866>,
    dram_fix<1066>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_renew,
    dram_eye_scan_rx,
    dram_eye_scan_tx,
    dram_vdd2_plus_20mv<"VDD2">,
    dram_vdd2_minus_20mv<"VDD2">,
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
    emi_mpu_log,
    bus_hang_enable,
    emi_clock_gating_disable,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<900>,
    vcore_hold_boot,
    vcore_req_log,
    vcore_floor_disp,
    vcore_dram_decouple,

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
    gpu_fix<650>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
    gpu_policy_coarse_demand,
    gpu_clock_gating_disable,
    gpu_soft_stop_disable,
    gpu_reset_dump,
    gpu_mmu_fault_panic,
    gpu_exception_mask_set,
    gpu_counters_enable,
    gpu_afbc_disable,

    // Display
    lcm_settings,
    panel<"ili9881_hdp_video">,
    panel<"nt36525_hdp_video">,
    panel<"hx83102_hdp_video">,
    panel_id_check_skip,
    esd_check_disable,
    dsi_lane_rate_set<1500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    bl_fixed_50,
    cabc_disable,
    disp_idle_disable,
    ovl_single_layer,
    disp_underrun_red,
    dsi_bist_boot,
    boot_logo_disable,
    pq_bypass,

    // HRT: hard real-time bandwidth
    hrt_check_disable,

    // DPSW: power-domain switches
    dpsw_all_on,
    pd_ignore_unused,
    power_domain_on<"disp", "display">,

    // LPM: low power
    suspend_disable,
    pm_print_times,
    pm_test_set,
    dpm_watchdog_set,
    wakelock_log,
    wake_reason_log,
    gic_pending_log,
    soc_idle_disable,
    clk26m_keep,
    idle_self_refresh_disable,
    bus_pll_keep,
    vcore_lp_disable,
    sleep_count_log,
    spm_log_enable,
    bus_clock_gating_disable,

    // TOOL: logs, trace and bring-up
    bootloader_log_verbose,
    log_store_enable,
    boot_reason_print,
    boot_profile_enable,
    jtag_pins_enable,
    last_pc_print,
    etm_enable<0>,
    etf_enable,
    perf_stat_events,
    perf_paranoid_set,
    trace_sched_irq_boot,
    disp_frame_trace,
};

}  // namespace

constinit const hwknobs_plat px3104 = version_0<rows>("px3104");
