#pragma once

#include <stdexcept>
#include <string>

namespace qf::core {

/// Numbers of the run-time errors that the program itself raises.
namespace error {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int SubscriptRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileName = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int BadRecordNumber = 63;
inline constexpr int TooManyFiles = 67;
inline constexpr int DeviceUnavailable = 68;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ComponentMissing = 429;
inline constexpr int ComponentUnsuited = 430;
} // namespace error

/// The documented description of a run-time error number; "Application-defined or object-defined error"
/// for a number that has none of its own.
std::string DescriptionOf(int number);

/// The one exception of the program: a number and its description.
///
/// A handler that traps it says so. One that reaches the event loop is reported to the user and ends the
/// process with exit code 1.
class RuntimeError : public std::runtime_error {
  public:
    /// An error with the documented description of its number.
    explicit RuntimeError(int number);

    /// An error with a text of its own, as the world database reports it.
    RuntimeError(int number, const std::string& description);

    int         Number() const { return number_; }
    std::string Description() const { return what(); }

  private:
    int number_;
};

} // namespace qf::core
