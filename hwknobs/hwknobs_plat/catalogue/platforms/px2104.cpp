// px2104: entry level, 4 cores, kernel 4.4.
//
// CPU      cpu: 4 x A53 (cpu0-3), 299 to 1500 MHz
// GPU      Mali-T720, 2 shader cores, 350 to 560 MHz
// DRAM     LPDDR3, 1 channel, 1333 / 1066 / 800 Mbps
// Display  1 DSI link, up to 60 Hz; panels hx8394_wxga_video, ili9881_wxga_video
// PMIC     rails vproc, vcore, vgpu, vdram, vpa; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28, vvib, vconn18
// Charger  linear, limits fixed
// Storage  eMMC 5.0
// Modem    LTE
// Buses    USB 2 dual role, SD slot (UHS-I), I2C
// Wi-Fi    on SDIO
// Debug    JTAG, ETM, ETB, debug latch, bus hang detector, EMI bandwidth monitor
// clang-format off
#include "hwknobs_plat/catalogue/knobs.h"
#include "hwknobs_plat/catalogue/table.h"

using namespace catalogue;

namespace {

constexpr knob rows[] = {
    // Kernel: KASLR, arguments
    kernel_argument_add,

    // Kernel: memory debugging
    kmemleak_disable,
    kmemleak_enable,
    slub_debug_enable,
    page_owner_enable,

    // Kernel: lockups, panic
    hung_task_timeout_set,
    hung_task_panic_enable,
    softlockup_panic_enable,
    lockdep_enable,
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
    cpu_hotplug_disable,
    cpufreq_disable,
    cpu_fix_max,
    cpu_fix_min,
    cpu_cap_set<299, 1500>,
    cpuidle_disable,
    core_off_disable,
    cluster_off_disable,
    cpu_clock_gating_disable,
    svs_disable,
    cpu_voltage_offset,
    cpu_throttle_disable,

    // DRAM
    dram_fix<1333>,
    dram_fix<800>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_renew,
    dram_refresh_2x,
    dram_refresh_per_bank,
    dram_mr4_override<7>,
    dram_self_refresh_disable,
    dram_power_down_disable,
    dram_test_full,

    // EMI: memory controller, buses, system cache
    emi_bwmon_enable,
    emi_clock_gating_disable,
    emi_mpu_panic,
    emi_mpu_log,
    bus_hang_enable,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<1000>,
    vcore_req_log,

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
    pmic_reg_dump,
    chg_disable,
    gauge_soc_50,
    gauge_low_shutdown_disable,
    batt_throttle_disable,

    // GPU
    gpu_fix<560>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
    gpu_one_core,
    gpu_soft_stop_disable,
    gpu_reset_dump,
    gpu_mmu_fault_panic,
    gpu_exception_mask_set,

    // Display
    lcm_settings,
    panel<"hx8394_wxga_video">,
    panel<"ili9881_wxga_video">,
    panel_id_check_skip,
    esd_check_disable,
    dsi_lane_rate_set<1500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    bl_boot_level_set,
    cabc_disable,
    disp_idle_disable,
    pq_bypass,
    disp_underrun_red,
    dsi_bist_boot,

    // LPM: low power
    suspend_disable,
    pm_print_times,
    pm_test_set,
    wakelock_log,
    wake_reason_log,
    soc_idle_disable,
    clk26m_keep,
    idle_self_refresh_disable,
    vcore_lp_disable,
    sleep_count_log,
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
    etb_enable,
    perf_stat_events,
    trace_buf_size_set,
    trace_sched_irq_boot,
    trace_dump_on_oops,
};

}  // namespace

constinit const hwknobs_plat px2104 = version_0<rows>("px2104");
