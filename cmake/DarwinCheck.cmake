# TVPOLICY_DARWIN_CHECK: type-checks the macOS backend of the host probe on a machine that is not
# a Mac. Every source of src/host/probe/darwin/, and the POSIX helpers beside it in
# src/host/probe/ that it shares with the other backends, is compiled with clang++ -fsyntax-only for
# x86_64 macOS 10.13 and arm64 macOS 11.0, against the header tree of Apple's open-source
# repositories kept in third_party/apple-oss-headers/ (see its README). Nothing is linked or
# run: the check proves that the backend uses the system's interfaces as they are declared.
option(TVPOLICY_DARWIN_CHECK "Type-check the macOS backend with clang++ against the kept header tree" OFF)

if(TVPOLICY_DARWIN_CHECK)
  find_program(TVPOLICY_DARWIN_CLANGXX NAMES clang++ clang++-14 REQUIRED)
  set(_sysroot "${PROJECT_SOURCE_DIR}/third_party/apple-oss-headers/sysroot")
  if(NOT EXISTS "${_sysroot}/usr/include/sys/cdefs.h")
    message(FATAL_ERROR "TVPOLICY_DARWIN_CHECK: the header tree ${_sysroot} is missing")
  endif()
  file(GLOB _darwin_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/host/probe/darwin/*.cpp")
  file(GLOB _darwin_headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/host/probe/darwin/*.h")
  file(GLOB _shared_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/host/probe/*.cpp")
  file(GLOB _shared_headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/host/probe/*.h"
    "${PROJECT_SOURCE_DIR}/include/tvpolicy/host/*.h" "${PROJECT_SOURCE_DIR}/include/tvpolicy/base/*.h"
    "${PROJECT_SOURCE_DIR}/src/base/*.h")
  if(NOT _darwin_sources)
    message(FATAL_ERROR "TVPOLICY_DARWIN_CHECK: no sources in src/host/probe/darwin/")
  endif()
  set(_stamps)
  foreach(_target x86_64-apple-macosx10.13 arm64-apple-macosx11.0)
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/darwin-check/${_target}")
    foreach(_source IN LISTS _darwin_sources _shared_sources)
      get_filename_component(_name "${_source}" NAME_WE)
      set(_stamp "${PROJECT_BINARY_DIR}/darwin-check/${_target}/${_name}.ok")
      add_custom_command(OUTPUT "${_stamp}"
        COMMAND "${TVPOLICY_DARWIN_CLANGXX}" -std=c++17 -stdlib=libc++ -target ${_target}
                -isysroot "${_sysroot}" -fsyntax-only -Wall -Wextra -Werror
                -I "${PROJECT_SOURCE_DIR}/include" -I "${PROJECT_BINARY_DIR}/include"
                -I "${PROJECT_SOURCE_DIR}/src" "${_source}"
        COMMAND "${CMAKE_COMMAND}" -E touch "${_stamp}"
        DEPENDS "${_source}" ${_darwin_headers} ${_shared_headers}
        COMMENT "Type-checking ${_name}.cpp for ${_target}"
        VERBATIM)
      list(APPEND _stamps "${_stamp}")
    endforeach()
  endforeach()
  add_custom_target(darwin_check ALL DEPENDS ${_stamps})
endif()
