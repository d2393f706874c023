#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "world/sql_shape.h"

struct sqlite3;
struct sqlite3_stmt;

namespace qf::world {

/// The one connection to the world database. Statements are given as literal text, one in each call, and
/// take effect at once for this connection; a missing file is never made.
///
/// Behind that the changes are kept in groups: the first statement that changes something opens one, and
/// `Commit`, the destructor, or ten thousand statements close it. A process that is killed loses the group
/// that is open and nothing else.
///
/// Every failure is a RuntimeError with SQLite's primary error code and its text.
class Database {
  public:
    /// Receives the fields of one row as text, an absent value as an empty one. The views end with the call.
    using RowFunction = std::function<void(std::span<const std::string_view>)>;

    /// Opens an existing database for reading and writing. A file that is missing (14), that another process
    /// has locked (5) or that is no database (26) is found here and not at the first statement.
    static std::unique_ptr<Database> Open(const std::filesystem::path& file);

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void Execute(std::string_view sql);

    /// All rows of a query.
    std::vector<std::vector<std::string>> Query(std::string_view sql);

    /// Gives each row to the function as it is found, for results that are too big to hold. The function may
    /// use the database itself; what it throws ends the query.
    void ForEachRow(std::string_view sql, const RowFunction& onRow);

    /// Keeps what was changed since the last call. Nothing happens where nothing was changed.
    void Commit();

  private:
    struct CloseConnection {
        void operator()(sqlite3* connection) const;
    };
    struct FinalizeStatement {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Connection = std::unique_ptr<sqlite3, CloseConnection>;
    using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

    struct Compiled {
        std::string   shape;
        Statement     statement;
        bool          inUse = false;
        std::uint64_t lastUse = 0;
    };

    class Lease;

    explicit Database(Connection connection) : connection_(std::move(connection)) {}

    void      Command(const char* sql);
    Statement Prepare(std::string_view sql);
    Lease     Compile(std::string_view sql);
    void      Bind(sqlite3_stmt* statement) const;
    void      BeginGroup();

    [[noreturn]] void Fail(int code) const;

    Connection               connection_;
    std::array<Compiled, 16> compiled_;
    std::uint64_t            uses_ = 0;
    SqlShape                 shape_;
    std::size_t              changesInGroup_ = 0;
};

/// Adds the column InstanceID to both tables where it is not there yet. Neither statement's failure is told or
/// skips the other.
void UpgradeDatabase(Database& database);

/// Writes a database file with the two empty tables. Throws RuntimeError 58 where the file exists, SQLite's code where
/// it cannot be made, 75 where it cannot be given its name.
void CreateWorldDatabase(const std::filesystem::path& file);

} // namespace qf::world
