#include "host/probe/darwin/DarwinNetworkProbe.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <ifaddrs.h>
#include <net/if.h>
#include <net/if_dl.h>
#include <net/if_media.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/sockio.h>
#include <unistd.h>

#include <IOKit/IOKitLib.h>
#include <IOKit/network/IOEthernetController.h>
#include <IOKit/network/IOEthernetInterface.h>
#include <IOKit/network/IONetworkInterface.h>
#include <IOKit/network/IONetworkMedium.h>
#include <Security/Authorization.h>
#include <SystemConfiguration/SCDynamicStore.h>
#include <SystemConfiguration/SCDynamicStoreCopyDHCPInfo.h>
#include <SystemConfiguration/SCDynamicStoreKey.h>
#include <SystemConfiguration/SCNetworkConfiguration.h>
#include <SystemConfiguration/SCPreferences.h>
#include <SystemConfiguration/SCSchemaDefinitions.h>

#include <tvpolicy/base/Utilities.h>

#include <tvpolicy/base/OwnedFd.h>
#include "host/parse/MacHardware.h"
#include "host/probe/InterfaceAddressList.h"
#include "host/probe/darwin/DarwinHandles.h"

namespace tvpolicy {

static_assert(kIOMediumIEEE80211 == parse::mediumTypeIEEE80211, "802.11 media type");
static_assert(kIOMediumEthernet == parse::mediumTypeEthernet, "Ethernet media type");

namespace {

using darwin::CFHolder;
using darwin::IOHolder;

using Socket = tvpolicy::OwnedFd;

CFHolder<SCDynamicStoreRef> dynamicStore()
{
    return CFHolder<SCDynamicStoreRef>(SCDynamicStoreCreate(kCFAllocatorDefault, CFSTR("tvpolicy"), nullptr, nullptr));
}

// The registry services whose BSD name is `name`; false when the lookup itself failed.
bool FindEthernetInterfaces(IOHolder& services, const std::string& name)
{
    CFMutableDictionaryRef matching = IOBSDNameMatching(kIOMasterPortDefault, 0, name.c_str());
    if (matching == nullptr) {
        std::printf("IOServiceMatching returned a NULL dictionary.\n");
        return false;
    }
    // IOServiceGetMatchingServices consumes the matching dictionary.
    kern_return_t result = IOServiceGetMatchingServices(kIOMasterPortDefault, matching, services.out());
    if (result != KERN_SUCCESS) {
        std::printf("IOServiceGetMatchingServices returned %d\n", result);
        return false;
    }
    return true;
}

// The "Type" numbers of the controller's medium dictionary, in the dictionary's order.
std::vector<std::uint32_t> mediumTypes(CFDictionaryRef media)
{
    std::vector<std::uint32_t> types;
    CFIndex count = CFDictionaryGetCount(media);
    std::vector<const void*> values(static_cast<std::size_t>(count));
    CFDictionaryGetKeysAndValues(media, nullptr, values.data());
    for (const void* value : values) {
        if (value == nullptr || CFGetTypeID(value) != CFDictionaryGetTypeID()) {
            continue;
        }
        auto type =
            static_cast<CFNumberRef>(CFDictionaryGetValue(static_cast<CFDictionaryRef>(value), CFSTR(kIOMediumType)));
        SInt32 number = 0;
        if (type != nullptr && CFGetTypeID(type) == CFNumberGetTypeID() &&
            CFNumberGetValue(type, kCFNumberSInt32Type, &number)) {
            types.push_back(static_cast<std::uint32_t>(number));
        }
    }
    return types;
}

// MAC address and medium of the controllers of `services`.
NetworkProbe::Hardware GetMACAddress(io_iterator_t services)
{
    NetworkProbe::Hardware hardware;
    for (IOHolder service(IOIteratorNext(services)); service; service.reset(IOIteratorNext(services))) {
        IOHolder controller;
        kern_return_t result = IORegistryEntryGetParentEntry(service.get(), kIOServicePlane, controller.out());
        if (result != KERN_SUCCESS) {
            std::printf("IORegistryEntryGetParentEntry returned 0x%08x\n", result);
            continue;
        }
        CFHolder<CFTypeRef> media(
            IORegistryEntryCreateCFProperty(controller.get(), CFSTR(kIOMediumDictionary), kCFAllocatorDefault, 0));
        if (!media || CFGetTypeID(media.get()) != CFDictionaryGetTypeID()) {
            hardware.medium = "Unknown";
        } else {
            hardware.medium = parse::mediumFromTypes(mediumTypes(static_cast<CFDictionaryRef>(media.get())));
        }
        CFHolder<CFTypeRef> address(
            IORegistryEntryCreateCFProperty(controller.get(), CFSTR(kIOMACAddress), kCFAllocatorDefault, 0));
        if (address && CFGetTypeID(address.get()) == CFDataGetTypeID()) {
            auto data = static_cast<CFDataRef>(address.get());
            const UInt8* bytes = CFDataGetBytePtr(data);
            hardware.macAddress = parse::macFromBytes(std::vector<unsigned char>(bytes, bytes + CFDataGetLength(data)));
        }
    }
    return hardware;
}

CFHolder<CFDictionaryRef> globalDNS(SCDynamicStoreRef store)
{
    CFHolder<CFStringRef> key(
        SCDynamicStoreKeyCreateNetworkGlobalEntity(kCFAllocatorDefault, kSCDynamicStoreDomainState, kSCEntNetDNS));
    CFHolder<CFPropertyListRef> value(SCDynamicStoreCopyValue(store, key.get()));
    if (!value || CFGetTypeID(value.get()) != CFDictionaryGetTypeID()) {
        return CFHolder<CFDictionaryRef>();
    }
    return darwin::retained(static_cast<CFDictionaryRef>(value.get()));
}

// Forces the configuration refresh of the interface of `interfaces` (an array of
// SCNetworkInterfaceRef or of SCNetworkServiceRef) whose BSD name is `name`.
bool refreshNamed(CFArrayRef items, const std::string& name, bool services)
{
    CFHolder<CFStringRef> wanted = darwin::cfString(name);
    for (CFIndex i = 0; items != nullptr && i < CFArrayGetCount(items); ++i) {
        const void* item = CFArrayGetValueAtIndex(items, i);
        SCNetworkInterfaceRef interface = services
                                              ? SCNetworkServiceGetInterface(static_cast<SCNetworkServiceRef>(item))
                                              : static_cast<SCNetworkInterfaceRef>(item);
        CFStringRef bsdName = interface != nullptr ? SCNetworkInterfaceGetBSDName(interface) : nullptr;
        if (bsdName != nullptr && wanted && CFStringCompare(bsdName, wanted.get(), 0) == kCFCompareEqualTo) {
            // The status line is the caller's (the interface inventory prints it).
            return SCNetworkInterfaceForceConfigurationRefresh(interface);
        }
    }
    return false;
}

// Interfaces named en* are the Ethernet and Wi-Fi ports: candidates whatever the family.
bool ethernetPortName(const ifaddrs& entry)
{
    return entry.ifa_name != nullptr && std::strncmp(entry.ifa_name, "en", 2) == 0;
}

}  // namespace

std::optional<std::vector<NetworkProbe::AddressEntry>> DarwinNetworkProbe::interfaceAddresses() const
{
    return probe::interfaceAddressList(AF_LINK, &ethernetPortName);
}

std::optional<NetworkProbe::Hardware> DarwinNetworkProbe::interfaceHardware(const std::string& name) const
{
    IOHolder services;
    if (!FindEthernetInterfaces(services, name)) {
        return std::nullopt;
    }
    return GetMACAddress(services.get());
}

NetworkProbe::LinkState DarwinNetworkProbe::linkState(const std::string& name) const
{
    LinkState state;
    Socket socket(::socket(AF_INET, SOCK_DGRAM, 0));
    if (socket.get() < 0) {
        state.error = errno;
        return state;
    }
    ifmediareq request{};
    std::strncpy(request.ifm_name, name.c_str(), sizeof request.ifm_name - 1);
    if (::ioctl(socket.get(), SIOCGIFMEDIA, &request) < 0) {
        state.error = errno;
        return state;
    }
    state.active = (request.ifm_status & IFM_AVALID) != 0 && (request.ifm_status & IFM_ACTIVE) != 0;
    return state;
}

std::string DarwinNetworkProbe::dnsSuffix() const
{
    CFHolder<SCDynamicStoreRef> store = dynamicStore();
    if (!store) {
        return std::string();
    }
    // DHCP option 15 (domain name) of the primary service first.
    CFHolder<CFDictionaryRef> dhcp(SCDynamicStoreCopyDHCPInfo(store.get(), nullptr));
    if (dhcp) {
        if (CFDataRef option = DHCPInfoGetOptionData(dhcp.get(), 15)) {
            std::string domain = darwin::registryText(option);
            if (!domain.empty()) {
                return domain;
            }
        }
    }
    CFHolder<CFDictionaryRef> dns = globalDNS(store.get());
    return dns ? darwin::utf8(CFDictionaryGetValue(dns.get(), kSCPropNetDNSDomainName)) : std::string();
}

std::vector<std::string> DarwinNetworkProbe::dnsSearchDomains() const
{
    std::vector<std::string> domains;
    CFHolder<SCDynamicStoreRef> store = dynamicStore();
    if (!store) {
        return domains;
    }
    CFHolder<CFArrayRef> keys(SCDynamicStoreCopyKeyList(store.get(), CFSTR("State:/Network/(Service/.+|Global)/DNS")));
    for (CFIndex i = 0; keys && i < CFArrayGetCount(keys.get()); ++i) {
        auto key = static_cast<CFStringRef>(CFArrayGetValueAtIndex(keys.get(), i));
        CFHolder<CFPropertyListRef> value(SCDynamicStoreCopyValue(store.get(), key));
        if (!value || CFGetTypeID(value.get()) != CFDictionaryGetTypeID()) {
            continue;
        }
        auto search = static_cast<CFArrayRef>(
            CFDictionaryGetValue(static_cast<CFDictionaryRef>(value.get()), kSCPropNetDNSSearchDomains));
        if (search == nullptr || CFGetTypeID(search) != CFArrayGetTypeID()) {
            continue;
        }
        for (CFIndex k = 0; k < CFArrayGetCount(search); ++k) {
            domains.push_back(darwin::utf8(CFArrayGetValueAtIndex(search, k)));
        }
    }
    return domains;
}

std::string DarwinNetworkProbe::bssidCommand() const
{
    return "/System/Library/PrivateFrameworks/Apple80211.framework/Resources/airport --getinfo | "
           "awk '/BSSID/ { printf \"%s\", $2 }'";
}

bool DarwinNetworkProbe::renewAddress(const std::string& name)
{
    CFHolder<CFArrayRef> interfaces(SCNetworkInterfaceCopyAll());
    return refreshNamed(interfaces.get(), name, false);
}

bool DarwinNetworkProbe::renewAddressAuthorized(const std::string& name, const void* authorization)
{
    if (authorization == nullptr) {
        return false;
    }
    CFHolder<SCPreferencesRef> preferences(
        SCPreferencesCreateWithAuthorization(kCFAllocatorDefault, CFSTR("DissolvableAgent"), nullptr,
                                             static_cast<AuthorizationRef>(const_cast<void*>(authorization))));
    if (!preferences) {
        return false;
    }
    CFHolder<SCNetworkSetRef> set(SCNetworkSetCopyCurrent(preferences.get()));
    if (!set) {
        return false;
    }
    CFHolder<CFArrayRef> services(SCNetworkSetCopyServices(set.get()));
    return refreshNamed(services.get(), name, true);
}

NetworkProbe::GuestTools DarwinNetworkProbe::guestTools() const
{
    return {"VBoxSVC", "/usr/local/bin/VBoxManage", "VMware Fusion Services",
            "/Applications/VMware Fusion.app/Contents/Library/vmrun"};
}

std::string DarwinNetworkProbe::commandOutput(const std::string& command, unsigned long bufferSize)
{
    return getOutputFromCommand(command, bufferSize);
}

NetworkProbe& systemNetwork()
{
    static DarwinNetworkProbe probe;
    return probe;
}

}  // namespace tvpolicy
