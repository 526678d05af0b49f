# The tool runs as root and reads documents and partitions that others wrote: what compiler and linker offer against
# mistakes in that. For the tool, and for the libraries that are built into it.
include(CheckCompilerFlag)
get_property(languages GLOBAL PROPERTY ENABLED_LANGUAGES)
list(GET languages 0 language)

set(hardening -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "aarch64|arm64")
  list(APPEND hardening -mbranch-protection=standard)
endif()
foreach(flag IN LISTS hardening)
  string(MAKE_C_IDENTIFIER "HARDENING${flag}" known)
  check_compiler_flag(${language} ${flag} ${known})
  if(${known})
    add_compile_options(${flag})
  endif()
endforeach()

# Without optimization the C library checks nothing, and warns. Some compilers ask for a lower level by themselves.
add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>")
add_link_options(-Wl,-z,relro,-z,now)
