// The list of what every control sends: `quernfield-commands FILE`. It is written from the tables of the panels
// themselves, so that it says what the program does.

#include <fstream>
#include <iostream>

#include "command_list/chapters.h"

namespace {

void Write(std::ostream& out)
{
    out << "# Commands\n\n"
           "What the controls send, without the command prefix, in the dialect of either server generation. A name in "
           "braces stands for what is in that box or chosen in that list, as typed. This list is written by "
           "`quernfield-commands` from the tables of the program.\n\n";
    using namespace qf::commands;
    WriteConsole(out);
    WriteItems(out);
    WriteConstruction(out);
    WritePlanting(out);
    WriteTemplates(out);
    WriteGameData(out);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::cerr << "quernfield-commands FILE\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    Write(file);
    file.close();
    if (!file) {
        std::cerr << "cannot write " << arguments[1] << '\n';
        return 1;
    }
    return 0;
}
