// A shared library that the standalone program opens when one of its functions is first called,
// not at start-up. The program defines the library's functions itself (hidden, so the library's
// own calls never land in them); each definition asks `entry` for the real function and passes
// the call on, or fails as the library reports failure when it cannot be opened.
#pragma once

#include <dlfcn.h>

#include <mutex>
#include <string>

namespace tvpolicy::standalone {

class LibraryOnDemand {
public:
    /// Called under the lock, once, right after the library was opened.
    using Opened = void (*)(void* library);

    /// `what` names the library in messages ("libcurl"); `soname` is the name the dynamic loader
    /// knows it by.
    LibraryOnDemand(const char* what, const char* soname, Opened opened = nullptr)
        : what_(what),
          soname_(soname),
          opened_(opened)
    {
    }
    LibraryOnDemand(const LibraryOnDemand&) = delete;
    LibraryOnDemand& operator=(const LibraryOnDemand&) = delete;

    /// The library, opened at the first call; null when it cannot be opened. It stays open for
    /// the life of the process: libraries keep global state that outlives every handle.
    void* library()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (!tried_) {
            tried_ = true;
            library_ = dlopen(soname_, RTLD_NOW | RTLD_LOCAL);
            if (library_ == nullptr) {
                const char* reason = dlerror();
                failure_ = std::string("cannot load ") + what_ + " (" + soname_ +
                           "): " + (reason != nullptr ? reason : "unknown error");
            } else if (opened_ != nullptr) {
                opened_(library_);
            }
        }
        return library_;
    }

    /// The library's function `name`, or null when the library cannot be opened.
    template <typename Function>
    Function entry(const char* name)
    {
        void* opened = library();
        return opened != nullptr ? reinterpret_cast<Function>(dlsym(opened, name)) : nullptr;
    }

    /// Runs `action` under the lock if the library has not been asked for yet; says whether it
    /// ran. What `action` records is then seen by `Opened`, which runs under the same lock.
    template <typename Action>
    bool whileUnopened(Action&& action)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (tried_) {
            return false;
        }
        action();
        return true;
    }

    /// Why the library could not be opened (after `library` returned null).
    const std::string& failure() const { return failure_; }

private:
    const char* what_;
    const char* soname_;
    Opened opened_;
    std::mutex mutex_;
    bool tried_ = false;
    void* library_ = nullptr;
    std::string failure_;
};

}  // namespace tvpolicy::standalone

// The real function `name` of `library` (a LibraryOnDemand), looked up once per function on its
// first call, as `real`.
#define TVPOLICY_REAL_IN(library, name) static const auto real = (library).entry<decltype(&(name))>(#name)
