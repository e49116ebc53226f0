#include "platform/DialogRegistry.h"

#include <map>

namespace tolva {

namespace {

std::map<std::string, DialogRunner>& Registry() {
    static std::map<std::string, DialogRunner> registry;
    return registry;
}

}  // namespace

void RegisterDialog(const std::string& name, DialogRunner runner) {
    Registry()[name] = std::move(runner);
}

const DialogRunner* FindDialog(const std::string& name) {
    const auto it = Registry().find(name);
    return it == Registry().end() ? nullptr : &it->second;
}

}  // namespace tolva
