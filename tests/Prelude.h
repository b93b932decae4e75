// Compiled once for all test programs. A test still includes what it uses; this only makes that cheap, so it
// holds nothing of the project's own: a change there would compile every test again.
#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
