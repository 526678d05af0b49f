// px3104: entry level, 4 cores, kernel 4.9.
//
// CPU      cpu: 4 x A53 (cpu0-3), 575 to 2001 MHz
// GPU      Mali-G31, 1 shader core, 320 to 650 MHz
// DRAM     LPDDR3, 1 channel, 1866 / 1600 / 1333 / 1066 Mbps
// Display  1 DSI link, up to 60 Hz; panels ili9881_hdp_video, nt36525_hdp_video
// PMIC     rails vproc, vcore, vgpu, vdram, vpa, vs1; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28, vvib,
//          vconn18, vconn33, vrf18, vsim1, vaux18
// Charger  linear, input limit by register
// Storage  eMMC 5.1
// Modem    LTE
// Buses    USB 2 dual role, SD slot (UHS-I), I2C
// Wi-Fi    on SDIO
// Debug    JTAG, ETM, ETF, debug latch, bus hang detector, EMI bandwidth monitor
// clang-format off
#include "hwknobs_plat/catalogue/knobs.h"
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr knob rows[] = {
    // Kernel: KASLR, arguments
    kaslr_disable,
    kaslr_enable,
    kernel_argument_add,

    // Kernel: memory debugging
    kmemleak_disable,
    kmemleak_enable,
    slub_debug_enable,
    page_owner_enable,
    page_poison_enable,
    debug_pagealloc_enable,

    // Kernel: lockups, panic
    hung_task_timeout_set,
    hung_task_panic_enable,
    softlockup_panic_enable,
    lockdep_enable,
    rcu_stall_panic_enable,
    iommu_fault_panic_enable,
    panic_timeout_set,
    panic_on_oops_disable,
    panic_on_warn_enable,
    sysrq_enable,
    kgdb_uart_enable,

    // Kernel: watchdog, RAM dump
    watchdog_disable,
    watchdog_timeout_set,
    watchdog_percpu_kick_enable,
    ramdump_full_enable,
    ramdump_mini_enable,
    ramdump_to_usb,

    // Kernel: console
    console_level_set,
    uart_console_disable,
    uart_console_enable,
    earlycon_enable,
    uart_shell_set,
    uart_baud_921600,
    console_suspend_disable,
    log_buf_8m,

    // Kernel: boot, modules, memory size
    initcall_debug_enable,
    dyndbg_set,
    clk_ignore_unused,
    regulator_ignore_unused,
    memory_limit_set,
    cma_size_set,
    zram_disable,
    lowmemorykiller_disable,
    selinux_permissive,

    // Kernel: storage
    verity_mode_set,
    emmc_rpm_disable,
    emmc_hs400_disable,
    emmc_clk_50mhz,
    sd_uhs_disable,

    // Kernel: USB, PCIe, I2C, modem
    usb_role_set,
    i2c0_100khz,
    modem_off,

    // CPU
    boot_core_only,
    cpu_start_mask_set<"0xf">,
    core_ctl_disable,
    cpufreq_disable,
    cpu_fix_max,
    cpu_fix_min,
    cpu_cap_set<575, 2001>,
    iowait_boost_disable,
    walt_disable,
    cpuidle_disable,
    core_off_disable,
    cluster_off_disable,
    cpu_clock_gating_disable,
    svs_disable,
    cpu_voltage_offset,
    cpu_throttle_disable,
    cpu_trip_set,
    kpti_disable,

    // DRAM
    dram_fix<1866>,
    dram_fix<1066>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_renew,
    dram_refresh_2x,
    dram_refresh_per_bank,
    dram_mr4_override<7>,
    dram_self_refresh_disable,
    dram_power_down_disable,
    dram_rank0_only,
    dram_test_full,

    // EMI: memory controller, buses, system cache
    emi_bwmon_enable,
    emi_clock_gating_disable,
    emi_mpu_panic,
    emi_mpu_log,
    bus_hang_enable,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<900>,
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
    pmic_reset_warm,
    pmic_wdt_disable,
    pmic_reg_dump,
    pmic_boot_reason_log,
    chg_disable,
    chg_input_500ma,
    gauge_soc_50,
    gauge_low_shutdown_disable,
    batt_throttle_disable,

    // GPU
    gpu_fix<650>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
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
    panel_id_check_skip,
    esd_check_disable,
    dsi_lane_rate_set<1500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    bl_boot_level_set,
    cabc_disable,
    disp_idle_disable,
    ovl_single_layer,
    pq_bypass,
    disp_underrun_red,
    dsi_bist_boot,

    // DPSW: power-domain switches
    dpsw_all_on,
    pd_ignore_unused,
    power_domain_on<"disp", "display">,
    power_domain_on<"cam", "camera">,

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
    cam_clocks_on,
    audio_clocks_on,

    // TOOL: logs, trace and bring-up
    bootloader_log_verbose,
    log_store_enable,
    boot_reason_print,
    boot_profile_enable,
    adb_early_start,
    jtag_pins_enable,
    last_pc_print,
    etm_enable<0>,
    etf_enable,
    perf_stat_events,
    pmu_idle_keep,
    trace_buf_size_set,
    trace_sched_irq_boot,
    trace_dump_on_oops,
    thermal_log_1s,
};

}  // namespace

constinit const hwknobs_plat px3104 = version_0<rows>("px3104");
