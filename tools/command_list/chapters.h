#pragma once

#include <ostream>

namespace qf::commands {

// The chapters of the list: what the panels of one subject send.
void WriteConsole(std::ostream& out);
void WriteNpcPanels(std::ostream& out);
void WriteConsolePanels(std::ostream& out);
void WriteItems(std::ostream& out);
void WriteSpecial(std::ostream& out);
void WriteConstruction(std::ostream& out);
void WriteBuilding(std::ostream& out);
void WritePlanting(std::ostream& out);
void WriteTemplates(std::ostream& out);
void WriteGameData(std::ostream& out);

} // namespace qf::commands
