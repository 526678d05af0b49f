// The commands. Each gets its own argument vector, with the command word as element 0, and a fresh option parser.
#pragma once

/// The global options that commands look at.
struct global_options {
    const char* plat = nullptr;  ///< --plat, or null to detect the platform
    const char* file;            ///< --file, or the default partition
};

/// Does its work and returns the exit status of the process.
int run_list_command(const global_options& global, int argc, char** argv);
int run_list_group_command(const global_options& global, int argc, char** argv);
int run_plat_list_command(const global_options& global, int argc, char** argv);
int run_clear_command(const global_options& global, int argc, char** argv);
int run_set_command(const global_options& global, int argc, char** argv);
int run_setname_command(const global_options& global, int argc, char** argv);
int run_xmlconfig_show_command(const global_options& global, int argc, char** argv);
int run_xmlconfig_set_command(const global_options& global, int argc, char** argv);
int run_status_command(const global_options& global, int argc, char** argv);
int run_result_command(const global_options& global, int argc, char** argv);
int run_selftest_command(const global_options& global, int argc, char** argv);
int run_auth_status_command(const global_options& global, int argc, char** argv);
