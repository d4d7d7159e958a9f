#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "support/Expected.h"

namespace vcl::tests
{

/// One row of a table of reference data; fields by column name.
class TCsvRow
{
public:
    TCsvRow(const std::vector<std::string>& Columns, const std::vector<std::string>& Fields, int Line)
        : FLine(Line)
    {
        for (std::size_t Index = 0; Index < Columns.size(); ++Index)
            FFields[Columns[Index]] = Index < Fields.size() ? Fields[Index] : std::string();
    }

    /// The number of the line in the file, for messages.
    int GetLine() const { return FLine; }
    const std::string& operator[](const std::string& Column) const
    {
        const auto Found = FFields.find(Column);
        if (Found == FFields.end())
            throw std::runtime_error("The table has no column " + Column);
        return Found->second;
    }
    int Int(const std::string& Column) const { return std::stoi((*this)[Column]); }

private:
    std::map<std::string, std::string> FFields;
    int FLine;
};

/// Splits a line at commas outside double quotes; a doubled quote inside stands for one.
inline std::vector<std::string> SplitCsv(std::string_view Line)
{
    std::vector<std::string> Fields(1);
    bool IsQuoted = false;
    for (std::size_t Index = 0; Index < Line.size(); ++Index) {
        const char Character = Line[Index];
        if (Character == '"' && IsQuoted && Line.substr(Index + 1, 1) == "\"")
            Fields.back() += Line[++Index];
        else if (Character == '"')
            IsQuoted = !IsQuoted;
        else if (Character == ',' && !IsQuoted)
            Fields.emplace_back();
        else
            Fields.back() += Character;
    }
    return Fields;
}

inline std::vector<std::string> SplitAt(std::string_view Text, char Separator)
{
    std::vector<std::string> Parts(1);
    for (const char Character : Text)
        if (Character == Separator)
            Parts.emplace_back();
        else
            Parts.back() += Character;
    return Parts;
}

/// The rows of a file in tests/data whose first line names the columns. An empty table raises, so that a loop
/// over the rows cannot pass by doing nothing.
inline std::vector<TCsvRow> ReadCsv(std::string_view Name)
{
    std::vector<TCsvRow> Rows;
    std::vector<std::string> Columns;
    int Line = 0;
    for (const std::string& Text : SplitAt(ReadTestData(Name), '\n')) {
        ++Line;
        if (Line == 1)
            Columns = SplitCsv(Text);
        else if (!Text.empty())
            Rows.emplace_back(Columns, SplitCsv(Text), Line);
    }
    if (Rows.empty())
        throw std::runtime_error("No rows in " + std::string(Name));
    return Rows;
}

} // namespace vcl::tests
