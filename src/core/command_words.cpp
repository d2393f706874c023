#include "core/command_words.h"

#include <string>

namespace qf::core {

void SendWords(const CommandWords& words, std::string_view argument, ServerGeneration generation, Outlet& outlet)
{
    std::string command;
    if (generation.Is070() || words.in070 == words.in09) {
        command = words.in070;
    } else if (generation.Is09()) {
        command = words.in09;
    } else {
        return;
    }
    command += argument;
    outlet.Send(command);
}

} // namespace qf::core
