#include <tvpolicy/host/ApplicationInventoryItem.h>

#include <iostream>
#include <vector>

#include <tvpolicy/host/HostProbe.h>

#include "host/CdataElement.h"
#include "host/parse/InstalledApplications.h"

namespace com::torvane::api {

namespace {

using tvpolicy::HostProbe;
using Format = HostProbe::ApplicationListing::Format;

std::vector<tvpolicy::parse::InstalledApplication> applicationsOf(const HostProbe::ApplicationListing& listing)
{
    switch (listing.format) {
    case Format::PropertyList: return tvpolicy::parse::applicationsFromProfiler(listing.text, std::cout, std::cerr);
    case Format::DpkgStatus: return tvpolicy::parse::packagesFromDpkgStatus(listing.text);
    case Format::RpmQuery: return tvpolicy::parse::packagesFromRpmQuery(listing.text);
    case Format::None: break;
    }
    return {};
}

}  // namespace

ApplicationInventory ApplicationInventoryItem::getInstances()
{
    ApplicationInventory inventory;
    for (auto& application : applicationsOf(tvpolicy::currentHost().applicationListing())) {
        inventory.push_back(std::make_shared<ApplicationInventoryItem>(std::move(application.name), std::string(),
                                                                       std::move(application.version)));
    }
    return inventory;
}

std::string ApplicationInventoryItem::toXML() const
{
    std::string xml = "<app>";
    tvpolicy::appendCdataElement(xml, "name", name_);
    tvpolicy::appendCdataElement(xml, "version", version_);
    tvpolicy::appendCdataElement(xml, "vendor", vendor_);
    return xml + "</app>";
}

}  // namespace com::torvane::api
