#include <tvpolicy/version.h>

namespace tvpolicy {

const char* libraryVersion() { return TVPOLICY_VERSION; }

}  // namespace tvpolicy
