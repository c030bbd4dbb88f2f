#include "platform/linguistics/ModelMessage.h"

namespace lexiform {

std::string englishModelMessage(const linguistics::ModelFault& fault) {
    std::string message = "The English model cannot be used";
    if (!fault.file.empty()) message += " (" + fault.file.string() + ")";
    return message + ": " + fault.reason + ".";
}

} // namespace lexiform
