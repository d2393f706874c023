#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qf::world {

/// A statement text as SQLite takes it, with the literals that vary from row to row taken out.
///
/// What is translated: "DELETE * FROM" is DELETE FROM; a text between double quotes is a text literal, in
/// which a doubled double quote stands for one; the column WorldNumber, bare or in brackets, is World.
/// Texts between single quotes stay as they are, and comments become a blank.
///
/// Number and text literals behind VALUES and WHERE become parameters, up to the next clause (the 1 of
/// ORDER BY 1 names a column and has to stay); a million rows thus share one compiled statement.
class SqlShape {
  public:
    enum class Mode { TakeLiterals, KeepLiterals };
    enum class Kind { Integer, Real, Text };

    /// A literal; a text lies in `Text(literal)`.
    struct Literal {
        Kind         kind = Kind::Integer;
        std::int64_t integer = 0;
        double       real = 0;
        std::size_t  begin = 0;
        std::size_t  length = 0;
    };

    /// Translates the statement; what was held before is dropped. Throws RuntimeError 1 for a text that
    /// holds parameters of its own or a NUL outside its literals.
    void Parse(std::string_view sql, Mode mode);

    /// The translated statement, with "?" for each literal that was taken out.
    const std::string& Statement() const { return statement_; }

    /// The literals that were taken out, in the order of their parameters.
    const std::vector<Literal>& Literals() const { return literals_; }
    std::string_view            Text(const Literal& literal) const;

  private:
    std::size_t TakeHead(std::string_view sql);
    std::size_t TakeText(std::string_view sql, std::size_t begin);
    std::size_t TakeName(std::string_view sql, std::size_t begin);
    std::size_t TakeNumber(std::string_view sql, std::size_t begin);
    std::size_t TakeWord(std::string_view sql, std::size_t begin);
    void        TakeOther(char character);

    std::string          statement_;
    std::vector<Literal> literals_;
    std::string          texts_;

    // The last statement up to VALUES, and its translation: a million rows begin with the same words.
    std::string head_;
    std::string headStatement_;

    bool takesLiterals_ = false;
    bool inVaryingPart_ = false;
    bool anyWord_ = false;
    bool behindDelete_ = false;
};

} // namespace qf::world
