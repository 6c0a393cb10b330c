// PackageInstalled: a package of the host's package database is installed, optionally at a
// version that compares as asked by the database's own ordering.
#include <algorithm>

#include <tvpolicy/host/HostProbe.h>

#include "checks/PostureTask.h"
#include "host/parse/InstalledApplications.h"
#include "host/parse/PackageVersion.h"

namespace tvpolicy::checks {

namespace {

// A package counts when dpkg has it fully installed (wanted for install or held); rpm lists
// installed packages only.
bool fullyInstalled(const parse::InstalledApplication& package)
{
    if (package.status.empty()) {
        return true;
    }
    return package.status == "install ok installed" || package.status == "hold ok installed";
}

bool satisfies(int order, const std::string& operation)
{
    if (operation == "gt") {
        return order > 0;
    }
    if (operation == "eq") {
        return order == 0;
    }
    if (operation == "lte") {
        return order <= 0;
    }
    if (operation == "lt") {
        return order < 0;
    }
    return order >= 0;
}

class PackageInstalledTask final : public PostureTask {
public:
    std::string getType() override { return "PackageInstalledTask"; }

private:
    Outcome check() override
    {
        HostProbe::ApplicationListing listing = currentHost().applicationListing();
        bool dpkg = listing.format == HostProbe::ApplicationListing::Format::DpkgStatus;
        if (!dpkg && listing.format != HostProbe::ApplicationListing::Format::RpmQuery) {
            return unknown("no package database on this system");
        }
        std::vector<parse::InstalledApplication> packages =
            dpkg ? parse::packagesFromDpkgStatus(listing.text) : parse::packagesFromRpmQuery(listing.text);
        std::string name = attribute("name");
        // "libc6" finds "libc6:amd64"; a qualified name finds only its architecture.
        auto package = std::find_if(packages.begin(), packages.end(), [&](const parse::InstalledApplication& p) {
            return fullyInstalled(p) && (p.name == name || p.name.rfind(name + ":", 0) == 0);
        });
        if (package == packages.end()) {
            return {false, name + " is not installed"};
        }
        std::string found = package->name + " " + package->version + " is installed";
        std::string required = attribute("required");
        if (required.empty()) {
            return {true, found};
        }
        std::string operation = attribute("operation", "gte");
        int order = 0;
        if (dpkg) {
            auto installed = parse::parseDpkgVersion(package->version);
            auto wanted = parse::parseDpkgVersion(required);
            if (!wanted) {
                return unknown("required is not a Debian version: " + required);
            }
            if (!installed) {
                return unknown(found + ", but its version is not one dpkg accepts");
            }
            order = parse::compareDpkgVersions(*installed, *wanted);
        } else {
            order = parse::compareRpmVersions(package->version, required);
        }
        bool passed = satisfies(order, operation);
        return {passed, found + (passed ? " (" : ", not ") + operation + " " + required + (passed ? ")" : "")};
    }
};

}  // namespace

Task* createPackageInstalled() { return new PackageInstalledTask; }

}  // namespace tvpolicy::checks
