#pragma once

#include <map>
#include <string>

#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/policy/Task.h>

namespace tvpolicy::checks {

/// What the posture kinds share: attributes kept by name, required ones and values checked
/// before the fact is read, and a perform that never throws.
class PostureTask : public Task, public PostureEvidence {
public:
    std::string lastFinding() const override { return finding_; }
    void setAttribute(Attribute* attribute) override;
    /// Passed or failed with the finding as message; the detail is "Task performed properly."
    /// when the fact could be read, else "Task could not be performed.".
    TaskResponse* perform() override;

protected:
    struct Outcome {
        bool passed = false;
        std::string message;
        /// The fact was read (a failure is a finding, not a lack of information).
        bool found = true;
    };
    static Outcome unknown(std::string why) { return {false, std::move(why), false}; }

    /// The check itself, with every required attribute present and every value usable.
    virtual Outcome check() = 0;

    /// The value of `name`, or `fallback` when the element did not give it.
    std::string attribute(const std::string& name, const std::string& fallback = std::string()) const;
    /// True only for the exact text "true".
    bool flag(const std::string& name) const { return attribute(name) == "true"; }

private:
    std::map<std::string, std::string> attributes_;
    std::string finding_;
};

/// Whether the posture kind `kind` reads `attribute` (names compared exactly).
bool postureKindReads(const std::string& kind, const std::string& attribute);

Task* createPackageInstalled();
Task* createServiceActive();
Task* createFileContent();
Task* createFileMode();
Task* createPortListening();
Task* createFirewallActive();
Task* createDiskEncrypted();
Task* createKernelParameter();

/// A permission mask from octal text ("0640", "755"); false for anything else.
bool parseOctalMode(const std::string& text, unsigned& mode);
/// Why `pattern` does not compile as a PCRE2 pattern (the compiler's message and the offset);
/// empty when it does.
std::string patternProblem(const std::string& pattern);
/// A port number 1-65535 in decimal; false for anything else.
bool parsePort(const std::string& text, unsigned& port);

}  // namespace tvpolicy::checks
