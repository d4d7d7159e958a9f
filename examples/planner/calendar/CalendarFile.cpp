#include "planner/calendar/CalendarFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unordered_map>

#include "planner/calendar/CalendarError.h"
#include "planner/calendar/IcsText.h"

namespace planner
{

TCalendarFile TCalendarFile::Load(const std::string& FileName, const TZone& Local)
{
    std::error_code Ignored;
    if (std::filesystem::is_directory(FileName, Ignored))
        throw ECalendarError(FileName, 0, "this is a folder");
    errno = 0;
    std::ifstream File(FileName, std::ios::binary);
    std::string Text(std::istreambuf_iterator<char>(File), {});
    if (!File.is_open() || File.bad())
        throw ECalendarError(FileName, 0, errno ? std::strerror(errno) : "cannot be read");
    return Parse(FileName, Text, Local);
}

TCalendarFile TCalendarFile::Parse(const std::string& FileName, std::string_view Text, const TZone& Local)
{
    TCalendarFile Result;
    Result.FFileName = FileName;
    Result.FName = std::filesystem::path(FileName).stem().string();
    const std::vector<TIcsBlock> Calendars = ReadIcsText(FileName, Text);
    for (const TIcsBlock& Calendar : Calendars) {
        for (const TIcsBlock& Block : Calendar.Blocks) {
            if (Block.Kind == "VTIMEZONE")
                Result.FZones.Add(Block);
        }
    }
    const TReadingContext Context{FileName, Result.FZones, Local, Result.FNotes};
    std::unordered_map<std::string, std::size_t> IndexOfUid;
    for (const TIcsBlock& Calendar : Calendars) {
        const TIcsProperty* Name = Calendar.Find("X-WR-CALNAME");
        if (!Name)
            Name = Calendar.Find("NAME");
        if (Name && !Name->Value.empty())
            Result.FName = UnescapeText(Name->Value);
        for (const TIcsBlock& Block : Calendar.Blocks) {
            if (Block.Kind != "VEVENT")
                continue;
            TEventRecord Record = ReadEvent(Block, Context);
            // Events without an identity have nothing to do with one another.
            const std::string Uid = Record.Uid.empty() ? "\n" + std::to_string(Block.Line) : Record.Uid;
            const auto [Found, IsNew] = IndexOfUid.emplace(Uid, Result.FSeries.size());
            if (IsNew)
                Result.FSeries.emplace_back();
            Result.FSeries[Found->second].Add(std::move(Record));
        }
    }
    return Result;
}

} // namespace planner
