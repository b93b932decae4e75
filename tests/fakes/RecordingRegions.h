// Regions that remember what was cut: the transcript of calls and the region the window has now.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "ports/Windows.h"

namespace fakes {

class RecordingRegions final : public ports::Regions {
public:
    ports::RegionHandle CreateRectRgn(int left, int top, int right, int bottom) override {
        return Make("rect", {left, top, right, bottom, 0, 0});
    }
    ports::RegionHandle CreateEllipticRgn(int left, int top, int right, int bottom) override {
        return Make("elliptic", {left, top, right, bottom, 0, 0});
    }
    ports::RegionHandle CreateRoundRectRgn(int left, int top, int right, int bottom, int corner_width,
                                           int corner_height) override {
        return Make("roundrect", {left, top, right, bottom, corner_width, corner_height});
    }
    bool CombineRgn(ports::RegionHandle result, ports::RegionHandle first, ports::RegionHandle second,
                    ports::RegionCombine mode) override {
        Calls.push_back("combine " + std::to_string(result) + " " + std::to_string(first) + " " +
                        std::to_string(second) + " " + std::to_string(static_cast<int>(mode)));
        return IsKnown(result) && IsKnown(first) && IsKnown(second);
    }
    bool SetWindowRgn(ports::RegionHandle region, bool redraw) override {
        Calls.push_back("set " + std::to_string(region) + (redraw ? " redraw" : ""));
        return IsKnown(region);
    }

    std::vector<std::string> Calls;

private:
    bool IsKnown(ports::RegionHandle region) const { return region > 0 && region <= last_; }

    ports::RegionHandle Make(const std::string& kind, const std::array<int, 6>& c) {
        ++last_;
        std::string call = std::to_string(last_) + " = " + kind;
        for (const int value : c)
            call += " " + std::to_string(value);
        Calls.push_back(call);
        return last_;
    }

    ports::RegionHandle last_ = 0;
};

}  // namespace fakes
