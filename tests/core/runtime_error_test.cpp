#include "core/runtime_error.h"

#include <gtest/gtest.h>

#include <string>

namespace qf::core {
namespace {

TEST(RuntimeError, EachNumberHasItsDescription)
{
    struct Row {
        int         number;
        const char* description;
    };
    const Row rows[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {58, "File already exists"},
        {63, "Bad record number"},
        {67, "Too many files"},
        {68, "Device unavailable"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {429, "ActiveX component can't create object"},
        {430, "Class does not support Automation or does not support expected interface"},
        {0, "Application-defined or object-defined error"},
        {-2147467259, "Application-defined or object-defined error"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(DescriptionOf(row.number), row.description);
        EXPECT_EQ(RuntimeError(row.number).Description(), row.description);
        EXPECT_EQ(RuntimeError(row.number).Number(), row.number);
    }
}

TEST(RuntimeError, MayCarryADescriptionOfItsOwn)
{
    const RuntimeError error(-2147217900, "near \"FROM\": syntax error");
    EXPECT_EQ(error.Number(), -2147217900);
    EXPECT_EQ(error.Description(), "near \"FROM\": syntax error");
    EXPECT_STREQ(error.what(), "near \"FROM\": syntax error");
}

} // namespace
} // namespace qf::core
