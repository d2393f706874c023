#include "world/database.h"

#include <sqlite3.h>
#include <system_error>
#include <utility>

#include "core/host_path.h"
#include "core/runtime_error.h"

namespace qf::world {

namespace fs = std::filesystem;

namespace {

constexpr int         BusyMilliseconds = 250;
constexpr std::size_t MostChangesInGroup = 10'000;
constexpr std::size_t LongestStatement = 1'000'000'000;
constexpr int         PrimaryCodeMask = 0xFF;

// The columns InstanceID are added at the program's start. There is no index on the place; docs/architecture.md
// says why.
// clang-format off
constexpr const char* Schema =
    "CREATE TABLE tblItem ("
    "Serial INTEGER, Name TEXT, X INTEGER, Y INTEGER, Z INTEGER, "
    "Container INTEGER, World INTEGER, ID INTEGER, iType INTEGER);"
    "CREATE TABLE tblCharacter ("
    "Serial INTEGER, Name TEXT, X INTEGER, Y INTEGER, Z INTEGER, "
    "World INTEGER, Owner INTEGER, ID INTEGER);";
// clang-format on

fs::path WithSuffix(fs::path file, const char* suffix)
{
    file += suffix;
    return file;
}

void Require(int code)
{
    if (code != SQLITE_OK) {
        throw core::RuntimeError(code & PrimaryCodeMask, sqlite3_errstr(code & PrimaryCodeMask));
    }
}

int OpenConnection(const fs::path& file, int flags, sqlite3*& connection)
{
    // One thread alone uses the database, so a lock in each call is for nothing.
    const int code = sqlite3_open_v2(core::Utf8Of(file).c_str(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (connection != nullptr) {
        sqlite3_busy_timeout(connection, BusyMilliseconds);
    }
    return code;
}

int Run(sqlite3* connection, const char* sql)
{
    return sqlite3_exec(connection, sql, nullptr, nullptr, nullptr);
}

/// A medium that cannot be written still serves the queries; a change then tells its own error.
bool IsReadOnlyCode(int code)
{
    const int primary = code & PrimaryCodeMask;
    return primary == SQLITE_READONLY || primary == SQLITE_CANTOPEN;
}

} // namespace

void Database::CloseConnection::operator()(sqlite3* connection) const
{
    sqlite3_close_v2(connection);
}

void Database::FinalizeStatement::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

/// A compiled statement while it runs: either one of the shared ones or one of its own.
class Database::Lease {
  public:
    explicit Lease(Compiled& shared) : shared_(&shared) { shared.inUse = true; }
    explicit Lease(Statement own) : own_(std::move(own)) {}
    ~Lease()
    {
        if (shared_ != nullptr) {
            sqlite3_reset(shared_->statement.get());
            sqlite3_clear_bindings(shared_->statement.get());
            shared_->inUse = false;
        }
    }
    Lease(const Lease&) = delete;
    Lease& operator=(const Lease&) = delete;

    sqlite3_stmt* Get() const { return shared_ != nullptr ? shared_->statement.get() : own_.get(); }

  private:
    Compiled* shared_ = nullptr;
    Statement own_;
};

std::unique_ptr<Database> Database::Open(const fs::path& file)
{
    sqlite3*   raw = nullptr;
    const int  code = OpenConnection(file, SQLITE_OPEN_READWRITE, raw);
    Connection connection(raw);
    Require(code);
    Require(Run(raw, "SELECT COUNT(*) FROM sqlite_schema"));
    for (const char* sql : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=NORMAL", "BEGIN IMMEDIATE; ROLLBACK"}) {
        if (const int result = Run(raw, sql); !IsReadOnlyCode(result)) {
            Require(result);
        }
    }
    return std::unique_ptr<Database>(new Database(std::move(connection)));
}

Database::~Database()
{
    Run(connection_.get(), sqlite3_get_autocommit(connection_.get()) != 0 ? "" : "COMMIT");
}

void Database::Fail(int code) const
{
    throw core::RuntimeError(code & PrimaryCodeMask, sqlite3_errmsg(connection_.get()));
}

void Database::Command(const char* sql)
{
    if (const int code = Run(connection_.get(), sql); code != SQLITE_OK) {
        Fail(code);
    }
}

Database::Statement Database::Prepare(std::string_view sql)
{
    if (sql.size() > LongestStatement) {
        Require(SQLITE_TOOBIG);
    }
    sqlite3_stmt* raw = nullptr;
    const char*   tail = nullptr;
    const int     code = sqlite3_prepare_v2(connection_.get(), sql.data(), static_cast<int>(sql.size()), &raw, &tail);
    Statement     statement(raw);
    if (code != SQLITE_OK) {
        Fail(code);
    }
    if (!statement) {
        throw core::RuntimeError(SQLITE_ERROR, "no statement");
    }
    const auto rest = sql.substr(static_cast<std::size_t>(tail - sql.data()));
    if (rest.find_first_not_of(" ;") != std::string_view::npos) {
        throw core::RuntimeError(SQLITE_ERROR, "characters found after the end of the statement");
    }
    return statement;
}

Database::Lease Database::Compile(std::string_view sql)
{
    shape_.Parse(sql, SqlShape::Mode::TakeLiterals);
    Compiled* oldest = nullptr;
    for (Compiled& compiled : compiled_) {
        if (compiled.inUse) {
            continue;
        }
        if (compiled.statement && compiled.shape == shape_.Statement()) {
            compiled.lastUse = ++uses_;
            return Lease(compiled);
        }
        if (oldest == nullptr || compiled.lastUse < oldest->lastUse) {
            oldest = &compiled;
        }
    }
    try {
        auto statement = Prepare(shape_.Statement());
        if (oldest == nullptr) {
            return Lease(std::move(statement));
        }
        oldest->shape = shape_.Statement();
        oldest->statement = std::move(statement);
        oldest->lastUse = ++uses_;
        return Lease(*oldest);
    } catch (const core::RuntimeError& error) {
        // Some literals cannot be parameters (a length in a type, the digits of a blob), and an error text
        // should show what was written.
        if (error.Number() != SQLITE_ERROR) {
            throw;
        }
        shape_.Parse(sql, SqlShape::Mode::KeepLiterals);
        return Lease(Prepare(shape_.Statement()));
    }
}

void Database::Bind(sqlite3_stmt* statement) const
{
    int parameter = 0;
    for (const auto& literal : shape_.Literals()) {
        ++parameter;
        int code = SQLITE_OK;
        switch (literal.kind) {
        case SqlShape::Kind::Integer: code = sqlite3_bind_int64(statement, parameter, literal.integer); break;
        case SqlShape::Kind::Real: code = sqlite3_bind_double(statement, parameter, literal.real); break;
        case SqlShape::Kind::Text: {
            const auto text = shape_.Text(literal);
            code = sqlite3_bind_text64(statement, parameter, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
            break;
        }
        }
        if (code != SQLITE_OK) {
            Fail(code);
        }
    }
}

void Database::BeginGroup()
{
    if (sqlite3_get_autocommit(connection_.get()) != 0) {
        changesInGroup_ = 0;
        Command("BEGIN IMMEDIATE");
    }
}

void Database::Execute(std::string_view sql)
{
    ForEachRow(sql, [](std::span<const std::string_view>) {});
}

std::vector<std::vector<std::string>> Database::Query(std::string_view sql)
{
    std::vector<std::vector<std::string>> rows;
    ForEachRow(sql, [&](std::span<const std::string_view> row) { rows.emplace_back(row.begin(), row.end()); });
    return rows;
}

void Database::ForEachRow(std::string_view sql, const RowFunction& onRow)
{
    bool changes = false;
    {
        const Lease lease = Compile(sql);
        auto* const statement = lease.Get();
        Bind(statement);
        changes = sqlite3_stmt_readonly(statement) == 0;
        if (changes) {
            BeginGroup();
        }
        std::vector<std::string_view> row(static_cast<std::size_t>(sqlite3_column_count(statement)));
        for (;;) {
            const int code = sqlite3_step(statement);
            if (code == SQLITE_DONE) {
                break;
            }
            if (code != SQLITE_ROW) {
                Fail(code);
            }
            for (std::size_t column = 0; column < row.size(); ++column) {
                const int   index = static_cast<int>(column);
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, index));
                const int   size = sqlite3_column_bytes(statement, index);
                row[column] =
                    text == nullptr ? std::string_view() : std::string_view(text, static_cast<std::size_t>(size));
            }
            onRow(row);
        }
    }
    if (changes && ++changesInGroup_ >= MostChangesInGroup) {
        Commit();
    }
}

void Database::Commit()
{
    if (sqlite3_get_autocommit(connection_.get()) == 0) {
        Command("COMMIT");
    }
}

void UpgradeDatabase(Database& database)
{
    for (const char* sql :
         {"ALTER TABLE tblItem ADD COLUMN InstanceID LONG;", "ALTER TABLE tblCharacter ADD COLUMN InstanceID LONG;"}) {
        // Where the column is there already nothing is amiss, and any other reason comes up again at the first
        // statement that needs the column.
        try {
            database.Execute(sql);
            database.Commit();
        } catch (const core::RuntimeError&) { // NOLINT(bugprone-empty-catch)
        }
    }
}

void CreateWorldDatabase(const fs::path& file)
{
    if (std::error_code failure; fs::exists(fs::symlink_status(file, failure))) {
        throw core::RuntimeError(core::error::FileAlreadyExists);
    }
    // A log that an earlier database of this name left behind would be played back into the new one.
    const auto      fresh = WithSuffix(file, ".new");
    std::error_code failure;
    for (const auto& stale : {fresh, WithSuffix(fresh, "-journal"), WithSuffix(file, "-journal"),
                              WithSuffix(file, "-wal"), WithSuffix(file, "-shm")}) {
        fs::remove(stale, failure);
    }

    sqlite3* connection = nullptr;
    int      code = OpenConnection(fresh, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, connection);
    code = code == SQLITE_OK ? Run(connection, Schema) : code;
    sqlite3_close(connection);
    Require(code);
    fs::rename(fresh, file, failure);
    if (failure) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

} // namespace qf::world
