# shellcheck shell=sh
# Read by the interactive shell inside a device ("device shell").
PS1='px:$PWD $ '

# reboot [OPTION]...: leaves the shell; "device shell" outside then plays the boot, with the options of "device reboot",
# and starts the next shell.
reboot() {
    for option; do printf '%s\n' "$option"; done >/data/local/tmp/.reboot && exit
}
