#include "world/world_loader.h"

#include "core/text.h"
#include "world/world_files_070.h"
#include "world/world_files_09.h"
#include "world/world_writer.h"

namespace qf::world {

namespace {

/// A box can stay open for hours, so what was written before it is kept first.
class CommittingOutlet final : public core::Outlet {
  public:
    CommittingOutlet(Database& database, core::Outlet& outlet) : database_(database), outlet_(outlet) {}

    void Send(std::string_view command, bool usePrefix) override { outlet_.Send(command, usePrefix); }
    void Show(const core::Message& message) override
    {
        database_.Commit();
        outlet_.Show(message);
    }
    bool Ask(const core::Message& message) override
    {
        database_.Commit();
        return outlet_.Ask(message);
    }

  private:
    Database&     database_;
    core::Outlet& outlet_;
};

bool LoadFiles(Database& database, core::Outlet& outlet, core::ServerGeneration generation, std::string_view folder)
{
    if (generation.Is070()) {
        WorldWriter writer(database, NameQuoting::DoubleQuotes);
        return LoadWorldFiles070(folder, writer, outlet);
    }
    if (generation.Is09()) {
        WorldWriter writer(database, NameQuoting::SingleQuotes);
        LoadWorldFiles09(folder, writer, outlet);
        return true;
    }
    return false;
}

} // namespace

bool LoadWorld(Database& database, core::Outlet& outlet, core::ServerGeneration generation,
               std::string_view serverProgram)
{
    database.Execute("DELETE * FROM tblItem;");
    database.Execute("DELETE * FROM tblCharacter;");
    CommittingOutlet committing(database, outlet);
    const bool       loaded = LoadFiles(database, committing, generation, core::FolderOf(serverProgram));
    database.Commit();
    return loaded;
}

} // namespace qf::world
