#pragma once

#include <map>
#include <string>
#include <vector>

namespace vcl::tests
{

/// One line of a table: the cell of each column by its name.
class TCsvRow
{
public:
    explicit TCsvRow(std::map<std::string, std::string> Cells, int Line)
        : FCells(std::move(Cells)), FLine(Line)
    {
    }

    /// Raises std::out_of_range for a column the table lacks.
    const std::string& Text(const std::string& Column) const { return FCells.at(Column); }
    bool Has(const std::string& Column) const { return !Text(Column).empty(); }
    /// 0 for an empty cell.
    int Number(const std::string& Column) const { return Has(Column) ? std::stoi(Text(Column)) : 0; }
    int GetLine() const { return FLine; }

private:
    std::map<std::string, std::string> FCells;
    int FLine;
};

/// The rows of a CSV file in tests/data, cells quoted with " where they contain commas.
std::vector<TCsvRow> ReadCsv(const std::string& Name);

/// The words of a text separated by blanks.
std::vector<std::string> Words(const std::string& Text);

} // namespace vcl::tests
