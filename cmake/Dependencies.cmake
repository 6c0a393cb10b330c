# Everything comes from Debian's packages (scripts/setup.sh installs them).
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(XercesC 3.2 REQUIRED)
find_package(CURL REQUIRED)
find_package(Boost 1.74 REQUIRED)
find_package(CLI11 CONFIG REQUIRED)
find_package(nlohmann_json 3 CONFIG REQUIRED)
pkg_check_modules(SYSTEMD REQUIRED IMPORTED_TARGET libsystemd)
