# Everything comes from Debian's packages (scripts/setup.sh installs them).
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(XercesC 3.2 REQUIRED)
find_package(CURL REQUIRED)
find_package(Boost 1.74 REQUIRED)
find_package(CLI11 CONFIG REQUIRED)
find_package(nlohmann_json 3 CONFIG REQUIRED)
# The operating system's own libraries, used by the host probe's backend only.
if(APPLE)
  set(TVPOLICY_PLATFORM_LIBS "-framework CoreFoundation" "-framework IOKit" "-framework SystemConfiguration"
    "-framework Security" objc)
else()
  pkg_check_modules(SYSTEMD REQUIRED IMPORTED_TARGET libsystemd)
  set(TVPOLICY_PLATFORM_LIBS PkgConfig::SYSTEMD resolv)
endif()
