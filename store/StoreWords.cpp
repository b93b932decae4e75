#include "store/StoreWords.h"

namespace store {
namespace {

using ports::DatabaseError;

std::string Quoted(std::string_view file) {
    return "The file \"" + std::string(file) + "\" ";
}

}  // namespace

std::string_view ReasonOf(DatabaseError error) {
    switch (error) {
        case DatabaseError::Missing:
            return "it is missing, or was moved or replaced while the program was running";
        case DatabaseError::IsFolder:
            return "a folder stands in its place";
        case DatabaseError::Damaged:
            return "it is damaged or no database";
        case DatabaseError::OtherKind:
            return "it does not hold the tables that this program needs";
        case DatabaseError::ReadOnly:
            return "the file or its folder is read-only";
        case DatabaseError::DiskFull:
            return "the disk is full";
        case DatabaseError::Locked:
            return "another program is holding it";
        default:
            return "the disk or the system reported an error";
    }
}

std::string NewerStoreMessage(std::string_view file, int version, int known, std::string_view copy) {
    std::string message = Quoted(file) + "belongs to a newer version of Brindlepost: it is version " +
                          std::to_string(version) + ", and this program knows version " +
                          std::to_string(known) +
                          ".\nNothing was changed. Please start the newer program again.";
    if (!copy.empty())
        message += "\nA copy from before, which this program can open, is kept beside it as \"" +
                   std::string(copy) + "\".";
    return message;
}

std::string OlderStoreMessage(std::string_view file, const ports::DatabaseResult& result) {
    std::string message = Quoted(file) +
                          "is of an older version of Brindlepost and can not be brought up to this one: " +
                          std::string(ReasonOf(result.error)) + ".";
    if (result.error == DatabaseError::InputOutput && !result.text.empty())
        message += "\n(" + result.text + ")";
    return message + "\nThe file was left as it is.";
}

}  // namespace store
