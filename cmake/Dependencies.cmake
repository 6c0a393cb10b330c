# Everything comes from Debian's packages (scripts/setup.sh installs them).
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(XercesC 3.2 REQUIRED)
find_package(CURL REQUIRED)

# The standalone tvpolicy program (tools/tvpolicy) links Xerces-C statically and loads libcurl
# when its first transfer needs it, under the name the dynamic loader knows it by: the file that
# the development link points at, with its minor version numbers cut (libcurl-gnutls.so.4.8.0 ->
# libcurl-gnutls.so.4; libcurl.4.dylib stays as it is).
find_library(TVPOLICY_XERCES_STATIC NAMES libxerces-c.a)
find_library(TVPOLICY_ICU_UC_STATIC NAMES libicuuc.a)
find_library(TVPOLICY_ICU_DATA_STATIC NAMES libicudata.a)
if(NOT TVPOLICY_CURL_LIBRARY)
  list(GET CURL_LIBRARIES 0 _curl_library)
  get_filename_component(_curl_library "${_curl_library}" REALPATH)
  get_filename_component(_curl_library "${_curl_library}" NAME)
  string(REGEX REPLACE "(\\.so\\.[0-9]+)\\..*$" "\\1" _curl_library "${_curl_library}")
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
find_package(tomlplusplus 3 CONFIG REQUIRED)
# The operating system's own libraries, used by the host probe's backend (and, for libsystemd's
# readiness and watchdog calls, by the agent).
if(APPLE)
  set(TVPOLICY_PLATFORM_LIBS "-framework CoreFoundation" "-framework IOKit" "-framework SystemConfiguration"
    "-framework Security" objc)
else()
  pkg_check_modules(SYSTEMD REQUIRED IMPORTED_TARGET libsystemd)
  set(TVPOLICY_PLATFORM_LIBS PkgConfig::SYSTEMD resolv)
endif()
# PCRE2 matches file content for the posture checks, on every system.
pkg_check_modules(PCRE2 REQUIRED IMPORTED_TARGET libpcre2-8)
list(APPEND TVPOLICY_PLATFORM_LIBS PkgConfig::PCRE2)
