# Everything comes from Debian's packages (scripts/setup.sh installs them).
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(XercesC 3.2 REQUIRED)
find_package(CURL REQUIRED)

# The name the dynamic loader knows a library by: the file that the development link points at,
# with its minor version numbers cut (libcurl-gnutls.so.4.8.0 -> libcurl-gnutls.so.4;
# libcurl.4.dylib stays as it is).
function(tvpolicy_loader_name variable library)
  get_filename_component(_file "${library}" REALPATH)
  get_filename_component(_file "${_file}" NAME)
  string(REGEX REPLACE "(\\.so\\.[0-9]+)\\..*$" "\\1" _file "${_file}")
  set(${variable} "${_file}" PARENT_SCOPE)
endfunction()

# The standalone tvpolicy program (tools/tvpolicy) links Xerces-C statically and loads libcurl
# when its first transfer needs it, under its loader name.
find_library(TVPOLICY_XERCES_STATIC NAMES libxerces-c.a)
find_library(TVPOLICY_ICU_UC_STATIC NAMES libicuuc.a)
find_library(TVPOLICY_ICU_DATA_STATIC NAMES libicudata.a)
if(NOT TVPOLICY_CURL_LIBRARY)
  list(GET CURL_LIBRARIES 0 _curl_library)
  tvpolicy_loader_name(_curl_library "${_curl_library}")
  set(TVPOLICY_CURL_LIBRARY "${_curl_library}" CACHE STRING "The name libcurl is loaded under")
endif()
find_package(Boost 1.74 REQUIRED)
# The program's digest of a policy file (nettle comes with GnuTLS, which libcurl already uses)
# and its terminal text widths (ICU comes with Xerces-C).
pkg_check_modules(NETTLE REQUIRED IMPORTED_TARGET nettle)
find_library(TVPOLICY_NETTLE_STATIC NAMES libnettle.a)
find_package(ICU REQUIRED COMPONENTS uc)
find_package(CLI11 CONFIG REQUIRED)
find_package(nlohmann_json 3 CONFIG REQUIRED)
# The operating system's own libraries, used by the host probe's backend (and, for libsystemd's
# readiness and watchdog calls, by the agent).
if(APPLE)
  set(TVPOLICY_PLATFORM_LIBS "-framework CoreFoundation" "-framework IOKit" "-framework SystemConfiguration"
    "-framework Security" objc)
else()
  pkg_check_modules(SYSTEMD REQUIRED IMPORTED_TARGET libsystemd)
  set(TVPOLICY_PLATFORM_LIBS PkgConfig::SYSTEMD resolv)
  # The standalone program opens libsystemd on its first call, as it does libcurl.
  if(NOT TVPOLICY_SYSTEMD_LIBRARY)
    list(GET SYSTEMD_LINK_LIBRARIES 0 _systemd_library)
    tvpolicy_loader_name(_systemd_library "${_systemd_library}")
    set(TVPOLICY_SYSTEMD_LIBRARY "${_systemd_library}" CACHE STRING "The name libsystemd is loaded under")
  endif()
endif()
# PCRE2 matches file content for the posture checks, on every system.
pkg_check_modules(PCRE2 REQUIRED IMPORTED_TARGET libpcre2-8)
list(APPEND TVPOLICY_PLATFORM_LIBS PkgConfig::PCRE2)
