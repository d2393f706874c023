#include "core/runtime_error.h"

namespace qf::core {

std::string DescriptionOf(int number)
{
    switch (number) {
    case error::InvalidCall: return "Invalid procedure call or argument";
    case error::Overflow: return "Overflow";
    case error::SubscriptRange: return "Subscript out of range";
    case error::TypeMismatch: return "Type mismatch";
    case error::BadFileName: return "Bad file name or number";
    case error::FileNotFound: return "File not found";
    case error::FileAlreadyExists: return "File already exists";
    case error::BadRecordNumber: return "Bad record number";
    case error::TooManyFiles: return "Too many files";
    case error::DeviceUnavailable: return "Device unavailable";
    case error::PathFileAccess: return "Path/File access error";
    case error::PathNotFound: return "Path not found";
    case error::ComponentMissing: return "ActiveX component can't create object";
    case error::ComponentUnsuited: return "Class does not support Automation or does not support expected interface";
    default: return "Application-defined or object-defined error";
    }
}

RuntimeError::RuntimeError(int number) : RuntimeError(number, DescriptionOf(number)) {}

RuntimeError::RuntimeError(int number, const std::string& description)
    : std::runtime_error(description), number_(number)
{}

} // namespace qf::core
