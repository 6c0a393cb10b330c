#pragma once

#include <functional>
#include <string>

namespace testing_support {

/// A network namespace made for one test (`ip netns add`), removed with its /etc/netns folder
/// when the object ends. Needs root; when it cannot be made, skipReason() says why.
class NetNamespace {
public:
    NetNamespace();
    ~NetNamespace();
    NetNamespace(const NetNamespace&) = delete;
    NetNamespace& operator=(const NetNamespace&) = delete;

    bool valid() const { return skipReason_.empty(); }
    const std::string& skipReason() const { return skipReason_; }
    const std::string& name() const { return name_; }

    /// Runs `command` through the shell inside the namespace; true when it exits 0.
    bool exec(const std::string& command) const;
    /// Runs `command` inside the namespace until it succeeds, at most about `seconds`.
    bool waitFor(const std::string& command, int seconds = 5) const;
    /// The resolv.conf that processes in the namespace see.
    void setResolvConf(const std::string& text) const;

    /// Moves the calling process into the namespace, with the namespace's own /sys and
    /// resolv.conf and no system bus; for a forked child or a single-threaded benchmark. The
    /// process goes back to where it was when the object ends (or on leave()).
    bool enter();
    void leave();
    /// Runs `work` in a forked child inside the namespace and returns the text it returned
    /// ("<enter failed>" when the child could not enter).
    std::string inChild(const std::function<std::string()>& work);

private:
    int savedNet_ = -1;
    int savedMount_ = -1;
    std::string name_;
    std::string skipReason_;
};

}  // namespace testing_support
