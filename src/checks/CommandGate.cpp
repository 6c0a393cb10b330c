#include <tvpolicy/checks/CommandGate.h>

#include <mutex>
#include <utility>

namespace tvpolicy {

namespace {
std::mutex gateMutex;
CommandGate processGate;
}  // namespace

void setCommandGate(CommandGate gate)
{
    std::lock_guard<std::mutex> lock(gateMutex);
    processGate = std::move(gate);
}

std::string commandRefusal(const std::string& command)
{
    CommandGate gate;
    {
        std::lock_guard<std::mutex> lock(gateMutex);
        gate = processGate;
    }
    return gate ? gate(command) : std::string();
}

}  // namespace tvpolicy
