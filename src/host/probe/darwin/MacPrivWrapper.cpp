#include "host/probe/darwin/MacPrivWrapper.h"

namespace tvpolicy::darwin {

MacPrivWrapper::MacPrivWrapper() = default;

MacPrivWrapper::~MacPrivWrapper() { freeAuthRef(); }

AuthorizationRef MacPrivWrapper::createAuthRef(const char* right)
{
    freeAuthRef();
    item_.name = right;
    const AuthorizationFlags flags =
        kAuthorizationFlagInteractionAllowed | kAuthorizationFlagExtendRights | kAuthorizationFlagPreAuthorize;
    status_ = AuthorizationCreate(&rights_, kAuthorizationEmptyEnvironment, flags, &reference_);
    if (status_ != errAuthorizationSuccess) {
        freeAuthRef();
    }
    return reference_;
}

void MacPrivWrapper::freeAuthRef()
{
    if (reference_ != nullptr) {
        AuthorizationFree(reference_, kAuthorizationFlagDestroyRights);
        reference_ = nullptr;
    }
}

}  // namespace tvpolicy::darwin
