option(LUNAVOX_TESTS "Build the tests" ON)
option(LUNAVOX_BENCH "Build the benchmarks" OFF)
option(LUNAVOX_FUZZ "Build the libFuzzer programs; needs clang" OFF)
option(LUNAVOX_COVERAGE "Have the programs count which of their lines run" OFF)
set(LUNAVOX_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")

add_library(lunavox_options INTERFACE)
target_compile_options(lunavox_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                                 -Wno-sign-conversion -Werror)
# GCC 12 takes "text" + std::string for an overlapping copy when it optimises.
target_compile_options(lunavox_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(LUNAVOX_SANITIZE)
  target_compile_options(lunavox_options INTERFACE -fsanitize=${LUNAVOX_SANITIZE}
                                                   -fno-omit-frame-pointer
                                                   -fno-sanitize-recover=all
                                                   # false alarms in instrumented code
                                                   -Wno-maybe-uninitialized)
  target_link_options(lunavox_options INTERFACE -fsanitize=${LUNAVOX_SANITIZE})
endif()
if(LUNAVOX_COVERAGE)
  target_compile_options(lunavox_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(lunavox_options INTERFACE --coverage)
endif()
if(LUNAVOX_FUZZ)
  # The warnings are kept clean with the compiler that the program is built with.
  target_compile_options(lunavox_options INTERFACE -fsanitize=fuzzer-no-link -Wno-error
                                                   -Wno-unknown-warning-option)
endif()

find_program(LUNAVOX_CCACHE ccache)
if(LUNAVOX_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${LUNAVOX_CCACHE}")
endif()
