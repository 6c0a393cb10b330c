# Instrumented builds. Each works with GCC and with Clang, in every build type:
#   TVPOLICY_SANITIZE         AddressSanitizer and UndefinedBehaviorSanitizer
#   TVPOLICY_SANITIZE_THREAD  ThreadSanitizer
#   TVPOLICY_BUILD_FUZZ       the libFuzzer targets of fuzz/ (Clang only), ASan and UBSan included
#   TVPOLICY_FUZZ_COVERAGE    with TVPOLICY_BUILD_FUZZ: the targets measure the lines and branches
#                             their inputs reach (Clang's source-based coverage), no sanitizers
option(TVPOLICY_SANITIZE_THREAD "Build with ThreadSanitizer" OFF)
option(TVPOLICY_BUILD_FUZZ "Build the libFuzzer targets in fuzz/ (Clang only)" OFF)
option(TVPOLICY_FUZZ_COVERAGE "Build the fuzz targets for a coverage report instead of for fuzzing" OFF)

set(_sanitizers "")
# How the shared library is linked: every symbol resolved, unless a sanitizer's runtime is left
# to the executables.
set(TVPOLICY_NO_UNDEFINED "-Wl,--no-undefined")
if(TVPOLICY_FUZZ_COVERAGE)
  if(NOT TVPOLICY_BUILD_FUZZ OR TVPOLICY_SANITIZE OR TVPOLICY_SANITIZE_THREAD)
    message(FATAL_ERROR "TVPOLICY_FUZZ_COVERAGE goes with TVPOLICY_BUILD_FUZZ and no sanitizer")
  endif()
  # Only the fuzz targets are built: their programs replay a corpus once, and the counters
  # they write say which lines and branches it reached. The shared library is not linked.
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
elseif(TVPOLICY_SANITIZE OR TVPOLICY_BUILD_FUZZ)
  set(_sanitizers "address,undefined")
endif()
if(TVPOLICY_SANITIZE_THREAD)
  if(_sanitizers)
    message(FATAL_ERROR "ThreadSanitizer cannot be combined with AddressSanitizer (TVPOLICY_SANITIZE, TVPOLICY_BUILD_FUZZ)")
  endif()
  set(_sanitizers "thread")
endif()
if(TVPOLICY_BUILD_FUZZ AND NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  message(FATAL_ERROR "TVPOLICY_BUILD_FUZZ needs Clang: configure with -DCMAKE_CXX_COMPILER=clang++")
endif()

if(_sanitizers)
  set(TVPOLICY_INSTRUMENTED ON)
  add_compile_options(-fsanitize=${_sanitizers} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${_sanitizers})
  if(TVPOLICY_BUILD_FUZZ)
    # Coverage feedback everywhere; only the fuzz targets link libFuzzer's main.
    add_compile_options(-fsanitize=fuzzer-no-link)
  endif()
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang" AND TVPOLICY_SANITIZE_THREAD)
    # Clang's shared ThreadSanitizer runtime crashes at start-up; the static one lives in the
    # executables only, so the shared library leaves the sanitizer's symbols to them.
    set(TVPOLICY_NO_UNDEFINED "")
  elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # Clang links its sanitizer runtime statically into executables only, which leaves a shared
    # library linked with --no-undefined unresolved. The shared runtime serves both; programs
    # find it through their run path.
    add_compile_options(-shared-libsan)
    add_link_options(-shared-libsan)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libclang_rt.asan-x86_64.so
      OUTPUT_VARIABLE _runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
    get_filename_component(_runtime_dir "${_runtime}" DIRECTORY)
    add_link_options("LINKER:-rpath,${_runtime_dir}")
  else()
    # GCC's flow analysis sees through the sanitizers' checks and reports values as maybe
    # uninitialised where they are not (inside Boost.Signals2, for one).
    add_compile_options(-Wno-maybe-uninitialized)
    if(TVPOLICY_SANITIZE_THREAD)
      include(CheckCXXCompilerFlag)
      check_cxx_compiler_flag(-Wno-tsan TVPOLICY_HAS_WNO_TSAN)
      if(TVPOLICY_HAS_WNO_TSAN)
        # Fences in Boost's headers, which ThreadSanitizer does not model; nothing here uses them.
        add_compile_options(-Wno-tsan)
      endif()
    endif()
  endif()
endif()
