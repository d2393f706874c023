#include "world/sql_shape.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <sqlite3.h>
#include <system_error>

#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::world {

namespace {

bool IsBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool IsWordPart(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || IsDigit(character) ||
           character == '_' || character == '$' || static_cast<unsigned char>(character) >= 0x80;
}

template <std::size_t N>
bool IsOneOf(std::string_view word, const std::array<std::string_view, N>& words)
{
    return std::ranges::any_of(words, [&](std::string_view other) { return core::EqualIgnoringCase(word, other); });
}

constexpr std::array<std::string_view, 5>  SharedVerbs{"SELECT", "INSERT", "UPDATE", "DELETE", "REPLACE"};
constexpr std::array<std::string_view, 2>  VaryingParts{"VALUES", "WHERE"};
constexpr std::array<std::string_view, 10> OtherParts{"ORDER",  "GROUP", "HAVING",    "LIMIT",  "SELECT",
                                                      "WINDOW", "UNION", "INTERSECT", "EXCEPT", "RETURNING"};

/// What the program's area queries call the column that its INSERT statements call World.
constexpr std::string_view WorldAlias = "WorldNumber";
constexpr std::string_view WorldColumn = "World";

/// Behind the comment that begins here, or `begin` where none does.
std::size_t EndOfComment(std::string_view sql, std::size_t begin)
{
    const auto start = sql.substr(begin, 2);
    if (start == "--") {
        return std::min(sql.find('\n', begin), sql.size());
    }
    if (start == "/*") {
        const auto end = sql.find("*/", begin + 2);
        return end == std::string_view::npos ? sql.size() : end + 2;
    }
    return begin;
}

} // namespace

void SqlShape::Parse(std::string_view sql, Mode mode)
{
    statement_.clear();
    literals_.clear();
    texts_.clear();
    takesLiterals_ = mode == Mode::TakeLiterals;
    inVaryingPart_ = false;
    anyWord_ = false;
    behindDelete_ = false;

    for (std::size_t position = mode == Mode::TakeLiterals ? TakeHead(sql) : 0; position < sql.size();) {
        const char character = sql[position];
        if (IsBlank(character)) {
            statement_ += ' ';
            ++position;
        } else if (const auto end = EndOfComment(sql, position); end != position) {
            statement_ += ' ';
            position = end;
        } else if (character == '\'' || character == '"') {
            position = TakeText(sql, position);
        } else if (character == '[' || character == '`') {
            position = TakeName(sql, position);
        } else if (IsDigit(character) ||
                   (character == '.' && position + 1 < sql.size() && IsDigit(sql[position + 1]))) {
            position = TakeNumber(sql, position);
        } else if (IsWordPart(character) && character != '$') {
            position = TakeWord(sql, position);
        } else {
            TakeOther(character);
            ++position;
        }
    }
}

std::string_view SqlShape::Text(const Literal& literal) const
{
    return std::string_view(texts_).substr(literal.begin, literal.length);
}

std::size_t SqlShape::TakeHead(std::string_view sql)
{
    const auto length = head_.size();
    if (length == 0 || !sql.starts_with(head_) || (length < sql.size() && IsWordPart(sql[length]))) {
        return 0;
    }
    statement_ = headStatement_;
    anyWord_ = true;
    inVaryingPart_ = true;
    return length;
}

std::size_t SqlShape::TakeText(std::string_view sql, std::size_t begin)
{
    const char        quote = sql[begin];
    const std::size_t textBegin = texts_.size();
    std::size_t       position = begin + 1;
    for (;;) {
        const auto end = sql.find(quote, position);
        if (end == std::string_view::npos) {
            // A text without an end is an error that SQLite itself tells best.
            statement_ += sql.substr(begin);
            return sql.size();
        }
        texts_ += sql.substr(position, end - position);
        position = end + 1;
        if (position >= sql.size() || sql[position] != quote) {
            break;
        }
        texts_ += quote;
        ++position;
    }
    behindDelete_ = false;
    if (takesLiterals_ && inVaryingPart_) {
        literals_.push_back({.kind = Kind::Text, .begin = textBegin, .length = texts_.size() - textBegin});
        statement_ += '?';
        return position;
    }
    statement_ += '\'';
    for (const char character : std::string_view(texts_).substr(textBegin)) {
        statement_ += character;
        if (character == '\'') {
            statement_ += '\'';
        }
    }
    statement_ += '\'';
    return position;
}

std::size_t SqlShape::TakeName(std::string_view sql, std::size_t begin)
{
    const char closing = sql[begin] == '[' ? ']' : sql[begin];
    const auto end = sql.find(closing, begin + 1);
    behindDelete_ = false;
    if (end == std::string_view::npos) {
        statement_ += sql.substr(begin);
        return sql.size();
    }
    const auto name = sql.substr(begin + 1, end - begin - 1);
    statement_ += sql[begin];
    statement_ += core::EqualIgnoringCase(name, WorldAlias) ? WorldColumn : name;
    statement_ += closing;
    return end + 1;
}

std::size_t SqlShape::TakeNumber(std::string_view sql, std::size_t begin)
{
    std::size_t end = begin;
    while (end < sql.size()) {
        const bool isExponentSign =
            (sql[end] == '+' || sql[end] == '-') && (sql[end - 1] == 'e' || sql[end - 1] == 'E');
        if (!IsWordPart(sql[end]) && sql[end] != '.' && !isExponentSign) {
            break;
        }
        ++end;
    }
    const auto token = sql.substr(begin, end - begin);
    behindDelete_ = false;

    Literal    literal;
    const auto last = token.data() + token.size();
    const auto whole = std::from_chars(token.data(), last, literal.integer);
    bool       taken = takesLiterals_ && inVaryingPart_;
    if (taken && (whole.ec != std::errc() || whole.ptr != last)) {
        const auto real = std::from_chars(token.data(), last, literal.real);
        literal.kind = Kind::Real;
        taken = real.ec == std::errc() && real.ptr == last;
    }
    if (taken) {
        literals_.push_back(literal);
        statement_ += '?';
    } else {
        statement_ += token;
    }
    return end;
}

std::size_t SqlShape::TakeWord(std::string_view sql, std::size_t begin)
{
    std::size_t end = begin;
    while (end < sql.size() && IsWordPart(sql[end])) {
        ++end;
    }
    const auto word = sql.substr(begin, end - begin);
    behindDelete_ = !anyWord_ && core::EqualIgnoringCase(word, "DELETE");
    if (!anyWord_) {
        anyWord_ = true;
        takesLiterals_ = takesLiterals_ && IsOneOf(word, SharedVerbs);
    } else if (IsOneOf(word, VaryingParts)) {
        inVaryingPart_ = true;
    } else if (IsOneOf(word, OtherParts)) {
        inVaryingPart_ = false;
    }
    statement_ += core::EqualIgnoringCase(word, WorldAlias) ? WorldColumn : word;
    if (takesLiterals_ && literals_.empty() && texts_.empty() && core::EqualIgnoringCase(word, "VALUES")) {
        head_ = sql.substr(0, end);
        headStatement_ = statement_;
    }
    return end;
}

void SqlShape::TakeOther(char character)
{
    constexpr std::string_view ParameterSigns("?:@$\0", 5);
    if (ParameterSigns.find(character) != std::string_view::npos) {
        const auto sign = character == '\0' ? std::string("NUL") : std::string(1, character);
        throw core::RuntimeError(SQLITE_ERROR, "near \"" + sign + "\": syntax error");
    }
    statement_ += character == '*' && behindDelete_ ? ' ' : character;
    behindDelete_ = false;
}

} // namespace qf::world
