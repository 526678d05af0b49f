// Kernel debugging, panic, watchdog, RAM dump, printk and console, storage. "Since 5.8." tells the first kernel, by
// which platforms have the knob.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

// Since 4.6.
inline constexpr knob kaslr_disable = {
    KERNEL, "kaslr_disable", "Disable Linux kernel randomize-base", dt(R"(&chosen { kaslr-status="disabled"; };)"),
    choice{"KASLR"}};
inline constexpr knob kaslr_enable = {
    KERNEL, "kaslr_enable", "Enable Linux kernel randomize-base", dt(R"(&chosen { kaslr-status="okay"; };)"),
    choice{"KASLR"}};
inline constexpr knob kmemleak_disable = {
    KERNEL, "kmemleak_disable", "Disable Kmemleak", dt(R"(&chosen { kmemleak-status="disabled"; };)"),
    choice{"kmemleak"}};
inline constexpr knob kmemleak_enable = {
    KERNEL, "kmemleak_enable", "Enable Kmemleak", dt(R"(&chosen { kmemleak-status="okay"; };)"), choice{"kmemleak"}};
// Since 5.11, with MTE.
inline constexpr knob kasan_hw_tags_enable = {
    KERNEL, "kasan_hw_tags_enable", "Enable KASAN with MTE hardware tags",
    dt(R"(&chosen { kasan-hw-tags-status = "okay"; };)")};

// "asymm" came with kernel 5.16.
template <word Modes, word Told>
inline constexpr knob kasan_mode_set = {
    KERNEL, "kasan_mode_set", text<"Set KASAN tag check mode ({})", Told>,
    dt_arg(text<R"(&chosen { kasan-mode = "%s[{}]"; };)", Modes>)};

// Since 5.12.
inline constexpr knob kfence_interval_set = {
    KERNEL, "kfence_interval_set", "Set KFENCE sample interval in ms (0-60000, 0 for off)",
    dt_arg("&chosen { kfence-sample-interval = <0x%x>; };")};
inline constexpr knob slub_debug_enable = {
    KERNEL, "slub_debug_enable", "Enable SLUB sanity checks, red zones and poisoning",
    dt(R"(&chosen { slub-debug = "FZP"; };)")};
// Since 3.19.
inline constexpr knob page_owner_enable = {
    KERNEL, "page_owner_enable", "Record the allocating call stack of every page",
    dt(R"(&chosen { page-owner-status = "okay"; };)")};
// Since 4.6.
inline constexpr knob page_poison_enable = {
    KERNEL, "page_poison_enable", "Poison free pages and verify them on allocation",
    dt(R"(&chosen { page-poison-status = "okay"; };)")};
// Since 4.6.
inline constexpr knob debug_pagealloc_enable = {
    KERNEL, "debug_pagealloc_enable", "Unmap free pages to trap use after free",
    dt(R"(&chosen { debug-pagealloc-status = "okay"; };)")};
// Since 5.3.
inline constexpr knob init_on_alloc_disable = {
    KERNEL, "init_on_alloc_disable", "Skip zeroing of memory on allocation",
    dt(R"(&chosen { init-on-alloc-status = "disabled"; };)")};
// With inline ECC, which finds bad pages.
inline constexpr knob memory_failure_early_kill_enable = {
    KERNEL, "memory_failure_early_kill_enable", "Kill all tasks mapping a page as soon as it is found bad",
    dt("&chosen { memory-failure-early-kill; };")};
inline constexpr knob lockdep_enable = {
    KERNEL, "lockdep_enable", "Enable lock dependency proving", dt(R"(&chosen { prove-locking-status = "okay"; };)")};
inline constexpr knob hung_task_timeout_set = {
    KERNEL, "hung_task_timeout_set", "Set hung task timeout in seconds (0 for off)",
    dt_arg("&chosen { hung-task-timeout-sec = <0x%x>; };")};
inline constexpr knob hung_task_panic_enable = {
    KERNEL, "hung_task_panic_enable", "Panic when a hung task is found", dt("&chosen { hung-task-panic; };")};
inline constexpr knob softlockup_panic_enable = {
    KERNEL, "softlockup_panic_enable", "Panic on soft lockup", dt("&chosen { softlockup-panic; };")};
// Since 4.8.
inline constexpr knob rcu_stall_panic_enable = {
    KERNEL, "rcu_stall_panic_enable", "Panic on RCU CPU stall", dt("&chosen { panic-on-rcu-stall; };")};
// Since 5.19.
inline constexpr knob rcu_exp_stall_timeout_200ms = {
    KERNEL, "rcu_exp_stall_timeout_200ms", "Set expedited RCU stall timeout to 200 ms",
    dt("&chosen { rcu-exp-cpu-stall-timeout-ms = <200>; };")};
inline constexpr knob watchdog_disable = {
    KERNEL, "watchdog_disable", "Disable hardware watchdog in bootloader and kernel (hangs stay hung)",
    both("wdt_boot", "off", R"(&watchdog { status = "disabled"; };)")};
inline constexpr knob watchdog_timeout_set = {
    KERNEL, "watchdog_timeout_set", "Set hardware watchdog time in seconds (10-120, shorter resets at boot)",
    dt_arg("&watchdog { timeout-sec = <0x%x>; };")};
inline constexpr knob watchdog_percpu_kick_enable = {
    KERNEL, "watchdog_percpu_kick_enable", "Kick watchdog from every CPU to catch hard lockups",
    dt("&watchdog { percpu-kick; };")};
// Since 5.12.
inline constexpr knob hash_pointers_disable = {
    KERNEL, "hash_pointers_disable", "Print plain kernel pointers instead of hashed ones",
    dt("&chosen { no-hash-pointers; };")};
// "=" cannot be given in an argument, so this is for "keep_bootcon" and the like.
inline constexpr knob kernel_argument_add = {
    KERNEL, "kernel_argument_add", "Add one kernel argument without a value (as keep_bootcon)",
    dt_arg(R"(&chosen { extra-argument = "%s "; };)")};
inline constexpr knob memory_limit_set = {
    KERNEL, "memory_limit_set", "Limit usable memory in MB (1024 or more, else boot may fail)",
    dt_arg("&chosen { memory-limit-mb = <0x%x>; };")};
inline constexpr knob cma_size_set = {
    KERNEL, "cma_size_set", "Set contiguous memory area (CMA) in MB (16-1024), too large: no boot",
    dt_arg("&chosen { cma-size-mb = <0x%x>; };")};
inline constexpr knob zram_disable = {
    KERNEL, "zram_disable", "Disable compressed swap in RAM (zram)", dt(R"(&chosen { zram-status = "disabled"; };)")};
// Since 5.10, whose drivers are modules.
inline constexpr knob module_blocklist_set = {
    KERNEL, "module_blocklist_set", "Do not load the named modules (commas between them)",
    dt_arg(R"(&chosen { module-blocklist = "%s "; };)")};
inline constexpr knob dyndbg_set = {
    KERNEL, "dyndbg_set", "Enable dynamic debug messages of the named modules (commas between)",
    dt_arg(R"(&chosen { dyndbg-modules = "%s "; };)")};
inline constexpr knob initcall_debug_enable = {
    KERNEL, "initcall_debug_enable", "Log duration and result of every initcall", dt("&chosen { initcall-debug; };")};
// Since 4.19.
inline constexpr knob deferred_probe_timeout_set = {
    KERNEL, "deferred_probe_timeout_set", "Set deferred probe timeout in seconds (-1 no limit)",
    dt_arg("&chosen { deferred-probe-timeout-sec = <%d>; };")};
// Since 5.7.
inline constexpr knob fw_devlink_set = {
    KERNEL, "fw_devlink_set", "Set fw_devlink mode (off, permissive, on or rpm)",
    dt_arg(R"(&chosen { fw-devlink = "%s[off,permissive,on,rpm]"; };)")};
inline constexpr knob clk_ignore_unused = {
    KERNEL, "clk_ignore_unused", "Keep unused clocks running after boot", dt("&chosen { clk-ignore-unused; };")};
inline constexpr knob regulator_ignore_unused = {
    KERNEL, "regulator_ignore_unused", "Keep unused regulators on after boot",
    dt("&chosen { regulator-ignore-unused; };")};
inline constexpr knob panic_timeout_set = {
    KERNEL, "panic_timeout_set", "Set panic reboot delay in seconds (-1 at once, 0 never)",
    dt_arg("&chosen { panic-timeout-sec = <%d>; };")};
inline constexpr knob panic_on_oops_disable = {
    KERNEL, "panic_on_oops_disable", "Kill the failing task and go on after an oops",
    dt(R"(&chosen { panic-on-oops-status = "disabled"; };)")};
// Since 3.19.
inline constexpr knob panic_on_warn_enable = {
    KERNEL, "panic_on_warn_enable", "Panic on kernel warning", dt("&chosen { panic-on-warn; };")};

// Since 5.0.
template <word AllBits>
inline constexpr knob panic_print_set = {
    KERNEL, "panic_print_set", text<"Set panic_print system info mask (0x0-{})", AllBits>,
    dt_arg("&chosen { panic-print = <0x%x>; };")};

inline constexpr knob sysrq_enable = {
    KERNEL, "sysrq_enable", "Enable all SysRq functions", dt("&chosen { sysrq-always-enabled; };")};
inline constexpr knob ramdump_full_enable = {
    KERNEL, "ramdump_full_enable", "Dump the whole RAM after a crash",
    both("ramdump", "full", R"(&chosen { ramdump-status = "okay"; };)"), choice{"RAM dump"}};
inline constexpr knob ramdump_mini_enable = {
    KERNEL, "ramdump_mini_enable", "Dump only registered minidump regions after a crash",
    both("ramdump", "mini", R"(&chosen { minidump-status = "okay"; };)"), choice{"RAM dump"}};
inline constexpr knob ramdump_to_usb = {KERNEL, "ramdump_to_usb", "Send RAM dump to USB host", env("dump_to", "usb")};
// Until 4.9.
inline constexpr knob lowmemorykiller_disable = {
    KERNEL, "lowmemorykiller_disable", "Disable in-kernel low memory killer",
    dt(R"(&chosen { lowmemorykiller-status = "disabled"; };)")};
// Since 5.8.
inline constexpr knob pstore_all_reasons = {
    KERNEL, "pstore_all_reasons", "Store kernel log in pstore on every reboot", dt("&ramoops { max-reason = <4>; };")};
// Since 4.14.
inline constexpr knob cfi_permissive = {
    KERNEL, "cfi_permissive", "Warn on control flow integrity failure instead of panic",
    dt(R"(&chosen { cfi = "warn"; };)")};
// User builds do not heed it.
inline constexpr knob selinux_permissive = {
    KERNEL, "selinux_permissive", "Start SELinux in permissive mode on debug builds (insecure)",
    env("selinux", "permissive")};
inline constexpr knob mte_enable = {
    KERNEL, "mte_enable", "Enable memory tagging extension and its tag storage",
    both("mte", "on", R"(&chosen { mte-status = "okay"; };)"), choice{"MTE"}};
inline constexpr knob mte_disable = {
    KERNEL, "mte_disable", "Hide memory tagging extension from kernel and programs",
    both("mte", "off", R"(&chosen { mte-status = "disabled"; };)"), choice{"MTE"}};
// Since 6.1.
inline constexpr knob mglru_disable = {
    KERNEL, "mglru_disable", "Disable multi-generational LRU", dt(R"(&chosen { lru-gen-status = "disabled"; };)")};
inline constexpr knob iommu_fault_panic_enable = {
    KERNEL, "iommu_fault_panic_enable", "Panic on IOMMU translation fault", dt("&iommu { fault-panic; };")};
// Since 5.1.
inline constexpr knob pseudo_nmi_enable = {
    KERNEL, "pseudo_nmi_enable", "Enable pseudo-NMI by GIC priorities (hard lockup backtrace)",
    dt("&chosen { gicv3-pseudo-nmi; };")};

// Console
inline constexpr knob console_level_set = {
    KERNEL, "console_level_set", "Set console (printk) log level (1-8, 8 prints all)",
    dt_arg("&chosen { console-loglevel = <0x%x>; };")};
inline constexpr knob uart_console_disable = {
    KERNEL, "uart_console_disable", "Disable UART log in bootloader and kernel",
    both("uart_log", "off", R"(&chosen { uart-console-status = "disabled"; };)"), choice{"UART log"}};
inline constexpr knob uart_console_enable = {
    KERNEL, "uart_console_enable", "Enable UART log in bootloader and kernel",
    both("uart_log", "on", R"(&chosen { uart-console-status = "okay"; };)"), choice{"UART log"}};
inline constexpr knob log_buf_8m = {
    KERNEL, "log_buf_8m", "Set kernel log buffer to 8 MB", dt("&chosen { log-buf-len = <0x800000>; };")};
inline constexpr knob earlycon_enable = {
    KERNEL, "earlycon_enable", "Enable early console on UART", dt("&chosen { earlycon; };")};
inline constexpr knob uart_shell_set = {
    KERNEL, "uart_shell_set", "Switch Android shell on UART console (on or off)",
    dt_arg(R"(&chosen { uart-shell = "%s[on,off]"; };)")};
inline constexpr knob uart_baud_921600 = {
    KERNEL, "uart_baud_921600", "Set UART baud rate to 921600",
    both("baud", "921600", "&uart0 { current-speed = <921600>; };")};
inline constexpr knob kgdb_uart_enable = {
    KERNEL, "kgdb_uart_enable", "Enable kernel debugger on UART (kgdb), entered by SysRq g",
    dt("&chosen { kgdb-uart; };")};
inline constexpr knob console_suspend_disable = {
    KERNEL, "console_suspend_disable", "Keep console running during system suspend",
    dt("&chosen { no-console-suspend; };")};

// Buses to peripherals
inline constexpr knob usb_role_set = {
    KERNEL, "usb_role_set", "Set USB role (host, peripheral or otg), host leaves no adb on USB",
    dt_arg(R"(&usb0 { dr_mode = "%s[host,peripheral,otg]"; };)")};
inline constexpr knob usb_high_speed = {
    KERNEL, "usb_high_speed", "Limit USB to high speed (480 Mbps)", dt(R"(&usb0 { maximum-speed = "high-speed"; };)")};
inline constexpr knob pcie_gen_1 = {
    KERNEL, "pcie_gen_1", "Limit PCIe link to generation 1 (2.5 GT/s)", dt("&pcie0 { max-link-speed = <1>; };")};
inline constexpr knob pcie_aspm_disable = {
    KERNEL, "pcie_aspm_disable", "Disable PCIe link power management (ASPM)",
    dt(R"(&chosen { pcie-aspm-status = "disabled"; };)")};
inline constexpr knob i2c0_100khz = {
    KERNEL, "i2c0_100khz", "Run I2C bus 0 at 100 kHz", dt("&i2c0 { clock-frequency = <100000>; };")};

// Modem
inline constexpr knob modem_off = {
    KERNEL, "modem_off", "Leave the modem off", both("modem", "off", R"(&modem { status = "disabled"; };)")};

// Storage
// Since 4.1.
inline constexpr knob verity_mode_set = {
    KERNEL, "verity_mode_set", "Set dm-verity error mode (enforcing, eio or logging)",
    env_arg("verity", "%s[enforcing,eio,logging]")};
inline constexpr knob sd_uhs_disable = {
    KERNEL, "sd_uhs_disable", "Keep SD card at 3.3 V and 50 MHz (no UHS modes)", dt("&mmc1 { no-1-8-v; };")};
inline constexpr knob emmc_hs400_disable = {
    KERNEL, "emmc_hs400_disable", "Disable eMMC HS400 mode", dt("&mmc0 { no-mmc-hs400; };")};
inline constexpr knob emmc_clk_50mhz = {
    KERNEL, "emmc_clk_50mhz", "Limit eMMC clock to 50 MHz", dt("&mmc0 { max-frequency = <50000000>; };")};
inline constexpr knob ufs_gear_1 = {
    KERNEL, "ufs_gear_1", "Limit UFS link to high speed gear 1", dt("&ufshci { limit-hs-gear = <1>; };"),
    choice{"UFS gear"}};
// UFS 4.0 has gear 5 and the queues.
inline constexpr knob ufs_gear_4 = {
    KERNEL, "ufs_gear_4", "Limit UFS link to high speed gear 4", dt("&ufshci { limit-hs-gear = <4>; };"),
    choice{"UFS gear"}};
inline constexpr knob ufs_mcq_disable = {
    KERNEL, "ufs_mcq_disable", "Use one UFS queue, disable multi-circular queues (MCQ)",
    dt(R"(&ufshci { mcq-status = "disabled"; };)")};
inline constexpr knob ufs_hibern8_disable = {
    KERNEL, "ufs_hibern8_disable", "Disable UFS automatic hibern8",
    dt(R"(&ufshci { auto-hibern8-status = "disabled"; };)")};
inline constexpr knob ufs_clock_gating_disable = {
    KERNEL, "ufs_clock_gating_disable", "Disable UFS clock gating",
    dt(R"(&ufshci { clk-gating-status = "disabled"; };)")};
// Since 5.8.
inline constexpr knob ufs_write_booster_disable = {
    KERNEL, "ufs_write_booster_disable", "Disable UFS WriteBooster",
    dt(R"(&ufshci { write-booster-status = "disabled"; };)")};
inline constexpr knob emmc_rpm_disable = {
    KERNEL, "emmc_rpm_disable", "Disable eMMC runtime suspend", dt("&mmc0 { runtime-pm-disable; };")};

}  // namespace catalogue
