# The one Clang build that CI makes for the sanitizers, the fuzz targets and clang-tidy: the
# whole tree with AddressSanitizer, UndefinedBehaviorSanitizer and libFuzzer's coverage
# instrumentation, unoptimised (it compiles in about two thirds of the time an optimised build
# takes), with the tvpolicy program linked to libtvpolicy.so and the standalone program beside
# it, the tests, the benchmarks and the fuzz targets.
#   cmake -S . -B build-sanitize -G Ninja -C cmake/ClangCheckBuild.cmake
set(CMAKE_CXX_COMPILER clang++ CACHE STRING "")
set(CMAKE_BUILD_TYPE Debug CACHE STRING "")
set(TVPOLICY_SANITIZE ON CACHE BOOL "")
set(TVPOLICY_BUILD_FUZZ ON CACHE BOOL "")
set(TVPOLICY_BUILD_BENCH ON CACHE BOOL "")
set(TVPOLICY_STANDALONE_CLI OFF CACHE BOOL "")
set(TVPOLICY_WERROR ON CACHE BOOL "")
