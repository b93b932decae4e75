// A page of the engine in a window, and what it told.
#pragma once

#include <gtest/gtest.h>

#include "platform/webengine/EngineWorld.h"

namespace webengine_tests {

class EnginePage : public testing::Test {
protected:
    EnginePage() { world.Browser().SetListener(&heard); }
    ~EnginePage() override { world.Browser().SetListener(nullptr); }

    bool Arrive(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); });
    }
    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    int Asked(const char* path) { return world.Server().Asked(path); }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
};

}  // namespace webengine_tests
