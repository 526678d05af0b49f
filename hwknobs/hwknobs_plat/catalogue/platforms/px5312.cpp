// px5312: flagship, 8 cores, kernel 4.19.
//
// CPU      little: 4 x A55 (cpu0-3), 500 to 2000 MHz
//          mid: 3 x A77 (cpu4-6), 774 to 2600 MHz
//          big: 1 x A77 (cpu7), 902 to 2840 MHz
//          clocks set by DVFS firmware; big cluster with turbo and droop detector
// GPU      Mali-G77, 9 shader cores, 350 to 850 MHz
// DRAM     LPDDR5 or LPDDR4X, 4 channels, 5500 (LPDDR5) / 4266 / 3733 / 3200 / 2400 / 1600 Mbps; system level cache
// Display  2 DSI links, DisplayPort, up to 120 Hz, DSC; panels s6e3hc3_wqhdp_cmd, nt37701_fhdp_cmd, rm692e5_fhdp_cmd,
//          s6e3hc2_wqhdp_cmd, ana6706_fhdp_cmd, rm692c9_fhdp_cmd
// Media    video decoder in a power domain of its own
// PMIC     rails vproc1, vproc2, vproc3, vcore, vmodem, vgpu11, vgpu12, vsram_core, vdram1, vdram2, vs1, vs2, vs3,
//          vapu; LDOs vio18, vio28, vemmc33, vsd33, vusb33, vcam28, vvib, vconn18, vconn33, vrf18, vsim1, vaux18,
//          vufs18, vefuse, vbatif28, vrf12, vtcxo22
// Charger  switching, current limits by register
// Storage  UFS 3.0
// Modem    5G
// Buses    USB 3 dual role, SD slot (UHS-I), PCIe 3.0, I2C
// Wi-Fi    on PCIe
// Sensors  sensor hub
// Debug    JTAG, ETM, ETF, ETR, debug latch, bus hang detector, bus tracker, EMI bandwidth monitor with latency
//          histogram, DRAM controller counters; secure monitor can skip workarounds of A77 errata
// Fixed    also DRAM at every rate; VCORE at 650, 600 and 550 mV; GPU at 580 and 350 MHz; panel at 90 Hz; each cluster
//          at its highest, middle and lowest clock
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
    cfi_permissive,
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
    deferred_probe_timeout_set,
    initcall_debug_enable,
    dyndbg_set,
    clk_ignore_unused,
    regulator_ignore_unused,
    memory_limit_set,
    cma_size_set,
    zram_disable,
    selinux_permissive,

    // Kernel: storage
    verity_mode_set,
    ufs_gear_1,
    ufs_hibern8_disable,
    ufs_clock_gating_disable,
    sd_uhs_disable,

    // Kernel: USB, PCIe, I2C, modem
    usb_role_set,
    usb_high_speed,
    pcie_gen_1,
    pcie_aspm_disable,
    i2c0_100khz,
    modem_off,

    // CPU
    boot_core_only,
    cpu_start_mask_set<"0xff">,
    big_off,
    core_ctl_disable,
    cpufreq_disable,
    cpu_fix_max,
    cpu_fix_min,
    cluster_fix<"little", 2000>,
    cluster_fix<"little", 1400>,
    cluster_fix<"little", 500>,
    cluster_fix<"mid", 2600>,
    cluster_fix<"mid", 1800>,
    cluster_fix<"mid", 774>,
    cluster_fix<"big", 2840>,
    cluster_fix<"big", 2000>,
    cluster_fix<"big", 902>,
    big_cap_set<902, 2840>,
    big_turbo_disable,
    cpufreq_sw_dvfs,
    iowait_boost_disable,
    walt_disable,
    eas_disable,
    big_isolate<"7">,
    cpuidle_disable,
    core_off_disable,
    dsu_off_disable,
    l3_fix_max,
    l3_powerdown_disable,
    cpu_clock_gating_disable,
    cache_ecc_log,
    svs_disable,
    cluster_voltage_offset<"little">,
    cluster_voltage_offset<"mid">,
    cluster_voltage_offset<"big">,
    droop_disable,
    cpu_throttle_disable,
    cpu_trip_set,
    kpti_disable,
    firmware_erratum_skip<"A77", 1508412, "device load and PAR read">,
    firmware_erratum_skip<"A77", 1791578, "atomic stores">,
    firmware_erratum_skip<"A77", 1800714, "splintered pages">,
    firmware_erratum_skip<"A77", 1946167, "acquire atomics">,
    firmware_erratum_skip<"A77", 2356587, "prefetch to store">,
    firmware_erratum_skip<"A77", 2743100, "DSB before WFI">,

    // DRAM
    dram_fix<5500>,
    dram_fix<4266>,
    dram_fix<3733>,
    dram_fix<3200>,
    dram_fix<2400>,
    dram_fix<1600>,
    dram_dvfs_disable,
    dram_train_full,
    dram_train_renew,
    dram_eye_scan_rx,
    dram_eye_scan_tx,
    dram_vdd2_plus_20mv<"VDD2H (LPDDR4X: VDD2)">,
    dram_vdd2_minus_20mv<"VDD2H (LPDDR4X: VDD2)">,
    dram_dqs_osc_disable,
    dram_wck_osc_disable,
    dram_wck_always_on,
    dram_refresh_2x,
    dram_refresh_all_bank,
    dram_mr4_override<31>,
    dram_rfm_disable,
    dram_self_refresh_disable,
    dram_power_down_disable,
    dram_odt_disable,
    dram_dbi_disable,
    dram_link_ecc_disable,
    dram_rank0_only,
    dram_channel0_only,
    dram_test_full,

    // EMI: memory controller, buses, system cache
    emi_bwmon_enable,
    dramc_pmu_enable,
    emi_clock_gating_disable,
    emi_hash_disable,
    emi_mpu_panic,
    emi_mpu_log,
    bus_hang_enable,
    bus_hang_panic,
    emi_latency_hist,
    slc_disable,
    slc_gpu_ways_set,

    // VCORE: core rail levels
    vcore_dvfs_disable,
    vcore_fix<725>,
    vcore_fix<650>,
    vcore_fix<600>,
    vcore_fix_550mv,
    vcore_req_log,
    vcore_floor_disp,
    vcore_dram_decouple,
    vcore_timeout_panic,

    // PMIC and charging
    buck_plus_25mv<"vcore">,
    buck_plus_25mv<"vdram1">,
    buck_plus_25mv<"vdram2">,
    buck_offset<"vcore">,
    buck_offset<"vmodem">,
    buck_offset<"vgpu12">,
    buck_offset<"vdram1">,
    buck_offset<"vdram2">,
    buck_offset<"vapu">,
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
    chg_current_set,
    gauge_soc_50,
    gauge_low_shutdown_disable,
    batt_throttle_disable,

    // GPU
    gpu_fix<850>,
    gpu_fix<580>,
    gpu_fix<350>,
    gpu_dvfs_disable,
    gpu_throttle_disable,
    gpu_voltage_offset,
    gpu_disable,
    gpu_policy_always_on,
    gpu_one_core,
    gpu_clock_gating_disable,
    enable_gpu_acp,
    gpu_coherency_disable,
    gpu_soft_stop_disable,
    gpu_reset_dump,
    gpu_mmu_fault_panic,
    gpu_exception_mask_set,
    gpu_counters_enable,
    gpu_afbc_disable,

    // Display
    lcm_settings,
    panel<"s6e3hc3_wqhdp_cmd">,
    panel<"nt37701_fhdp_cmd">,
    panel<"rm692e5_fhdp_cmd">,
    panel<"s6e3hc2_wqhdp_cmd">,
    panel<"ana6706_fhdp_cmd">,
    panel<"rm692c9_fhdp_cmd">,
    panel_id_check_skip,
    esd_check_disable,
    refresh_fix<60>,
    refresh_fix<90>,
    refresh_fix<120>,
    dsi_lane_rate_set<2500>,
    dsi_clk_continuous,
    dsi_ssc_disable,
    dsi_ulps_disable,
    dsi1_disable,
    dsc_disable,
    dp_disable,
    dp_rate_hbr,
    bl_boot_level_set,
    disp_idle_disable,
    disp_partial_disable,
    te_ignore,
    ovl_single_layer,
    pq_bypass,
    disp_underrun_red,
    disp_underrun_action_set,
    drm_debug_mask_set<"0x1ff">,
    dsi_bist_boot,

    // HRT: hard real-time bandwidth
    hrt_check_disable,
    hrt_dvfs_floor_max,
    hrt_cam_floor_max,
    hrt_over_log,

    // DPSW: power-domain switches
    dpsw_all_on,
    pd_ignore_unused,
    power_domain_on<"disp", "display">,
    power_domain_on<"cam", "camera">,
    power_domain_on<"vdec", "video decoder">,
    power_domain_on<"apu", "AI processor">,
    dpsw_ack_panic,

    // LPM: low power
    suspend_disable,
    suspend_s2idle,
    pm_print_times,
    pm_debug_messages,
    pm_test_set,
    dpm_watchdog_set,
    wakelock_log,
    wake_reason_log,
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
    bus_tracker_enable,
    etm_enable<7>,
    etf_enable,
    etr_enable,
    perf_stat_events,
    pmu_idle_keep,
    dsu_pmu_enable,
    trace_buf_size_set,
    trace_sched_irq_boot,
    trace_dump_on_oops,
    thermal_log_1s,
    conn_log_enable,
    sensorhub_log_enable,
};

}  // namespace

constinit const hwknobs_plat px5312 = version_0<rows>("px5312");
