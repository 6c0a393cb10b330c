#pragma once

#include <Security/Authorization.h>

namespace tvpolicy::darwin {

/// Holds one authorization reference of the Security framework for one right, freed (with its
/// rights destroyed) when the holder goes.
class MacPrivWrapper {
public:
    MacPrivWrapper();
    ~MacPrivWrapper();
    MacPrivWrapper(const MacPrivWrapper&) = delete;
    MacPrivWrapper& operator=(const MacPrivWrapper&) = delete;

    /// Asks for `right` (interaction allowed, rights extended, pre-authorised); the reference,
    /// or null when it was refused (status() tells why).
    AuthorizationRef createAuthRef(const char* right);
    /// Frees the reference, if one is held; the status stays.
    void freeAuthRef();
    OSStatus status() const { return status_; }

private:
    AuthorizationRef reference_ = nullptr;
    AuthorizationItem item_{nullptr, 0, nullptr, 0};
    AuthorizationRights rights_{1, &item_};
    OSStatus status_ = errAuthorizationSuccess;
};

}  // namespace tvpolicy::darwin
