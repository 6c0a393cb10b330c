#pragma once

#include <list>
#include <memory>
#include <string>
#include <utility>

#include <tvpolicy/export.h>

namespace com::torvane::api {

class ApplicationInventoryItem;

/// The installed applications, in the source's order; the shared pointers own the items.
using ApplicationInventory = std::list<std::shared_ptr<ApplicationInventoryItem>>;

/// One installed application as the agent reports it to the server: name, vendor, version.
///
/// The list comes from the current host probe's record of installed applications: the system
/// profiler's property list on macOS, the package database on Linux (dpkg, else rpm). Nothing
/// fills the vendor, which stays empty.
class TVPOLICY_API ApplicationInventoryItem {
public:
    ApplicationInventoryItem(std::string name, std::string vendor, std::string version)
        : name_(std::move(name)),
          vendor_(std::move(vendor)),
          version_(std::move(version))
    {
    }

    std::string getName() const { return name_; }
    std::string getVendor() const { return vendor_; }
    std::string getVersion() const { return version_; }

    /// The installed applications; empty when the record cannot be read or parsed. Reading the
    /// profiler's output prints its progress lines on the standard streams (not the log).
    static ApplicationInventory getInstances();

    /// <app><name>..</name><version>..</version><vendor>..</vendor></app> without whitespace;
    /// each value inside a CDATA section, an empty value as an empty element. A value holding
    /// "]]>" is split over two CDATA sections, so the fragment stays well-formed.
    std::string toXML() const;

private:
    std::string name_;
    std::string vendor_;
    std::string version_;
};

}  // namespace com::torvane::api
