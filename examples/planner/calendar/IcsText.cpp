#include "planner/calendar/IcsText.h"

#include <algorithm>

#include "planner/calendar/CalendarError.h"

namespace planner
{

namespace
{

/// A calendar needs three (VCALENDAR, VEVENT, VALARM); what goes deeper is no calendar.
constexpr std::size_t MaxDepth = 16;

struct TUnfoldedLine {
    std::string Text;
    int Number = 0;
};

/// Takes physical lines off the text and joins those that continue the one before.
class TLineReader
{
public:
    explicit TLineReader(std::string_view Text) : FRest(Text) {}

    bool Next(TUnfoldedLine& Line)
    {
        while (!FRest.empty()) {
            Line.Number = FNumber + 1;
            Line.Text = TakePhysicalLine();
            while (!FRest.empty() && (FRest.front() == ' ' || FRest.front() == '\t'))
                Line.Text += TakePhysicalLine().substr(1);
            if (Line.Text.find_first_not_of(" \t") != std::string::npos)
                return true;
        }
        return false;
    }

private:
    std::string_view TakePhysicalLine()
    {
        ++FNumber;
        const std::size_t End = FRest.find_first_of("\r\n");
        const std::string_view Line = FRest.substr(0, End);
        if (End == std::string_view::npos) {
            FRest = {};
            return Line;
        }
        const bool IsPair = FRest.substr(End, 2) == "\r\n";
        FRest.remove_prefix(End + (IsPair ? 2 : 1));
        return Line;
    }

    std::string_view FRest;
    int FNumber = 0;
};

std::string UpperCase(std::string_view Text)
{
    std::string Result(Text);
    for (char& Char : Result) {
        if (Char >= 'a' && Char <= 'z')
            Char = static_cast<char>(Char - 'a' + 'A');
    }
    return Result;
}

bool IsNameChar(char Char)
{
    return (Char >= 'a' && Char <= 'z') || (Char >= 'A' && Char <= 'Z') || (Char >= '0' && Char <= '9') ||
           Char == '-' || Char == '_' || Char == '.';
}

/// Finds the first of two characters outside double quotes.
std::size_t FindUnquoted(std::string_view Text, char One, char Other)
{
    bool Quoted = false;
    for (std::size_t Index = 0; Index < Text.size(); ++Index) {
        if (Text[Index] == '"')
            Quoted = !Quoted;
        else if (!Quoted && (Text[Index] == One || Text[Index] == Other))
            return Index;
    }
    return std::string_view::npos;
}

std::string WithoutQuotes(std::string_view Value)
{
    if (Value.size() >= 2 && Value.front() == '"' && Value.back() == '"')
        Value = Value.substr(1, Value.size() - 2);
    return std::string(Value);
}

std::string Excerpt(std::string_view Text)
{
    constexpr std::size_t Longest = 40;
    if (Text.size() <= Longest)
        return '"' + std::string(Text) + '"';
    // Not in the middle of a character of several bytes.
    std::size_t Length = Longest;
    while (Length > 0 && (static_cast<unsigned char>(Text[Length]) & 0xC0u) == 0x80u)
        --Length;
    return '"' + std::string(Text.substr(0, Length)) + "...\"";
}

class TReader
{
public:
    TReader(const std::string& FileName, std::string_view Text) : FFileName(FileName), FLines(Text) {}

    std::vector<TIcsBlock> Read()
    {
        TUnfoldedLine Line;
        while (FLines.Next(Line)) {
            TIcsProperty Property = ParseProperty(Line);
            if (Property.Name == "BEGIN")
                Begin(Property);
            else if (Property.Name == "END")
                End(Property);
            else if (FOpen.empty())
                Fail(Line.Number, "not a calendar: " + Excerpt(Line.Text) + " stands before BEGIN:VCALENDAR");
            else
                FOpen.back().Properties.push_back(std::move(Property));
        }
        if (!FOpen.empty())
            Fail(FOpen.back().Line, "BEGIN:" + FOpen.back().Kind + " has no END; the file is cut off");
        if (FCalendars.empty())
            Fail(0, "not a calendar: there is no BEGIN:VCALENDAR");
        return std::move(FCalendars);
    }

private:
    [[noreturn]] void Fail(int Line, const std::string& Reason) const
    {
        throw ECalendarError(FFileName, Line, Reason);
    }

    TIcsProperty ParseProperty(const TUnfoldedLine& Line) const
    {
        std::string_view Rest = Line.Text;
        if (Rest.find('\0') != std::string_view::npos)
            Fail(Line.Number, "not a text file");
        TIcsProperty Property;
        Property.Line = Line.Number;
        const auto NameEnd = std::find_if_not(Rest.begin(), Rest.end(), IsNameChar);
        const std::size_t NameLength = static_cast<std::size_t>(NameEnd - Rest.begin());
        Property.Name = UpperCase(Rest.substr(0, NameLength));
        Rest.remove_prefix(NameLength);
        while (!Rest.empty() && Rest.front() == ';') {
            Rest.remove_prefix(1);
            const std::size_t End = FindUnquoted(Rest, ';', ':');
            const std::string_view Parameter = Rest.substr(0, End);
            const std::size_t Equals = std::min(Parameter.find('='), Parameter.size());
            Property.Parameters.push_back(
                {UpperCase(Parameter.substr(0, Equals)),
                 WithoutQuotes(Parameter.substr(std::min(Equals + 1, Parameter.size())))});
            Rest.remove_prefix(Parameter.size());
        }
        if (Property.Name.empty() || Rest.empty() || Rest.front() != ':')
            Fail(Line.Number, Excerpt(Line.Text) + " is not a property (NAME:VALUE)");
        Property.Value = Rest.substr(1);
        return Property;
    }

    void Begin(const TIcsProperty& Property)
    {
        const std::string Kind = UpperCase(Property.Value);
        if (FOpen.empty() && Kind != "VCALENDAR")
            Fail(Property.Line, "not a calendar: it begins with " + Excerpt(Property.Value));
        if (FOpen.size() >= MaxDepth)
            Fail(Property.Line, "BEGIN:" + Kind + " is nested too deep");
        FOpen.push_back({Kind, Property.Line, {}, {}});
    }

    void End(const TIcsProperty& Property)
    {
        const std::string Kind = UpperCase(Property.Value);
        if (FOpen.empty())
            Fail(Property.Line, "END:" + Kind + " without its BEGIN");
        if (FOpen.back().Kind != Kind)
            Fail(Property.Line, "END:" + Kind + " where END:" + FOpen.back().Kind +
                                    " belongs (BEGIN in line " + std::to_string(FOpen.back().Line) + ")");
        TIcsBlock Block = std::move(FOpen.back());
        FOpen.pop_back();
        (FOpen.empty() ? FCalendars : FOpen.back().Blocks).push_back(std::move(Block));
    }

    const std::string& FFileName;
    TLineReader FLines;
    std::vector<TIcsBlock> FOpen;
    std::vector<TIcsBlock> FCalendars;
};

} // namespace

std::string_view TIcsProperty::Parameter(std::string_view Wanted) const
{
    for (const TParameter& Parameter : Parameters) {
        if (Parameter.Name == Wanted)
            return Parameter.Value;
    }
    return {};
}

const TIcsProperty* TIcsBlock::Find(std::string_view Name) const
{
    const auto Found = std::find_if(Properties.begin(), Properties.end(),
                                    [&](const TIcsProperty& Property) { return Property.Name == Name; });
    return Found == Properties.end() ? nullptr : &*Found;
}

bool TIcsBlock::HasBlock(std::string_view Wanted) const
{
    return std::any_of(Blocks.begin(), Blocks.end(),
                       [&](const TIcsBlock& Block) { return Block.Kind == Wanted; });
}

std::vector<TIcsBlock> ReadIcsText(const std::string& FileName, std::string_view Text)
{
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (Text.starts_with(ByteOrderMark))
        Text.remove_prefix(ByteOrderMark.size());
    return TReader(FileName, Text).Read();
}

std::string ToIcsText(const TIcsBlock& Block)
{
    std::string Result = "BEGIN:" + Block.Kind + "\r\n";
    for (const TIcsProperty& Property : Block.Properties) {
        Result += Property.Name;
        for (const TIcsProperty::TParameter& Parameter : Property.Parameters)
            Result += ";" + Parameter.Name + "=\"" + Parameter.Value + '"';
        Result += ":" + Property.Value + "\r\n";
    }
    for (const TIcsBlock& Inner : Block.Blocks)
        Result += ToIcsText(Inner);
    return Result + "END:" + Block.Kind + "\r\n";
}

std::string UnescapeText(std::string_view Value)
{
    std::string Result;
    Result.reserve(Value.size());
    for (std::size_t Index = 0; Index < Value.size(); ++Index) {
        if (Value[Index] != '\\' || Index + 1 == Value.size()) {
            Result += Value[Index];
            continue;
        }
        const char Escaped = Value[++Index];
        Result += Escaped == 'n' || Escaped == 'N' ? '\n' : Escaped;
    }
    return Result;
}

std::vector<std::string> SplitList(std::string_view Value)
{
    std::vector<std::string> Result;
    while (true) {
        const std::size_t End = Value.find(',');
        Result.emplace_back(Value.substr(0, End));
        if (End == std::string_view::npos)
            return Result;
        Value.remove_prefix(End + 1);
    }
}

} // namespace planner
