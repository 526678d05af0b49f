// Hypervisor, protected VMs, secure monitor, EL2 and EL3 logs.
#pragma once

#include "hwknobs_plat/catalogue/knob.h"

namespace catalogue {

// Since 5.12.
inline constexpr knob pkvm_enable = {
    HYP, "pkvm_enable", "Enable protected VMs (pKVM)",
    both("pkvm", "on", R"(&chosen { kvm-arm-mode = "protected"; };)"), choice{"KVM mode"}};
inline constexpr knob pkvm_disable = {
    HYP, "pkvm_disable", "Enter kernel at EL1 without hypervisor",
    both("pkvm", "off", R"(&hypervisor { status = "disabled"; };)"), choice{"KVM mode"}};
// Until 5.10: pkvm_disable has it since.
inline constexpr knob hyp_disable = {
    HYP, "hyp_disable", "Enter kernel at EL1 without hypervisor",
    both("hyp", "off", R"(&hypervisor { status = "disabled"; };)")};
inline constexpr knob kvm_nvhe = {
    HYP, "kvm_nvhe", "Run KVM in nVHE mode without protected VMs", dt(R"(&chosen { kvm-arm-mode = "nvhe"; };)"),
    choice{"KVM mode"}};
inline constexpr knob stage2_fault_log = {
    HYP, "stage2_fault_log", "Log host stage-2 faults at EL2", dt("&hypervisor { host-stage2-fault-log; };")};
inline constexpr knob hyp_iommu_disable = {
    HYP, "hyp_iommu_disable", "Disable DMA isolation by EL2 SMMU driver (protected VMs are open)",
    dt("&hypervisor { iommu-driver-disable; };")};
inline constexpr knob el2_uart_enable = {HYP, "el2_uart_enable", "Enable EL2 log on UART", env("el2_uart", "on")};
inline constexpr knob hyp_panic_halt = {
    HYP, "hyp_panic_halt", "Halt at EL2 on EL2 panic for external debugger", dt("&hypervisor { panic-halt; };")};
// Since 6.0.
inline constexpr knob hyp_stacktrace_enable = {
    HYP, "hyp_stacktrace_enable", "Dump EL2 stack trace on EL2 panic", dt("&hypervisor { panic-stacktrace; };")};
inline constexpr knob el3_log_set = {
    HYP, "el3_log_set", "Set log level of secure monitor (off, error, info or verbose)",
    env_arg("el3_log", "%s[off,error,info,verbose]")};
// Since 6.1.
inline constexpr knob hyp_modules_skip = {
    HYP, "hyp_modules_skip", "Do not load vendor modules at EL2", dt("&hypervisor { vendor-modules-disable; };")};

}  // namespace catalogue
