// Writes damaged files for a player that is a process of its own:
//
//     damage_files FOLDER COUNT
//
// COUNT damages of each of the thirteen kinds, spread over all damages, as
// "Bad - KIND NUMBER.KIND".
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "real/damage/Damages.h"
#include "real/damage/Originals.h"

namespace {

constexpr std::array kKinds = {"mp3", "wma", "mpg", "mpeg", "wav", "wmv", "mid",
                               "mp4", "m4a", "mov", "avi",  "vob", "jpeg"};
/// Has no divisor in common with the number of damages, so the damages of a kind are spread over all.
constexpr int kStride = 7;

bool WriteKind(sound::GeneratedMedia& files, const std::string& folder, int kind, int count) {
    const std::string ending = kKinds.at(static_cast<std::size_t>(kind));
    const std::string good = damage::ContentOf(damage::MakeMedia(files, "good." + ending));
    const std::string other =
        damage::ContentOf(damage::MakeMedia(files, ending == "avi" ? "other.mp3" : "other.avi"));
    if (good.empty() || other.empty()) return false;
    for (int i = 0; i < count; ++i) {
        const int number =
            (kind * 3 + i * kStride) % damage::kDamages + i / damage::kDamages * damage::kDamages;
        std::string name = folder;
        name.append("/Bad - ").append(ending).append(" ").append(std::to_string(number));
        std::ofstream(name.append(".").append(ending), std::ios::binary)
            << damage::Damaged(good, other, number);
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return EXIT_FAILURE;
    const std::string folder = argv[1];
    const int count = std::atoi(argv[2]);
    sound::GeneratedMedia files;
    for (int kind = 0; kind < static_cast<int>(kKinds.size()); ++kind) {
        if (!WriteKind(files, folder, kind, count)) return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
