// Wi-Fi of the macOS network probe: CoreWLAN (CWInterface, CWWirelessProfile, CW8021XProfile,
// the scanned networks) and SFAuthorization, reached through the Objective-C runtime. CoreWLAN
// has no public headers to compile against, so each message send is made through objc_msgSend
// cast to the method's exact type.
#include "host/probe/darwin/DarwinNetworkProbe.h"

#include <utility>

#include <objc/message.h>
#include <objc/runtime.h>

#include <Security/Authorization.h>

namespace tvpolicy {

namespace {

using id = ::id;

// One message send of the given type: Send<R(A...)>(receiver, "selector:", a...).
template <typename Signature>
struct Send;
template <typename R, typename... A>
struct Send<R(A...)> {
    static R call(id receiver, const char* selector, A... arguments)
    {
        if (receiver == nullptr) {
            return R();
        }
        using Function = R (*)(id, SEL, A...);
        return reinterpret_cast<Function>(objc_msgSend)(receiver, sel_registerName(selector), arguments...);
    }
};

id classNamed(const char* name) { return reinterpret_cast<id>(objc_getClass(name)); }

// An object this code allocated and initialised (+1), sent release when the holder goes.
class OwnedObject {
public:
    explicit OwnedObject(id object) : object_(object) {}
    ~OwnedObject() { Send<void()>::call(object_, "release"); }
    OwnedObject(const OwnedObject&) = delete;
    OwnedObject& operator=(const OwnedObject&) = delete;
    id get() const { return object_; }

private:
    id object_;
};

// CoreWLAN raises Objective-C exceptions (a busy or vanished interface, a malformed profile).
// The runtime's exceptions unwind like C++ ones, so they end here: the operation gives
// `fallback`, a failure where it reports one.
template <typename Operation, typename Fallback>
auto guarded(Operation&& operation, Fallback&& fallback) -> decltype(operation())
{
    try {
        return operation();
    } catch (...) {
        return std::forward<Fallback>(fallback);
    }
}

Failure raised() { return Failure{"CoreWLAN raised an exception"}; }

// An autorelease pool for the length of one operation, drained when it ends.
class AutoreleasePool {
public:
    AutoreleasePool() : pool_(Send<id()>::call(Send<id()>::call(classNamed("NSAutoreleasePool"), "alloc"), "init")) {}
    ~AutoreleasePool() { Send<void()>::call(pool_, "drain"); }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

private:
    id pool_;
};

std::string text(id string)
{
    const char* utf8 = Send<const char*()>::call(string, "UTF8String");
    return utf8 != nullptr ? utf8 : std::string();
}

// An autoreleased NSString of UTF-8 text.
id nsString(const std::string& value)
{
    return Send<id(const char*)>::call(classNamed("NSString"), "stringWithUTF8String:", value.c_str());
}

std::string errorText(id error)
{
    return error != nullptr ? text(Send<id()>::call(error, "localizedDescription")) : std::string();
}

id currentInterface() { return Send<id()>::call(classNamed("CWInterface"), "interface"); }

id nsNumber(long value) { return Send<id(long)>::call(classNamed("NSNumber"), "numberWithLong:", value); }

}  // namespace

std::optional<NetworkProbe::WifiStatus> DarwinNetworkProbe::wifiStatus() const
{
    return guarded(
        [&]() -> std::optional<WifiStatus> {
            AutoreleasePool pool;
            id interface = currentInterface();
            if (interface == nullptr) {
                return std::nullopt;
            }
            WifiStatus status;
            status.interfaceName = text(Send<id()>::call(interface, "interfaceName"));
            status.ssid = text(Send<id()>::call(interface, "ssid"));
            status.bssid = text(Send<id()>::call(interface, "bssid"));
            return status;
        },
        std::nullopt);
}

Result<NetworkProbe::WifiScan> DarwinNetworkProbe::wifiScan(const std::string& ssid)
{
    return guarded(
        [&]() -> Result<WifiScan> {
            AutoreleasePool pool;
            id interface = currentInterface();
            if (interface == nullptr) {
                return Failure{"no Wi-Fi interface"};
            }
            WifiScan scan;
            id scanError = nullptr;
            id found = Send<id(id, id*)>::call(interface, "scanForNetworksWithName:error:", nsString(ssid), &scanError);
            if (scanError != nullptr) {
                scan.refusal = errorText(scanError);
            }
            id all = Send<id()>::call(found, "allObjects");
            unsigned long count = Send<unsigned long()>::call(all, "count");
            for (unsigned long i = 0; i < count; ++i) {
                id network = Send<id(unsigned long)>::call(all, "objectAtIndex:", i);
                WifiNetwork entry;
                entry.ssid = text(Send<id()>::call(network, "ssid"));
                entry.bssid = text(Send<id()>::call(network, "bssid"));
                entry.description = text(Send<id()>::call(network, "description"));
                // The library's numbering of the enterprise modes (4, 5, 6), asked one by one.
                for (long mode : {6L, 5L, 4L, 3L, 2L, 1L}) {
                    if (Send<BOOL(long)>::call(network, "supportsSecurity:", mode)) {
                        entry.securityModes.push_back(static_cast<int>(mode));
                    }
                }
                entry.handle = entry.bssid;
                scan.networks.push_back(std::move(entry));
            }
            return scan;
        },
        raised());
}

Result<void> DarwinNetworkProbe::wifiAssociate(const WifiNetwork& network, const std::string& password, bool enterprise)
{
    return guarded(
        [&]() -> Result<void> {
            AutoreleasePool pool;
            OwnedObject bundle(Send<id(id)>::call(Send<id()>::call(classNamed("NSBundle"), "alloc"), "initWithPath:",
                                                  nsString("/System/Library/Frameworks/CoreWLAN.framework")));
            if (bundle.get() == nullptr) {
                return Failure{"unable to locate framework bundle"};
            }
            id interfaceClass =
                reinterpret_cast<id>(Send<Class(id)>::call(bundle.get(), "classNamed:", nsString("CWInterface")));
            id interface = Send<id()>::call(interfaceClass, "interface");
            // The scanned network object of this BSSID: the scan is repeated for the association.
            id found =
                Send<id(id, id*)>::call(interface, "scanForNetworksWithName:error:", nsString(network.ssid), nullptr);
            id all = Send<id()>::call(found, "allObjects");
            id target = nullptr;
            for (unsigned long i = 0, n = Send<unsigned long()>::call(all, "count"); i < n; ++i) {
                id candidate = Send<id(unsigned long)>::call(all, "objectAtIndex:", i);
                if (target == nullptr || text(Send<id()>::call(candidate, "bssid")) == network.handle) {
                    target = candidate;
                }
            }
            if (target == nullptr) {
                return Failure{"network not found"};
            }
            id associationError = nullptr;
            if (enterprise) {
                Send<BOOL(id, id, id, id, id*)>::call(
                    interface, "associateToEnterpriseNetwork:identity:username:password:error:", target, nullptr,
                    nullptr, nullptr, &associationError);
            } else {
                Send<BOOL(id, id, id*)>::call(interface, "associateToNetwork:password:error:", target,
                                              password.empty() ? nullptr : nsString(password), &associationError);
            }
            if (associationError != nullptr) {
                return Failure{errorText(associationError)};
            }
            return {};
        },
        raised());
}

std::vector<NetworkProbe::WifiSettings> DarwinNetworkProbe::wifiStoredProfiles() const
{
    return guarded(
        [&]() -> std::vector<WifiSettings> {
            AutoreleasePool pool;
            std::vector<WifiSettings> profiles;
            id configuration = Send<id()>::call(currentInterface(), "configuration");
            id remembered = Send<id()>::call(Send<id()>::call(configuration, "rememberedNetworks"), "allObjects");
            for (unsigned long i = 0, n = Send<unsigned long()>::call(remembered, "count"); i < n; ++i) {
                id profile = Send<id(unsigned long)>::call(remembered, "objectAtIndex:", i);
                WifiSettings settings;
                settings.ssid = text(Send<id()>::call(profile, "ssid"));
                settings.securityMode =
                    static_cast<int>(Send<long()>::call(Send<id()>::call(profile, "securityMode"), "longValue"));
                settings.passphrase = text(Send<id()>::call(profile, "passphrase"));
                id user8021X = Send<id()>::call(profile, "user8021XProfile");
                settings.name8021X = text(Send<id()>::call(user8021X, "userDefinedName"));
                profiles.push_back(std::move(settings));
            }
            return profiles;
        },
        std::vector<WifiSettings>());
}

Result<void> DarwinNetworkProbe::wifiStoreProfile(const WifiSettings& settings)
{
    return guarded(
        [&]() -> Result<void> {
            AutoreleasePool pool;
            id profile = Send<id()>::call(classNamed("CWWirelessProfile"), "profile");
            if (profile == nullptr) {
                return Failure{"CoreWLAN profiles are not available"};
            }
            Send<void(id)>::call(profile, "setSsid:", nsString(settings.ssid));
            Send<void(id)>::call(profile, "setSecurityMode:", nsNumber(settings.securityMode));
            Send<void(id)>::call(profile, "setPassphrase:", nsString(settings.passphrase));
            if (!settings.name8021X.empty()) {
                id user8021X = Send<id()>::call(classNamed("CW8021XProfile"), "profile");
                Send<void(id)>::call(user8021X, "setSsid:", nsString(settings.ssid));
                Send<void(id)>::call(user8021X, "setUserDefinedName:", nsString(settings.name8021X));
                Send<void(id)>::call(profile, "setUser8021XProfile:", user8021X);
            }
            id configuration = Send<id()>::call(currentInterface(), "configuration");
            if (configuration == nullptr) {
                return Failure{"no Wi-Fi configuration"};
            }
            id remembered = Send<id()>::call(configuration, "rememberedNetworks");
            if (Send<BOOL(id)>::call(remembered, "containsObject:", profile)) {
                return {};
            }
            id joined = Send<id(id)>::call(Send<id(id)>::call(classNamed("NSSet"), "setWithObject:", profile),
                                           "setByAddingObjectsFromSet:", remembered);
            Send<void(id)>::call(configuration, "setRememberedNetworks:", joined);
            id preferred = Send<id()>::call(configuration, "preferredNetworks");
            if (!Send<BOOL(id)>::call(preferred, "containsObject:", profile)) {
                id first = Send<id(id)>::call(Send<id(id)>::call(classNamed("NSArray"), "arrayWithObject:", profile),
                                              "arrayByAddingObjectsFromArray:", preferred);
                Send<void(id)>::call(configuration, "setPreferredNetworks:", first);
            }
            id authorization = Send<id()>::call(classNamed("SFAuthorization"), "authorization");
            id authorizationError = nullptr;
            Send<BOOL(const char*, AuthorizationFlags, id*)>::call(
                authorization, "obtainWithRight:flags:error:", "system.preferences",
                kAuthorizationFlagInteractionAllowed | kAuthorizationFlagExtendRights | kAuthorizationFlagPreAuthorize,
                &authorizationError);
            id commitError = nullptr;
            BOOL committed = Send<BOOL(id, id, id*)>::call(currentInterface(),
                                                           "commitConfiguration:authorization:error:", configuration,
                                                           authorization, &commitError);
            if (!committed) {
                return Failure{commitError != nullptr ? errorText(commitError) : errorText(authorizationError)};
            }
            return {};
        },
        raised());
}

}  // namespace tvpolicy
