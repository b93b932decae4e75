#include "platform/gstreamer/MciErrors.h"

#include <algorithm>
#include <array>

namespace gstreamer {
namespace {

struct Entry {
    int error;
    std::string_view text;
};

constexpr std::array kTexts = {
    Entry{kUnrecognizedKeyword, "The driver cannot recognize the specified command parameter."},
    Entry{kUnrecognizedCommand, "The driver cannot recognize the specified command."},
    Entry{kHardware, "There is a problem with your media device. Make sure it is working correctly."},
    Entry{kNotOpen, "The specified device is not open or is not recognized by MCI."},
    Entry{kNoCommand, "No command was specified."},
    Entry{kBadInteger, "The specified integer is invalid for this command."},
    Entry{kMissingParameter, "The specified command requires a parameter. Please supply one."},
    Entry{kFileNotFound, "Cannot find the specified file. Make sure the path and filename are correct."},
    Entry{kNotReady, "The device driver is not ready."},
    Entry{kCannotUseAll, "Cannot use 'all' as the device name with the specified command."},
    Entry{kMultipleErrors,
          "Errors occurred in more than one device. Specify each command and device separately."},
    Entry{kOutOfRange, "The specified parameter is out of range for the specified command."},
    Entry{kAliasInUse, "The specified alias is already being used in this application. Use a unique alias."},
    Entry{kNameRequired,
          "The specified command requires an alias, file, driver, or device name. Please supply one."},
    Entry{kBadTimeFormat, "The specified value for the time format is invalid."},
    Entry{kNoClosingQuote,
          "A closing double-quotation mark is missing from the parameter value. Please supply one."},
    Entry{kInvalidFile,
          "The specified file cannot be played. The file may be corrupt, or not in the correct format."},
    Entry{kTypeNotInstalled, "The specified device is not installed on the system."},
    Entry{kFileRead,
          "Cannot read the specified file. Make sure the file is still present, or check your disk."},
};

}  // namespace

std::string_view ErrorText(int error) {
    const auto* const found = std::find_if(kTexts.begin(), kTexts.end(),
                                           [error](const Entry& entry) { return entry.error == error; });
    return found == kTexts.end() ? std::string_view() : found->text;
}

}  // namespace gstreamer
