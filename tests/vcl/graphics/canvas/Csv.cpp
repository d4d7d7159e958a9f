#include "vcl/graphics/canvas/Csv.h"

#include <sstream>
#include <stdexcept>

#include "support/Expected.h"

namespace vcl::tests
{

namespace
{

std::vector<std::string> Cells(const std::string& Line)
{
    std::vector<std::string> Result(1);
    bool IsQuoted = false;
    for (char Character : Line) {
        if (Character == '"')
            IsQuoted = !IsQuoted;
        else if (Character == ',' && !IsQuoted)
            Result.emplace_back();
        else
            Result.back() += Character;
    }
    return Result;
}

} // namespace

std::vector<TCsvRow> ReadCsv(const std::string& Name)
{
    std::istringstream Input(ReadTestData(Name));
    std::string Line;
    std::getline(Input, Line);
    const std::vector<std::string> Columns = Cells(Line);
    std::vector<TCsvRow> Rows;
    for (int Number = 2; std::getline(Input, Line); ++Number) {
        const std::vector<std::string> Values = Cells(Line);
        if (Values.size() != Columns.size())
            throw std::runtime_error(Name + ": line " + std::to_string(Number) + " has another width");
        std::map<std::string, std::string> Row;
        for (std::size_t Index = 0; Index < Columns.size(); ++Index)
            Row[Columns[Index]] = Values[Index];
        Rows.emplace_back(std::move(Row), Number);
    }
    return Rows;
}

std::vector<std::string> Words(const std::string& Text)
{
    std::istringstream Input(Text);
    std::vector<std::string> Result;
    for (std::string Word; Input >> Word;)
        Result.push_back(Word);
    return Result;
}

} // namespace vcl::tests
